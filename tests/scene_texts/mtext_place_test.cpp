#include "support.h"

#include <database/database.h>
#include <entities/mtext.h>

namespace {

using namespace text_test;
using testing::IsEmpty;
using testing::SizeIs;

/// "Hand" over "Hat", 2 high, about (10, 20). Lines are 10/3 apart.
class MTextPlace : public testing::Test
{
  protected:
    MTextPlace()
    {
        MTextMembers& members = text.edit();
        members.contents = L"Hand\\PHat";
        members.textHeight = 2.0;
        members.location = {10, 20, 0};
    }
    std::vector<Shown> shown()
    {
        writeMText(text, paper.writer);
        return paper.texts();
    }

    static constexpr double kLine = 10.0 / 3.0;
    const double wide = 2.0 * plainWidth("Hand");
    const double narrow = 2.0 * plainWidth("Hat");
    KdDbMText text;
    Paper paper;
};

struct AttachmentRow
{
    const char* name;
    int number;
    double columns; ///< what part of a line lies left of the point
    double rows;    ///< what part of the height lies above it
};

class MTextAttachments : public MTextPlace, public testing::WithParamInterface<AttachmentRow>
{
};
constexpr AttachmentRow kAttachments[] = {
    {"topLeft", 1, 0, 0},          {"topCenter", 2, 0.5, 0},      {"topRight", 3, 1, 0},
    {"middleLeft", 4, 0, 0.5},     {"middleCenter", 5, 0.5, 0.5}, {"middleRight", 6, 1, 0.5},
    {"bottomLeft", 7, 0, 1},       {"bottomCenter", 8, 0.5, 1},   {"bottomRight", 9, 1, 1},
    {"unknownIsTopLeft", 77, 0, 0}};
INSTANTIATE_TEST_SUITE_P(All, MTextAttachments, testing::ValuesIn(kAttachments),
                         [](const auto& row) { return row.param.name; });

TEST_P(MTextAttachments, PlaceTheLinesAboutTheLocation)
{
    const AttachmentRow& row = GetParam();
    text.edit().attachment = static_cast<KdDb::MTextAttachment>(row.number);
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(2));
    const double top = 20.0 + row.rows * (2.0 + kLine);
    EXPECT_THAT(all[0].start, IsAt(10.0 - row.columns * wide, top - 2.0));
    EXPECT_THAT(all[1].start, IsAt(10.0 - row.columns * narrow, top - 2.0 - kLine));
}

TEST_P(MTextAttachments, PlaceTheLinesInTheirColumn)
{
    const AttachmentRow& row = GetParam();
    text.edit().attachment = static_cast<KdDb::MTextAttachment>(row.number);
    text.edit().width = wide + 5.0; // about the location as the letters were, so they stand alike
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_NEAR(all[1].start.x(), 10.0 - row.columns * narrow, kNear);
}

TEST_F(MTextPlace, BottomLiesBelowLettersThatReachDown)
{
    text.edit().contents = L"Jog";
    text.edit().attachment = KdDb::kBottomLeft;
    EXPECT_NEAR(shown()[0].start.y(), 20.0 + 2.0 * descentOf(faceOf(nullptr).font), kNear);
}

TEST_F(MTextPlace, RunsAlongItsDirection)
{
    text.edit().direction = {0, 5, 0};
    const auto all = shown();
    EXPECT_THAT(all[0].start, IsAt(12.0, 20.0));
    EXPECT_THAT(all[0].end, IsAt(12.0, 20.0 + wide));
    EXPECT_THAT(all[1].start, IsAt(12.0 + kLine, 20.0));
}

TEST_F(MTextPlace, LiesInThePlaneOfItsNormal)
{
    text.edit().normal = {0, 0, -3}; // seen from behind, where x runs to the left
    EXPECT_THAT(shown()[0].end, IsAt(10.0 - wide, 18.0));
    text.edit().direction = {1, 0, 0};
    EXPECT_THAT(shown()[2].start, IsAt(10.0, 22.0)); // the same way up, so upside down
}

TEST_F(MTextPlace, HasItsLinesFurtherApartByAFactor)
{
    text.edit().lineSpacingFactor = 2.0;
    const auto all = shown();
    EXPECT_NEAR(all[0].start.y() - all[1].start.y(), 2.0 * kLine, kNear);
}

TEST_F(MTextPlace, MovesLinesApartForLargerLettersUnlessSpacedExactly)
{
    text.edit().contents = L"Hand\\P{\\H6;Hat}";
    auto all = shown();
    EXPECT_NEAR(all[0].start.y() - all[1].start.y(), 3.0 * kLine, kNear);
    text.edit().lineSpacingStyle = KdDb::kExactly;
    all = shown();
    EXPECT_NEAR(all[2].start.y() - all[3].start.y(), kLine, kNear);
}

TEST_F(MTextPlace, HasFreeRoomAroundParagraphs)
{
    text.edit().contents = L"\\pa1;Hand\\P\\pb0.5;Hat";
    const auto all = shown();
    EXPECT_NEAR(all[0].start.y() - all[1].start.y(), kLine + 1.5, kNear);
}

TEST_F(MTextPlace, AlignsParagraphsThatSaySo)
{
    text.edit().contents = L"\\pqr;Hand\\P\\pqc;Hat\\P\\pql;Hat";
    text.edit().width = 30.0;
    const auto all = shown();
    EXPECT_NEAR(all[0].end.x(), 40.0, kNear);
    EXPECT_NEAR(all[1].start.x(), 25.0 - narrow / 2.0, kNear);
    EXPECT_NEAR(all[2].start.x(), 10.0, kNear);
}

TEST_F(MTextPlace, FillsColumnsOfOneHeight)
{
    text.edit().contents = L"a\\Pb\\Pc\\Pd\\Pe";
    text.edit().columns = {KdDb::kStaticColumns, 2, 20.0, 3.0, {}};
    text.edit().height = 2.0 + kLine;
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(5));
    EXPECT_THAT(all[1].start, IsAt(10.0, 18.0 - kLine));
    EXPECT_THAT(all[2].start, IsAt(33.0, 18.0));
    EXPECT_THAT(all[4].start, IsAt(33.0, 18.0 - 2.0 * kLine)); // stays in the last of the two
}

TEST_F(MTextPlace, HasAsManyDynamicColumnsAsItNeeds)
{
    text.edit().contents = L"a\\Pb\\Nc";
    text.edit().columns = {KdDb::kDynamicColumns, 1, 20.0, 3.0, {}};
    text.edit().height = 2.5;
    EXPECT_THAT(shown()[2].start, IsAt(56.0, 18.0));
}

TEST_F(MTextPlace, FillsColumnsOfTheirOwnHeights)
{
    text.edit().contents = L"a\\Pb\\Pc\\Pd";
    text.edit().columns = {KdDb::kDynamicColumns, 2, 20.0, 3.0, {2.5, 0.0}};
    const auto all = shown();
    EXPECT_THAT(all[1].start, IsAt(33.0, 18.0));
    EXPECT_THAT(all[3].start, IsAt(33.0, 18.0 - 2.0 * kLine));
}

TEST_F(MTextPlace, HasNoMoreColumnsThanHaveHeights)
{
    text.edit().contents = L"a\\Pb\\Pc";
    text.edit().columns = {KdDb::kDynamicColumns, 1, 20.0, 3.0, {2.5, 2.5}};
    const auto all = shown(); // c has no room in either, and another font may be the reason
    EXPECT_THAT(all[1].start, IsAt(33.0, 18.0));
    EXPECT_THAT(all[2].start, IsAt(33.0, 18.0 - kLine));
}

TEST_F(MTextPlace, PlacesAllColumnsAboutItsLocation)
{
    text.edit().contents = L"a\\Nb";
    text.edit().columns = {KdDb::kStaticColumns, 2, 20.0, 4.0, {}};
    text.edit().attachment = KdDb::kTopRight;
    const auto all = shown();
    EXPECT_NEAR(all[0].end.x(), -14.0, kNear); // columns end at -14 and 10
    EXPECT_NEAR(all[1].end.x(), 10.0, kNear);
}

TEST_F(MTextPlace, OfTrueTypeFontsStaysLyingAndIsNotBroken)
{
    KdDbDatabase drawing;
    auto* style = drawing.addRecord<KdDbTextStyleTable>(L"ARIAL");
    KdDbTextStyleTableRecord* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, style->objectId(), KdDb::kForWrite), eOk);
    opened->edit().fileName = L"arial.ttf";
    opened->close();
    text.edit().style = style->objectId();
    text.edit().flow = KdDb::kTopToBottom;
    text.edit().width = 1.0;
    text.edit().contents = L"Hand Hat\\PHat";
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_EQ(all[0].letters, "Hand Hat");
    EXPECT_THAT(all[0].start, IsAt(10.0, 18.0));
    EXPECT_THAT(all[1].start, IsAt(10.0, 18.0 - kLine));
}

TEST_F(MTextPlace, RunsDownInColumnsFromLeftToRight)
{
    text.edit().flow = KdDb::kTopToBottom;
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(7));
    const double step = 2.0 * 4.0 / 3.0;
    EXPECT_EQ(all[0].letters, "H");
    EXPECT_THAT(all[0].start, IsAt(11.0 - plainWidth("H"), 18.0)); // in the middle of its column
    EXPECT_THAT(all[0].top, IsAt(11.0 - plainWidth("H"), 20.0));
    EXPECT_THAT(all[1].start, IsAt(11.0 - plainWidth("a"), 18.0 - step));
    EXPECT_THAT(all[4].start, IsAt(11.0 + step - plainWidth("H"), 18.0));
}

TEST_F(MTextPlace, StandsOnAFilledGround)
{
    text.edit().fill = true;
    text.edit().fillColor = 0xC3000001; // index 1
    text.edit().fillFactor = 2.0;
    shown();
    const auto grounds = paper.strokes(SceneShape::Kind::Fill);
    ASSERT_THAT(grounds, SizeIs(1));
    EXPECT_EQ(grounds[0].look.color, 0x80FF0000U);
    EXPECT_THAT(grounds[0].points[0], IsAt(8.0, 20.0 - 2.0 - kLine - 2.0));
    EXPECT_THAT(grounds[0].points[2], IsAt(12.0 + wide, 22.0));
    EXPECT_EQ(paper.scene.shapes.front().kind, SceneShape::Kind::Fill); // below the letters
}

TEST_F(MTextPlace, HidesWhatLiesBelowItsGround)
{
    text.edit().fill = true;
    text.edit().fillWithBackground = true;
    text.edit().width = 40.0;
    shown();
    const auto grounds = paper.strokes(SceneShape::Kind::Wipeout);
    ASSERT_THAT(grounds, SizeIs(1));
    EXPECT_THAT(grounds[0].points[2], IsAt(51.0, 21.0)); // half a height around the column
}

TEST_F(MTextPlace, HasAFrame)
{
    text.edit().frame = true;
    shown();
    const auto frames = paper.strokes();
    ASSERT_THAT(frames, SizeIs(1));
    EXPECT_THAT(frames[0].points[2], IsAt(11.0 + wide, 21.0));
    EXPECT_EQ(frames[0].look.color, 0x80112233U);
}

TEST_F(MTextPlace, DrawsNarrowerWhatIsKnownToTakeFewerLines)
{
    text.edit().contents = L"several words here";
    text.edit().width = 2.0 * plainWidth("several words here") * 0.9;
    EXPECT_THAT(shown(), SizeIs(2));
    text.edit().actualHeight = 2.0;
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(3)); // one line more on the paper
    EXPECT_LE(all[2].end.x(), 10.0 + text.width() + kNear);
    EXPECT_NEAR(all[2].height(), 2.0, kNear);
}

TEST_F(MTextPlace, MayBePartOfAnotherEntity)
{
    writeMText(text.textData(), paper.writer);
    EXPECT_EQ(paper.letters(), "Hand|Hat");
}

} // namespace
