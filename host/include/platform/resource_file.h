/// Files that lie beside the resource libraries, in the same folders and languages.
#pragma once

#include <filesystem>
#include <string_view>

#include <runtime/export.h>

/// Looks for a file in the user's language, then in English, as `LoadResourceDll` does for
/// libraries.
/// @param name  of the file alone, without folders
/// @return      its path, in the folder of its language; empty if there is none
KW_EXPORT std::filesystem::path findResourceFile(std::string_view name);
