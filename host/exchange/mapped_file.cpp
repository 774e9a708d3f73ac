#include "mapped_file.h"

#include <utility>

#include <sys/mman.h>
#include <unistd.h>

#include "lost_pages.h"

namespace dxf {

MappedFile::~MappedFile()
{
    if (!m_data)
        return;
    LostPages::forget(m_watch);
    munmap(m_data, m_reserved);
    close(m_descriptor);
}

MappedFile::MappedFile(MappedFile&& other) noexcept
{
    *this = std::move(other);
}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept
{
    std::swap(m_data, other.m_data);
    std::swap(m_size, other.m_size);
    std::swap(m_reserved, other.m_reserved);
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_watch, other.m_watch);
    std::swap(m_modified, other.m_modified);
    return *this;
}

bool MappedFile::map(int descriptor, const struct stat& status, std::size_t readablePastEnd)
{
    const auto size = static_cast<std::size_t>(status.st_size);
    const std::size_t reserved = size + readablePastEnd;
    // The file comes to lie over the beginning of empty pages; those behind it stay.
    void* const place = mmap(nullptr, reserved, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        return false;
    const int watch = LostPages::watch(place, reserved);
    if (watch < 0 ||
        mmap(place, size, PROT_READ, MAP_PRIVATE | MAP_FIXED, descriptor, 0) == MAP_FAILED) {
        LostPages::forget(watch);
        munmap(place, reserved);
        return false;
    }
    m_data = static_cast<char*>(place);
    m_size = size;
    m_reserved = reserved;
    m_descriptor = descriptor;
    m_watch = watch;
    m_modified = status.st_mtim;
    return true;
}

bool MappedFile::isIntact() const
{
    struct stat now;
    return !LostPages::hasLost(m_watch) && fstat(m_descriptor, &now) == 0 &&
           static_cast<std::size_t>(now.st_size) == m_size &&
           now.st_mtim.tv_sec == m_modified.tv_sec && now.st_mtim.tv_nsec == m_modified.tv_nsec;
}

} // namespace dxf
