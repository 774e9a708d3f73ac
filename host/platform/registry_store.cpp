#include "registry_store.h"

#include <algorithm>

namespace {

struct Root
{
    HKEY handle;
    RegistryKey key;
};

constexpr unsigned kAllAccess = ~0U;

const RegistryKey* rootOf(HKEY key)
{
    static const Root roots[] = {
        {HKEY_CURRENT_USER, {L"HKEY_CURRENT_USER\\", kAllAccess}},
        {HKEY_LOCAL_MACHINE, {L"HKEY_LOCAL_MACHINE\\", kAllAccess}},
    };
    const auto* const found = std::ranges::find(roots, key, &Root::handle);
    return found == std::end(roots) ? nullptr : &found->key;
}

/// A name of several parts with a backslash at its end; nothing if a part is no name. The empty
/// name stays empty.
std::optional<std::wstring> pathOf(std::wstring_view name)
{
    if (name.ends_with(L'\\'))
        name.remove_suffix(1);
    if (name.empty())
        return std::wstring();
    for (std::wstring_view rest = name;;) {
        const std::size_t length = std::min(rest.find(L'\\'), rest.size());
        if (length == 0 || rest.front() == L':')
            return std::nullopt;
        if (length == rest.size())
            return std::wstring(name) + L'\\';
        rest.remove_prefix(length + 1);
    }
}

std::wstring valueName(const RegistryKey& key, std::wstring_view name)
{
    return key.path + L':' + std::wstring(name);
}

} // namespace

RegistryStore& RegistryStore::instance()
{
    static RegistryStore store;
    return store;
}

const RegistryKey* RegistryStore::find(HKEY key) const
{
    if (const RegistryKey* root = rootOf(key))
        return root;
    const auto found = m_open.find(key);
    return found == m_open.end() ? nullptr : found->second.get();
}

bool RegistryStore::exists(const std::wstring& path) const
{
    const bool isRoot = path.find(L'\\') == path.size() - 1;
    return isRoot || m_file->get(path) != nullptr;
}

bool RegistryStore::load()
{
    const std::filesystem::path folder = SettingsFile::standardFolder();
    if (folder.empty()) {
        m_status = SettingsStatus::Unwritable;
        return false;
    }
    const std::filesystem::path path = folder / "registry.conf";
    if (!m_file || m_file->path() != SettingsFile(path).path())
        m_file.emplace(path);
    m_status = m_file->load();
    return m_status == SettingsStatus::Good || m_status == SettingsStatus::Broken;
}

long RegistryStore::save()
{
    const SettingsStatus status = m_file->save();
    if (status != SettingsStatus::Good)
        m_status = status;
    if (status == SettingsStatus::Good || status == SettingsStatus::Broken)
        return ERROR_SUCCESS;
    m_file.reset(); // what could not be written must not come up later
    return ERROR_REGISTRY_IO_FAILED;
}

long RegistryStore::check(HKEY key, unsigned access, const RegistryKey*& found)
{
    found = find(key);
    if (!found)
        return ERROR_INVALID_HANDLE;
    if ((found->access & access) != access)
        return ERROR_ACCESS_DENIED;
    if (!load())
        return ERROR_REGISTRY_IO_FAILED;
    return exists(found->path) ? ERROR_SUCCESS : ERROR_KEY_DELETED;
}

void RegistryStore::make(const std::wstring& path)
{
    for (std::size_t end = path.find(L'\\'); end != std::wstring::npos;
         end = path.find(L'\\', end + 1)) {
        const std::wstring key = path.substr(0, end + 1);
        if (!exists(key))
            m_file->set(key, std::wstring());
    }
}

long RegistryStore::open(HKEY parent, std::wstring_view name, unsigned access, bool create,
                         HKEY& opened)
{
    const std::scoped_lock lock(m_mutex);
    const std::optional<std::wstring> path = pathOf(name);
    if (!path)
        return ERROR_INVALID_PARAMETER;
    const RegistryKey* above = nullptr;
    if (const long status = check(parent, 0, above); status != ERROR_SUCCESS)
        return status;
    auto key = std::make_unique<RegistryKey>(RegistryKey{above->path + *path, access});
    if (!exists(key->path)) {
        if (!create)
            return ERROR_FILE_NOT_FOUND;
        if ((above->access & KEY_CREATE_SUB_KEY) == 0)
            return ERROR_ACCESS_DENIED;
        make(key->path);
        if (const long status = save(); status != ERROR_SUCCESS)
            return status;
    }
    opened = key.get();
    m_open.emplace(opened, std::move(key));
    return ERROR_SUCCESS;
}

long RegistryStore::close(HKEY key)
{
    const std::scoped_lock lock(m_mutex);
    return rootOf(key) || m_open.erase(key) == 1 ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

long RegistryStore::read(HKEY key, std::wstring_view name, SettingsFile::Value& value)
{
    const std::scoped_lock lock(m_mutex);
    const RegistryKey* found = nullptr;
    if (const long status = check(key, KEY_QUERY_VALUE, found); status != ERROR_SUCCESS)
        return status;
    const SettingsFile::Value* stored = m_file->get(valueName(*found, name));
    if (!stored)
        return ERROR_FILE_NOT_FOUND;
    value = *stored;
    return ERROR_SUCCESS;
}

long RegistryStore::write(HKEY key, std::wstring_view name,
                          std::optional<SettingsFile::Value> value)
{
    const std::scoped_lock lock(m_mutex);
    const RegistryKey* found = nullptr;
    if (const long status = check(key, KEY_SET_VALUE, found); status != ERROR_SUCCESS)
        return status;
    const std::wstring place = valueName(*found, name);
    if (value)
        m_file->set(place, std::move(*value));
    else if (!m_file->get(place) || !m_file->remove(place))
        return ERROR_FILE_NOT_FOUND;
    return save();
}

long RegistryStore::deleteTree(HKEY key, std::wstring_view name)
{
    const std::scoped_lock lock(m_mutex);
    const std::optional<std::wstring> path = pathOf(name);
    if (!path || path->empty())
        return ERROR_INVALID_PARAMETER;
    const RegistryKey* found = nullptr;
    if (const long status = check(key, KEY_CREATE_SUB_KEY, found); status != ERROR_SUCCESS)
        return status;
    if (!exists(found->path + *path))
        return ERROR_FILE_NOT_FOUND;
    m_file->removeTree(found->path + *path);
    return save();
}

SettingsStatus RegistryStore::status()
{
    const std::scoped_lock lock(m_mutex);
    return m_status;
}
