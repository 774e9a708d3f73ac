#include <platform/resources.h>

#include <platform/resource_file.h>
#include <platform/resource_layouts.h>

#include "resource_library.h"
#include "resource_search.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// All libraries that have been loaded, and which of them is current.
class ResourceLibraries
{
  public:
    HINSTANCE library(std::wstring_view name);
    /// The files of that name that may be there, best first.
    std::vector<fs::path> candidates(const fs::path& name) const;
    void setLanguage(std::string_view language);
    void setFolder(const fs::path& folder);

    std::vector<HINSTANCE> current;

  private:
    HINSTANCE search(const fs::path& file);
    HINSTANCE load(const fs::path& file);

    std::string m_language;
    fs::path m_folder;
    std::map<fs::path, std::unique_ptr<ResourceLibrary>> m_loaded;
    /// What a name stands for in the present language and folders.
    std::map<std::wstring, HINSTANCE, std::less<>> m_byName;
};

/// Never destroyed, since texts are used until the very end of the process.
ResourceLibraries& libraries()
{
    static auto* const instance = new ResourceLibraries;
    return *instance;
}

/// The file of a library: "KrxOPMRes.dll" lies in "KrxOPMRes.so". Empty for what is no plain name.
fs::path fileOf(std::wstring_view name)
{
    constexpr std::wstring_view kEnding = L".dll";
    if (name.ends_with(kEnding))
        name.remove_suffix(kEnding.size());
    const auto isUsual = [](wchar_t c) { return c > L' ' && c < L'\x7f' && c != L'/'; };
    if (name.empty() || !std::ranges::all_of(name, isUsual))
        return {};
    return fs::path(std::wstring(name) + L".so");
}

HINSTANCE ResourceLibraries::library(std::wstring_view name)
{
    if (const auto known = m_byName.find(name); known != m_byName.end())
        return known->second;
    const fs::path file = fileOf(name);
    const HINSTANCE found = file.empty() ? nullptr : search(file);
    // A failure is not remembered, so that a library that comes later is found.
    if (found)
        m_byName.emplace(name, found);
    return found;
}

std::vector<fs::path> ResourceLibraries::candidates(const fs::path& name) const
{
    std::vector<fs::path> folders = resourceFolders();
    if (!m_folder.empty())
        folders.insert(folders.begin(), m_folder);
    std::vector<fs::path> files;
    for (const std::string& language :
         resourceLanguages(m_language.empty() ? environmentLanguage() : m_language))
        for (const fs::path& folder : folders)
            files.push_back(folder / language / name);
    return files;
}

HINSTANCE ResourceLibraries::search(const fs::path& file)
{
    for (const fs::path& candidate : candidates(file))
        if (const HINSTANCE found = load(candidate))
            return found;
    return nullptr;
}

HINSTANCE ResourceLibraries::load(const fs::path& file)
{
    const auto known = m_loaded.find(file);
    if (known != m_loaded.end())
        return known->second.get();
    std::unique_ptr<ResourceLibrary> loaded = ResourceLibrary::load(file);
    return loaded ? m_loaded.emplace(file, std::move(loaded)).first->second.get() : nullptr;
}

void ResourceLibraries::setLanguage(std::string_view language)
{
    m_language = language;
    m_byName.clear();
}

void ResourceLibraries::setFolder(const fs::path& folder)
{
    m_folder = folder;
    m_byName.clear();
}

} // namespace

int LoadStringW(HINSTANCE module, unsigned int id, wchar_t* buffer, int size)
{
    const std::wstring_view text = module ? module->find(id) : std::wstring_view();
    if (!buffer || size < 0)
        return 0;
    if (size == 0) {
        const wchar_t* place = text.empty() ? nullptr : text.data();
        std::memcpy(buffer, &place, sizeof(place));
        return static_cast<int>(text.size());
    }
    const std::size_t count = std::min(text.size(), static_cast<std::size_t>(size - 1));
    buffer[text.copy(buffer, count)] = L'\0';
    return static_cast<int>(count);
}

fs::path findResourceFile(std::string_view name)
{
    const fs::path file(name);
    if (name.empty() || file != file.filename())
        return {};
    for (const fs::path& candidate : libraries().candidates(file)) {
        std::error_code error;
        if (fs::is_regular_file(candidate, error))
            return candidate;
    }
    return {};
}

std::string_view kdFindLayout(HINSTANCE module, std::wstring_view path)
{
    return module ? module->findLayout(path) : std::string_view();
}

HINSTANCE LoadResourceDll(const wchar_t* name)
{
    return name ? libraries().library(name) : nullptr;
}

HINSTANCE AfxGetResourceHandle()
{
    const std::vector<HINSTANCE>& current = libraries().current;
    return current.empty() ? nullptr : current.back();
}

bool SetCurrentResourceName(const wchar_t* name)
{
    const HINSTANCE library = LoadResourceDll(name);
    if (library)
        libraries().current.push_back(library);
    return library != nullptr;
}

void RestorePreviousResource()
{
    std::vector<HINSTANCE>& current = libraries().current;
    if (!current.empty())
        current.pop_back();
}

void setResourceLanguage(std::string_view language)
{
    libraries().setLanguage(language);
}

void setResourceFolder(const fs::path& folder)
{
    libraries().setFolder(folder);
}
