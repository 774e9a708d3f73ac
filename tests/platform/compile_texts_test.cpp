#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// A folder for one test, with the file to compile in it.
class CompileTexts : public testing::Test
{
  protected:
    CompileTexts()
    {
        std::string pattern = (fs::temp_directory_path() / "kwtexts-XXXXXX").string();
        m_folder = mkdtemp(pattern.data());
    }
    ~CompileTexts() override { fs::remove_all(m_folder); }

    fs::path source() const { return m_folder / "out.cpp"; }

    /// Runs the script over `content` and keeps what it says.
    int compile(const std::string& content)
    {
        std::ofstream(m_folder / "texts.po", std::ios::binary) << content;
        return run((m_folder / "texts.po").string() + " " + source().string());
    }

    int run(const std::string& arguments)
    {
        const std::string command =
            "cd " + m_folder.string() +
            " && " KW_PYTHON " " KW_SOURCE_DIR "/resources/compile_texts.py " + arguments + " 2>&1";
        FILE* pipe = popen(command.c_str(), "r");
        m_said.clear();
        char buffer[512];
        while (std::fgets(buffer, sizeof(buffer), pipe))
            m_said += buffer;
        const int status = pclose(pipe);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path m_folder;
    std::string m_said;
};

struct FaultRow
{
    const char* name;
    const char* content;
    const char* place;
    const char* message;
};

class FaultyTexts : public CompileTexts, public testing::WithParamInterface<FaultRow>
{
};

TEST_P(FaultyTexts, AreReportedInOneLineWithTheirPlace)
{
    EXPECT_EQ(compile(GetParam().content), 1);
    EXPECT_EQ(m_said, (m_folder / "texts.po").string() + ":" + GetParam().place + ": " +
                          GetParam().message + "\n");
    EXPECT_FALSE(fs::exists(source()));
}

const FaultRow kFaults[] = {
    {"openQuote", "msgctxt \"1\"\nmsgid \"a\nmsgstr \"a\"\n", "2", "the quoted text is not closed"},
    {"quoteInside", "msgctxt \"1\"\nmsgid \"a\"b\"\nmsgstr \"a\"\n", "2",
     "a quote or a backslash inside the text lacks its backslash"},
    {"closingQuoteEscaped", "msgctxt \"1\"\nmsgid \"a\\\"\nmsgstr \"a\"\n", "2",
     "a quote or a backslash inside the text lacks its backslash"},
    {"unknownEscape", "msgctxt \"1\"\nmsgid \"a\"\nmsgstr \"\\q\"\n", "3", "unknown escape \\q"},
    {"numberMissing", "\nmsgid \"a\"\nmsgstr \"a\"\n", "2",
     "the message has no msgctxt with its number"},
    {"noNumber", "msgctxt \"one\"\nmsgid \"a\"\nmsgstr \"a\"\n", "1",
     "\"one\" is no number from 1 to 2147483647"},
    {"numberZero", "msgctxt \"0\"\nmsgid \"a\"\nmsgstr \"a\"\n", "1",
     "\"0\" is no number from 1 to 2147483647"},
    {"numberTooGreat", "msgctxt \"2147483648\"\nmsgid \"a\"\nmsgstr \"a\"\n", "1",
     "\"2147483648\" is no number from 1 to 2147483647"},
    {"numberTwice",
     "msgctxt \"7\"\nmsgid \"a\"\nmsgstr \"\"\n\nmsgctxt \"7\"\nmsgid \"b\"\nmsgstr \"\"\n", "5",
     "7 stands in line 1 already"},
    {"keywordTwice", "msgctxt \"7\"\nmsgid \"a\"\nmsgid \"b\"\n", "3",
     "msgid stands twice in one message"},
    {"translationMissing", "msgctxt \"7\"\nmsgid \"a\"\n", "1", "the message has no msgstr"},
    {"defaultMissing", "msgctxt \"7\"\nmsgstr \"a\"\n", "1", "the message has no msgid"},
    {"defaultEmpty", "msgctxt \"7\"\nmsgid \"\"\nmsgstr \"a\"\n", "1", "7 has no English default"},
    {"textAlone", "\"a\"\n", "1", "a text without msgctxt, msgid or msgstr before it"},
    {"somethingElse", "msgctxt \"7\"\nmessage \"a\"\n", "2",
     "neither a message nor a comment: message \"a\""},
    {"otherCodePage",
     "msgctxt \"7\"\nmsgid \"Gr\xF6\xDF"
     "e\"\nmsgstr \"\"\n",
     "2", "the text is not UTF-8"},
    {"headerAlone", "msgid \"\"\nmsgstr \"\"", "2", "the file holds no text"},
};
INSTANTIATE_TEST_SUITE_P(Faults, FaultyTexts, testing::ValuesIn(kFaults),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(CompileTexts, SaysWhichFileIsMissing)
{
    EXPECT_EQ(run("missing.po out.cpp"), 1);
    EXPECT_EQ(m_said, "missing.po: No such file or directory\n");
}

TEST_F(CompileTexts, SaysHowItIsCalled)
{
    EXPECT_EQ(run("texts.po"), 2);
    EXPECT_NE(m_said.find("usage: compile_texts.py"), std::string::npos);
}

TEST_F(CompileTexts, WritesTheSameSourceForTheSameTexts)
{
    const std::string content = "msgctxt \"7\"\nmsgid \"a\"\nmsgstr \"b\"\n";
    ASSERT_EQ(compile(content), 0) << m_said;
    std::ifstream first(source());
    const std::string before(std::istreambuf_iterator<char>(first), {});
    EXPECT_NE(before.find("L\"b\""), std::string::npos);
    ASSERT_EQ(compile(content), 0);
    std::ifstream second(source());
    EXPECT_EQ(before, std::string(std::istreambuf_iterator<char>(second), {}));
}

TEST_F(CompileTexts, SaysWhatIsWrongWithALayout)
{
    std::ofstream(m_folder / "texts.po") << "msgctxt \"1\"\nmsgid \"a\"\nmsgstr \"\"\n";
    std::ofstream(m_folder / "broken.ui") << "<ui>";
    std::ofstream(m_folder / "strange.ui") << "<ui><string comment=\"2\">b</string></ui>";
    EXPECT_EQ(run("texts.po out.cpp g/n=broken.ui"), 1);
    EXPECT_EQ(m_said.find("broken.ui: no element found"), 0u) << m_said;
    EXPECT_EQ(run("texts.po out.cpp g/n=strange.ui"), 1);
    EXPECT_EQ(m_said, "strange.ui: there is no text of the number \"2\"\n");
    EXPECT_EQ(run("texts.po out.cpp strange.ui"), 2);
    EXPECT_FALSE(fs::exists(source()));
}

} // namespace
