/// Writes a file so that it is there whole or not at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include <runtime/export.h>
#include <runtime/kd_string.h>
#include <runtime/pending_file.h>
#include <runtime/status.h>

/// Tells files apart, whatever their names.
struct FileIdentity
{
    std::uint64_t device = 0;
    std::uint64_t number = 0; ///< 0: no file

    bool operator==(const FileIdentity&) const = default;
};

/// The file of that name, links followed; no file if there is none.
KW_EXPORT FileIdentity kdFileIdentity(const std::filesystem::path& path);

/// What a writer may replace, and what comes out.
struct SafeFileRules
{
    /// Lets a regular file be replaced, which keeps its rights.
    bool overwrite = false;
    /// Never replaced, by whatever name it is called: the file that a drawing comes from.
    FileIdentity untouchable = {};
    /// A new file is nobody's business but the user's.
    bool ownerOnly = false;
};

/// A `KdPendingFile` with a buffer, and with failures as sentences. After one all further calls do
/// nothing.
class KW_EXPORT SafeFile
{
  public:
    /// Begins a file. A link is followed, so that what it points to is replaced and not the link.
    /// @param error  a sentence for the user on failure, otherwise untouched
    /// @return       `eDuplicateKey` for a file that must not be replaced, `eFileAccessError` for
    ///               one that can't be written
    KdErrorStatus open(const std::filesystem::path& target, const SafeFileRules& rules,
                       KdString& error);
    void write(std::string_view bytes);
    /// Brings everything to the disk and gives the file its name. On failure nothing is left
    /// behind, a file that was to be replaced is as it was, and `error` is a sentence.
    KdErrorStatus finish(KdString& error);

  private:
    void flush();

    KdPendingFile m_file;
    std::string m_buffer;
    int m_failure = 0; ///< the first `errno`
};

/// Writes a file in one go, see `SafeFile`.
KW_EXPORT KdErrorStatus kdWriteFile(const std::filesystem::path& target, std::string_view bytes,
                                    const SafeFileRules& rules, KdString& error);
