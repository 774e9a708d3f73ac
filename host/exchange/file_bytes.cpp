#include "file_bytes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "byte_scan.h"

namespace dxf {
namespace {

class Descriptor
{
  public:
    // A pipe without a writer must not keep us waiting; it is turned away once it is open.
    explicit Descriptor(const std::filesystem::path& file)
        : m_number(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~Descriptor()
    {
        if (isOpen())
            close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// Somebody else closes it.
    void release() { m_number = -1; }

  private:
    int m_number;
};

KdErrorStatus fail(KdString& error, const wchar_t* reason)
{
    error = reason;
    return eFileAccessError;
}

const wchar_t* reasonOf(int number)
{
    switch (number) {
    case ENOENT:
    case ENOTDIR:
        return L"The file does not exist.";
    case EACCES:
    case EPERM:
        return L"The file can't be read: no permission.";
    default:
        return L"The file can't be read.";
    }
}

} // namespace

FileBytes::FileBytes(std::size_t capacity) : m_reserved(capacity + kReadablePastEnd)
{
    void* const memory =
        mmap(nullptr, m_reserved, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    madvise(memory, m_reserved, MADV_HUGEPAGE); // fewer page faults; no loss where it is refused
    m_data = static_cast<char*>(memory);
}

FileBytes::~FileBytes()
{
    if (m_data)
        munmap(m_data, m_reserved);
}

FileBytes::FileBytes(FileBytes&& other) noexcept
{
    *this = std::move(other);
}

FileBytes& FileBytes::operator=(FileBytes&& other) noexcept
{
    std::swap(m_mapped, other.m_mapped);
    std::swap(m_data, other.m_data);
    std::swap(m_size, other.m_size);
    std::swap(m_reserved, other.m_reserved);
    std::swap(m_file, other.m_file);
    return *this;
}

FileBytes FileBytes::copyOf(std::string_view text)
{
    FileBytes bytes(text.size());
    std::copy(text.begin(), text.end(), bytes.m_data);
    bytes.m_size = text.size();
    return bytes;
}

KdErrorStatus FileBytes::copy(int descriptor, std::size_t wanted, KdString& error,
                              const Progress& progress)
{
    constexpr std::size_t kMostAtOnce = std::size_t{1} << 20;
    while (m_size < wanted) {
        if (progress && !progress(static_cast<double>(m_size) / static_cast<double>(wanted))) {
            error = L"Reading was cancelled.";
            return eUserBreak;
        }
        const ssize_t got =
            ::read(descriptor, m_data + m_size, std::min(wanted - m_size, kMostAtOnce));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return fail(error, reasonOf(errno));
        if (got == 0)
            break;
        m_size += static_cast<std::size_t>(got);
    }
    return eOk;
}

KdErrorStatus FileBytes::read(const std::filesystem::path& file, Keep keep, FileBytes& bytes,
                              KdString& error, const Progress& progress)
{
    Descriptor descriptor(file);
    if (!descriptor.isOpen())
        return fail(error, reasonOf(errno));
    struct stat status;
    if (fstat(descriptor.number(), &status) != 0)
        return fail(error, reasonOf(errno));
    if (S_ISDIR(status.st_mode))
        return fail(error, L"The file is a folder, not a drawing.");
    if (!S_ISREG(status.st_mode))
        return fail(error, L"The file is no regular file.");
    // The size is taken once: a file that grows meanwhile is read up to here, one that shrinks up
    // to its new end.
    const auto size = static_cast<std::size_t>(status.st_size);
    FileBytes result;
    const bool isLarge = keep == Keep::AsItSuits && size >= kMappedFrom;
    if (isLarge && result.m_mapped.map(descriptor.number(), status, kReadablePastEnd)) {
        descriptor.release();
    } else {
        result = FileBytes(size);
        const KdErrorStatus copied = result.copy(descriptor.number(), size, error, progress);
        if (copied != eOk)
            return copied;
    }
    result.m_file = {status.st_dev, status.st_ino};
    bytes = std::move(result);
    return eOk;
}

} // namespace dxf
