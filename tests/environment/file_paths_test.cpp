#include <environment/file_paths.h>

#include <filesystem>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support.h"

namespace {

using namespace environment_test;
using testing::ElementsAre;

struct PartsRow
{
    const char* name;
    const wchar_t* path;
    const wchar_t* drive;
    const wchar_t* directory;
    const wchar_t* filename;
    const wchar_t* extension;
};

class FileStrings : public testing::TestWithParam<PartsRow>
{
};

TEST_P(FileStrings, AreTakenApart)
{
    const FileString path(GetParam().path);
    EXPECT_EQ(path.GetDrive(), GetParam().drive);
    EXPECT_EQ(path.GetDirectory(), GetParam().directory);
    EXPECT_EQ(path.GetFilename(), GetParam().filename);
    EXPECT_EQ(path.GetExtension(), GetParam().extension);
}

const PartsRow kParts[] = {
    {"absolute", L"/a/b/c.dwg", L"", L"/a/b/", L"c", L".dwg"},
    {"nameAlone", L"c.dwg", L"", L"", L"c", L".dwg"},
    {"twoDots", L"/a/c.bak.dwg", L"", L"/a/", L"c.bak", L".dwg"},
    {"noExtension", L"/a.b/c", L"", L"/a.b/", L"c", L""},
    {"hiddenFile", L"/a/.profile", L"", L"/a/", L".profile", L""},
    {"folder", L"/a/b/", L"", L"/a/b/", L"", L""},
    {"empty", L"", L"", L"", L"", L""},
    {"drive", L"C:\\a\\b.dwg", L"C:", L"\\a\\", L"b", L".dwg"},
    {"driveAlone", L"c:", L"c:", L"", L"", L""},
    {"backslashInAName", L"/a/b\\c.d", L"", L"/a/", L"b\\c", L".d"},
};
INSTANTIATE_TEST_SUITE_P(Rows, FileStrings, testing::ValuesIn(kParts),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FileString, KnowsWhereTheModuleLies)
{
    const std::string program = std::filesystem::canonical("/proc/self/exe");
    EXPECT_EQ(FileString::ModuleFile(), std::wstring(program.begin(), program.end()));
    EXPECT_EQ(FileString::ModulePath(), FileString::ModuleFile().GetDirectory());
    EXPECT_EQ(FileString::ModulePath().back(), L'/');
}

/// Keeps the names of all files, up to a number.
class Names : public AbstractFileProcessor
{
  public:
    explicit Names(std::size_t most = 100) : m_most(most) {}
    bool ProcessFile(const wchar_t* name, WIN32_FIND_DATAW& data) override
    {
        EXPECT_EQ(FileString(name).substr(FileString(name).GetDirectory().size()), data.cFileName);
        found.emplace_back(data.cFileName);
        last = data;
        return found.size() < m_most;
    }

    std::vector<std::wstring> found;
    WIN32_FIND_DATAW last;

  private:
    std::size_t m_most;
};

class FilePaths : public testing::Test
{
  protected:
    FilePaths()
    {
        for (const char* name : {"one", "two"})
            std::filesystem::create_directory(folder / name);
        for (const char* name : {"one/b.shx", "one/a.shx", "one/.c.shx", "two/c.shx", "one/B.SHX"})
            write(folder / name, "12345");
        std::filesystem::create_directory(folder / "one/folder.shx");
    }
    CStdStr<wchar_t> wide(const char* name) const
    {
        const std::string text = folder / name;
        return std::wstring(text.begin(), text.end());
    }

    Folder folder;
    FilePath path{wide("one") + L";;" + wide("missing") + L";" + wide("two")};
};

TEST_F(FilePaths, FindFilesByPatternInTheOrderOfFoldersAndNames)
{
    Names all;
    EXPECT_TRUE(path.FindFiles(all, L"*.shx"));
    EXPECT_THAT(all.found, ElementsAre(L".c.shx", L"a.shx", L"b.shx", L"c.shx"));
    Names some;
    EXPECT_TRUE(path.FindFiles(some, L"?.s*x"));
    EXPECT_THAT(some.found, ElementsAre(L"a.shx", L"b.shx", L"c.shx"));
    Names none;
    EXPECT_TRUE(path.FindFiles(none, nullptr));
    EXPECT_TRUE(path.FindFiles(none, L"*.dwg"));
    EXPECT_TRUE(FilePath().FindFiles(none, L"*"));
    EXPECT_THAT(none.found, ElementsAre());
}

TEST_F(FilePaths, EndTheSearchWhenTheProcessorWantsIt)
{
    Names two(2);
    EXPECT_FALSE(path.FindFiles(two, L"?.shx"));
    EXPECT_THAT(two.found, ElementsAre(L"a.shx", L"b.shx"));
    SearchResult first;
    EXPECT_FALSE(first.found());
    EXPECT_FALSE(path.FindFiles(first, L"c.shx"));
    EXPECT_TRUE(first.found());
    EXPECT_EQ(first.path(), wide("two/c.shx"));
}

TEST_F(FilePaths, TellSizeAndKindOfAFile)
{
    Names files;
    path.FindFiles(files, L"a.shx");
    EXPECT_EQ(files.last.nFileSizeLow, 5u);
    EXPECT_EQ(files.last.nFileSizeHigh, 0u);
    EXPECT_EQ(files.last.dwFileAttributes, FILE_ATTRIBUTE_NORMAL);
    path.FindFiles(files, L".c.shx");
    EXPECT_EQ(files.last.dwFileAttributes, FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(FilePaths, BeginWithTheFirstFolder)
{
    EXPECT_EQ(path.GetFirstPath(), wide("one"));
    EXPECT_EQ(FilePath(L";/a").GetFirstPath(), L"/a");
    EXPECT_TRUE(FilePath().GetFirstPath().IsEmpty());
}

TEST_F(FilePaths, ValidateFoldersAlone)
{
    EXPECT_TRUE(ValidateLocation(wide("one")));
    EXPECT_FALSE(ValidateLocation(wide("one/a.shx")));
    EXPECT_FALSE(ValidateLocation(wide("missing")));
    EXPECT_FALSE(ValidateLocation(L""));
}

struct AddRow
{
    const char* name;
    const wchar_t* list;
    const wchar_t* folder;
    const wchar_t* result;
};

class SearchPaths : public testing::TestWithParam<AddRow>
{
};

TEST_P(SearchPaths, TakeEachFolderOnce)
{
    CStdStr<wchar_t> list = GetParam().list;
    addPathToSrchpath(list, GetParam().folder);
    EXPECT_EQ(list, GetParam().result);
}

const AddRow kAdds[] = {
    {"first", L"", L"/a", L"/a"},
    {"second", L"/a", L"/b", L"/a;/b"},
    {"behindASemicolon", L"/a;", L"/b", L"/a;/b"},
    {"again", L"/a;/b", L"/a", L"/a;/b"},
    {"againWithASlash", L"/a;/b", L"/b/", L"/a;/b"},
    {"againWithoutTheSlash", L"/a/;/b", L"/a", L"/a/;/b"},
    {"partOfAName", L"/ab", L"/a", L"/ab;/a"},
    {"otherCase", L"/a", L"/A", L"/a;/A"},
    {"root", L"/", L"/", L"/"},
    {"empty", L"/a", L"", L"/a"},
};
INSTANTIATE_TEST_SUITE_P(Rows, SearchPaths, testing::ValuesIn(kAdds),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
