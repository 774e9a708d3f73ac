/// Settings that outlive the program: named values in a text file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <runtime/export.h>

enum class SettingsStatus
{
    Good,
    Broken,     ///< the file could not be understood and now lies aside with the ending ".bad"
    Unreadable, ///< the file is there, but could not be read; it stays as it is
    Unwritable, ///< the folder or the file could not be written; the changes are kept in memory
    Later,      ///< a later version of the program wrote the file; it stays as it is
    Busy,       ///< another process held the lock for too long; the changes are kept in memory
};

/// A sentence for the user.
KW_EXPORT const wchar_t* settingsStatusText(SettingsStatus status);

/// Orders names without regard to case, by the rules of `kdFoldCase`.
struct KW_EXPORT SettingsNameLess
{
    using is_transparent = void;
    bool operator()(std::wstring_view a, std::wstring_view b) const;
};

/// A file of settings, shared with other processes. The object holds what it last read with its own
/// changes on top; `save` brings the changes into whatever the file holds by then, so that two
/// processes lose nothing of each other unless they change the same value, where the later save
/// wins. A file is replaced as a whole: whoever reads it, and whenever a process dies, finds either
/// the old content or the new one.
///
/// The file is UTF-8 text, one value a line, for people to read and to change:
///
///     # a remark
///     "UserInterfaceSettings/Example/Type" = "Line"
///     "UserInterfaceSettings/Example/Row" = 3
///
/// The first line may tell the form: `# Settings, form 1: ...`. A file of another form is not
/// touched.
///
/// Inside quotes `\"`, `\\`, `\n`, `\r`, `\t` and `\u{1F}` stand for what can't stand there itself.
/// Remarks are not kept by `save`. Names ignore case and keep the letters of their first writing.
///
/// One thread at a time may use an object; several objects on one file, also in different threads
/// or processes, are safe.
class KW_EXPORT SettingsFile
{
  public:
    using Value = std::variant<std::int32_t, std::wstring>;

    /// Names the file; nothing is read or made yet.
    explicit SettingsFile(std::filesystem::path path);

    /// The folder for our files: `kwqselect` in $XDG_CONFIG_HOME, or in ~/.config where that is not
    /// set or no absolute path. Empty if the user has no home.
    static std::filesystem::path standardFolder();

    const std::filesystem::path& path() const { return m_path; }

    /// Takes over what the file holds now; own changes that are not saved yet stay on top. A file
    /// that is not there counts as empty. On `Broken` the object begins empty; on `Unreadable`,
    /// `Later` and `Busy` it keeps what it held.
    SettingsStatus load();
    /// Writes the changes since the last successful save, and takes over what else the file holds.
    /// Without changes it does nothing. `Broken` tells that the changes were written, but the old
    /// file was put aside; its place was taken by what this object held.
    SettingsStatus save();
    bool hasChanges() const { return !m_changes.empty() || !m_removedTrees.empty(); }

    /// The value of that name, or null. Valid until the object changes.
    const Value* get(std::wstring_view name) const;
    /// The same for one kind; nothing if the value is missing or of the other kind.
    std::optional<std::int32_t> getInteger(std::wstring_view name) const;
    std::optional<std::wstring> getText(std::wstring_view name) const;
    /// All names that begin with `prefix`, in order.
    std::vector<std::wstring> names(std::wstring_view prefix = {}) const;

    void set(std::wstring_view name, Value value);
    /// Takes the value out; false if there was none.
    bool remove(std::wstring_view name);
    /// Takes out all values whose names begin with `prefix`, also those that only the file holds.
    void removeTree(std::wstring_view prefix);

  private:
    using Values = std::map<std::wstring, Value, SettingsNameLess>;

    SettingsStatus readFile(Values& values) const;
    void applyChanges(Values& values) const;

    std::filesystem::path m_path;
    Values m_values;
    /// Not saved yet; no value: taken out. Removed trees come first.
    std::map<std::wstring, std::optional<Value>, SettingsNameLess> m_changes;
    std::set<std::wstring, SettingsNameLess> m_removedTrees;
};
