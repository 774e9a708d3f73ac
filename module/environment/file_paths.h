/// Paths of files, lists of folders, and searching them.
#pragma once

#include <vector>

#include <platform/find_data.h>
#include <runtime/export.h>
#include <runtime/std_str.h>

/// The path of a file, taken apart. A path of this system has no drive, but texts of other systems
/// may have one.
class KW_EXPORT FileString : public CStdStr<wchar_t>
{
  public:
    using CStdStr<wchar_t>::CStdStr;

    /// "C:" of "C:\a\b.dwg"; empty for paths of this system.
    CStdStr<wchar_t> GetDrive() const;
    /// All between the drive and the name, with the last slash: "/a/" of "/a/b.dwg".
    CStdStr<wchar_t> GetDirectory() const;
    /// The name alone: "b" of "/a/b.dwg".
    CStdStr<wchar_t> GetFilename() const;
    /// With the dot: ".dwg" of "/a/b.dwg". A dot at the start of a name makes no extension.
    CStdStr<wchar_t> GetExtension() const;

    /// The file that this module was loaded from, and its folder with the last slash.
    static FileString ModuleFile();
    static FileString ModulePath();
};

/// Is told of files one by one.
class KW_EXPORT AbstractFileProcessor
{
  public:
    virtual ~AbstractFileProcessor();
    /// @param name  the whole path, valid during the call
    /// @return      false to end the search
    virtual bool ProcessFile(const wchar_t* name, WIN32_FIND_DATAW& data) = 0;
};

/// Keeps the first file that is found.
class KW_EXPORT SearchResult : public AbstractFileProcessor
{
  public:
    bool ProcessFile(const wchar_t* name, WIN32_FIND_DATAW& data) override;

    bool found() const { return !m_path.IsEmpty(); }
    const FileString& path() const { return m_path; }

  private:
    FileString m_path;
};

/// A list of folders, in the order in which they are searched.
class KW_EXPORT FilePath
{
  public:
    FilePath() = default;
    /// @param folders  with semicolons between them; empty ones are left out
    explicit FilePath(const CStdStr<wchar_t>& folders);

    /// Tells the processor of each regular file in the folders whose name matches `pattern`, where
    /// `*` stands for any characters and `?` for one; case counts. Within a folder the files come
    /// by name. Folders that can't be read are passed over.
    /// @return  false if the processor ended the search
    bool FindFiles(AbstractFileProcessor& processor, const wchar_t* pattern) const;
    /// The first folder; empty if there is none.
    CStdStr<wchar_t> GetFirstPath() const;

  private:
    std::vector<CStdStr<wchar_t>> m_folders;
};

/// True if `path` is a folder that can be read and entered.
KW_EXPORT bool ValidateLocation(CStdStr<wchar_t> path);
/// Adds a folder at the end of a list with semicolons, unless it stands there already, with or
/// without a slash at its end. An empty folder is not added.
KW_EXPORT void addPathToSrchpath(CStdStr<wchar_t>& searchPath, const CStdStr<wchar_t>& path);
