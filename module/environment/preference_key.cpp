#include <environment/preference_key.h>

#include <algorithm>

#include <platform/profile.h>

#include <values/init_order.h>

namespace {

constexpr unsigned kReadAndWrite = 0x2001F;
constexpr unsigned kAllButSetValue = 0x2001D;
constexpr int kPathSize = 2049;
constexpr int kLocalSize = 1024;

using HostText = int (*)(wchar_t*, int);

/// Copies a text of the host if it is shorter than `limit`.
bool copyHostText(HostText hostText, wchar_t* buffer, int limit)
{
    wchar_t local[kLocalSize] = {};
    const int length = hostText(local, kLocalSize);
    if (length <= 0 || length >= limit)
        return false;
    std::copy_n(local, length + 1, buffer);
    return true;
}

CStdStr<wchar_t> pathFrom(bool (*ask)(wchar_t*, int))
{
    wchar_t buffer[kPathSize] = {};
    ask(buffer, kPathSize);
    return buffer;
}

CStdStr<wchar_t> upToLastBackslash(const CStdStr<wchar_t>& path)
{
    const std::size_t end = path.rfind(L'\\');
    return end == CStdStr<wchar_t>::npos ? path : CStdStr<wchar_t>(path.substr(0, end));
}

} // namespace

CStdStr<wchar_t> PreferenceKey::m_currentProfilePath [[gnu::init_priority(kInitProfilePath)]];

bool getRegistryProfilesRoot(wchar_t* buffer, int size)
{
    return buffer && size > 0 && copyHostText(GetRegistryProfilesRootKey, buffer, size - 1);
}

bool getRegCurrentProfileRoot(wchar_t* buffer, int size)
{
    return buffer && size > 0 && copyHostText(GetKdadRegistryCurrentProfileRootKey, buffer, size);
}

bool GetCurrentRegistryProfileName(wchar_t* buffer, int size)
{
    return buffer && size > 0 && GetCurrentProfileName(buffer, size) != 0;
}

long KwLoadKey(HKEY key, CStdStr<wchar_t> valueName, CStdStr<wchar_t>& value)
{
    wchar_t buffer[kPathSize] = {};
    unsigned size = sizeof buffer;
    unsigned type = 0;
    const long status = RegQueryValueExW(key, valueName, nullptr, &type,
                                         reinterpret_cast<unsigned char*>(buffer), &size);
    value = status == ERROR_SUCCESS && type == REG_SZ ? buffer : L"";
    return status;
}

PreferenceKey::PreferenceKey(HKEY root, const CStdStr<wchar_t>& subKey, bool create)
{
    const CStdStr<wchar_t> saved = m_currentProfilePath;
    if (root == HKEY_CURRENT_USER && subKey == L"Setup")
        m_currentProfilePath = upToLastBackslash(pathFrom(getRegistryProfilesRoot));
    Init(root, subKey, create);
    m_currentProfilePath = saved;
}

void PreferenceKey::Init(HKEY root, const CStdStr<wchar_t>& subKey, bool create)
{
    if (m_currentProfilePath.IsEmpty())
        m_currentProfilePath = pathFrom(getRegCurrentProfileRoot);
    CRegKey profile;
    if (!create) {
        if (profile.Open(root, m_currentProfilePath, kAllButSetValue) == ERROR_SUCCESS)
            Open(profile, subKey, kReadAndWrite);
        return;
    }
    if (root)
        profile.Create(root, m_currentProfilePath, kReadAndWrite);
    if (profile)
        Create(profile, subKey, kReadAndWrite);
}

void PreferenceKey::Reload(HKEY root, const CStdStr<wchar_t>& subKey, bool create)
{
    m_currentProfilePath.clear();
    Init(root, subKey, create);
}

long PreferenceKey::FlushKey(HKEY root, const CStdStr<wchar_t>& subKey)
{
    CRegKey profile;
    if (profile.Open(root, m_currentProfilePath, kReadAndWrite) != ERROR_SUCCESS)
        return ERROR_SUCCESS;
    profile.RecurseDeleteKey(subKey);
    return Create(profile, subKey, kReadAndWrite);
}
