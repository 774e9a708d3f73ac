#include <runtime/safe_file.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
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
    default:
        return L"The file can't be written.";
    }
}

KdErrorStatus fail(KdString& error, int number)
{
    error = reasonOf(number);
    return number == EEXIST ? eDuplicateKey : eFileAccessError;
}

constexpr unsigned kOwnerOnly = 0600;

/// The rights that new files get.
unsigned usualMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// A link is followed, so that what it points to is replaced and not the link.
std::filesystem::path resolved(const std::filesystem::path& target)
{
    std::error_code problem;
    std::filesystem::path result = std::filesystem::canonical(target, problem);
    return problem ? target : result;
}

} // namespace

FileIdentity kdFileIdentity(const std::filesystem::path& path)
{
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? FileIdentity{status.st_dev, status.st_ino}
                                            : FileIdentity{};
}

SafeFile::~SafeFile()
{
    discard();
}

void SafeFile::discard()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
    if (!m_temporary.empty())
        unlink(m_temporary.c_str());
    m_temporary.clear();
}

KdErrorStatus SafeFile::checkTarget(const SafeFileRules& rules, KdString& error)
{
    struct stat status;
    if (stat(m_target.c_str(), &status) != 0) {
        m_mode = rules.ownerOnly ? kOwnerOnly : usualMode();
        return errno == ENOENT ? eOk : fail(error, errno);
    }
    if (FileIdentity{status.st_dev, status.st_ino} == rules.untouchable) {
        error = L"A drawing can't be written over the file that it comes from.";
        return eDuplicateKey;
    }
    if (!m_overwrite)
        return fail(error, EEXIST);
    if (!S_ISREG(status.st_mode)) {
        error = L"The target is no regular file.";
        return eFileAccessError;
    }
    m_mode = status.st_mode & 07777;
    return eOk;
}

bool SafeFile::makeTemporary(const std::filesystem::path& beside)
{
    std::string name = beside.string();
    if (beside.empty()) {
        name = (m_target.parent_path() / ".unfinished-XXXXXX").string();
        m_descriptor = mkostemp(name.data(), O_CLOEXEC);
    } else {
        m_descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kOwnerOnly);
    }
    if (m_descriptor >= 0)
        m_temporary = name;
    return m_descriptor >= 0;
}

KdErrorStatus SafeFile::open(const std::filesystem::path& target, const SafeFileRules& rules,
                             KdString& error)
{
    m_target = resolved(target);
    m_overwrite = rules.overwrite;
    if (const KdErrorStatus status = checkTarget(rules, error); status != eOk)
        return status;
    if (!makeTemporary(rules.beside))
        return fail(error, errno);
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
        const ssize_t written = ::write(m_descriptor, rest.data(), rest.size());
        if (written >= 0)
            rest.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            m_failure = errno;
    }
    m_buffer.clear();
}

bool SafeFile::rename() const
{
    if (m_overwrite)
        return std::rename(m_temporary.c_str(), m_target.c_str()) == 0;
    // Someone may have made the file meanwhile. Not every file system can tell while it renames;
    // making a link fails in that case, too.
    if (renameat2(AT_FDCWD, m_temporary.c_str(), AT_FDCWD, m_target.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return link(m_temporary.c_str(), m_target.c_str()) == 0 && unlink(m_temporary.c_str()) == 0;
}

KdErrorStatus SafeFile::finish(KdString& error)
{
    flush();
    if (m_failure == 0 && (fchmod(m_descriptor, m_mode) != 0 || fsync(m_descriptor) != 0))
        m_failure = errno;
    if (m_failure == 0 && !rename())
        m_failure = errno;
    if (m_failure != 0) {
        discard();
        return fail(error, m_failure);
    }
    m_temporary.clear();
    // The name is safe only once its folder is. That the file is complete no longer depends on it.
    const std::filesystem::path parent = m_target.parent_path();
    const int folder =
        ::open(parent.empty() ? "." : parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
    return eOk;
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
