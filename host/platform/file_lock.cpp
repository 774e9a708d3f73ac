#include "file_lock.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kLongestWait = 10s;
constexpr auto kPause = 2ms;
constexpr mode_t kOwnerOnly = 0600;

class Descriptor
{
  public:
    Descriptor(const fs::path& path, int flags)
        : m_file(open(path.c_str(), flags | O_CLOEXEC, kOwnerOnly))
    {
    }
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return m_file >= 0; }
    int get() const { return m_file; }
    bool close()
    {
        const bool good = m_file >= 0 && ::close(m_file) == 0;
        m_file = -1;
        return good;
    }

  private:
    int m_file;
};

fs::path withEnding(fs::path path, const char* ending)
{
    path += ending;
    return path;
}

} // namespace

FileLock::FileLock(const fs::path& path)
{
    m_file = open(withEnding(path, ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerOnly);
    if (m_file < 0)
        return;
    const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
    while (flock(m_file, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return;
        if (std::chrono::steady_clock::now() >= deadline) {
            m_outcome = Outcome::Busy;
            return;
        }
        std::this_thread::sleep_for(kPause);
    }
    m_outcome = Outcome::Held;
}

FileLock::~FileLock()
{
    if (m_file >= 0)
        close(m_file);
}

int readWholeFile(const fs::path& path, std::string& bytes)
{
    const Descriptor file(path, O_RDONLY | O_NONBLOCK); // a pipe must not hold us
    if (!file)
        return errno;
    std::string content;
    char block[4096];
    for (;;) {
        const ssize_t count = read(file.get(), block, sizeof block);
        if (count == 0)
            break;
        if (count > 0)
            content.append(block, static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return errno;
    }
    bytes = std::move(content);
    return 0;
}
