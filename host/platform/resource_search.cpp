#include "resource_search.h"

#include <algorithm>
#include <cstdlib>

#include <platform/code_file.h>

namespace {

namespace fs = std::filesystem;

constexpr char kSubfolder[] = "kwqselect/resources";

bool isLanguageName(std::string_view name)
{
    const auto isNameCharacter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
    };
    return name.size() >= 2 && name != "POSIX" && std::ranges::all_of(name, isNameCharacter);
}

void appendEnvironmentFolders(std::vector<fs::path>& folders)
{
    const char* value = secure_getenv("KW_RESOURCE_PATH");
    std::string_view rest = value ? value : "";
    while (!rest.empty()) {
        const std::string_view folder = rest.substr(0, rest.find(':'));
        if (!folder.empty())
            folders.emplace_back(folder);
        rest.remove_prefix(std::min(folder.size() + 1, rest.size()));
    }
}

/// Beside a binary, and where libraries lie next to its folder.
void appendFoldersNear(const fs::path& binary, std::vector<fs::path>& folders)
{
    std::error_code error;
    const fs::path resolved = fs::canonical(binary, error);
    if (error)
        return;
    const fs::path folder = resolved.parent_path();
    folders.push_back(folder / kSubfolder);
    folders.push_back(folder.parent_path() / "lib" / kSubfolder);
}

} // namespace

std::vector<std::string> resourceLanguages(std::string_view language)
{
    std::vector<std::string> languages;
    language = language.substr(0, language.find_first_of(".@"));
    if (isLanguageName(language)) {
        languages.emplace_back(language);
        if (const auto region = language.find('_'); region != language.npos && region > 0)
            languages.emplace_back(language.substr(0, region));
    }
    if (std::ranges::find(languages, "en") == languages.end())
        languages.emplace_back("en");
    return languages;
}

std::string environmentLanguage()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(name);
        if (value && *value)
            return value;
    }
    return {};
}

std::vector<fs::path> resourceFolders()
{
    std::vector<fs::path> folders;
    appendEnvironmentFolders(folders);
    appendFoldersNear(kdFileOfCode(reinterpret_cast<const void*>(&resourceFolders)), folders);
    appendFoldersNear("/proc/self/exe", folders);
    folders.emplace_back(KW_RESOURCE_INSTALL_FOLDER);
    return folders;
}
