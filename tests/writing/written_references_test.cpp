// Objects that go with what owns them, and references to what is left out.
#include <gtest/gtest.h>

#include <database/named_objects.h>

#include "selection.h"

namespace {

std::string content(const Groups& entities, const Groups& objects)
{
    const Groups tables{{0, "TABLE"},
                        {2, "BLOCK_RECORD"},
                        {5, "1"},
                        {0, "BLOCK_RECORD"},
                        {5, "10"},
                        {330, "1"},
                        {102, "{BLKREFS"},
                        {331, "30"},
                        {331, "31"},
                        {102, "}"},
                        {100, "AcDbSymbolTableRecord"},
                        {2, "*Model_Space"},
                        {0, "BLOCK_RECORD"},
                        {5, "11"},
                        {330, "1"},
                        {2, "*Paper_Space"},
                        {0, "ENDTAB"}};
    return asText(drawing({header("AC1015"), section("TABLES", tables),
                           section("ENTITIES", entities), section("OBJECTS", objects)}));
}

Groups twoLines()
{
    return {{0, "LINE"},
            {5, "30"},
            {102, "{ACAD_XDICTIONARY"},
            {360, "40"},
            {102, "}"},
            {330, "10"},
            {8, "0"},
            {0, "LINE"},
            {5, "31"},
            {102, "{ACAD_XDICTIONARY"},
            {360, "41"},
            {102, "}"},
            {330, "10"},
            {8, "0"}};
}

Groups dictionary(const std::string& handle, const std::string& owner, const Groups& entries)
{
    Groups groups{{0, "DICTIONARY"}, {5, handle}, {330, owner}, {100, "AcDbDictionary"}};
    groups.insert(groups.end(), entries.begin(), entries.end());
    return groups;
}

Groups operator+(Groups a, const Groups& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(WrittenObjects, GoWithTheEntityThatOwnsThem)
{
    const Groups objects = dictionary("C", "0", {}) +
                           dictionary("40", "30", {{3, "X"}, {360, "42"}}) +
                           Groups{{0, "XRECORD"}, {5, "42"}, {330, "40"}, {1, "of the first"}} +
                           dictionary("41", "31", {{3, "X"}, {360, "43"}}) +
                           Groups{{0, "XRECORD"}, {5, "43"}, {330, "41"}, {1, "of the second"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    EXPECT_TRUE(written.drawing.object(0x43));
    EXPECT_FALSE(written.drawing.object(0x40));
    EXPECT_FALSE(written.drawing.object(0x42));
    EXPECT_EQ(written.drawing.object(0x31)->extensionDictionary().handle(), 0x41u);
}

TEST(WrittenObjects, ThatBelongToTheDrawingStay)
{
    const Groups objects = dictionary("C", "0", {{3, "A"}, {350, "D"}}) +
                           dictionary("D", "C", {{3, "B"}, {350, "E"}}) +
                           Groups{{0, "STRANGE"}, {5, "E"}, {330, "D"}, {1, "kept"}} +
                           Groups{{0, "STRANGE"}, {5, "F"}, {1, "without an owner"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    EXPECT_TRUE(written.drawing.object(0xE));
    EXPECT_TRUE(written.drawing.object(0xF));
}

TEST(WrittenReferences, OfDictionariesToWhatIsLeftOutGo)
{
    const Groups objects =
        dictionary("C", "0", {{3, "FIRST"}, {350, "42"}, {3, "SECOND"}, {350, "43"}}) +
        Groups{{0, "XRECORD"}, {5, "42"}, {330, "30"}} +
        Groups{{0, "XRECORD"}, {5, "43"}, {330, "31"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    EXPECT_FALSE(written.holds("FIRST"));
    EXPECT_TRUE(written.holds("3\nSECOND\n350\n43\n"));
}

TEST(WrittenReferences, OfUsersAndReactorsToWhatIsLeftOutGo)
{
    const Groups objects = dictionary("C", "0", {}) + Groups{{0, "XRECORD"},
                                                             {5, "50"},
                                                             {102, "{ACAD_REACTORS"},
                                                             {330, "30"},
                                                             {330, "31"},
                                                             {102, "}"},
                                                             {330, "C"},
                                                             {0, "XRECORD"},
                                                             {5, "51"},
                                                             {102, "{ACAD_REACTORS"},
                                                             {330, "30"},
                                                             {102, "}"},
                                                             {330, "C"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    EXPECT_TRUE(written.holds("102\n{BLKREFS\n331\n31\n102\n}\n"));
    EXPECT_TRUE(written.holds("5\n50\n102\n{ACAD_REACTORS\n330\n31\n102\n}\n330\nC\n"));
    EXPECT_TRUE(written.holds("5\n51\n330\nC\n")); // a list that would be empty
}

TEST(WrittenReferences, InFreeRecordsStay)
{
    const Groups objects =
        dictionary("C", "0", {}) +
        Groups{{0, "XRECORD"},          {5, "50"},   {330, "C"}, {100, "AcDbXrecord"},
               {102, "{ACAD_REACTORS"}, {330, "30"}, {102, "}"}, {350, "30"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    EXPECT_TRUE(written.holds("102\n{ACAD_REACTORS\n330\n30\n102\n}\n350\n30\n"));
}

TEST(WrittenReferences, OfGroupsToWhatIsLeftOutGo)
{
    const Groups objects =
        dictionary("C", "0", {{3, "ACAD_GROUP"}, {350, "D"}}) +
        dictionary(
            "D", "C",
            {{3, "BOTH"}, {350, "50"}, {3, "FIRST"}, {350, "51"}, {3, "EMPTY"}, {350, "52"}}) +
        Groups{{0, "GROUP"}, {5, "50"},  {330, "D"},  {340, "30"},  {340, "31"}, {0, "GROUP"},
               {5, "51"},    {330, "D"}, {340, "30"}, {0, "GROUP"}, {5, "52"},   {330, "D"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    const auto* both = dynamic_cast<const KdDbGroup*>(written.drawing.object(0x50));
    ASSERT_TRUE(both);
    EXPECT_EQ(both->allEntityIds().size(), 1u);
    EXPECT_FALSE(written.drawing.object(0x51)); // nothing would be left of it
    EXPECT_FALSE(written.holds("FIRST"));
    EXPECT_TRUE(written.drawing.object(0x52)); // nothing ever was in it
}

TEST(WrittenReferences, OfTheOrderOfDrawingGoInPairs)
{
    const Groups objects = dictionary("C", "0", {}) + Groups{{0, "SORTENTSTABLE"},
                                                             {5, "50"},
                                                             {330, "C"},
                                                             {100, "AcDbSortentsTable"},
                                                             {330, "10"},
                                                             {331, "30"},
                                                             {5, "31"},
                                                             {331, "31"},
                                                             {5, "30"}};
    const Written written = writeOf(content(twoLines(), objects), {0x31});
    EXPECT_TRUE(written.holds("330\n10\n331\n31\n5\n30\n"));
    EXPECT_FALSE(written.holds("331\n30\n"));
}

Groups layouts(const std::string& lastViewport)
{
    return dictionary("C", "0", {{3, "ACAD_LAYOUT"}, {350, "D"}}) +
           dictionary("D", "C", {{3, "Plan"}, {350, "E"}}) +
           Groups{{0, "LAYOUT"}, {5, "E"},  {330, "D"},  {100, "AcDbLayout"},
                  {1, "Plan"},   {71, "1"}, {330, "11"}, {331, lastViewport}};
}

Groups sheetWithViewports()
{
    return {{0, "VIEWPORT"}, {5, "60"}, {330, "11"}, {67, "1"}, {69, "1"},
            {0, "VIEWPORT"}, {5, "61"}, {330, "11"}, {67, "1"}, {69, "2"},
            {0, "LINE"},     {5, "62"}, {330, "11"}, {67, "1"}};
}

TEST(WrittenLayouts, KeepTheViewportThatIsTheirSheet)
{
    const Written written = writeOf(content(sheetWithViewports(), layouts("60")), {0x62});
    ASSERT_EQ(written.drawing.entities(kPaperSpaceName).size(), 2u);
    EXPECT_TRUE(written.drawing.object(0x60));
    EXPECT_FALSE(written.drawing.object(0x61));
    EXPECT_TRUE(written.holds("331\n60\n"));
}

TEST(WrittenLayouts, ForgetALastActiveViewportThatIsLeftOut)
{
    const Written written = writeOf(content(sheetWithViewports(), layouts("61")), {0x62});
    EXPECT_FALSE(written.holds("331\n61\n"));
    EXPECT_TRUE(written.holds("330\n11\n"));
}

TEST(WrittenTexts, TakeTheirColumnsAlong)
{
    const auto text = [](const char* handle, const char* letters) {
        return Groups{{0, "MTEXT"}, {5, handle},        {330, "10"}, {100, "AcDbEntity"},
                      {8, "0"},     {100, "AcDbMText"}, {1, letters}};
    };
    const Groups columns{{1001, "ACAD"},
                         {1000, "ACAD_MTEXT_COLUMNS_BEGIN"},
                         {1005, "31"},
                         {1000, "ACAD_MTEXT_COLUMNS_END"},
                         {1005, "32"}};
    const Groups entities =
        text("30", "One") + columns + text("31", "Two") + text("32", "Not one of them");
    const Written written = writeOf(content(entities, dictionary("C", "0", {})), {0x30});
    EXPECT_TRUE(written.holds("Two"));
    EXPECT_FALSE(written.holds("Not one of them"));
    EXPECT_EQ(written.drawing.entities().size(), 1u);
}

} // namespace
