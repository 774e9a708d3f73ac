// Writes a file so that it is there whole or not at all.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <runtime/kd_string.h>
#include <runtime/status.h>

#include "file_bytes.h"

namespace dxf {

/// The content goes into a new file in the target's folder, which takes the target's name at the
/// end. Without `finish` it is removed again. After a failure all further calls do nothing.
class SafeFile
{
  public:
    SafeFile() = default;
    ~SafeFile();
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;

    /// Begins a file. A target that exists is refused, unless `overwrite` allows to replace it and
    /// it is a regular file other than `untouchable`.
    KdErrorStatus open(const std::filesystem::path& target, bool overwrite,
                       const FileIdentity& untouchable, KdString& error);
    void write(std::string_view bytes);
    /// Brings everything to the disk and gives the file its name.
    KdErrorStatus finish(KdString& error);

  private:
    KdErrorStatus checkTarget(const FileIdentity& untouchable, KdString& error);
    bool rename() const;
    void flush();
    void discard();

    std::filesystem::path m_target;
    std::string m_temporary; ///< empty: there is none
    std::string m_buffer;
    int m_descriptor = -1;
    int m_failure = 0; ///< the first `errno`
    bool m_overwrite = false;
    unsigned m_mode = 0;
};

} // namespace dxf
