#include <runtime/safe_file.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

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
