#include <environment/preference_key.h>

#include <gtest/gtest.h>

#include <platform/profile.h>

#include "home.h"

namespace {

using namespace environment_test;

constexpr const wchar_t* kRoot = L"Software\\KwQselect\\Profiles";
constexpr const wchar_t* kDefaultProfile = L"Software\\KwQselect\\Profiles\\Default";

class Preferences : public HomeTest
{
  protected:
    Preferences() { PreferenceKey::m_currentProfilePath.clear(); }

    static bool exists(const std::wstring& path)
    {
        CRegKey key;
        return key.Open(HKEY_CURRENT_USER, path.c_str()) == ERROR_SUCCESS;
    }
};

using Ask = bool (*)(wchar_t*, int);

struct PathRow
{
    const char* name;
    Ask ask;
    const wchar_t* text;
    int spare; ///< characters that must be free behind the terminator
};

class ProfilePaths : public HomeTest, public testing::WithParamInterface<PathRow>
{
};

TEST_P(ProfilePaths, NeedABufferInWhichTheyFit)
{
    const PathRow& row = GetParam();
    const int fits = static_cast<int>(std::wcslen(row.text)) + 1 + row.spare;
    wchar_t buffer[100] = L"untouched";
    EXPECT_FALSE(row.ask(nullptr, 100));
    EXPECT_FALSE(row.ask(buffer, 0));
    EXPECT_FALSE(row.ask(buffer, -1));
    EXPECT_FALSE(row.ask(buffer, fits - 1));
    EXPECT_STREQ(buffer, L"untouched");
    EXPECT_TRUE(row.ask(buffer, fits));
    EXPECT_STREQ(buffer, row.text);
}

const PathRow kPaths[] = {
    {"profilesRoot", getRegistryProfilesRoot, kRoot, 1},
    {"currentProfile", getRegCurrentProfileRoot, kDefaultProfile, 0},
    {"profileName", GetCurrentRegistryProfileName, L"Default", 0},
};
INSTANTIATE_TEST_SUITE_P(Rows, ProfilePaths, testing::ValuesIn(kPaths),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Preferences, AreThoseOfTheProfileThatWasChosen)
{
    EXPECT_TRUE(setCurrentProfileName(L"Mine"));
    wchar_t name[20] = {};
    EXPECT_TRUE(GetCurrentRegistryProfileName(name, 20));
    EXPECT_STREQ(name, L"Mine");
    for (const wchar_t* none : {L"", L"a\\b", L":a"})
        EXPECT_FALSE(setCurrentProfileName(none));
    EXPECT_FALSE(setCurrentProfileName(nullptr));
    const PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    EXPECT_TRUE(exists(std::wstring(kRoot) + L"\\Mine\\General"));
}

TEST_F(Preferences, AreMadeWhereTheyAreMissing)
{
    PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    ASSERT_NE(key.m_hKey, nullptr);
    EXPECT_EQ(key.SetStringValue(L"a", L"1"), ERROR_SUCCESS);
    EXPECT_TRUE(exists(std::wstring(kDefaultProfile) + L"\\General"));
    EXPECT_TRUE(PreferenceKey::m_currentProfilePath.IsEmpty()) << "it is put back as it was";
    key.Init(HKEY_CURRENT_USER, L"General", true);
    EXPECT_EQ(PreferenceKey::m_currentProfilePath, kDefaultProfile);
}

TEST_F(Preferences, AreNotMadeWhenTheyAreOnlyToBeOpened)
{
    EXPECT_EQ(PreferenceKey(HKEY_CURRENT_USER, L"General", false).m_hKey, nullptr);
    EXPECT_FALSE(exists(kDefaultProfile));
    const PreferenceKey made(HKEY_CURRENT_USER, L"General", true);
    PreferenceKey opened(HKEY_CURRENT_USER, L"General", false);
    EXPECT_EQ(opened.SetStringValue(L"a", L"1"), ERROR_SUCCESS);
    EXPECT_EQ(PreferenceKey(HKEY_CURRENT_USER, L"Other", false).m_hKey, nullptr);
}

TEST_F(Preferences, NeedARoot)
{
    EXPECT_EQ(PreferenceKey(nullptr, L"General", true).m_hKey, nullptr);
    EXPECT_EQ(PreferenceKey(nullptr, L"General", false).m_hKey, nullptr);
}

TEST_F(Preferences, OfTheSetupLieBesideTheProfiles)
{
    const PreferenceKey key(HKEY_CURRENT_USER, L"Setup", true);
    EXPECT_TRUE(exists(L"Software\\KwQselect\\Setup"));
    EXPECT_TRUE(PreferenceKey::m_currentProfilePath.IsEmpty()) << "the saved path comes back";
    const PreferenceKey elsewhere(HKEY_LOCAL_MACHINE, L"Setup", true);
    CRegKey found;
    EXPECT_EQ(found.Open(HKEY_LOCAL_MACHINE, (std::wstring(kDefaultProfile) + L"\\Setup").c_str()),
              ERROR_SUCCESS)
        << "only for the current user";
}

TEST_F(Preferences, FollowAChangeOfProfileWhenTheyAreReloaded)
{
    PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    key.Init(HKEY_CURRENT_USER, L"First", true);
    setCurrentProfileName(L"Mine");
    key.Init(HKEY_CURRENT_USER, L"Second", true);
    EXPECT_TRUE(exists(std::wstring(kDefaultProfile) + L"\\Second")) << "the path is remembered";
    key.Reload(HKEY_CURRENT_USER, L"Third", true);
    EXPECT_TRUE(exists(std::wstring(kRoot) + L"\\Mine\\Third"));
    EXPECT_EQ(PreferenceKey::m_currentProfilePath, std::wstring(kRoot) + L"\\Mine");
}

TEST_F(Preferences, CanBeEmptied)
{
    PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    key.Init(HKEY_CURRENT_USER, L"General", true);
    key.SetStringValue(L"a", L"1");
    const PreferenceKey below(HKEY_CURRENT_USER, L"General\\Below", true);
    EXPECT_EQ(key.FlushKey(HKEY_CURRENT_USER, L"General"), ERROR_SUCCESS);
    CStdStr<wchar_t> value;
    EXPECT_EQ(KwLoadKey(key, L"a", value), ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(exists(std::wstring(kDefaultProfile) + L"\\General\\Below"));
    EXPECT_EQ(key.FlushKey(HKEY_CURRENT_USER, L"New"), ERROR_SUCCESS);
    EXPECT_TRUE(exists(std::wstring(kDefaultProfile) + L"\\New"));
}

TEST_F(Preferences, AreLeftAloneWhereTheProfileCanNotBeOpened)
{
    PreferenceKey key(HKEY_CURRENT_USER, L"General", false);
    key.Init(HKEY_CURRENT_USER, L"General", false);
    EXPECT_EQ(key.FlushKey(HKEY_CURRENT_USER, L"General"), 0);
    EXPECT_EQ(key.m_hKey, nullptr);
}

TEST_F(Preferences, AreLoadedAsTexts)
{
    PreferenceKey key(HKEY_CURRENT_USER, L"General", true);
    key.SetStringValue(L"a", L"text");
    key.SetDWORDValue(L"n", 65);
    CStdStr<wchar_t> value = L"before";
    EXPECT_EQ(KwLoadKey(key, L"a", value), ERROR_SUCCESS);
    EXPECT_EQ(value, L"text");
    EXPECT_EQ(KwLoadKey(key, L"n", value), ERROR_SUCCESS);
    EXPECT_TRUE(value.IsEmpty());
    value = L"before";
    EXPECT_EQ(KwLoadKey(key, L"missing", value), ERROR_FILE_NOT_FOUND);
    EXPECT_TRUE(value.IsEmpty());
    value = L"before";
    key.SetStringValue(L"long", std::wstring(5000, L'x').c_str());
    EXPECT_EQ(KwLoadKey(key, L"long", value), ERROR_MORE_DATA);
    EXPECT_TRUE(value.IsEmpty());
    EXPECT_EQ(KwLoadKey(nullptr, L"a", value), ERROR_INVALID_HANDLE);
}

} // namespace
