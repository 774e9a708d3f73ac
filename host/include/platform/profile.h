/// The user's profiles: sets of settings of which one is current.
#pragma once

#include <runtime/export.h>

// Each of these copies a text with its terminator into `buffer`, which has room for `size`
// characters, and returns its length; 0, with nothing written, if it does not fit.

/// The registry path below which the profiles lie, seen from `HKEY_CURRENT_USER`.
KW_EXPORT int GetRegistryProfilesRootKey(wchar_t* buffer, int size);
/// The path of the current profile.
KW_EXPORT int GetKdadRegistryCurrentProfileRootKey(wchar_t* buffer, int size);
/// The name of the current profile; "Default" until one was chosen.
KW_EXPORT int GetCurrentProfileName(wchar_t* buffer, int size);

/// Makes a profile the current one, for later runs as well. False if the name is none (empty, with
/// a backslash, or with a colon in front) or could not be kept.
KW_EXPORT bool setCurrentProfileName(const wchar_t* name);
