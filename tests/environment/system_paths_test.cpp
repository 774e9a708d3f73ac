#include <environment/system_paths.h>

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <environment/preference_key.h>

#include "home.h"

namespace {

using namespace environment_test;

class SystemPathsTest : public HomeTest
{
  protected:
    SystemPathsTest() { PreferenceKey::m_currentProfilePath.clear(); }

    CStdStr<wchar_t> wide(const char* name) const
    {
        const std::string path = home / name;
        return std::wstring(path.begin(), path.end());
    }
    void makeFile(const std::filesystem::path& path)
    {
        std::filesystem::create_directories(path.parent_path());
        write(path, "");
    }
};

TEST_F(SystemPathsTest, BeginInTheUsersAndTheProgramsFolders)
{
    const SystemPaths paths;
    EXPECT_EQ(paths.get(SystemPaths::kPlotConfig), wide("data/kwqselect/Config"));
    EXPECT_EQ(paths.get(SystemPaths::kTemplate), wide("data/kwqselect/Template"));
    EXPECT_EQ(paths.get(SystemPaths::kMenuFile), wide("data/kwqselect/Menu/default.mnu"));
    EXPECT_TRUE(paths.get(SystemPaths::kInstall).ends_with(L"/share/kwqselect"));
    EXPECT_EQ(paths.get(SystemPaths::kFonts), paths.get(SystemPaths::kInstall) + L"/Fonts");
    EXPECT_TRUE(paths.get(SystemPaths::kNewDrawing).IsEmpty());
    EXPECT_FALSE(paths.get(SystemPaths::kVersion).IsEmpty());
    EXPECT_TRUE(ValidateLocation(paths.get(SystemPaths::kTempPrefix)));
}

TEST_F(SystemPathsTest, FollowTheHomeWhereNoDataFolderIsSet)
{
    const EnvironmentVariable none("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(SystemPaths().get(SystemPaths::kBlocks), wide(".local/share/kwqselect/Blocks"));
}

TEST_F(SystemPathsTest, LookIntoTheRegistryForTheDocuments)
{
    const CStdStr<wchar_t> before = SystemPaths().get(SystemPaths::kDrawing);
    EXPECT_TRUE(before.ends_with(L"/Drawing"));
    CRegKey folders;
    folders.Create(HKEY_CURRENT_USER,
                   L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders");
    folders.SetStringValue(L"Personal", L"/docs");
    EXPECT_EQ(SystemPaths().get(SystemPaths::kDrawing), L"/docs/Drawing");
    EXPECT_EQ(SystemPaths().get(SystemPaths::kXref), L"/docs/Xref");
}

TEST_F(SystemPathsTest, AreKeptInTheProfile)
{
    SystemPaths paths;
    paths.set(SystemPaths::kPlotConfig, L"/plot");
    paths.set(SystemPaths::kNewDrawing, L"/new.dwt");
    paths.set(SystemPaths::kBlocks, L"/not kept");
    EXPECT_TRUE(paths.SaveToRegistry());
    SystemPaths loaded;
    loaded.LoadFromRegistry();
    EXPECT_EQ(loaded.get(SystemPaths::kPlotConfig), L"/plot");
    EXPECT_EQ(loaded.get(SystemPaths::kNewDrawing), L"/new.dwt");
    EXPECT_EQ(loaded.get(SystemPaths::kBlocks), wide("data/kwqselect/Blocks"));
}

TEST_F(SystemPathsTest, HaveTheNamesOfTheRegistry)
{
    SystemPaths().SaveToRegistry();
    const PreferenceKey key(HKEY_CURRENT_USER, L"General", false);
    for (const wchar_t* name :
         {L"DCTMAINPATH", L"PLOTCONFIGPATH", L"PLOTDESCRIPTIONPATH", L"PLOTSTYLETABLEPATH",
          L"TOOLPALETTEPATH", L"SAVEFILEPATH", L"TEMPPREFIX", L"Menu File", L"QnewTemplate",
          L"KWDRAWHELP", L"InstallDir", L"CurVer"}) {
        CStdStr<wchar_t> value;
        EXPECT_TRUE(SystemPaths::LoadKey(key, name, value)) << CStdStr<wchar_t>(name).size();
    }
}

TEST_F(SystemPathsTest, StayWhereTheProfileHasNothing)
{
    SystemPaths paths;
    paths.set(SystemPaths::kHelp, L"/help");
    paths.LoadFromRegistry();
    EXPECT_EQ(paths.get(SystemPaths::kHelp), L"/help");
    CStdStr<wchar_t> value = L"before";
    EXPECT_FALSE(SystemPaths::LoadKey(nullptr, L"CurVer", value));
    EXPECT_EQ(value, L"before");
    EXPECT_FALSE(SystemPaths::SaveKey(nullptr, L"CurVer", L"1"));
}

TEST_F(SystemPathsTest, StayWhereTheProfileHasNoText)
{
    SystemPaths().SaveToRegistry();
    PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    ASSERT_EQ(key.SetDWORDValue(L"KWDRAWHELP", 65), ERROR_SUCCESS);
    CStdStr<wchar_t> value = L"before";
    EXPECT_FALSE(SystemPaths::LoadKey(key, L"KWDRAWHELP", value));
    EXPECT_EQ(value, L"before");
    SystemPaths paths;
    paths.set(SystemPaths::kHelp, L"/help");
    paths.LoadFromRegistry();
    EXPECT_EQ(paths.get(SystemPaths::kHelp), L"/help");
}

TEST_F(SystemPathsTest, TakeEmptyTexts)
{
    PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    ASSERT_EQ(key.SetStringValue(L"KWDRAWHELP", L""), ERROR_SUCCESS);
    CStdStr<wchar_t> value = L"before";
    EXPECT_TRUE(SystemPaths::LoadKey(key, L"KWDRAWHELP", value));
    EXPECT_TRUE(value.IsEmpty());
}

TEST_F(SystemPathsTest, TellWhenTheyCanNotBeKept)
{
    write(home / "config", "a file where the folder should be");
    EXPECT_FALSE(SystemPaths().SaveToRegistry());
}

TEST_F(SystemPathsTest, PreferTheUsersTemplates)
{
    CStdStr<wchar_t> path;
    getDefaultTemplatePath(path);
    EXPECT_EQ(path, SystemPaths().get(SystemPaths::kInstall) + L"/Template");
    std::filesystem::create_directories(home / "data/kwqselect/Template");
    getDefaultTemplatePath(path);
    EXPECT_EQ(path, wide("data/kwqselect/Template"));
}

TEST_F(SystemPathsTest, FindFilesWhereTheyAreLookedFor)
{
    wchar_t found[kLongestSystemPath] = L"untouched";
    EXPECT_FALSE(SearchSystemFile(L"some.shx", found, nullptr));
    EXPECT_STREQ(found, L"untouched");
    makeFile(home / "data/kwqselect/Support/some.shx");
    EXPECT_TRUE(SearchSystemFile(L"some.shx", found, nullptr));
    EXPECT_EQ(wide("data/kwqselect/Support/some.shx"), found);
    makeFile(home / "extra/some.shx");
    EXPECT_TRUE(SearchSystemFile(L"some.shx", found, (L"/nowhere;" + wide("extra")).c_str()));
    EXPECT_EQ(wide("extra/some.shx"), found) << "these come first";
    EXPECT_TRUE(SearchSystemFile(wide("extra/some.shx"), found, nullptr));
    EXPECT_FALSE(SearchSystemFile(wide("extra"), found, nullptr)) << "a folder is no file";
    EXPECT_FALSE(SearchSystemFile(L"", found, nullptr));
    EXPECT_FALSE(SearchSystemFile(nullptr, found, nullptr));
    EXPECT_FALSE(SearchSystemFile(L"some.shx", nullptr, nullptr));
}

} // namespace
