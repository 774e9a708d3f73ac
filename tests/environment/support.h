/// What the tests of settings and their places share.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace environment_test {

/// A folder that lasts for one test.
class Folder
{
  public:
    Folder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "kwXXXXXX").string();
        m_path = mkdtemp(pattern.data());
    }
    ~Folder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const char* name) const { return m_path / name; }

  private:
    std::filesystem::path m_path;
};

inline void write(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs `work` in a process of its own, which ends with what it returns.
inline pid_t inOtherProcess(const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    return child;
}

/// Waits for the process; its exit number, or -1 if it was killed.
inline int endOf(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace environment_test
