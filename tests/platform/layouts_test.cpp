#include "environment.h"

#include <platform/resource_layouts.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class Layouts : public testing::Test
{
  protected:
    Layouts() { setResourceFolder(KW_TEST_RESOURCES); }
    ~Layouts() override { setResourceFolder({}); }

    static std::string layoutIn(const char* language, const wchar_t* path)
    {
        const EnvironmentVariable variable("LC_ALL", language);
        setResourceLanguage("");
        return std::string(kdFindLayout(LoadResourceDll(L"TestRes.dll"), path));
    }
};

TEST_F(Layouts, HaveTheirNumberedTextsInTheLanguageOfTheLibrary)
{
    const std::string english = layoutIn("C", L"TestGroup/IDD_TEST");
    EXPECT_NE(english.find("<string> X</string>"), std::string::npos) << english;
    EXPECT_NE(english.find("<string>stays as it is</string>"), std::string::npos);
    EXPECT_EQ(english.find("comment"), std::string::npos);
}

TEST_F(Layouts, AreEmptyWhereALibraryHasNoneOfThatPath)
{
    EXPECT_EQ(layoutIn("C", L"TestGroup/IDD_OTHER"), "");
    EXPECT_EQ(layoutIn("C", L"IDD_TEST"), "");
    EXPECT_EQ(layoutIn("de", L"TestGroup/IDD_TEST"), "") << "the German library has none";
    EXPECT_TRUE(kdFindLayout(nullptr, L"TestGroup/IDD_TEST").empty());
}

} // namespace
