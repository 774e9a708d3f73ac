#include <platform/registry.h>

#include <cstring>
#include <limits>
#include <utility>

#include "registry_store.h"

namespace {

std::wstring_view viewOf(const wchar_t* text)
{
    return text ? text : L"";
}

long copyBytes(const void* bytes, std::size_t count, unsigned char* data, unsigned* size)
{
    if (count > std::numeric_limits<unsigned>::max())
        return ERROR_INVALID_PARAMETER;
    const bool fits = data && *size >= count;
    if (fits)
        std::memcpy(data, bytes, count);
    if (size)
        *size = static_cast<unsigned>(count);
    return fits || !data ? ERROR_SUCCESS : ERROR_MORE_DATA;
}

} // namespace

long RegQueryValueExW(HKEY key, const wchar_t* name, unsigned* reserved, unsigned* type,
                      unsigned char* data, unsigned* size)
{
    if (reserved || (data && !size))
        return ERROR_INVALID_PARAMETER;
    SettingsFile::Value value;
    if (const long status = RegistryStore::instance().read(key, viewOf(name), value);
        status != ERROR_SUCCESS)
        return status;
    const auto* number = std::get_if<std::int32_t>(&value);
    if (type)
        *type = number ? REG_DWORD : REG_SZ;
    if (number)
        return copyBytes(number, sizeof *number, data, size);
    const std::wstring& text = std::get<std::wstring>(value);
    return copyBytes(text.c_str(), (text.size() + 1) * sizeof(wchar_t), data, size);
}

long RegCloseKey(HKEY key)
{
    return RegistryStore::instance().close(key);
}

SettingsStatus registryStatus()
{
    return RegistryStore::instance().status();
}

CRegKey& CRegKey::operator=(CRegKey&& other) noexcept
{
    if (this != &other) {
        Close();
        m_hKey = other.Detach();
    }
    return *this;
}

long CRegKey::Create(HKEY parent, const wchar_t* name, unsigned access)
{
    HKEY opened = nullptr;
    const long status = RegistryStore::instance().open(parent, viewOf(name), access, true, opened);
    if (status != ERROR_SUCCESS)
        return status;
    Close();
    m_hKey = opened;
    return ERROR_SUCCESS;
}

long CRegKey::Open(HKEY parent, const wchar_t* name, unsigned access)
{
    HKEY opened = nullptr;
    const long status = RegistryStore::instance().open(parent, viewOf(name), access, false, opened);
    if (status != ERROR_SUCCESS)
        return status;
    Close();
    m_hKey = opened;
    return ERROR_SUCCESS;
}

long CRegKey::Close()
{
    return m_hKey ? RegCloseKey(Detach()) : ERROR_SUCCESS;
}

HKEY CRegKey::Detach()
{
    return std::exchange(m_hKey, nullptr);
}

long CRegKey::SetStringValue(const wchar_t* name, const wchar_t* value)
{
    return RegistryStore::instance().write(m_hKey, viewOf(name), std::wstring(viewOf(value)));
}

long CRegKey::SetDWORDValue(const wchar_t* name, std::uint32_t value)
{
    return RegistryStore::instance().write(m_hKey, viewOf(name), static_cast<std::int32_t>(value));
}

long CRegKey::QueryDWORDValue(const wchar_t* name, std::uint32_t& value) const
{
    SettingsFile::Value stored;
    const long status = RegistryStore::instance().read(m_hKey, viewOf(name), stored);
    if (status != ERROR_SUCCESS)
        return status;
    const auto* number = std::get_if<std::int32_t>(&stored);
    if (!number)
        return ERROR_INVALID_PARAMETER;
    value = static_cast<std::uint32_t>(*number);
    return ERROR_SUCCESS;
}

long CRegKey::DeleteValue(const wchar_t* name)
{
    return RegistryStore::instance().write(m_hKey, viewOf(name), std::nullopt);
}

long CRegKey::RecurseDeleteKey(const wchar_t* name)
{
    return RegistryStore::instance().deleteTree(m_hKey, viewOf(name));
}
