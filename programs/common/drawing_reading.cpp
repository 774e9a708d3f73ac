#include <common/drawing_reading.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <runtime/utf8.h>

namespace {

namespace fs = std::filesystem;

constexpr const char* kConverter = "dwg2dxf";
/// How much of the work the conversion counts for.
constexpr double kConversionShare = 0.5;

bool isDwg(const fs::path& file)
{
    std::error_code noCode;
    if (!fs::is_regular_file(file, noCode)) // a pipe must not hold us
        return false;
    char head[6] = {};
    std::ifstream stream(file, std::ios::binary);
    stream.read(head, sizeof head);
    const std::string_view version(head, sizeof head);
    return stream.good() && version.starts_with("AC1") &&
           version.find_first_not_of("0123456789", 2) == std::string_view::npos;
}

std::optional<fs::path> converterOnPath()
{
    const char* const path = std::getenv("PATH");
    std::string_view rest = path ? path : "";
    while (!rest.empty()) {
        const std::size_t colon = rest.find(':');
        const fs::path program = fs::path(rest.substr(0, colon)) / kConverter;
        if (access(program.c_str(), X_OK) == 0)
            return program;
        rest.remove_prefix(colon == std::string_view::npos ? rest.size() : colon + 1);
    }
    return std::nullopt;
}

/// A folder of its own that goes at the end of the scope.
class TemporaryFolder
{
  public:
    TemporaryFolder()
    {
        std::error_code noCode;
        std::string name = (fs::temp_directory_path(noCode) / "kwqselect-XXXXXX").string();
        if (mkdtemp(name.data()))
            m_path = name;
    }
    ~TemporaryFolder()
    {
        std::error_code noCode;
        if (!m_path.empty())
            fs::remove_all(m_path, noCode);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Empty if there is no room for one.
    const fs::path& path() const { return m_path; }

  private:
    fs::path m_path;
};

/// A program that runs beside this one, without input and output.
class ChildProgram
{
  public:
    ~ChildProgram() { stop(); }

    bool start(const fs::path& program, const std::vector<std::string>& arguments)
    {
        std::vector<char*> words{const_cast<char*>(program.c_str())};
        for (const std::string& argument : arguments)
            words.push_back(const_cast<char*>(argument.c_str()));
        words.push_back(nullptr);
        posix_spawn_file_actions_t streams;
        posix_spawn_file_actions_init(&streams);
        for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&streams, descriptor, "/dev/null", O_RDWR, 0);
        const int failed =
            posix_spawn(&m_process, program.c_str(), &streams, nullptr, words.data(), environ);
        posix_spawn_file_actions_destroy(&streams);
        if (failed)
            m_process = 0;
        return !failed;
    }

    /// True once it has ended.
    bool hasEnded()
    {
        if (m_process != 0 && waitpid(m_process, &m_status, WNOHANG) == m_process)
            m_process = 0;
        return m_process == 0;
    }
    bool succeeded() const { return WIFEXITED(m_status) && WEXITSTATUS(m_status) == 0; }
    void stop()
    {
        if (m_process == 0)
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, &m_status, 0);
        m_process = 0;
    }

  private:
    pid_t m_process = 0;
    int m_status = 0;
};

KdErrorStatus refuse(ReadReport& report, const std::string& sentence)
{
    report.error = KdString(kdFromUtf8(sentence).c_str());
    return eBadDrawing;
}

bool goesOn(const ReadOptions& options, double fraction)
{
    return !options.progress || options.progress(fraction);
}

KdErrorStatus convert(const fs::path& converter, const fs::path& from, const fs::path& to,
                      ReadReport& report, const ReadOptions& options)
{
    constexpr auto kPause = std::chrono::milliseconds(20);
    ChildProgram program;
    if (!program.start(converter, {"-y", "-o", to.string(), fs::absolute(from).string()}))
        return refuse(report, "The converter " + converter.string() + " can't be started.");
    // How far it has come it does not tell: the share grows towards its end without reaching it.
    for (double waited = 0.0; !program.hasEnded(); waited += 0.02) {
        if (!goesOn(options, kConversionShare * waited / (waited + 5.0))) {
            report.error = L"Reading was cancelled.";
            return eUserBreak;
        }
        std::this_thread::sleep_for(kPause);
    }
    std::error_code noCode;
    if (!program.succeeded() || !fs::exists(to, noCode))
        return refuse(report, "The DWG drawing can't be converted: " + converter.string() +
                                  " ended with an error.");
    return eOk;
}

} // namespace

KdErrorStatus readDrawingOrConvert(const fs::path& file, std::unique_ptr<KdDbDatabase>& database,
                                   ReadReport& report, const ReadOptions& options)
{
    if (!isDwg(file))
        return readDrawing(file, database, report, options);
    const std::optional<fs::path> converter = converterOnPath();
    if (!converter)
        return refuse(report,
                      "The file is a DWG drawing. Install the converter dwg2dxf on the path, "
                      "or save it as DXF.");
    const TemporaryFolder folder;
    if (folder.path().empty())
        return refuse(report, "There is no folder to convert the DWG drawing in.");
    const fs::path converted = folder.path() / "converted.dxf";
    const KdErrorStatus status = convert(*converter, file, converted, report, options);
    if (status != eOk)
        return status;
    ReadOptions rest = options;
    rest.fileWillGo = true; // with the folder
    if (options.progress) {
        rest.progress = [&options](double fraction) {
            return options.progress(kConversionShare + (1.0 - kConversionShare) * fraction);
        };
    }
    return readDrawing(converted, database, report, rest);
}
