/// Where resource libraries are looked for, and in which languages.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The languages to try for `language`, best first, "en" always among them: "pt_BR.UTF-8" gives
/// "pt_BR", "pt", "en". What is no language name ("C", "POSIX", paths) gives "en" alone.
std::vector<std::string> resourceLanguages(std::string_view language);

/// The language that the environment asks for, as it stands there; empty if it says nothing.
std::string environmentLanguage();

/// The folders to search behind the one that the program sets, best first.
std::vector<std::filesystem::path> resourceFolders();
