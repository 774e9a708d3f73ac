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

#include "mapped_file.h"

namespace dxf {

/// The bytes of a file: a small file is read into memory, a large one is mapped, so that it takes
/// no memory of its own. Of a mapped file others may change the bytes; see `isIntact`.
class FileBytes
{
  public:
    FileBytes() = default;
    ~FileBytes();
    FileBytes(FileBytes&& other) noexcept;
    FileBytes& operator=(FileBytes&& other) noexcept;

    enum class Keep
    {
        AsItSuits,
        InMemory, ///< a copy, also of a large file
    };
    /// From this size on files are mapped.
    static constexpr std::size_t kMappedFrom = std::size_t{1} << 20;

    /// Called now and then with the part that is read; answering false cancels.
    using Progress = std::function<bool(double)>;
    /// Reads a file. On failure `bytes` is untouched and `error` says why, for the user;
    /// `eUserBreak` when cancelled.
    static KdErrorStatus read(const std::filesystem::path& file, Keep keep, FileBytes& bytes,
                              KdString& error, const Progress& progress = {});
    /// A copy of `text`.
    static FileBytes copyOf(std::string_view text);

    /// `kReadablePastEnd` bytes behind the end are readable and 0, unless the file grows.
    const char* data() const { return view().data(); }
    std::size_t size() const { return view().size(); }
    std::string_view view() const
    {
        return m_mapped.isMapped() ? m_mapped.view() : std::string_view(m_data, m_size);
    }
    /// False once a mapped file has been changed by others: what was read of it may be wrong.
    bool isIntact() const { return !m_mapped.isMapped() || m_mapped.isIntact(); }
    /// The file that the bytes came from; no file for a copy of a text.
    const FileIdentity& file() const { return m_file; }

  private:
    explicit FileBytes(std::size_t capacity);
    KdErrorStatus copy(int descriptor, std::size_t wanted, KdString& error,
                       const Progress& progress);

    MappedFile m_mapped;
    char* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_reserved = 0;
    FileIdentity m_file;
};

} // namespace dxf
