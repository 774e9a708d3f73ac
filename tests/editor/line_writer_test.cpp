#include <gtest/gtest.h>

#include "line_writer.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

/// What a writer that prints these texts and goes leaves in its stream.
std::string printed(const std::vector<std::wstring>& texts)
{
    char* bytes = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&bytes, &size);
    {
        LineWriter writer(stream);
        for (const std::wstring& text : texts)
            writer.print(text);
    }
    std::fclose(stream);
    const std::string result(bytes, size);
    std::free(bytes);
    return result;
}

TEST(LineWriter, WritesTheLineFeedInFrontBehindTheText)
{
    EXPECT_EQ(printed({L"\n5 item(s) selected."}), "5 item(s) selected.\n");
}

TEST(LineWriter, GivesEachSuchTextALine)
{
    EXPECT_EQ(printed({L"\none", L"\ntwo"}), "one\ntwo\n");
}

TEST(LineWriter, AddsNoSecondLineFeedAtTheEnd)
{
    EXPECT_EQ(printed({L"\none\n", L"\ntwo"}), "one\ntwo\n");
}

TEST(LineWriter, KeepsLineFeedsInside)
{
    EXPECT_EQ(printed({L"\none\ntwo"}), "one\ntwo\n");
}

TEST(LineWriter, GoesOnInTheSameLineWithoutALineFeed)
{
    EXPECT_EQ(printed({L"one, ", L"two\n"}), "one, two\n");
}

TEST(LineWriter, EndsAnOpenLineBeforeATextThatWantsItsOwn)
{
    EXPECT_EQ(printed({L"half", L"\nwhole"}), "half\nwhole\n");
}

TEST(LineWriter, EndsAnOpenLineWhenItGoes)
{
    EXPECT_EQ(printed({L"half"}), "half\n");
}

TEST(LineWriter, PrintsALoneLineFeedAsAnEmptyLine)
{
    EXPECT_EQ(printed({L"\none", L"\n", L"\ntwo"}), "one\n\ntwo\n");
}

TEST(LineWriter, WritesNothingForAnEmptyText)
{
    EXPECT_EQ(printed({L""}), "");
}

TEST(LineWriter, WritesUtf8)
{
    EXPECT_EQ(printed({L"\n\u00e4\u5e73\U0001F4D0"}), "\xC3\xA4\xE5\xB9\xB3\xF0\x9F\x93\x90\n");
}

} // namespace
