/// Resource libraries: texts by number, in the language of the user.
#pragma once

#include <filesystem>
#include <string_view>

#include <runtime/export.h>

class ResourceLibrary;

/// A loaded resource library. It stays loaded until the process ends, so the handle and all texts
/// that come from it stay valid.
using HINSTANCE = ResourceLibrary*;

/// Looks a text up by number, in constant time and without allocating.
/// @param module  the library; null holds no text
/// @param buffer  with `size` 0 the address of a `wchar_t*`, which receives the place of the
///                library's own text, not terminated, or null if there is none. Otherwise room for
///                `size` characters, which receives the text, cut where it does not fit, terminated
/// @return        the length of the text given, in characters; 0 if the library has no such text
KW_EXPORT int LoadStringW(HINSTANCE module, unsigned int id, wchar_t* buffer, int size);

/// Loads a resource library, or finds it again, by a name such as "KwQselectUtilRes.dll".
/// @return  null if no folder holds it in the user's language or in English
KW_EXPORT HINSTANCE LoadResourceDll(const wchar_t* name);

/// The current resource library, or null if none has been made current.
KW_EXPORT HINSTANCE AfxGetResourceHandle();

/// Loads a library and makes it current. The one that was current so far is kept for
/// `RestorePreviousResource`; such calls may be nested.
/// @return  false if the library can't be loaded; then nothing changes
KW_EXPORT bool SetCurrentResourceName(const wchar_t* name);

/// Undoes the last successful `SetCurrentResourceName`; without one it does nothing.
KW_EXPORT void RestorePreviousResource();

/// Chooses the language of the libraries that are asked for from now on: "de" or "pt_BR". Where a
/// library is not there in that language, its plain form ("pt") and then English are tried. An
/// empty text gives the choice back to the environment (LC_ALL, LC_MESSAGES, LANG), as at the
/// start.
KW_EXPORT void setResourceLanguage(std::string_view language);

/// Sets a folder that is searched before all others by the calls from now on; an empty path takes
/// it away. A folder holds one folder for each language. The others are, in this order, those of
/// the environment variable KW_RESOURCE_PATH, separated by colons; `kwqselect/resources` beside
/// this library and beside the program, and in the `lib` folder next to each; the installed one.
KW_EXPORT void setResourceFolder(const std::filesystem::path& folder);
