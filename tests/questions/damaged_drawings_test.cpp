// All properties of all entities of a drawing, with their choices, are asked through the module,
// after faults were put into the drawing. Each time in a process of its own, which must end in good
// time with a bounded use of memory.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <common/module.h>
#include <database/database.h>
#include <exchange/drawing_reader.h>
#include <support/mutations.h>

namespace fs = std::filesystem;

namespace {

constexpr rlim_t kMostSeconds = 60;
constexpr long kMostKilobytes = 1 << 20;

enum Outcome : int
{
    Asked,
    Refused,
    Impossible, ///< a status or a count that can't be
};

/// A file in memory with that content.
fs::path fileOf(const std::string& content)
{
    const int file = memfd_create("drawing", MFD_CLOEXEC);
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t part = write(file, content.data() + done, content.size() - done);
        if (part <= 0)
            _exit(Impossible);
        done += static_cast<std::size_t>(part);
    }
    return "/proc/self/fd/" + std::to_string(file);
}

struct Asking
{
    const Module& module;
    std::size_t entities = 0;
    std::size_t properties = 0;
};

void takeProperty(void* context, const quick_select::Property&)
{
    ++static_cast<Asking*>(context)->properties;
}

void askEntity(void* context, const quick_select::Entity& entity)
{
    constexpr std::size_t kEnough = 1000;
    auto& asking = *static_cast<Asking*>(context);
    if (++asking.entities <= kEnough)
        asking.module.listProperties(entity.id, nullptr, true, takeProperty, context);
}

/// The life of the child.
Outcome askEverything(const Module& module, const std::string& content)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    const KdErrorStatus status = readDrawing(fileOf(content), database, report);
    if (status != eOk)
        return status == eBadDrawing ? Refused : Impossible;
    kddbHostApplicationServices()->setWorkingDatabase(database.get());
    Asking asking{module};
    module.listEntities(nullptr, askEntity, &asking);
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const bool hasAnswers = asking.properties > 0 || asking.entities == 0;
    return database->openCount() == 0 && hasAnswers ? Asked : Impossible;
}

class DamagedDrawing : public testing::TestWithParam<fs::path>
{
  protected:
    static void SetUpTestSuite()
    {
        module = std::make_unique<Module>();
        ASSERT_TRUE(module->load(KW_MODULE)) << module->error();
    }
    static void TearDownTestSuite() { module.reset(); }

    static void askInChild(const std::string& content)
    {
        const pid_t child = fork();
        if (child == 0) {
            const rlimit limit{kMostSeconds, kMostSeconds};
            setrlimit(RLIMIT_CPU, &limit);
            _exit(askEverything(*module, content));
        }
        int status = 0;
        rusage usage{};
        ASSERT_EQ(wait4(child, &status, 0, &usage), child);
        ASSERT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
        EXPECT_TRUE(WEXITSTATUS(status) == Asked || WEXITSTATUS(status) == Refused)
            << WEXITSTATUS(status);
        EXPECT_LT(usage.ru_maxrss, kMostKilobytes);
    }

    static inline std::unique_ptr<Module> module;
};

TEST_P(DamagedDrawing, AnswersAllQuestions)
{
    constexpr std::uintmax_t kAffordable = 150 * 1024;
    const std::string content = contentOfFile(GetParam());
    Random random(static_cast<unsigned>(content.size() + 1));
    for (int i = affordableCopies(content.size(), kAffordable, 8); i > 0; --i) {
        const std::string damaged = mutatedDrawing(content, random);
        SCOPED_TRACE(i);
        askInChild(damaged);
        if (HasFailure())
            return;
    }
    askInChild(cutDrawing(content, random));
}

INSTANTIATE_TEST_SUITE_P(All, DamagedDrawing, testing::ValuesIn(sampleDrawings()),
                         [](const auto& row) { return testNameOf(row.param); });

} // namespace
