// A file has its name once it is finished, and not before.
#include <runtime/pending_file.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

using Name = KdPendingFile::Name;

/// With and without names from the beginning.
class PendingFile : public testing::TestWithParam<Name>
{
  protected:
    PendingFile()
    {
        std::string name = (fs::temp_directory_path() / "pending-XXXXXX").string();
        folder = mkdtemp(name.data());
        target = folder / "file";
    }
    ~PendingFile() override { fs::remove_all(folder); }

    int open(bool overwrite = false)
    {
        return file.open(target, {.overwrite = overwrite}, GetParam());
    }
    void write(const std::string& text) const
    {
        ASSERT_EQ(::write(file.descriptor(), text.data(), text.size()),
                  static_cast<ssize_t>(text.size()));
    }
    std::string content() const
    {
        std::ifstream stream(target);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::ptrdiff_t entries() const
    {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    }

    fs::path folder;
    fs::path target;
    KdPendingFile file;
};

TEST_P(PendingFile, HasItsNameWhenItIsFinished)
{
    ASSERT_EQ(open(), 0);
    write("new");
    EXPECT_FALSE(fs::exists(target));
    EXPECT_EQ(file.finish(), 0);
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(entries(), 1);
    EXPECT_EQ(file.descriptor(), -1);
}

TEST_P(PendingFile, ReplacesAFileOnlyWhenAskedTo)
{
    std::ofstream(target) << "old";
    EXPECT_EQ(open(), EEXIST);
    ASSERT_EQ(open(true), 0);
    write("new");
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(file.finish(), 0);
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(entries(), 1);
}

TEST_P(PendingFile, DoesNotReplaceAFileThatCameUpMeanwhile)
{
    ASSERT_EQ(open(), 0);
    std::ofstream(target) << "theirs";
    EXPECT_EQ(file.finish(), EEXIST);
    EXPECT_EQ(content(), "theirs");
    EXPECT_EQ(entries(), 1);
}

TEST_P(PendingFile, LeavesNothingWhenItIsDiscarded)
{
    std::ofstream(target) << "old";
    ASSERT_EQ(open(true), 0);
    write("new");
    file.discard();
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_P(PendingFile, CanBeOpenedUnderANameOfItsOwn)
{
    ASSERT_EQ(open(), 0);
    std::ofstream(file.path()) << "by another way";
    EXPECT_EQ(file.finish(), 0);
    EXPECT_EQ(content(), "by another way");
}

TEST_P(PendingFile, KeepsTheRightsOfWhatItReplaces)
{
    std::ofstream(target) << "old";
    fs::permissions(target, fs::perms::owner_read);
    ASSERT_EQ(open(true), 0);
    EXPECT_EQ(file.finish(), 0);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read);
}

TEST_P(PendingFile, ReplacesWhatALinkPointsTo)
{
    std::ofstream(folder / "behind") << "old";
    fs::create_symlink("behind", target);
    ASSERT_EQ(open(true), 0);
    write("new");
    EXPECT_EQ(file.finish(), 0);
    EXPECT_TRUE(fs::is_symlink(target));
    EXPECT_EQ(content(), "new");
}

TEST_P(PendingFile, NeedsAFolderAndNoOtherThingInItsPlace)
{
    target = folder / "none" / "file";
    EXPECT_EQ(open(), ENOENT);
    target = folder;
    EXPECT_EQ(open(true), EINVAL);
    target = "/dev/null";
    EXPECT_EQ(open(true), EINVAL);
}

INSTANTIATE_TEST_SUITE_P(Both, PendingFile, testing::Values(Name::AtTheEnd, Name::AtOnce),
                         [](const auto& row) {
                             return row.param == Name::AtOnce ? "namedAtOnce" : "namedAtTheEnd";
                         });

using NamelessFile = PendingFile;

TEST_P(NamelessFile, LeavesNothingWhenItsProcessIsKilled)
{
    const pid_t child = fork();
    if (child == 0) {
        open();
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(entries(), 0);
}

INSTANTIATE_TEST_SUITE_P(Lone, NamelessFile, testing::Values(Name::AtTheEnd),
                         [](const auto&) { return "namedAtTheEnd"; });

} // namespace
