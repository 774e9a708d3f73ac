#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "file_bytes.h"
#include "line_splitter.h"

namespace {

using dxf::FileBytes;
using dxf::LineSplitter;
using Lines = std::vector<std::string>;

Lines split(const std::string& text, std::size_t begin = 0)
{
    const FileBytes bytes = FileBytes::copyOf(text);
    LineSplitter splitter(bytes.data(), begin, bytes.size());
    Lines lines;
    std::string_view line;
    while (splitter.next(line))
        lines.emplace_back(line);
    return lines;
}

struct LineCase
{
    const char* name;
    std::string text;
    Lines lines;
};

class LineSplitterOn : public testing::TestWithParam<LineCase>
{
};

TEST_P(LineSplitterOn, FindsTheLines)
{
    EXPECT_EQ(split(GetParam().text), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LineSplitterOn,
    testing::Values(LineCase{"nothing", "", {}}, LineCase{"oneLineWithoutEnd", "abc", {"abc"}},
                    LineCase{"lineFeeds", "a\nb\n", {"a", "b"}},
                    LineCase{"carriageReturnsAndFeeds", "a\r\nb\r\n", {"a", "b"}},
                    LineCase{"carriageReturns", "a\rb\r", {"a", "b"}},
                    LineCase{"mixedEnds", "a\rb\nc\r\nd", {"a", "b", "c", "d"}},
                    LineCase{"emptyLines", "\n\n\r\n\r", {"", "", "", ""}}),
    [](const auto& row) { return row.param.name; });

TEST(LineSplitter, FindsLineEndsAtEveryPlaceOfABlock)
{
    for (std::size_t length = 0; length < 200; ++length) {
        const std::string longLine(length, 'x');
        for (const char* end : {"\n", "\r\n", "\r"})
            EXPECT_EQ(split(longLine + end + "y" + end + longLine + "z"),
                      (Lines{longLine, "y", longLine + "z"}))
                << length;
    }
}

TEST(LineSplitter, BeginsInTheMiddleOfAText)
{
    EXPECT_EQ(split("first\nsecond\nthird", 6), (Lines{"second", "third"}));
}

TEST(LineSplitter, TellsWhereTheNextLineBegins)
{
    const FileBytes bytes = FileBytes::copyOf("ab\r\nc\n");
    LineSplitter splitter(bytes.data(), 0, bytes.size());
    std::string_view line;
    ASSERT_TRUE(splitter.next(line));
    EXPECT_EQ(splitter.offset(), 4u);
    ASSERT_TRUE(splitter.next(line));
    EXPECT_EQ(splitter.offset(), 6u);
}

} // namespace
