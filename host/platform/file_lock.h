/// Files that several processes read and replace.
#pragma once

#include <filesystem>
#include <string>

/// The right to replace a file, held through a lock on a file beside it. The lock goes with the
/// object, and with the process however that ends; the file beside stays, for it must never be
/// deleted while others may wait for it.
class FileLock
{
  public:
    /// Waits for the lock on `path` + ".lock", but not forever. The folder must be there.
    explicit FileLock(const std::filesystem::path& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    enum class Outcome
    {
        Held,
        Busy,   ///< others held it all the time
        Failed, ///< the file beside can't be made
    };
    Outcome outcome() const { return m_outcome; }

  private:
    int m_file = -1;
    Outcome m_outcome = Outcome::Failed;
};

/// Reads a whole file. Returns 0, or the number of the system's error, `bytes` then untouched.
int readWholeFile(const std::filesystem::path& path, std::string& bytes);
