/// Where the settings of the user's profile lie.
#pragma once

#include <platform/registry.h>
#include <runtime/std_str.h>

// Each fills `buffer`, which has room for `size` characters with the terminator, and returns false,
// with nothing written, for a null buffer, a size of 0 or less, or a text that does not fit.

/// The registry path below which the profiles lie; it must leave one character free: as intended.
KW_EXPORT bool getRegistryProfilesRoot(wchar_t* buffer, int size);
/// The registry path of the current profile.
KW_EXPORT bool getRegCurrentProfileRoot(wchar_t* buffer, int size);
/// The name of the current profile.
KW_EXPORT bool GetCurrentRegistryProfileName(wchar_t* buffer, int size);

/// Reads a text value of an open key. Returns the status of the registry; on a failure `value`
/// becomes empty, as it does for a value that is no text.
KW_EXPORT long KwLoadKey(HKEY key, CStdStr<wchar_t> valueName, CStdStr<wchar_t>& value);

/// A key of the current profile. For use on the main thread.
class KW_EXPORT PreferenceKey : public CRegKey
{
  public:
    /// Opens a key below the profile, or makes it with `create`; whether that went well shows in
    /// the handle. The key "Setup" of the current user lies beside the profiles and not in one. The
    /// remembered path of the profile stays as it was.
    PreferenceKey(HKEY root, const CStdStr<wchar_t>& subKey, bool create);

    /// Does the opening, and remembers the path of the profile unless one is remembered already.
    void Init(HKEY root, const CStdStr<wchar_t>& subKey, bool create);
    /// `Init` for the profile that is current by now.
    void Reload(HKEY root, const CStdStr<wchar_t>& subKey, bool create);
    /// Empties a key below the remembered profile, with all keys in it, and opens it; while no path
    /// is remembered, a key of the root itself. Returns a registry status; 0, too, if the profile
    /// can't be opened.
    long FlushKey(HKEY root, const CStdStr<wchar_t>& subKey);

    /// The remembered registry path of the current profile; empty for none.
    static CStdStr<wchar_t> m_currentProfilePath;
};
