// A file in the address space of the process, without a copy of it.
#pragma once

#include <cstddef>
#include <string_view>

#include <sys/stat.h>

namespace dxf {

/// Maps a regular file for reading. What others do to the file meanwhile shows in the bytes, so
/// whoever has read them asks `isIntact` before making use of what they said. A file that is cut
/// short reads as zeros behind its new end, and so does what the disk fails to give: the signal for
/// it, SIGBUS, is handled here for these bytes and passed on for all others.
class MappedFile
{
  public:
    MappedFile() = default;
    ~MappedFile();
    MappedFile(MappedFile&& other) noexcept;
    MappedFile& operator=(MappedFile&& other) noexcept;

    /// Takes the descriptor over, which is open for reading and has that status. Behind the end of
    /// the file `readablePastEnd` bytes are readable, mostly 0. False where a file can't be mapped;
    /// the descriptor is then left to the caller.
    bool map(int descriptor, const struct stat& status, std::size_t readablePastEnd);

    bool isMapped() const { return m_data != nullptr; }
    std::string_view view() const { return {m_data, m_size}; }
    /// False once the file is another one than when it was mapped: its size, its time of change,
    /// or bytes that could not be read.
    bool isIntact() const;

  private:
    char* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_reserved = 0;
    int m_descriptor = -1;
    int m_watch = -1; ///< the number among the places that are watched for SIGBUS
    timespec m_modified{};
};

} // namespace dxf
