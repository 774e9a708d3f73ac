// The bytes of a drawing file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

#include <runtime/kd_string.h>
#include <runtime/safe_file.h>
#include <runtime/status.h>

namespace dxf {

/// A file read into memory whole. A mapped file would end the process when another one cuts it
/// short, and would give other members on each first use when it changes; a copy does neither, and
/// reading it costs little beside splitting it into records.
class FileBytes
{
  public:
    FileBytes() = default;
    ~FileBytes();
    FileBytes(FileBytes&& other) noexcept;
    FileBytes& operator=(FileBytes&& other) noexcept;

    /// Called now and then with the part that is read; answering false cancels.
    using Progress = std::function<bool(double)>;
    /// Reads a file. On failure `bytes` is untouched and `error` says why, for the user;
    /// `eUserBreak` when cancelled.
    static KdErrorStatus read(const std::filesystem::path& file, FileBytes& bytes, KdString& error,
                              const Progress& progress = {});
    /// A copy of `text`.
    static FileBytes copyOf(std::string_view text);

    /// `kReadablePastEnd` bytes behind the end are readable and 0.
    const char* data() const { return m_data; }
    std::size_t size() const { return m_size; }
    std::string_view view() const { return {m_data, m_size}; }
    /// So many bytes at the beginning are below 128; known without another look at them.
    std::size_t asciiSize() const { return m_asciiSize; }
    /// The file that the bytes came from; no file for a copy.
    const FileIdentity& file() const { return m_file; }

  private:
    explicit FileBytes(std::size_t capacity);

    char* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_reserved = 0;
    std::size_t m_asciiSize = 0;
    FileIdentity m_file;
};

} // namespace dxf
