#include <platform/profile.h>

#include <string>
#include <string_view>

#include <platform/registry.h>
#include <runtime/number_text.h>

namespace {

constexpr const wchar_t* kProfilesRoot = L"Software\\KwQselect\\Profiles";
constexpr const wchar_t* kCurrent = L"Current";

bool isName(std::wstring_view name)
{
    return !name.empty() && name.front() != L':' && name.find(L'\\') == std::wstring_view::npos;
}

std::wstring currentName()
{
    const std::wstring fallback = L"Default";
    CRegKey profiles;
    unsigned size = 0;
    unsigned type = 0;
    if (profiles.Open(HKEY_CURRENT_USER, kProfilesRoot, KEY_READ) != ERROR_SUCCESS ||
        RegQueryValueExW(profiles, kCurrent, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != REG_SZ)
        return fallback;
    std::wstring name(size / sizeof(wchar_t), L'\0');
    if (RegQueryValueExW(profiles, kCurrent, nullptr, &type,
                         reinterpret_cast<unsigned char*>(name.data()), &size) != ERROR_SUCCESS)
        return fallback;
    name.resize(size / sizeof(wchar_t) - 1);
    return isName(name) ? name : fallback;
}

int give(std::wstring_view text, wchar_t* buffer, int size)
{
    if (!buffer || size <= 0 || text.size() >= static_cast<std::size_t>(size))
        return 0;
    kdCopyText(text, buffer, static_cast<unsigned long>(size));
    return static_cast<int>(text.size());
}

} // namespace

int GetRegistryProfilesRootKey(wchar_t* buffer, int size)
{
    return give(kProfilesRoot, buffer, size);
}

int GetKdadRegistryCurrentProfileRootKey(wchar_t* buffer, int size)
{
    return give(std::wstring(kProfilesRoot) + L'\\' + currentName(), buffer, size);
}

int GetCurrentProfileName(wchar_t* buffer, int size)
{
    return give(currentName(), buffer, size);
}

bool setCurrentProfileName(const wchar_t* name)
{
    CRegKey profiles;
    return name && isName(name) &&
           profiles.Create(HKEY_CURRENT_USER, kProfilesRoot) == ERROR_SUCCESS &&
           profiles.SetStringValue(kCurrent, name) == ERROR_SUCCESS;
}
