#include "support.h"

#include <cmath>
#include <limits>
#include <string>

#include <entities/fcf.h>
#include <entities/mtext.h>
#include <entities/text.h>
#include <support/processor_watch.h>

namespace {

using namespace text_test;
using testing::IsEmpty;

constexpr double kInfinite = std::numeric_limits<double>::infinity();
const double kNoNumber = std::nan("");

bool isFinite(const Scene& scene)
{
    for (const SceneShape& shape : scene.shapes) {
        const SceneBox& box = shape.box;
        if (!std::isfinite(box.left + box.right + box.bottom + box.top))
            return false;
    }
    return true;
}

class HostileNumber : public testing::TestWithParam<double>
{
};
INSTANTIATE_TEST_SUITE_P(All, HostileNumber,
                         testing::Values(0.0, -1.0, 1e-300, 1e300, kInfinite, -kInfinite,
                                         kNoNumber));

TEST_P(HostileNumber, LeavesNoPlaceWithoutNumberInATextOfOneLine)
{
    Paper paper;
    for (double TextMembers::*member : {&TextMembers::height, &TextMembers::widthFactor,
                                        &TextMembers::oblique, &TextMembers::rotation}) {
        for (int mode = 0; mode < 8; ++mode) {
            KdDbText text;
            text.edit().text = L"a%%ub";
            text.edit().height = 1.0;
            text.edit().alignmentPoint = {5, 5, 5};
            text.edit().horizontalMode = static_cast<KdDb::TextHorizontalMode>(mode);
            text.edit().*member = GetParam();
            writeText(text, paper.writer);
            text.edit().position = {GetParam(), GetParam(), 0};
            writeText(text, paper.writer);
        }
    }
    EXPECT_TRUE(isFinite(paper.scene));
}

TEST_P(HostileNumber, LeavesNoPlaceWithoutNumberInATextOfSeveralLines)
{
    Paper paper;
    for (double MTextData::*member :
         {&MTextData::textHeight, &MTextData::width, &MTextData::height,
          &MTextData::lineSpacingFactor, &MTextData::fillFactor, &MTextData::actualHeight}) {
        for (const auto type : {KdDb::kNoColumns, KdDb::kStaticColumns, KdDb::kDynamicColumns}) {
            KdDbMText text;
            text.edit().contents = L"a b\\P{\\H2x;c}\\S1/2;\td\\Ne";
            text.edit().textHeight = 1.0;
            text.edit().fill = true;
            text.edit().frame = true;
            text.edit().columns = {type, 3, 5.0, 1.0, {2.0}};
            text.edit().*member = GetParam();
            writeMText(text, paper.writer);
            text.edit().columns = {type, -3, GetParam(), GetParam(), {GetParam()}};
            writeMText(text, paper.writer);
            text.edit().location = {GetParam(), 0, 0};
            text.edit().direction = {GetParam(), 0, 0};
            writeMText(text, paper.writer);
        }
    }
    EXPECT_TRUE(isFinite(paper.scene));
}

TEST(HostileText, ShowsNothingWhereThereIsNothing)
{
    Paper paper;
    KdDbText text;
    text.edit().height = 1.0;
    writeText(text, paper.writer);
    text.edit().text = L"%%u%%u";
    writeText(text, paper.writer);
    text.edit().text = L"no height";
    text.edit().height = 0.0;
    writeText(text, paper.writer);
    KdDbMText lines;
    writeMText(lines, paper.writer);
    lines.edit().contents = L"no height";
    writeMText(lines, paper.writer);
    KdDbFcf tolerance;
    writeFcf(tolerance, paper.writer);
    EXPECT_THAT(paper.scene.shapes, IsEmpty());
}

/// Texts that are long and strange; each must be through within a second or so.
class HugeText : public testing::TestWithParam<std::pair<const char*, const wchar_t*>>
{
};
INSTANTIATE_TEST_SUITE_P(
    All, HugeText,
    testing::Values(std::pair("words", L"some words "), std::pair("oneWord", L"x"),
                    std::pair("blanks", L"     "), std::pair("opened", L"{\\C1;"),
                    std::pair("closed", L"}x"), std::pair("codesWithoutEnd", L"\\H"),
                    std::pair("stacksWithoutEnd", L"\\S\\;"), std::pair("stacks", L"\\S1/2;"),
                    std::pair("tabs", L"\t"), std::pair("stops", L"\\pt1,2,c3,r4;\tx"),
                    std::pair("columns", L"a\\N"), std::pair("paragraphs", L"\\P"),
                    std::pair("percents", L"%%"), std::pair("heights", L"{\\H2x;a"),
                    std::pair("looks", L"{\\fDejaVu Serif|b1;a}b")),
    [](const auto& row) { return row.param.first; });

TEST_P(HugeText, TakesNoTimeBeyondItsLength)
{
    constexpr std::size_t kLength = 200000;
    std::wstring contents;
    while (contents.size() < kLength)
        contents += GetParam().second;
    KdDbMText text;
    text.edit().contents = KdString(std::wstring_view(contents));
    text.edit().textHeight = 1.0;
    text.edit().width = 40.0;
    text.edit().actualHeight = 1.0; // so that it is set more than once
    Paper paper;
    const ProcessorWatch watch;
    writeMText(text, paper.writer);
    EXPECT_LT(watch.seconds(), 30.0); // a second without optimisation; quadratic, minutes
    EXPECT_TRUE(isFinite(paper.scene));
}

TEST(HostileText, LeavesOutControlCharacters)
{
    KdDbText text;
    text.edit().height = 1.0;
    text.edit().text = L"a\x01\tb%%000c";
    Paper paper;
    writeText(text, paper.writer);
    EXPECT_EQ(paper.letters(), "abc");
}

} // namespace
