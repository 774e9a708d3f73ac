#include "environment.h"

#include <platform/config.h>
#include <support/messages.h>

#include <gtest/gtest.h>

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class Config : public testing::Test
{
  protected:
    Config() : m_folder(makeFolder()), m_home("XDG_CONFIG_HOME", m_folder.c_str()) {}
    ~Config() override { fs::remove_all(m_folder); }

    static std::string makeFolder()
    {
        std::string pattern = (fs::temp_directory_path() / "kwconfig-XXXXXX").string();
        return mkdtemp(pattern.data());
    }
    static bool write(const wchar_t* key, const KdadVariant& value)
    {
        return kdadConfig().setValue(KwdrawConfig::kUserInterface, key, value);
    }
    static KdadVariant read(const wchar_t* key)
    {
        KdadVariant value = KdadVariant::ofInteger(99);
        kdadConfig().getValue(KwdrawConfig::kUserInterface, key, value);
        return value;
    }
    /// Reads with an object of its own, as another program does.
    static int readElsewhere(const wchar_t* key)
    {
        KdadVariant value;
        KwdrawConfig().getValue(KwdrawConfig::kUserInterface, key, value);
        return value.integerOr(-1);
    }

    std::string m_folder;
    EnvironmentVariable m_home;
    Messages m_messages;
};

TEST(Variant, HoldsAnInteger)
{
    const KdadVariant value = KdadVariant::ofInteger(-5);
    EXPECT_EQ(value.type(), 1);
    EXPECT_EQ(value.length(), 4);
    EXPECT_EQ(value.integerOr(0), -5);
    EXPECT_STREQ(value.text(), L"");
}

TEST(Variant, HoldsATextWithItsTerminator)
{
    const KdadVariant value = KdadVariant::ofText(L"Line");
    EXPECT_EQ(value.type(), 5);
    EXPECT_EQ(value.length(), 4 * 5);
    EXPECT_STREQ(value.text(), L"Line");
    EXPECT_EQ(value.integerOr(7), 7);
    EXPECT_EQ(KdadVariant::ofText(L"").length(), 4);
}

TEST(Variant, MakesRoomOfTheSizeThatItsTypeHas)
{
    KdadVariant value;
    EXPECT_EQ(value.type(), KdadVariant::kEmpty);
    EXPECT_EQ(value.data(), nullptr);
    EXPECT_TRUE(value.allocateValue(KdadVariant::kText, 12));
    EXPECT_STREQ(value.text(), L"");
    EXPECT_TRUE(value.allocateValue(KdadVariant::kInteger, 4));
    EXPECT_EQ(value.integerOr(9), 0);
    for (const auto& [type, bytes] : {std::pair{KdadVariant::kInteger, 8},
                                      {KdadVariant::kText, 0},
                                      {KdadVariant::kText, 6},
                                      {KdadVariant::kEmpty, 4}}) {
        EXPECT_FALSE(value.allocateValue(type, bytes));
        EXPECT_EQ(value.type(), KdadVariant::kEmpty);
        EXPECT_EQ(value.length(), 0);
    }
}

TEST(Variant, IsCopiedWithItsBytes)
{
    KdadVariant first = KdadVariant::ofText(L"abc");
    const KdadVariant copy = first;
    std::wmemcpy(static_cast<wchar_t*>(first.data()), L"x", 1);
    EXPECT_STREQ(copy.text(), L"abc");
    first = KdadVariant::ofInteger(3);
    EXPECT_EQ(first.integerOr(0), 3);
}

TEST(Variant, IsEmptyOnceItWasMoved)
{
    KdadVariant first = KdadVariant::ofText(L"abc");
    const KdadVariant second = std::move(first);
    EXPECT_STREQ(second.text(), L"abc");
    EXPECT_EQ(first.type(), KdadVariant::kEmpty);
    EXPECT_EQ(first.length(), 0);
    EXPECT_EQ(first.data(), nullptr);
}

TEST_F(Config, GivesBackWhatWasWritten)
{
    EXPECT_TRUE(write(L"A/Number", KdadVariant::ofInteger(-3)));
    EXPECT_TRUE(write(L"A/Text", KdadVariant::ofText(L"Gr\u00f6\u00dfe \"1\"\n")));
    EXPECT_EQ(read(L"A/Number").integerOr(0), -3);
    EXPECT_STREQ(read(L"A/Text").text(), L"Gr\u00f6\u00dfe \"1\"\n");
    EXPECT_EQ(readElsewhere(L"A/Number"), -3);
}

TEST_F(Config, EmptiesAValueThatIsNotThere)
{
    EXPECT_EQ(read(L"A/Missing").type(), KdadVariant::kEmpty);
}

TEST_F(Config, RefusesUnknownPathsAndEmptyValues)
{
    constexpr auto kOther = static_cast<KwdrawConfig::Path>(3);
    KdadVariant value;
    EXPECT_FALSE(kdadConfig().setValue(kOther, L"A", KdadVariant::ofInteger(1)));
    EXPECT_FALSE(kdadConfig().getValue(kOther, L"A", value));
    EXPECT_FALSE(write(L"A", KdadVariant()));
    EXPECT_FALSE(write(nullptr, KdadVariant::ofInteger(1)));
}

TEST_F(Config, SeesWhatAnotherProgramWrote)
{
    write(L"A", KdadVariant::ofInteger(1));
    KwdrawConfig().setValue(KwdrawConfig::kUserInterface, L"A", KdadVariant::ofInteger(2));
    EXPECT_EQ(read(L"A").integerOr(0), 2);
}

TEST_F(Config, BringsTheValuesOfAnUpdateTogether)
{
    {
        const KwdrawConfig::Update together(kdadConfig());
        EXPECT_TRUE(write(L"A", KdadVariant::ofInteger(1)));
        EXPECT_TRUE(write(L"B", KdadVariant::ofInteger(2)));
        EXPECT_EQ(readElsewhere(L"A"), -1);
        EXPECT_EQ(read(L"A").integerOr(0), 1);
    }
    EXPECT_EQ(readElsewhere(L"A"), 1);
    EXPECT_EQ(readElsewhere(L"B"), 2);
}

TEST_F(Config, KeepsAValueInMemoryWhereItCannotBeWritten)
{
    const fs::path file = fs::path(m_folder) / "file";
    std::ofstream(file) << "no folder";
    const EnvironmentVariable home("XDG_CONFIG_HOME", file.c_str());
    EXPECT_FALSE(write(L"A", KdadVariant::ofInteger(4)));
    EXPECT_EQ(read(L"A").integerOr(0), 4);
}

TEST_F(Config, TellsOnceThatItCannotBeWritten)
{
    const fs::path file = fs::path(m_folder) / "file";
    std::ofstream(file) << "no folder";
    const EnvironmentVariable home("XDG_CONFIG_HOME", file.c_str());
    write(L"A", KdadVariant::ofInteger(4));
    read(L"A");
    write(L"A", KdadVariant::ofInteger(5));
    ASSERT_EQ(m_messages.shown.size(), 1u);
    EXPECT_TRUE(m_messages.shown[0].starts_with(L"The settings could not be written.\n/"));
}

TEST_F(Config, TellsThatItsFileWasPutAsideAndBeginsAnew)
{
    const fs::path file = fs::path(m_folder) / "kwqselect" / "interface.settings";
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "no settings";
    EXPECT_EQ(read(L"A").type(), KdadVariant::kEmpty);
    EXPECT_TRUE(write(L"A", KdadVariant::ofInteger(4)));
    EXPECT_EQ(read(L"A").integerOr(0), 4);
    EXPECT_EQ(m_messages.shown.size(), 1u);
    EXPECT_TRUE(fs::exists(file.string() + ".bad"));
}

TEST_F(Config, LeavesNoFileWhereThereIsNoHome)
{
    const EnvironmentVariable noHome("HOME", nullptr);
    const EnvironmentVariable noSettings("XDG_CONFIG_HOME", nullptr);
    EXPECT_FALSE(write(L"A", KdadVariant::ofInteger(4)));
    EXPECT_EQ(read(L"A").integerOr(0), 4);
    EXPECT_FALSE(fs::exists("interface.settings"));
    EXPECT_EQ(m_messages.shown, std::vector<std::wstring>{L"The settings could not be written."});
}

TEST_F(Config, HoldsTheOldValuesOrTheNewOnesWhenAProgramIsKilled)
{
    const auto writeBoth = [](int value) {
        const KwdrawConfig::Update together(kdadConfig());
        write(L"A", KdadVariant::ofInteger(value));
        write(L"B", KdadVariant::ofInteger(value));
    };
    writeBoth(0);
    for (int round = 0; round < 20; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (int value = 1;; ++value)
                writeBoth(value);
        }
        usleep(static_cast<useconds_t>(1000 + 731 * round));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const int a = readElsewhere(L"A");
        EXPECT_GE(a, 0);
        EXPECT_EQ(a, readElsewhere(L"B"));
    }
}

} // namespace
