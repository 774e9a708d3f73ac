/// The registry: a tree of keys with named values, kept for the user between runs.
///
/// It lies in the file `registry.conf` of `SettingsFile::standardFolder()`, with all that is said
/// there about several processes: what one has written the others find at their next call. Names of
/// keys and values ignore case. Paths of keys are separated by backslashes; no name in them may be
/// empty or begin with a colon. Every call is atomic, and calls may come from several threads.
#pragma once

#include <cstdint>

#include <platform/settings_file.h>
#include <runtime/export.h>

/// An open key, or one of the roots, which are always open.
using HKEY = struct RegistryKey*;

inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(std::uintptr_t{0x80000001});
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(std::uintptr_t{0x80000002});

// What a key is opened for.
constexpr unsigned KEY_QUERY_VALUE = 0x0001;
constexpr unsigned KEY_SET_VALUE = 0x0002;
constexpr unsigned KEY_CREATE_SUB_KEY = 0x0004;
constexpr unsigned KEY_READ = 0x20019;
constexpr unsigned KEY_WRITE = 0x20006;

// The kinds of values.
constexpr unsigned REG_SZ = 1;    ///< wide text with its terminator
constexpr unsigned REG_DWORD = 4; ///< a 32-bit integer

// Statuses.
constexpr long ERROR_SUCCESS = 0;
constexpr long ERROR_FILE_NOT_FOUND = 2;
constexpr long ERROR_ACCESS_DENIED = 5;
constexpr long ERROR_INVALID_HANDLE = 6;
constexpr long ERROR_INVALID_PARAMETER = 87;
constexpr long ERROR_MORE_DATA = 234;
constexpr long ERROR_REGISTRY_IO_FAILED = 1016; ///< the file; see `registryStatus`
constexpr long ERROR_KEY_DELETED = 1018;

/// Reads a value.
/// @param reserved  must be null
/// @param type      receives the kind; may be null
/// @param data      receives the value; null to ask for the size alone
/// @param size      bytes of `data`; receives those of the value, terminator included. May be null
///                  if `data` is
/// @return          `ERROR_MORE_DATA`, with the size set, if `data` is too small;
///                  `ERROR_FILE_NOT_FOUND` if there is no such value
KW_EXPORT long RegQueryValueExW(HKEY key, const wchar_t* name, unsigned* reserved, unsigned* type,
                                unsigned char* data, unsigned* size);
/// Closes an open key; for a root it does nothing. `ERROR_INVALID_HANDLE` for what is not open.
KW_EXPORT long RegCloseKey(HKEY key);

/// What the last call met in the registry's file; `Broken` tells that it has begun anew.
KW_EXPORT SettingsStatus registryStatus();

/// Holds an open key. All operations return a status; a failed one changes nothing.
class KW_EXPORT CRegKey
{
  public:
    CRegKey() = default;
    ~CRegKey() { Close(); }
    CRegKey(CRegKey&& other) noexcept : m_hKey(other.Detach()) {}
    CRegKey& operator=(CRegKey&& other) noexcept;

    operator HKEY() const { return m_hKey; }

    /// Opens a key below `parent` in place of the one held before, after making it and all keys on
    /// the way to it where they are missing. An empty or null name means `parent` itself.
    long Create(HKEY parent, const wchar_t* name, unsigned access = KEY_READ | KEY_WRITE);
    /// The same for a key that must be there: `ERROR_FILE_NOT_FOUND` otherwise.
    long Open(HKEY parent, const wchar_t* name, unsigned access = KEY_READ | KEY_WRITE);
    long Close();
    HKEY Detach();

    long SetStringValue(const wchar_t* name, const wchar_t* value);
    long SetDWORDValue(const wchar_t* name, std::uint32_t value);
    long QueryDWORDValue(const wchar_t* name, std::uint32_t& value) const;
    long DeleteValue(const wchar_t* name);
    /// Deletes the key `name` with all below it; `ERROR_FILE_NOT_FOUND` if it is not there,
    /// `ERROR_INVALID_PARAMETER` for an empty name. Whoever holds one of them open gets
    /// `ERROR_KEY_DELETED` from then on.
    long RecurseDeleteKey(const wchar_t* name);

    HKEY m_hKey = nullptr;
};
