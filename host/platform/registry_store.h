/// The registry's content, and the keys of this process that are open.
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include <platform/registry.h>

/// An open key: where it lies, and what it was opened for.
struct RegistryKey
{
    std::wstring path; ///< with a backslash at the end
    unsigned access = 0;
};

/// In the settings file a key is a name with a backslash at its end and an empty text, and a value
/// the name of its key, a colon, and its own name.
class RegistryStore
{
  public:
    static RegistryStore& instance();

    /// Each of these is one call of the registry.
    long open(HKEY parent, std::wstring_view name, unsigned access, bool create, HKEY& opened);
    long close(HKEY key);
    long read(HKEY key, std::wstring_view name, SettingsFile::Value& value);
    /// Without a value: deletes it.
    long write(HKEY key, std::wstring_view name, std::optional<SettingsFile::Value> value);
    long deleteTree(HKEY key, std::wstring_view name);
    SettingsStatus status();

  private:
    /// The key behind a handle, or null.
    const RegistryKey* find(HKEY key) const;
    /// Makes sure that `key` is open for `access`, and that it is still there.
    long check(HKEY key, unsigned access, const RegistryKey*& found);
    bool exists(const std::wstring& path) const;
    void make(const std::wstring& path);
    bool load();
    long save();

    std::mutex m_mutex;
    std::optional<SettingsFile> m_file;
    SettingsStatus m_status = SettingsStatus::Good;
    std::unordered_map<HKEY, std::unique_ptr<RegistryKey>> m_open;
};
