/// Files that are there whole or not at all.
#pragma once

#include <filesystem>
#include <string>

#include <runtime/export.h>

/// What a pending file may replace, and what comes out.
struct PendingFileRules
{
    bool overwrite = false; ///< lets a regular file be replaced, which keeps its rights
    bool ownerOnly = false; ///< a new file is nobody's business but the user's
};

/// A file that takes its name when it is finished. Until then it has none, so that nothing is left
/// of it however the process ends; where the file system knows no such files it lies beside its
/// target under another name, and the destructor removes it.
///
/// What fails is told as the number of the system's error, 0 meaning success.
class KW_EXPORT KdPendingFile
{
  public:
    enum class Name
    {
        AtTheEnd,
        AtOnce, ///< as where the file system knows no files without a name
    };

    KdPendingFile() = default;
    ~KdPendingFile() { discard(); }
    KdPendingFile(const KdPendingFile&) = delete;
    KdPendingFile& operator=(const KdPendingFile&) = delete;

    /// Begins a file, for the owner alone until it is finished. A link is followed, so that what it
    /// points to is replaced and not the link.
    /// @return  EEXIST for a target that is there and must not be replaced, EINVAL for one that is
    /// no
    ///          regular file
    int open(const std::filesystem::path& target, const PendingFileRules& rules,
             Name name = Name::AtTheEnd);
    /// For writing; -1 while there is no file.
    int descriptor() const { return m_descriptor; }
    /// A name under which this process can open the file while it is pending.
    std::filesystem::path path() const;
    /// Brings the content to the disk and gives the file its name, and the rights of the file that
    /// it replaces or those of new files. After a failure the file is gone and the target is what
    /// it was. EEXIST if the target has come up meanwhile and must not be replaced.
    int finish();
    void discard();

  private:
    int beginIn(const std::filesystem::path& folder, Name name);
    int takeName();
    int replaceTarget();

    std::filesystem::path m_target;
    std::string m_beside; ///< its own name; empty: it has none
    int m_descriptor = -1;
    bool m_overwrite = false;
    unsigned m_mode = 0;
};
