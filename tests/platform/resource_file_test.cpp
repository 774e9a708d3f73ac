#include "environment.h"

#include <platform/resource_file.h>
#include <platform/resources.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

/// The compiled test libraries, which are files like any others.
class ResourceFile : public testing::Test
{
  protected:
    ResourceFile() { setResourceFolder(KW_TEST_RESOURCES); }
    ~ResourceFile() override
    {
        setResourceFolder({});
        setResourceLanguage("");
    }

    static fs::path expected(const char* language)
    {
        return fs::path(KW_TEST_RESOURCES) / language / "TestRes.so";
    }

    EnvironmentVariable m_language{"LC_ALL", "C"};
};

TEST_F(ResourceFile, IsFoundInTheUsersLanguage)
{
    setResourceLanguage("de_AT.UTF-8");
    EXPECT_EQ(findResourceFile("TestRes.so"), expected("de"));
}

TEST_F(ResourceFile, IsFoundInTheLanguageOfTheEnvironment)
{
    const EnvironmentVariable language("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(findResourceFile("TestRes.so"), expected("de"));
}

TEST_F(ResourceFile, IsEnglishWhereThereIsNoOther)
{
    EXPECT_EQ(findResourceFile("TestRes.so"), expected("en"));
    setResourceLanguage("fr");
    EXPECT_EQ(findResourceFile("TestRes.so"), expected("en"));
}

TEST_F(ResourceFile, IsNoneWhereNoFolderHoldsIt)
{
    EXPECT_EQ(findResourceFile("missing.txt"), fs::path());
}

TEST_F(ResourceFile, HasAPlainName)
{
    EXPECT_EQ(findResourceFile(""), fs::path());
    EXPECT_EQ(findResourceFile(".."), fs::path());
    EXPECT_EQ(findResourceFile("../en/TestRes.so"), fs::path());
    EXPECT_EQ(findResourceFile(expected("en").string()), fs::path());
}

} // namespace
