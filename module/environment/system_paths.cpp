#include <environment/system_paths.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <QStandardPaths>

#include <environment/preference_key.h>
#include <runtime/number_text.h>
#include <runtime/utf8.h>

namespace {

namespace fs = std::filesystem;
using Text = CStdStr<wchar_t>;

constexpr const wchar_t* kGeneral = L"General"; ///< the key below the profile
constexpr const wchar_t* kProductVersion = L"1.0";

/// What a default is relative to.
enum class Base
{
    User,      ///< the user's data of the program
    Program,   ///< what is installed with it
    Documents, ///< the user's documents
    Temporary,
    None,
};

struct PlaceRow
{
    SystemPaths::Place place;
    const wchar_t* value; ///< its name in the registry; null: not kept there
    Base base;
    const wchar_t* folder; ///< below the base
};

constexpr PlaceRow kRows[] = {
    {SystemPaths::kMainDictionary, L"DCTMAINPATH", Base::Program, L"HunSpell/en_US.dic"},
    {SystemPaths::kPlotConfig, L"PLOTCONFIGPATH", Base::User, L"Config"},
    {SystemPaths::kPlotDescription, L"PLOTDESCRIPTIONPATH", Base::User, L"Config"},
    {SystemPaths::kPlotStyleTable, L"PLOTSTYLETABLEPATH", Base::User, L"Config"},
    {SystemPaths::kToolPalette, L"TOOLPALETTEPATH", Base::User, L"Support"},
    {SystemPaths::kSaveFile, L"SAVEFILEPATH", Base::Temporary, L""},
    {SystemPaths::kTempPrefix, L"TEMPPREFIX", Base::Temporary, L""},
    {SystemPaths::kMenuFile, L"Menu File", Base::User, L"Menu/default.mnu"},
    {SystemPaths::kNewDrawing, L"QnewTemplate", Base::None, L""},
    {SystemPaths::kHelp, L"KWDRAWHELP", Base::Program, L"Help"},
    {SystemPaths::kInstall, L"InstallDir", Base::Program, L""},
    {SystemPaths::kVersion, L"CurVer", Base::None, kProductVersion},
    {SystemPaths::kBlocks, nullptr, Base::User, L"Blocks"},
    {SystemPaths::kDrawing, nullptr, Base::Documents, L"Drawing"},
    {SystemPaths::kFonts, nullptr, Base::Program, L"Fonts"},
    {SystemPaths::kPatterns, nullptr, Base::Program, L"Patterns"},
    {SystemPaths::kTemplate, nullptr, Base::User, L"Template"},
    {SystemPaths::kXref, nullptr, Base::Documents, L"Xref"},
    {SystemPaths::kSupport, nullptr, Base::User, L"Support"},
};

/// Older names of folders, which are searched as well.
constexpr const wchar_t* kProgramFolders[] = {L"Support",  L"Fonts",    L"Font",
                                              L"Patterns", L"HatchPat", L"Template"};

Text wide(const fs::path& path)
{
    return kdFromUtf8(path.string());
}

Text joined(const Text& base, const Text& folder)
{
    return folder.IsEmpty() ? base : Text(base + L'/' + folder);
}

fs::path absoluteFolder(const char* variable)
{
    const char* value = std::getenv(variable);
    const fs::path folder = value ? value : "";
    return folder.is_absolute() ? folder : fs::path();
}

Text userData()
{
    fs::path base = absoluteFolder("XDG_DATA_HOME");
    if (base.empty())
        base = absoluteFolder("HOME") / ".local/share";
    return wide(base / "kwqselect");
}

/// `share/kwqselect` of the tree that the module lies in.
Text programData()
{
    fs::path tree = kdToUtf8(FileString::ModulePath());
    while (tree.has_relative_path() && tree.filename() != "lib")
        tree = tree.parent_path();
    return wide((tree.has_relative_path() ? tree.parent_path() : "/usr") / "share/kwqselect");
}

/// A value of the registry comes first, so that the folder can be another than the desktop's.
Text documents()
{
    constexpr const wchar_t* kShellFolders =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
    CRegKey folders;
    Text personal;
    if (folders.Open(HKEY_CURRENT_USER, kShellFolders, KEY_READ) == ERROR_SUCCESS)
        KwLoadKey(folders, L"Personal", personal);
    if (!personal.IsEmpty())
        return personal;
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdWString();
}

Text baseFolder(Base base)
{
    switch (base) {
    case Base::User:
        return userData();
    case Base::Program:
        return programData();
    case Base::Documents:
        return documents();
    case Base::Temporary: {
        std::error_code error;
        return wide(fs::temp_directory_path(error));
    }
    default:
        return {};
    }
}

bool giveIfFile(const fs::path& path, wchar_t* result)
{
    std::error_code error;
    return fs::is_regular_file(path, error) && kdCopyText(wide(path), result, kLongestSystemPath);
}

} // namespace

SystemPaths::SystemPaths()
{
    for (const PlaceRow& row : kRows)
        m_paths[row.place] =
            row.base == Base::None ? Text(row.folder) : joined(baseFolder(row.base), row.folder);
}

Text SystemPaths::searchPath() const
{
    Text path;
    for (const Place place : {kSupport, kBlocks, kTemplate, kFonts, kPatterns})
        addPathToSrchpath(path, m_paths[place]);
    for (const wchar_t* folder : kProgramFolders)
        addPathToSrchpath(path, joined(m_paths[kInstall], folder));
    return path;
}

void SystemPaths::LoadFromRegistry()
{
    const PreferenceKey key(HKEY_CURRENT_USER, kGeneral, false);
    for (const PlaceRow& row : kRows) {
        if (row.value)
            LoadKey(key, row.value, m_paths[row.place]);
    }
}

bool SystemPaths::SaveToRegistry() const
{
    const PreferenceKey key(HKEY_CURRENT_USER, kGeneral, true);
    bool saved = true;
    for (const PlaceRow& row : kRows) {
        if (row.value && !SaveKey(key, row.value, m_paths[row.place]))
            saved = false;
    }
    return saved;
}

bool SystemPaths::LoadKey(HKEY key, Text name, Text& value)
{
    unsigned kind = 0;
    Text loaded;
    if (RegQueryValueExW(key, name, nullptr, &kind, nullptr, nullptr) != ERROR_SUCCESS ||
        kind != REG_SZ || KwLoadKey(key, name, loaded) != ERROR_SUCCESS)
        return false;
    value = loaded;
    return true;
}

bool SystemPaths::SaveKey(HKEY key, Text name, Text value)
{
    CRegKey holder;
    holder.m_hKey = key;
    const long status = holder.SetStringValue(name, value);
    holder.Detach(); // the key stays the caller's
    return status == ERROR_SUCCESS;
}

void getDefaultTemplatePath(Text& path)
{
    const SystemPaths paths;
    const Text& own = paths.get(SystemPaths::kTemplate);
    path = ValidateLocation(own) ? own : joined(paths.get(SystemPaths::kInstall), L"Template");
}

bool SearchSystemFile(const wchar_t* name, wchar_t* result, const wchar_t* extra)
{
    if (!name || !*name || !result)
        return false;
    const fs::path wanted = kdToUtf8(name);
    if (wanted.is_absolute())
        return giveIfFile(wanted, result);
    SystemPaths paths;
    paths.LoadFromRegistry();
    std::error_code error;
    Text folders = extra ? extra : L"";
    addPathToSrchpath(folders, wide(fs::current_path(error)));
    folders += L';' + paths.searchPath();
    for (std::wstring_view rest = folders; !rest.empty();) {
        const std::size_t length = std::min(rest.find(L';'), rest.size());
        if (length > 0 && giveIfFile(fs::path(kdToUtf8(rest.substr(0, length))) / wanted, result))
            return true;
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return false;
}
