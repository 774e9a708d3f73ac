#include <platform/settings_file.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <set>
#include <string>
#include <thread>

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <platform/environment.h>

#include "support.h"

namespace {

using namespace environment_test;
using testing::ElementsAre;
namespace fs = std::filesystem;

class SettingsFiles : public testing::Test
{
  protected:
    SettingsFile loaded() const
    {
        SettingsFile settings(path);
        EXPECT_EQ(settings.load(), SettingsStatus::Good);
        return settings;
    }

    static std::set<std::string> namesIn(const fs::path& place)
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(place))
            names.insert(entry.path().filename());
        return names;
    }

    Folder folder;
    fs::path path = folder / "deep/er/settings.conf";
};

TEST_F(SettingsFiles, GiveBackWhatWasSavedInBothKinds)
{
    SettingsFile settings(path);
    ASSERT_EQ(settings.load(), SettingsStatus::Good) << "a file that is not there is empty";
    settings.set(L"A/Type", L"Line");
    settings.set(L"A/Row", -2147483647 - 1);
    settings.set(L"A/Empty", L"");
    ASSERT_EQ(settings.save(), SettingsStatus::Good);

    const SettingsFile other = loaded();
    EXPECT_EQ(other.getText(L"A/Type"), L"Line");
    EXPECT_EQ(other.getInteger(L"A/Row"), -2147483647 - 1);
    EXPECT_EQ(other.getText(L"A/Empty"), L"");
}

TEST_F(SettingsFiles, AnswerNothingForAMissingValueOrOneOfTheOtherKind)
{
    SettingsFile settings(path);
    settings.set(L"Text", L"3");
    settings.set(L"Number", 3);
    EXPECT_EQ(settings.getInteger(L"Text"), std::nullopt);
    EXPECT_EQ(settings.getText(L"Number"), std::nullopt);
    EXPECT_EQ(settings.getInteger(L"Missing"), std::nullopt);
    EXPECT_EQ(settings.get(L"Missing"), nullptr);
}

TEST_F(SettingsFiles, KeepEveryCharacterOfATextAndAName)
{
    const std::wstring all =
        std::wstring(L"\"\\ = # \n\r\t\x01\x7F\xD800") + L'\0' + L"\u00E4\u4E16\U0001F600 ";
    SettingsFile settings(path);
    settings.set(all, all);
    ASSERT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_EQ(loaded().getText(all), all);
}

TEST_F(SettingsFiles, AreTextForPeople)
{
    SettingsFile settings(path);
    settings.set(L"b/Row", 3);
    settings.set(L"a\\Type", L"say \"Line\"");
    settings.save();
    EXPECT_EQ(contentOf(path), "# Settings, form 1: one value a line. Remarks are not kept.\n"
                               "\"a\\\\Type\" = \"say \\\"Line\\\"\"\n"
                               "\"b/Row\" = 3\n");
}

TEST_F(SettingsFiles, ReadWhatAPersonWrote)
{
    path = folder / "by_hand";
    write(path, "\n  # mine\r\n  \"a\"=1# one\r\n\t\"b\" =  \"two\"  \r\n\"A\" = -5");
    const SettingsFile settings = loaded();
    EXPECT_EQ(settings.getInteger(L"a"), -5) << "the last line of a name counts";
    EXPECT_EQ(settings.getText(L"b"), L"two");
}

TEST_F(SettingsFiles, IgnoreTheCaseOfNamesAndKeepThatOfTheFirstWriting)
{
    SettingsFile settings(path);
    settings.set(L"Some/Name", 1);
    settings.set(L"SOME/NAME", 2);
    EXPECT_EQ(settings.getInteger(L"some/name"), 2);
    EXPECT_THAT(settings.names(), ElementsAre(L"Some/Name"));
}

TEST_F(SettingsFiles, ListTheNamesUnderAPrefixInOrder)
{
    SettingsFile settings(path);
    for (const wchar_t* name : {L"b", L"a/2", L"A/1", L"a", L"ab/3"})
        settings.set(name, 0);
    EXPECT_THAT(settings.names(), ElementsAre(L"a", L"A/1", L"a/2", L"ab/3", L"b"));
    EXPECT_THAT(settings.names(L"a/"), ElementsAre(L"A/1", L"a/2"));
    EXPECT_THAT(settings.names(L"c"), ElementsAre());
}

TEST_F(SettingsFiles, TakeValuesAndTreesOut)
{
    SettingsFile settings(path);
    for (const wchar_t* name : {L"a", L"t/1", L"T/2", L"u"})
        settings.set(name, 0);
    settings.save();
    EXPECT_TRUE(settings.remove(L"A"));
    EXPECT_FALSE(settings.remove(L"a"));
    settings.removeTree(L"t/");
    settings.set(L"t/3", 3);
    ASSERT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_THAT(loaded().names(), ElementsAre(L"t/3", L"u"));
}

TEST_F(SettingsFiles, BringTheirChangesIntoWhatOthersHaveSaved)
{
    SettingsFile first(path);
    first.set(L"mine", 1);
    first.set(L"t/old", 1);
    ASSERT_EQ(first.save(), SettingsStatus::Good);
    SettingsFile second = loaded();
    second.set(L"theirs", 2);
    second.set(L"mine", 3);
    second.set(L"t/new", 1);
    ASSERT_EQ(second.save(), SettingsStatus::Good);

    first.set(L"more", 4);
    first.removeTree(L"t/");
    ASSERT_EQ(first.save(), SettingsStatus::Good);
    EXPECT_EQ(first.getInteger(L"theirs"), 2);
    EXPECT_EQ(first.getInteger(L"mine"), 3) << "saved before, so no change of this object";
    EXPECT_THAT(loaded().names(), ElementsAre(L"mine", L"more", L"theirs"));
}

TEST_F(SettingsFiles, KeepUnsavedChangesOnTopWhenTheyLoad)
{
    SettingsFile first(path);
    first.set(L"a", 1);
    first.set(L"b", 1);
    first.save();
    SettingsFile second = loaded();
    second.set(L"a", 2);
    second.remove(L"b");
    ASSERT_EQ(second.load(), SettingsStatus::Good);
    EXPECT_EQ(second.getInteger(L"a"), 2);
    EXPECT_EQ(second.get(L"b"), nullptr);
    EXPECT_TRUE(second.hasChanges());
}

TEST_F(SettingsFiles, WriteNothingWithoutAChange)
{
    SettingsFile settings(path);
    EXPECT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_FALSE(fs::exists(path));
}

struct BrokenRow
{
    const char* name;
    const char* content;
};

class BrokenSettings : public testing::TestWithParam<BrokenRow>
{
};

TEST_P(BrokenSettings, AreToldPutAsideAndEmpty)
{
    const Folder folder;
    const fs::path path = folder / "settings";
    write(path, std::string("\"good\" = 1\n") + GetParam().content);
    SettingsFile settings(path);
    EXPECT_EQ(settings.load(), SettingsStatus::Broken);
    EXPECT_THAT(settings.names(), ElementsAre());
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(contentOf(folder / "settings.bad"),
              std::string("\"good\" = 1\n") + GetParam().content);
    settings.set(L"new", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_EQ(settings.load(), SettingsStatus::Good);
}

const BrokenRow kBrokenRows[] = {
    {"noQuotes", "name = 1\n"},
    {"nameNotClosed", "\"name = 1\n"},
    {"noEqualSign", "\"name\" 1\n"},
    {"noValue", "\"name\" =\n"},
    {"wordAsValue", "\"name\" = yes\n"},
    {"textNotClosed", "\"name\" = \"tex\n"},
    {"somethingBehind", "\"name\" = \"text\" more\n"},
    {"numberTooLarge", "\"name\" = 2147483648\n"},
    {"fraction", "\"name\" = 1.5\n"},
    {"unknownEscape", "\"name\" = \"\\q\"\n"},
    {"escapeAtTheEnd", "\"name\" = \"\\"},
    {"codeWithoutBraces", "\"name\" = \"\\u41\"\n"},
    {"codeNotClosed", "\"name\" = \"\\u{41\"\n"},
    {"codeTooLarge", "\"name\" = \"\\u{110000}\"\n"},
    {"emptyCode", "\"name\" = \"\\u{}\"\n"},
    {"bytes", "\x7F"
              "ELF\x02\x01"},
};
INSTANTIATE_TEST_SUITE_P(Rows, BrokenSettings, testing::ValuesIn(kBrokenRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(SettingsFiles, SaveWhatTheyHeldWhenTheFileBrokeMeanwhile)
{
    SettingsFile settings(path);
    settings.set(L"held", 1);
    settings.save();
    write(path, "nonsense");
    settings.set(L"more", 2);
    EXPECT_EQ(settings.save(), SettingsStatus::Broken);
    EXPECT_THAT(loaded().names(), ElementsAre(L"held", L"more"));
    EXPECT_EQ(contentOf(path.string() + ".bad"), "nonsense");
}

TEST_F(SettingsFiles, TellWhenTheyCanNotBeReadAndKeepWhatTheyHeld)
{
    SettingsFile settings(path);
    settings.set(L"held", 1);
    settings.save();
    fs::remove(path);
    fs::create_directory(path);
    EXPECT_EQ(settings.load(), SettingsStatus::Unreadable);
    EXPECT_EQ(settings.getInteger(L"held"), 1);
    settings.set(L"held", 2);
    EXPECT_EQ(settings.save(), SettingsStatus::Unreadable);
    EXPECT_TRUE(fs::is_directory(path)) << "it stays as it is";
}

TEST_F(SettingsFiles, OfALaterFormStayAsTheyAre)
{
    path = folder / "by_hand";
    const std::string later = "# Settings, form 2: ...\n\"a\" = [1.5]\n";
    write(path, later);
    SettingsFile settings(path);
    EXPECT_EQ(settings.load(), SettingsStatus::Later);
    settings.set(L"b", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Later);
    EXPECT_EQ(settings.getInteger(L"b"), 1) << "as long as the program runs";
    EXPECT_EQ(contentOf(path), later);
}

TEST_F(SettingsFiles, OfTheirOwnFormOrOfNoneAreRead)
{
    path = folder / "by_hand";
    for (const char* head : {"# Settings, form 1\n", "# Settings: one value a line\n", ""}) {
        write(path, std::string(head) + "\"a\" = 7\n");
        EXPECT_EQ(loaded().getInteger(L"a"), 7) << head;
    }
}

TEST_F(SettingsFiles, TellWhenTheyCanNotBeWrittenAndKeepTheChanges)
{
    write(folder / "deep", "a file where the folder should be");
    SettingsFile settings(path);
    EXPECT_EQ(settings.load(), SettingsStatus::Good);
    settings.set(L"a", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Unwritable);
    EXPECT_TRUE(settings.hasChanges());
    fs::remove(folder / "deep");
    EXPECT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_EQ(loaded().getInteger(L"a"), 1);
}

TEST_F(SettingsFiles, StayAsTheyWereWhenTheDiskIsFull)
{
    SettingsFile settings(path);
    settings.set(L"a", 1);
    ASSERT_EQ(settings.save(), SettingsStatus::Good);
    const std::string before = contentOf(path);
    const pid_t other = inOtherProcess([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit room{10, 10};
        setrlimit(RLIMIT_FSIZE, &room);
        settings.set(L"b", 2);
        return settings.save() == SettingsStatus::Unwritable && settings.hasChanges() ? 0 : 1;
    });
    EXPECT_EQ(endOf(other), 0);
    EXPECT_EQ(contentOf(path), before);
    EXPECT_THAT(namesIn(path.parent_path()), ElementsAre("settings.conf", "settings.conf.lock"));
}

TEST_F(SettingsFiles, ThatAreBrokenStayWhereTheyCanNotBePutAside)
{
    path = folder / "settings";
    write(path, "nonsense");
    fs::create_directories(folder / "settings.bad/full");
    SettingsFile settings(path);
    EXPECT_EQ(settings.load(), SettingsStatus::Unwritable);
    settings.set(L"a", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Unwritable);
    EXPECT_TRUE(settings.hasChanges());
    EXPECT_EQ(contentOf(path), "nonsense");
}

TEST_F(SettingsFiles, AreNotWrittenWithoutTheirLock)
{
    path = folder / "settings";
    fs::create_directory(folder / "settings.lock");
    SettingsFile settings(path);
    settings.set(L"a", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Unwritable);
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(SettingsFiles, TellAtLastThatAnotherWriterDoesNotComeToAnEnd)
{
    path = folder / "settings";
    const int lock = open((folder / "settings.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    SettingsFile settings(path);
    settings.set(L"a", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Busy);
    EXPECT_FALSE(fs::exists(path));
    close(lock);
    EXPECT_EQ(settings.save(), SettingsStatus::Good) << "the change was kept";
}

TEST_F(SettingsFiles, ReplaceTheFileBehindALinkAndNotTheLink)
{
    write(folder / "real", "");
    fs::create_symlink(folder / "real", folder / "link");
    SettingsFile settings(folder / "link");
    settings.set(L"a", 1);
    ASSERT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_NE(contentOf(folder / "real"), "");
}

TEST_F(SettingsFiles, AreTheUsersOwn)
{
    SettingsFile settings(path);
    settings.set(L"a", 1);
    settings.save();
    struct stat found = {};
    ASSERT_EQ(stat(path.c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777u, 0600u);
}

TEST_F(SettingsFiles, TakeNoNoticeOfWhatADyingWriterLeft)
{
    path = folder / "settings";
    write(path, "\"a\" = 1\n");
    write(folder / "settings.new", "\"a\" = 2\n\"b");
    write(folder / "settings.lock", "");
    SettingsFile settings = loaded();
    EXPECT_EQ(settings.getInteger(L"a"), 1);
    settings.set(L"c", 3);
    ASSERT_EQ(settings.save(), SettingsStatus::Good);
    EXPECT_THAT(loaded().names(), ElementsAre(L"a", L"c"));
}

TEST_F(SettingsFiles, WaitForAnotherWriter)
{
    path = folder / "settings";
    const int lock = open((folder / "settings.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    bool released = false;
    std::thread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        released = true;
        close(lock);
    });
    SettingsFile settings(path);
    settings.set(L"a", 1);
    EXPECT_EQ(settings.save(), SettingsStatus::Good);
    other.join();
    EXPECT_TRUE(released);
}

/// Counts `name` up in the file, with a text beside it that makes the file large enough to be
/// caught half written. Calls `saved` after each save.
int countUp(
    const fs::path& path, const wchar_t* name, int times,
    const std::function<void()>& saved = [] {})
{
    SettingsFile settings(path);
    for (int i = 1; i <= times; ++i) {
        settings.set(name, i);
        settings.set(std::wstring(name) + L"/echo", std::to_wstring(i) + std::wstring(20000, L'.'));
        if (settings.save() != SettingsStatus::Good)
            return 1;
        saved();
    }
    return 0;
}

/// Number and text under `name` were written by one save.
void expectWhole(const SettingsFile& settings, const wchar_t* name)
{
    const auto number = settings.getInteger(name);
    const auto echo = settings.getText(std::wstring(name) + L"/echo");
    ASSERT_EQ(number.has_value(), echo.has_value());
    if (number) {
        EXPECT_EQ(*echo, std::to_wstring(*number) + std::wstring(20000, L'.'));
    }
}

TEST_F(SettingsFiles, LoseNothingWhenTwoProcessesWriteAtOnce)
{
    constexpr int kTimes = 100;
    const pid_t first = inOtherProcess([&] { return countUp(path, L"first", kTimes); });
    const pid_t second = inOtherProcess([&] { return countUp(path, L"second", kTimes); });
    for (int i = 0; i < 200; ++i) {
        const SettingsFile seen = loaded();
        expectWhole(seen, L"first");
        expectWhole(seen, L"second");
    }
    EXPECT_EQ(endOf(first), 0);
    EXPECT_EQ(endOf(second), 0);
    const SettingsFile settings = loaded();
    EXPECT_EQ(settings.getInteger(L"first"), kTimes);
    EXPECT_EQ(settings.getInteger(L"second"), kTimes);
}

TEST_F(SettingsFiles, AreWholeAfterAWriterWasKilled)
{
    SettingsFile before(path);
    before.set(L"kept", 1);
    ASSERT_EQ(before.save(), SettingsStatus::Good);
    int saves[2] = {};
    ASSERT_EQ(pipe(saves), 0);
    const auto tell = [&] { EXPECT_EQ(::write(saves[1], "s", 1), 1); };
    for (int i = 0; i < 100; ++i) {
        const pid_t writer = inOtherProcess([&] { return countUp(path, L"count", 1 << 30, tell); });
        char save = 0;
        ASSERT_EQ(::read(saves[0], &save, 1), 1) << "the writer is at work";
        std::this_thread::sleep_for(std::chrono::microseconds(i * 97 % 8000));
        kill(writer, SIGKILL);
        EXPECT_EQ(endOf(writer), -1);
        const SettingsFile after = loaded();
        EXPECT_EQ(after.getInteger(L"kept"), 1);
        expectWhole(after, L"count");
    }
    close(saves[0]);
    close(saves[1]);
    EXPECT_NE(loaded().getInteger(L"count"), std::nullopt);
    before.set(L"last", 1);
    EXPECT_EQ(before.save(), SettingsStatus::Good) << "no lock stays behind";
}

struct FolderRow
{
    const char* name;
    const char* config;
    const char* home;
    const char* expected;
};

class SettingsFolder : public testing::TestWithParam<FolderRow>
{
};

TEST_P(SettingsFolder, FollowsTheEnvironment)
{
    const EnvironmentVariable config("XDG_CONFIG_HOME", GetParam().config);
    const EnvironmentVariable home("HOME", GetParam().home);
    EXPECT_EQ(SettingsFile::standardFolder(), GetParam().expected);
}

const FolderRow kFolderRows[] = {
    {"configurationFolder", "/c", "/h", "/c/kwqselect"},
    {"home", nullptr, "/h", "/h/.config/kwqselect"},
    {"emptyVariable", "", "/h", "/h/.config/kwqselect"},
    {"relativeFolder", "c", "/h", "/h/.config/kwqselect"},
    {"homeless", nullptr, nullptr, ""},
};
INSTANTIATE_TEST_SUITE_P(Rows, SettingsFolder, testing::ValuesIn(kFolderRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SettingsStatusText, IsASentenceForEachStatus)
{
    std::set<std::wstring> texts;
    for (const SettingsStatus status :
         {SettingsStatus::Good, SettingsStatus::Broken, SettingsStatus::Unreadable,
          SettingsStatus::Unwritable, SettingsStatus::Later, SettingsStatus::Busy}) {
        const std::wstring text = settingsStatusText(status);
        EXPECT_EQ(text.back(), L'.');
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), 6u);
}

} // namespace
