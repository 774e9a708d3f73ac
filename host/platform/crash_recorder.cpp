#include <platform/crash_recorder.h>

#include <atomic>
#include <ctime>
#include <exception>
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include <runtime/utf8.h>

namespace {

std::atomic<KdadCrashRecorder*> g_recorder = nullptr;

std::string timeText()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    char text[32] = {};
    if (gmtime_r(&now, &parts))
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ ", &parts);
    return text;
}

void appendLine(const std::filesystem::path& path, const std::string& line)
{
    const int file = open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    // One call for the whole line; what does not fit on the disk is lost.
    [[maybe_unused]] const ssize_t written = write(file, line.data(), line.size());
    close(file);
}

} // namespace

KdadCrashRecorder::~KdadCrashRecorder() = default;

KdadCrashRecorder* kdadGetCrashRecorder()
{
    return g_recorder;
}

KdadCrashRecorder* kdadSetCrashRecorder(KdadCrashRecorder* recorder)
{
    return g_recorder.exchange(recorder);
}

void KdadCrashFile::record(const wchar_t* message) noexcept
{
    try {
        appendLine(m_path, timeText() + kdToUtf8(message ? message : L"") + '\n');
    } catch (const std::exception&) {
        return; // no memory for a line; the failure itself matters more
    }
}
