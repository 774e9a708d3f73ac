/// Where a program notes what it was doing when it failed.
#pragma once

#include <filesystem>

#include <runtime/export.h>

class KW_EXPORT KdadCrashRecorder
{
  public:
    virtual ~KdadCrashRecorder();
    /// Notes a failure; must not throw.
    virtual void record(const wchar_t* message) noexcept = 0;
};

/// The recorder of the running program; null if it has none.
KW_EXPORT KdadCrashRecorder* kdadGetCrashRecorder();
/// Makes a recorder the program's (not owned; null for none) and returns the one before it.
KW_EXPORT KdadCrashRecorder* kdadSetCrashRecorder(KdadCrashRecorder* recorder);

/// Appends each message as a line, behind the time in UTC, to a text file. Lines of several
/// processes don't mix. A file that can't be written loses the messages and nothing more.
class KW_EXPORT KdadCrashFile : public KdadCrashRecorder
{
  public:
    explicit KdadCrashFile(std::filesystem::path path) : m_path(std::move(path)) {}
    void record(const wchar_t* message) noexcept override;

  private:
    std::filesystem::path m_path;
};
