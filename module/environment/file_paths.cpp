#include <environment/file_paths.h>

#include <algorithm>
#include <filesystem>

#include <QFileInfo>
#include <QRegularExpression>

#include <platform/code_file.h>
#include <runtime/utf8.h>

namespace {

namespace fs = std::filesystem;
using Text = CStdStr<wchar_t>;

fs::path systemPath(std::wstring_view text)
{
    return kdToUtf8(text);
}

/// Where the part of a path without its drive begins.
std::size_t driveLength(const Text& path)
{
    const auto isLetter = [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
    };
    return path.size() >= 2 && path[1] == L':' && isLetter(path[0]) ? 2 : 0;
}

/// Where the name begins. In a path with a drive backslashes part the folders, too.
std::size_t nameStart(const Text& path)
{
    const std::size_t drive = driveLength(path);
    const std::size_t slash = path.find_last_of(drive > 0 ? L"/\\" : L"/");
    return slash == Text::npos ? drive : slash + 1;
}

std::size_t extensionStart(const Text& path)
{
    const std::size_t dot = path.rfind(L'.');
    return dot == Text::npos || dot <= nameStart(path) ? path.size() : dot;
}

std::wstring_view withoutSlash(std::wstring_view folder)
{
    while (folder.size() > 1 && folder.back() == L'/')
        folder.remove_suffix(1);
    return folder;
}

std::vector<Text> foldersOf(const Text& list)
{
    std::vector<Text> folders;
    for (std::wstring_view rest = list; !rest.empty();) {
        const std::size_t length = std::min(rest.find(L';'), rest.size());
        if (length > 0)
            folders.emplace_back(rest.substr(0, length));
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return folders;
}

WIN32_FIND_DATAW dataOf(const fs::path& path)
{
    WIN32_FIND_DATAW data;
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    if (!error) {
        data.nFileSizeHigh = static_cast<std::uint32_t>(size >> 32);
        data.nFileSizeLow = static_cast<std::uint32_t>(size);
    }
    const std::string name = path.filename();
    if (!QFileInfo(QString::fromStdString(path)).isWritable())
        data.dwFileAttributes |= FILE_ATTRIBUTE_READONLY;
    if (name.starts_with('.'))
        data.dwFileAttributes |= FILE_ATTRIBUTE_HIDDEN;
    if (data.dwFileAttributes == 0)
        data.dwFileAttributes = FILE_ATTRIBUTE_NORMAL;
    const std::wstring wide = kdFromUtf8(name);
    std::copy_n(wide.data(), std::min(wide.size(), std::size(data.cFileName) - 1), data.cFileName);
    return data;
}

bool matches(const std::string& pattern, const std::string& name)
{
    const auto form =
        QRegularExpression::wildcardToRegularExpression(QString::fromStdString(pattern));
    return QRegularExpression(form).match(QString::fromStdString(name)).hasMatch();
}

/// By name, so that the outcome does not depend on the file system.
std::vector<fs::path> matchingFiles(const fs::path& folder, const std::string& pattern)
{
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        const std::string name = entry->path().filename();
        if (entry->is_regular_file(ignored) && matches(pattern, name))
            files.push_back(entry->path());
    }
    std::ranges::sort(files);
    return files;
}

} // namespace

Text FileString::GetDrive() const
{
    return Text(substr(0, driveLength(*this)));
}

Text FileString::GetDirectory() const
{
    const std::size_t drive = driveLength(*this);
    return Text(substr(drive, nameStart(*this) - drive));
}

Text FileString::GetFilename() const
{
    const std::size_t start = nameStart(*this);
    return Text(substr(start, extensionStart(*this) - start));
}

Text FileString::GetExtension() const
{
    return Text(substr(extensionStart(*this)));
}

FileString FileString::ModuleFile()
{
    const void* const ours = reinterpret_cast<const void*>(&FileString::ModuleFile);
    return FileString(kdFromUtf8(kdFileOfCode(ours).string()));
}

FileString FileString::ModulePath()
{
    return FileString(ModuleFile().GetDirectory());
}

AbstractFileProcessor::~AbstractFileProcessor() = default;

bool SearchResult::ProcessFile(const wchar_t* name, WIN32_FIND_DATAW&)
{
    m_path = name;
    return false;
}

FilePath::FilePath(const Text& folders) : m_folders(foldersOf(folders)) {}

bool FilePath::FindFiles(AbstractFileProcessor& processor, const wchar_t* pattern) const
{
    const std::string wanted = kdToUtf8(pattern ? pattern : L"");
    for (const Text& folder : m_folders) {
        for (const fs::path& file : matchingFiles(systemPath(folder), wanted)) {
            WIN32_FIND_DATAW data = dataOf(file);
            if (!processor.ProcessFile(kdFromUtf8(file.string()).c_str(), data))
                return false;
        }
    }
    return true;
}

Text FilePath::GetFirstPath() const
{
    return m_folders.empty() ? Text() : m_folders.front();
}

bool ValidateLocation(Text path)
{
    std::error_code error;
    const fs::path folder = systemPath(path);
    const QFileInfo info(QString::fromStdString(folder));
    return fs::is_directory(folder, error) && info.isReadable() && info.isExecutable();
}

void addPathToSrchpath(Text& searchPath, const Text& path)
{
    const auto isThatFolder = [&](const Text& folder) {
        return withoutSlash(folder) == withoutSlash(path);
    };
    if (path.IsEmpty() || std::ranges::any_of(foldersOf(searchPath), isThatFolder))
        return;
    if (!searchPath.IsEmpty() && searchPath.back() != L';')
        searchPath += L';';
    searchPath += path;
}
