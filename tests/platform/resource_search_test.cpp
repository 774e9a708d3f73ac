#include "environment.h"

#include <resource_search.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
namespace fs = std::filesystem;

struct LanguageRow
{
    const char* name;
    const char* language;
    std::vector<std::string> expected;
};

class ResourceLanguages : public testing::TestWithParam<LanguageRow>
{
};

TEST_P(ResourceLanguages, AreTriedFromTheClosestToEnglish)
{
    EXPECT_EQ(resourceLanguages(GetParam().language), GetParam().expected);
}

const LanguageRow kLanguageRows[] = {
    {"nothingSaid", "", {"en"}},
    {"plainLocale", "C", {"en"}},
    {"plainLocaleWithCodePage", "C.UTF-8", {"en"}},
    {"standardLocale", "POSIX", {"en"}},
    {"languageAlone", "de", {"de", "en"}},
    {"languageAndRegion", "pt_BR", {"pt_BR", "pt", "en"}},
    {"codePage", "de_DE.UTF-8", {"de_DE", "de", "en"}},
    {"variant", "sr_RS@latin", {"sr_RS", "sr", "en"}},
    {"english", "en", {"en"}},
    {"americanEnglish", "en_US.UTF-8", {"en_US", "en"}},
    {"pathOutOfTheFolder", "../../tmp", {"en"}},
    {"pathWithoutDots", "a/b", {"en"}},
};
INSTANTIATE_TEST_SUITE_P(Rows, ResourceLanguages, testing::ValuesIn(kLanguageRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(EnvironmentLanguage, IsTheFirstVariableThatSaysSomething)
{
    const EnvironmentVariable all("LC_ALL", "");
    const EnvironmentVariable language("LANG", "fr");
    {
        const EnvironmentVariable messages("LC_MESSAGES", "de");
        EXPECT_EQ(environmentLanguage(), "de");
    }
    const EnvironmentVariable messages("LC_MESSAGES", nullptr);
    EXPECT_EQ(environmentLanguage(), "fr");
    const EnvironmentVariable overAll("LC_ALL", "es");
    EXPECT_EQ(environmentLanguage(), "es");
}

TEST(ResourceFolders, BeginWithThoseOfTheEnvironment)
{
    const EnvironmentVariable variable("KW_RESOURCE_PATH", "/first::/second:");
    const std::vector<fs::path> folders = resourceFolders();
    ASSERT_GT(folders.size(), 2u);
    EXPECT_EQ(folders[0], "/first");
    EXPECT_EQ(folders[1], "/second");
    EXPECT_NE(folders[2], "");
}

TEST(ResourceFolders, GoOnNearTheBinaryAndEndAtTheInstalledOne)
{
    const EnvironmentVariable variable("KW_RESOURCE_PATH", nullptr);
    const std::vector<fs::path> folders = resourceFolders();
    const fs::path folder = fs::canonical("/proc/self/exe").parent_path();
    EXPECT_THAT(folders, testing::IsSupersetOf({folder / "kwqselect/resources",
                                                folder.parent_path() / "lib/kwqselect/resources"}));
    EXPECT_EQ(folders.front(), folder / "kwqselect/resources");
    EXPECT_TRUE(folders.back().is_absolute());
    EXPECT_TRUE(folders.back().string().ends_with("kwqselect/resources"));
}

} // namespace
