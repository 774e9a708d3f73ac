#include <gtest/gtest.h>

#include <editor/command_line.h>

#include <runtime/status.h>

#include <clocale>
#include <string>

namespace {

class CommandLine : public testing::Test
{
  protected:
    CommandLine()
    {
        m_before = kdutSetPrintSink([this](std::wstring_view text) { printed += text; });
    }
    ~CommandLine() override { kdutSetPrintSink(m_before); }

    std::wstring printed;

  private:
    KdutPrintSink m_before;
};

TEST_F(CommandLine, HandsTheFilledInTextToTheSink)
{
    EXPECT_EQ(kdutPrintf(L"\n%d item(s) selected.", 5), RTNORM);
    EXPECT_EQ(printed, L"\n5 item(s) selected.");
}

TEST_F(CommandLine, TakesWideTexts)
{
    EXPECT_EQ(kdutPrintf(L"%ls: %c", L"Fl\u00e4che \u5e73", L'x'), RTNORM);
    EXPECT_EQ(printed, L"Fl\u00e4che \u5e73: x");
}

TEST_F(CommandLine, PrintsLongTextsWhole)
{
    const std::wstring longText(100000, L'x');
    EXPECT_EQ(kdutPrintf(L"%ls.", longText.c_str()), RTNORM);
    EXPECT_EQ(printed, longText + L".");
}

TEST_F(CommandLine, RefusesATextPastTheLimit)
{
    EXPECT_EQ(kdutPrintf(L"%*d", 2000000, 1), RTERROR);
    EXPECT_EQ(printed, L"");
}

TEST_F(CommandLine, RefusesANullFormat)
{
    EXPECT_EQ(kdutPrintf(nullptr), RTERROR);
    EXPECT_EQ(printed, L"");
}

TEST_F(CommandLine, PrintsAnEmptyText)
{
    EXPECT_EQ(kdutPrintf(L"%ls", L""), RTNORM);
    EXPECT_EQ(printed, L"");
}

TEST_F(CommandLine, PrintsADotWhateverTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"})
        if (std::setlocale(LC_ALL, name))
            break;
    kdutPrintf(L"%.1f", 2.5);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(printed, L"2.5");
}

TEST_F(CommandLine, LetsASinkReplaceItself)
{
    std::wstring later;
    kdutSetPrintSink([&](std::wstring_view) {
        kdutSetPrintSink([&](std::wstring_view text) { later += text; });
    });
    kdutPrintf(L"one");
    kdutPrintf(L"two");
    EXPECT_EQ(later, L"two");
}

TEST(CommandLineDefault, WritesWholeLinesToStandardError)
{
    const KdutPrintSink before = kdutSetPrintSink({});
    testing::internal::CaptureStderr();
    kdutPrintf(L"\n%d \u00e4", 3);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "3 \xC3\xA4\n");
    kdutSetPrintSink(before);
}

} // namespace
