#include <runtime/pending_file.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr unsigned kOwnerOnly = 0600;

/// The rights that new files get.
unsigned usualMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

fs::path resolved(const fs::path& target)
{
    std::error_code problem;
    fs::path result = fs::canonical(target, problem);
    return problem ? target : result;
}

fs::path folderOf(const fs::path& file)
{
    const fs::path parent = file.parent_path();
    return parent.empty() ? fs::path(".") : parent;
}

std::string nameBeside(const fs::path& target)
{
    return (folderOf(target) / ".pending-XXXXXX").string();
}

/// Makes a name last.
void flushFolder(const fs::path& folder)
{
    const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened >= 0) {
        fsync(opened);
        close(opened);
    }
}

/// Puts off requests to end while a file has a name that must not stay.
class SignalsLater
{
  public:
    SignalsLater()
    {
        sigset_t later;
        sigemptyset(&later);
        for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM})
            sigaddset(&later, signal);
        pthread_sigmask(SIG_BLOCK, &later, &m_before);
    }
    ~SignalsLater() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsLater(const SignalsLater&) = delete;
    SignalsLater& operator=(const SignalsLater&) = delete;

  private:
    sigset_t m_before;
};

int errorOf(int result)
{
    return result == 0 ? 0 : errno;
}

} // namespace

int KdPendingFile::open(const fs::path& target, const PendingFileRules& rules, Name name)
{
    discard();
    m_target = resolved(target);
    m_overwrite = rules.overwrite;
    struct stat status;
    if (stat(m_target.c_str(), &status) != 0) {
        if (errno != ENOENT)
            return errno;
        m_mode = rules.ownerOnly ? kOwnerOnly : usualMode();
    } else {
        if (!rules.overwrite)
            return EEXIST;
        if (!S_ISREG(status.st_mode))
            return EINVAL;
        m_mode = status.st_mode & 07777;
    }
    return beginIn(folderOf(m_target), name);
}

int KdPendingFile::beginIn(const fs::path& folder, Name name)
{
    // Giving a name goes through /proc, which not every container has.
    if (name == Name::AtTheEnd && access("/proc/self/fd", X_OK) == 0)
        m_descriptor = ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kOwnerOnly);
    if (m_descriptor >= 0)
        return 0;
    std::string beside = nameBeside(m_target);
    m_descriptor = mkostemp(beside.data(), O_CLOEXEC);
    if (m_descriptor < 0)
        return errno;
    m_beside = beside;
    return 0;
}

fs::path KdPendingFile::path() const
{
    return m_beside.empty() ? "/proc/self/fd/" + std::to_string(m_descriptor) : m_beside;
}

int KdPendingFile::finish()
{
    int failure = errorOf(fchmod(m_descriptor, m_mode));
    if (failure == 0)
        failure = errorOf(fsync(m_descriptor));
    if (failure == 0)
        failure = takeName();
    if (failure == 0)
        m_beside.clear();
    discard();
    // The name is safe only once its folder is. That the file is complete does not depend on it.
    if (failure == 0)
        flushFolder(folderOf(m_target));
    return failure;
}

/// Making a link fails where someone has made the target meanwhile; renaming would not.
int KdPendingFile::takeName()
{
    if (m_overwrite)
        return replaceTarget();
    const int failure =
        errorOf(linkat(AT_FDCWD, path().c_str(), AT_FDCWD, m_target.c_str(), AT_SYMLINK_FOLLOW));
    if (failure == 0 && !m_beside.empty())
        return errorOf(unlink(m_beside.c_str()));
    if (failure == 0 || failure == EEXIST || m_beside.empty())
        return failure;
    // Not every file system knows links.
    return errorOf(
        renameat2(AT_FDCWD, m_beside.c_str(), AT_FDCWD, m_target.c_str(), RENAME_NOREPLACE));
}

/// A link replaces nothing, so a file without a name gets one for a moment.
int KdPendingFile::replaceTarget()
{
    const SignalsLater later;
    if (m_beside.empty()) {
        std::string beside = nameBeside(m_target);
        const int place = mkostemp(beside.data(), O_CLOEXEC); // a name that nobody else takes
        if (place < 0)
            return errno;
        close(place);
        unlink(beside.c_str());
        if (linkat(AT_FDCWD, path().c_str(), AT_FDCWD, beside.c_str(), AT_SYMLINK_FOLLOW) != 0)
            return errno;
        m_beside = beside;
    }
    return errorOf(std::rename(m_beside.c_str(), m_target.c_str()));
}

void KdPendingFile::discard()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
    if (!m_beside.empty())
        unlink(m_beside.c_str());
    m_beside.clear();
}
