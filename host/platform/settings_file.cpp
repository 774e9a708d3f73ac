#include <platform/settings_file.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <runtime/kd_string.h>
#include <runtime/safe_file.h>
#include <runtime/utf8.h>

#include "file_lock.h"
#include "settings_text.h"

namespace {

namespace fs = std::filesystem;

bool startsWith(std::wstring_view name, std::wstring_view prefix)
{
    return name.size() >= prefix.size() && KdNameEqual{}(name.substr(0, prefix.size()), prefix);
}

/// The first place in an ordered container of names whose name begins with `prefix`, and the place
/// behind the last.
template <class Names, class NameOf>
auto rangeOf(Names& names, std::wstring_view prefix, NameOf nameOf)
{
    const auto first = names.lower_bound(prefix);
    const auto last = std::find_if_not(
        first, names.end(), [&](const auto& entry) { return startsWith(nameOf(entry), prefix); });
    return std::pair(first, last);
}

constexpr auto kNameOfPair = [](const auto& entry) { return std::wstring_view(entry.first); };
constexpr auto kNameItself = [](const auto& entry) { return std::wstring_view(entry); };

template <class Names, class NameOf>
void eraseTree(Names& names, std::wstring_view prefix, NameOf nameOf)
{
    const auto [first, last] = rangeOf(names, prefix, nameOf);
    names.erase(first, last);
}

bool makeFolder(const fs::path& folder)
{
    std::error_code error;
    if (fs::is_directory(folder, error))
        return true;
    fs::create_directories(folder, error);
    fs::permissions(folder, fs::perms::owner_all, error); // nobody else's business
    return fs::is_directory(folder, error);
}

/// The file that is meant where the name is a link, so that replacing it keeps the link.
fs::path resolved(const fs::path& path)
{
    std::error_code error;
    const fs::path real = fs::weakly_canonical(fs::absolute(path, error), error);
    return error ? path : real;
}

SettingsStatus statusOf(FileLock::Outcome outcome)
{
    switch (outcome) {
    case FileLock::Outcome::Held:
        return SettingsStatus::Good;
    case FileLock::Outcome::Busy:
        return SettingsStatus::Busy;
    default:
        return SettingsStatus::Unwritable;
    }
}

/// The caller holds the lock.
bool replaceFile(const fs::path& path, std::string_view bytes)
{
    KdString error;
    return kdWriteFile(path, bytes, {.overwrite = true, .ownerOnly = true}, error) == eOk;
}

bool putAside(const fs::path& path)
{
    fs::path aside = path;
    aside += ".bad";
    std::error_code error;
    fs::rename(path, aside, error);
    return !error;
}

} // namespace

const wchar_t* settingsStatusText(SettingsStatus status)
{
    switch (status) {
    case SettingsStatus::Good:
        return L"The settings were read and written.";
    case SettingsStatus::Broken:
        return L"The settings could not be understood; the file now has the ending \".bad\".";
    case SettingsStatus::Unreadable:
        return L"The settings could not be read.";
    case SettingsStatus::Unwritable:
        return L"The settings could not be written.";
    case SettingsStatus::Later:
        return L"The settings were written by a later version of the program; they stay as they "
               L"are.";
    case SettingsStatus::Busy:
        return L"Another program is writing the settings and does not come to an end.";
    }
    return L"";
}

bool SettingsNameLess::operator()(std::wstring_view a, std::wstring_view b) const
{
    return std::ranges::lexicographical_compare(a, b, {}, kdFoldCase, kdFoldCase);
}

SettingsFile::SettingsFile(fs::path path) : m_path(resolved(path)) {}

fs::path SettingsFile::standardFolder()
{
    const auto folderOf = [](const char* variable) {
        const char* value = std::getenv(variable);
        const fs::path folder = value ? value : "";
        return folder.is_absolute() ? folder : fs::path();
    };
    fs::path base = folderOf("XDG_CONFIG_HOME");
    if (base.empty()) {
        base = folderOf("HOME");
        if (base.empty())
            return {};
        base /= ".config";
    }
    return base / "kwqselect";
}

SettingsStatus SettingsFile::readFile(Values& values) const
{
    std::string bytes;
    const int error = readWholeFile(m_path, bytes);
    if (error != 0)
        return error == ENOENT || error == ENOTDIR ? SettingsStatus::Good
                                                   : SettingsStatus::Unreadable;
    const std::wstring text = kdFromUtf8(bytes);
    if (!isFormKnown(text))
        return SettingsStatus::Later;
    Values read;
    SettingsLine line;
    for (std::wstring_view rest = text; !rest.empty();) {
        const std::size_t length = std::min(rest.find(L'\n'), rest.size());
        switch (parseSettingsLine(rest.substr(0, length), line)) {
        case SettingsLineKind::Value:
            read.insert_or_assign(std::move(line.first), std::move(line.second));
            break;
        case SettingsLineKind::Fault:
            return SettingsStatus::Broken;
        default:
            break;
        }
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    values = std::move(read);
    return SettingsStatus::Good;
}

void SettingsFile::applyChanges(Values& values) const
{
    for (const std::wstring& prefix : m_removedTrees)
        eraseTree(values, prefix, kNameOfPair);
    for (const auto& [name, value] : m_changes) {
        if (value)
            values.insert_or_assign(name, *value);
        else
            values.erase(name);
    }
}

SettingsStatus SettingsFile::load()
{
    Values values;
    SettingsStatus status = readFile(values);
    if (status == SettingsStatus::Broken) {
        const FileLock lock(m_path);
        status = statusOf(lock.outcome());
        if (status == SettingsStatus::Good)
            status = readFile(values); // another process may have mended it meanwhile
        if (status == SettingsStatus::Broken && !putAside(m_path))
            status = SettingsStatus::Unwritable;
    }
    if (status == SettingsStatus::Good || status == SettingsStatus::Broken) {
        applyChanges(values);
        m_values = std::move(values);
    }
    return status;
}

SettingsStatus SettingsFile::save()
{
    if (!hasChanges())
        return SettingsStatus::Good;
    if (m_path.empty() || !makeFolder(m_path.parent_path()))
        return SettingsStatus::Unwritable;
    const FileLock lock(m_path);
    if (lock.outcome() != FileLock::Outcome::Held)
        return statusOf(lock.outcome());

    Values values;
    const SettingsStatus status = readFile(values);
    if (status == SettingsStatus::Unreadable || status == SettingsStatus::Later)
        return status;
    if (status == SettingsStatus::Broken) {
        values = m_values;
        if (!putAside(m_path))
            return SettingsStatus::Unwritable;
    }
    applyChanges(values);
    std::wstring text = settingsHead();
    for (const auto& [name, value] : values)
        appendSettingsLine(text, name, value);
    if (!replaceFile(m_path, kdToUtf8(text)))
        return SettingsStatus::Unwritable;
    m_values = std::move(values);
    m_changes.clear();
    m_removedTrees.clear();
    return status;
}

const SettingsFile::Value* SettingsFile::get(std::wstring_view name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? nullptr : &found->second;
}

std::optional<std::int32_t> SettingsFile::getInteger(std::wstring_view name) const
{
    const Value* value = get(name);
    const auto* number = value ? std::get_if<std::int32_t>(value) : nullptr;
    return number ? std::optional(*number) : std::nullopt;
}

std::optional<std::wstring> SettingsFile::getText(std::wstring_view name) const
{
    const Value* value = get(name);
    const auto* text = value ? std::get_if<std::wstring>(value) : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

std::vector<std::wstring> SettingsFile::names(std::wstring_view prefix) const
{
    const auto [first, last] = rangeOf(m_values, prefix, kNameOfPair);
    std::vector<std::wstring> result;
    for (auto entry = first; entry != last; ++entry)
        result.push_back(entry->first);
    return result;
}

void SettingsFile::set(std::wstring_view name, Value value)
{
    m_changes.insert_or_assign(std::wstring(name), value);
    m_values.insert_or_assign(std::wstring(name), std::move(value));
}

bool SettingsFile::remove(std::wstring_view name)
{
    m_changes.insert_or_assign(std::wstring(name), std::nullopt);
    const auto found = m_values.find(name);
    if (found == m_values.end())
        return false;
    m_values.erase(found);
    return true;
}

void SettingsFile::removeTree(std::wstring_view prefix)
{
    eraseTree(m_values, prefix, kNameOfPair);
    eraseTree(m_changes, prefix, kNameOfPair);
    eraseTree(m_removedTrees, prefix, kNameItself);
    m_removedTrees.emplace(prefix);
}
