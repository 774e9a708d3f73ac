#include <runtime/safe_file.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class WrittenFile : public testing::Test
{
  protected:
    WrittenFile()
    {
        std::string name = (fs::temp_directory_path() / "written.XXXXXX").string();
        folder = mkdtemp(name.data());
    }
    ~WrittenFile() override { fs::remove_all(folder); }

    static std::string contentOf(const fs::path& file)
    {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static unsigned rightsOf(const fs::path& file)
    {
        struct stat status = {};
        EXPECT_EQ(stat(file.c_str(), &status), 0);
        return status.st_mode & 0777u;
    }
    std::ptrdiff_t entries() const { return std::distance(fs::directory_iterator(folder), {}); }

    fs::path folder;
    KdString error;
};

TEST_F(WrittenFile, IsForItsOwnerAloneWhenAskedTo)
{
    EXPECT_EQ(kdWriteFile(folder / "a", "text", {.ownerOnly = true}, error), eOk);
    EXPECT_EQ(contentOf(folder / "a"), "text");
    EXPECT_EQ(rightsOf(folder / "a"), 0600u);
    EXPECT_EQ(entries(), 1);
}

TEST_F(WrittenFile, IsNotThereWithoutItsEnd)
{
    {
        SafeFile file;
        ASSERT_EQ(file.open(folder / "a", {}, error), eOk);
        file.write("text");
        EXPECT_FALSE(fs::exists(folder / "a"));
    }
    EXPECT_EQ(entries(), 0);
}

TEST_F(WrittenFile, LeavesNothingWhenItsWriterIsKilled)
{
    const pid_t child = fork();
    if (child == 0) {
        SafeFile file;
        file.open(folder / "a", {}, error);
        file.write("text");
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(entries(), 0);
}

TEST_F(WrittenFile, NeedsAFolder)
{
    EXPECT_EQ(kdWriteFile(folder / "none/a", "text", {}, error), eFileAccessError);
    EXPECT_EQ(error, L"The folder does not exist.");
    std::ofstream(folder / "a") << "no folder";
    EXPECT_EQ(kdWriteFile(folder / "a/b", "text", {}, error), eFileAccessError);
    EXPECT_EQ(error, L"The folder does not exist.");
}

TEST_F(WrittenFile, NeedsAFolderThatCanBeWrittenTo)
{
    // Nobody may make files there, not even who may do everything.
    EXPECT_EQ(kdWriteFile("/sys/kernel/a", "text", {}, error), eFileAccessError);
    EXPECT_EQ(error, L"The folder can't be written to.");
}

TEST_F(WrittenFile, IsNoFolder)
{
    fs::create_directory(folder / "a");
    EXPECT_EQ(kdWriteFile(folder / "a", "text", {.overwrite = true}, error), eFileAccessError);
    EXPECT_EQ(error, L"The target is no regular file.");
}

TEST_F(WrittenFile, HasANameThatTheFileSystemTakes)
{
    EXPECT_EQ(kdWriteFile(folder / std::string(300, 'a'), "text", {}, error), eFileAccessError);
    EXPECT_EQ(error, L"The file can't be written.");
    EXPECT_EQ(entries(), 0);
}

TEST_F(WrittenFile, MayBeLargerThanWhatIsHeldBack)
{
    std::string text;
    while (text.size() < (std::size_t{5} << 19))
        text += std::to_string(text.size()) + ' ';
    EXPECT_EQ(kdWriteFile(folder / "a", text, {}, error), eOk);
    EXPECT_EQ(contentOf(folder / "a"), text);
}

/// No file may grow beyond some bytes during its life, as on a disk that is full.
class FullDisk
{
  public:
    FullDisk() : m_signalBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{10, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signalBefore);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    void (*m_signalBefore)(int);
    rlimit m_before{};
};

TEST_F(WrittenFile, LeavesTheOldOneWhenTheDiskIsFull)
{
    std::ofstream(folder / "a") << "old";
    {
        const FullDisk full;
        EXPECT_EQ(kdWriteFile(folder / "a", "much too long", {.overwrite = true}, error),
                  eFileAccessError);
    }
    EXPECT_EQ(error, L"There is no room for the file.");
    EXPECT_EQ(contentOf(folder / "a"), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_F(WrittenFile, ReplacesAnotherAndLeavesNothingBesideIt)
{
    std::ofstream(folder / "a") << "old";
    EXPECT_EQ(kdWriteFile(folder / "a", "new", {.overwrite = true}, error), eOk);
    EXPECT_EQ(contentOf(folder / "a"), "new");
    EXPECT_EQ(entries(), 1);
}

TEST_F(WrittenFile, DoesNotReplaceOneThatCameMeanwhile)
{
    SafeFile file;
    ASSERT_EQ(file.open(folder / "a", {}, error), eOk);
    file.write("mine");
    std::ofstream(folder / "a") << "theirs";
    EXPECT_EQ(file.finish(error), eDuplicateKey);
    EXPECT_EQ(error, L"The file exists already.");
    EXPECT_EQ(contentOf(folder / "a"), "theirs");
    EXPECT_EQ(entries(), 1);
}

TEST_F(WrittenFile, IsNeverTheOneThatMustNotBeTouched)
{
    std::ofstream(folder / "a") << "old";
    fs::create_hard_link(folder / "a", folder / "twin");
    const SafeFileRules rules{.overwrite = true, .untouchable = kdFileIdentity(folder / "a")};
    EXPECT_EQ(kdWriteFile(folder / "twin", "new", rules, error), eDuplicateKey);
    EXPECT_EQ(contentOf(folder / "a"), "old");
}

TEST_F(WrittenFile, HasAnIdentityByAnyName)
{
    std::ofstream(folder / "a") << "text";
    fs::create_symlink(folder / "a", folder / "link");
    EXPECT_EQ(kdFileIdentity(folder / "a"), kdFileIdentity(folder / "link"));
    EXPECT_NE(kdFileIdentity(folder / "a"), FileIdentity{});
    EXPECT_NE(kdFileIdentity(folder / "a"), kdFileIdentity(folder));
    EXPECT_EQ(kdFileIdentity(folder / "none"), FileIdentity{});
}

} // namespace
