#include <runtime/safe_file.h>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;

const wchar_t* reasonOf(int number)
{
    switch (number) {
    case ENOENT:
    case ENOTDIR:
        return L"The folder does not exist.";
    case EACCES:
    case EPERM:
    case EROFS:
        return L"The folder can't be written to.";
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return L"There is no room for the file.";
    case EEXIST:
        return L"The file exists already.";
    case EINVAL:
        return L"The target is no regular file.";
    default:
        return L"The file can't be written.";
    }
}

KdErrorStatus fail(KdString& error, int number)
{
    error = reasonOf(number);
    return number == EEXIST ? eDuplicateKey : eFileAccessError;
}

} // namespace

FileIdentity kdFileIdentity(const std::filesystem::path& path)
{
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? FileIdentity{status.st_dev, status.st_ino}
                                            : FileIdentity{};
}

KdErrorStatus SafeFile::open(const std::filesystem::path& target, const SafeFileRules& rules,
                             KdString& error)
{
    if (rules.untouchable.number != 0 && kdFileIdentity(target) == rules.untouchable) {
        error = L"A drawing can't be written over the file that it comes from.";
        return eDuplicateKey;
    }
    const PendingFileRules pending{.overwrite = rules.overwrite, .ownerOnly = rules.ownerOnly};
    if (const int failure = m_file.open(target, pending); failure != 0)
        return fail(error, failure);
    m_buffer.reserve(kBufferSize);
    return eOk;
}

void SafeFile::write(std::string_view bytes)
{
    while (!bytes.empty() && m_failure == 0) {
        const std::size_t part = std::min(bytes.size(), kBufferSize - m_buffer.size());
        m_buffer.append(bytes.substr(0, part));
        bytes.remove_prefix(part);
        if (m_buffer.size() == kBufferSize)
            flush();
    }
}

void SafeFile::flush()
{
    std::string_view rest = m_buffer;
    while (!rest.empty() && m_failure == 0) {
        const ssize_t written = ::write(m_file.descriptor(), rest.data(), rest.size());
        if (written >= 0)
            rest.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            m_failure = errno;
    }
    m_buffer.clear();
}

KdErrorStatus SafeFile::finish(KdString& error)
{
    flush();
    if (m_failure == 0)
        m_failure = m_file.finish();
    if (m_failure == 0)
        return eOk;
    m_file.discard();
    return fail(error, m_failure);
}

KdErrorStatus kdWriteFile(const std::filesystem::path& target, std::string_view bytes,
                          const SafeFileRules& rules, KdString& error)
{
    SafeFile file;
    if (const KdErrorStatus status = file.open(target, rules, error); status != eOk)
        return status;
    file.write(bytes);
    return file.finish(error);
}
