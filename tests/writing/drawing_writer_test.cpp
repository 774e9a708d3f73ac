// Which parts of a drawing come along with chosen entities, and in which form.
#include <gtest/gtest.h>

#include <entities/block_reference.h>

#include "selection.h"

namespace {

Groups blockRecord(const std::string& handle, const std::string& name)
{
    return {
        {0, "BLOCK_RECORD"}, {5, handle}, {330, "1"}, {100, "AcDbSymbolTableRecord"}, {2, name}};
}

Groups block(const std::string& handle, const std::string& owner, const std::string& name,
             const Groups& content)
{
    Groups groups{{0, "BLOCK"},
                  {5, handle},
                  {330, owner},
                  {100, "AcDbEntity"},
                  {100, "AcDbBlockBegin"},
                  {2, name},
                  {10, "0"},
                  {20, "0"},
                  {30, "0"}};
    groups.insert(groups.end(), content.begin(), content.end());
    groups.push_back({0, "ENDBLK"});
    groups.push_back({5, handle + "F"});
    return groups;
}

Groups joined(const std::vector<Groups>& parts)
{
    Groups all;
    for (const Groups& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// A model with references to A, which holds B, and to C; D is not used; a second sheet.
Groups plan()
{
    const Groups tables = joined({{{0, "TABLE"}, {2, "BLOCK_RECORD"}, {5, "1"}},
                                  blockRecord("10", "*Model_Space"),
                                  blockRecord("11", "*Paper_Space"),
                                  blockRecord("12", "*Paper_Space0"),
                                  blockRecord("1A", "A"),
                                  blockRecord("1B", "B"),
                                  blockRecord("1C", "C"),
                                  blockRecord("1D", "D"),
                                  {{0, "ENDTAB"}}});
    const Groups blocks = joined({
        block("20", "10", "*Model_Space", {}),
        block("21", "11", "*Paper_Space", {}),
        block("22", "12", "*Paper_Space0",
              {{0, "LINE"},
               {5, "50"},
               {330, "12"},
               {67, "1"},
               {8, "0"},
               {0, "ARC"},
               {5, "51"},
               {330, "12"},
               {67, "1"},
               {8, "0"}}),
        block("2A", "1A", "A", {{0, "INSERT"}, {5, "2A1"}, {330, "1A"}, {8, "0"}, {2, "b"}}),
        block(
            "2B", "1B", "B",
            {{0, "LINE"}, {5, "2B1"}, {330, "1B"}, {8, "0"}, {0, "ARC"}, {5, "2B2"}, {330, "1B"}}),
        block("2C", "1C", "C", {{0, "LINE"}, {5, "2C1"}, {330, "1C"}, {8, "0"}}),
        block("2D", "1D", "D", {{0, "LINE"}, {5, "2D1"}, {330, "1D"}, {8, "0"}}),
    });
    const Groups entities{{0, "LINE"}, {5, "30"},     {330, "10"},   {8, "PIPES"},  {10, "1"},
                          {20, "2"},   {0, "INSERT"}, {5, "31"},     {330, "10"},   {8, "0"},
                          {2, "A"},    {0, "INSERT"}, {5, "32"},     {330, "10"},   {8, "0"},
                          {66, "1"},   {2, "C"},      {0, "ATTRIB"}, {5, "33"},     {330, "32"},
                          {8, "0"},    {1, "value"},  {2, "TAG"},    {0, "SEQEND"}, {5, "34"},
                          {330, "32"}, {0, "CIRCLE"}, {5, "35"},     {330, "10"},   {8, "0"},
                          {40, "3"}};
    return drawing({header("AC1015"), section("TABLES", tables), section("BLOCKS", blocks),
                    section("ENTITIES", entities)});
}

std::vector<KdDbHandle> handlesIn(const ReadDrawing& drawn, const wchar_t* space = kModelSpaceName)
{
    std::vector<KdDbHandle> handles;
    for (const KdDbEntity* entity : drawn.entities(space))
        handles.push_back(entity->handle());
    return handles;
}

using Handles = std::vector<KdDbHandle>;

TEST(WrittenDrawing, HoldsTheChosenEntitiesInTheirOrder)
{
    const Written written = writeOf(asText(plan()), {0x35, 0x30});
    EXPECT_EQ(handlesIn(written.drawing), (Handles{0x30, 0x35}));
    EXPECT_EQ(written.drawing.report.version, L"AC1015");
    EXPECT_TRUE(written.holds("0\nLINE\n5\n30\n330\n10\n8\nPIPES\n10\n1\n20\n2\n0\n"));
}

TEST(WrittenDrawing, BringsTheBlocksInUseAndNoOthers)
{
    const Written written = writeOf(asText(plan()), {0x31});
    for (const wchar_t* name : {L"A", L"B", L"*Model_Space", L"*Paper_Space", L"*Paper_Space0"})
        EXPECT_TRUE(written.drawing.record<KdDbBlockTable>(name)) << name;
    EXPECT_FALSE(written.drawing.record<KdDbBlockTable>(L"C"));
    EXPECT_FALSE(written.drawing.record<KdDbBlockTable>(L"D"));
    EXPECT_EQ(handlesIn(written.drawing, L"B"), (Handles{0x2B1, 0x2B2}));
    EXPECT_FALSE(written.holds("2D1"));
    EXPECT_EQ(written.drawing.report.totalFindings, 0u);
}

TEST(WrittenDrawing, BringsAttributesWithTheirReference)
{
    const Written written = writeOf(asText(plan()), {0x32});
    ASSERT_EQ(handlesIn(written.drawing), (Handles{0x32}));
    EXPECT_TRUE(written.drawing.object(0x33));
    EXPECT_TRUE(written.drawing.object(0x34));
}

TEST(WrittenDrawing, TakesAnAttributeForItsReference)
{
    const Written written = writeOf(asText(plan()), {0x33});
    EXPECT_EQ(handlesIn(written.drawing), (Handles{0x32}));
}

TEST(WrittenDrawing, MayHoldEntitiesOfOtherSheets)
{
    const Written written = writeOf(asText(plan()), {0x51});
    EXPECT_TRUE(handlesIn(written.drawing).empty());
    EXPECT_EQ(handlesIn(written.drawing, L"*Paper_Space0"), (Handles{0x51}));
}

TEST(WrittenDrawing, MayHoldEntitiesInsideABlock)
{
    const Written written = writeOf(asText(plan()), {0x2B2});
    EXPECT_EQ(handlesIn(written.drawing, L"B"), (Handles{0x2B2}));
}

TEST(WrittenDrawing, HoldsABlockWholeIfAChosenReferenceNeedsIt)
{
    const Written written = writeOf(asText(plan()), {0x2B2, 0x31});
    EXPECT_EQ(handlesIn(written.drawing, L"B"), (Handles{0x2B1, 0x2B2}));
}

TEST(WrittenDrawing, HasTheFormOfItsSource)
{
    for (const bool narrow : {false, true}) {
        const Written written = writeOf(asBinary(plan(), narrow), {0x31, 0x35});
        EXPECT_TRUE(written.drawing.report.binary);
        EXPECT_EQ(handlesIn(written.drawing), (Handles{0x31, 0x35}));
        EXPECT_EQ(handlesIn(written.drawing, L"B"), (Handles{0x2B1, 0x2B2}));
        EXPECT_TRUE(written.drawing.report.complete);
    }
}

TEST(WrittenDrawing, HasTheLineEndsOfItsSource)
{
    for (const char* lineEnd : {"\r\n", "\r", "\n"}) {
        const std::string content = asText(plan(), lineEnd);
        const Written written = writeOf(content, {0x35});
        EXPECT_EQ(handlesIn(written.drawing), (Handles{0x35}));
        const std::string end = std::string("ENDSEC") + lineEnd + "  0" + lineEnd + "EOF" + lineEnd;
        EXPECT_TRUE(written.bytes.ends_with(end)) << written.bytes;
    }
}

TEST(WrittenDrawing, OfOldVersionsNeedsNoHandles)
{
    const Groups blocks{{0, "BLOCK"}, {2, "A"}, {0, "LINE"}, {8, "0"}, {0, "ENDBLK"},
                        {0, "BLOCK"}, {2, "B"}, {0, "ARC"},  {8, "0"}, {0, "ENDBLK"}};
    const Groups entities{{0, "POLYLINE"}, {8, "0"},      {66, "1"},     {0, "VERTEX"},
                          {8, "0"},        {0, "SEQEND"}, {0, "INSERT"}, {8, "0"},
                          {2, "a"},        {0, "LINE"},   {8, "0"}};
    const std::string content = asText(
        drawing({header("AC1009"), section("BLOCKS", blocks), section("ENTITIES", entities)}));
    const ReadDrawing source = readBytes(content);
    const Written written = writeOf(content, {source.entities()[1]->handle()});
    EXPECT_EQ(written.drawing.entities().size(), 1u);
    EXPECT_TRUE(written.drawing.record<KdDbBlockTable>(L"A"));
    EXPECT_FALSE(written.drawing.record<KdDbBlockTable>(L"B"));
    EXPECT_FALSE(written.holds("VERTEX"));
}

TEST(WrittenDrawing, KeepsWhatIsNotKnownByteByByte)
{
    const std::string strange = "0\nSTRANGE\n5\n30\n8\n0\n4711\nwhat is this\n90\n  7 \n";
    const std::string content = "999\na comment\n" + asText(header("AC1015")) +
                                "0\nSECTION\n2\nODD\n0\nTHING\n1\nkept\n0\nENDSEC\n" +
                                "0\nSECTION\n2\nENTITIES\n" + strange +
                                "0\nLINE\n5\n31\n8\n0\n0\nENDSEC\n0\nEOF\n";
    const Written written = writeOf(content, {0x30});
    EXPECT_TRUE(written.bytes.starts_with("999\na comment\n"));
    EXPECT_TRUE(written.holds(strange + "  0\nENDSEC\n"));
    EXPECT_TRUE(written.holds("0\nTHING\n1\nkept\n"));
    EXPECT_FALSE(written.holds("LINE"));
}

TEST(WrittenDrawing, LeavesThePictureOfTheWholeOut)
{
    const std::string content =
        asText(drawing({header("AC1027"), section("ENTITIES", {{0, "LINE"}, {5, "30"}}),
                        section("THUMBNAILIMAGE", {{90, "2"}, {310, "FFFF"}})}));
    EXPECT_FALSE(writeOf(content, {0x30}).holds("THUMBNAILIMAGE"));
}

TEST(WrittenDrawing, BringsTheBodiesOfItsSolidsAlone)
{
    const Groups bodies{{70, "2"},         {71, "2"},   {0, "ACDSRECORD"}, {90, "0"},
                        {2, "AcDbDs::ID"}, {280, "10"}, {320, "30"},       {310, "01"},
                        {0, "ACDSRECORD"}, {320, "31"}, {310, "02"}};
    const std::string content =
        asText(drawing({header("AC1027"),
                        section("ENTITIES", {{0, "3DSOLID"}, {5, "30"}, {0, "3DSOLID"}, {5, "31"}}),
                        section("ACDSDATA", bodies)}));
    const Written written = writeOf(content, {0x31});
    EXPECT_TRUE(written.holds("2\nACDSDATA\n70\n2\n71\n2\n0\nACDSRECORD\n320\n31\n310\n02\n"));
    EXPECT_FALSE(written.holds("310\n01\n"));
}

TEST(WrittenDrawing, IsWholeAlthoughItsSourceBreaksOff)
{
    const std::string content = "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nA\n0\nLINE\n8\n0\n"
                                "0\nSECTION\n2\nENTITIES\n0\nINSERT\n5\n30\n2\nA\n10";
    const Written written = writeOf(content, {0x30});
    EXPECT_TRUE(written.drawing.report.complete);
    EXPECT_TRUE(written.bytes.ends_with("0\nINSERT\n5\n30\n2\nA\n  0\nENDSEC\n  0\nEOF\n"));
    EXPECT_FALSE(written.drawing.hasFinding(DrawingFinding::BlockNotClosed));
    EXPECT_EQ(written.drawing.entities(L"A").size(), 1u);
}

TEST(WrittenDrawing, IsWholeAlthoughItsBinarySourceBreaksOff)
{
    const std::string whole =
        asBinary(section("ENTITIES", {{0, "LINE"}, {5, "30"}, {8, "0"}, {10, "1.5"}}));
    const std::string cut = whole.substr(0, whole.size() - 12); // inside the last number
    const Written written = writeOf(cut, {0x30});
    EXPECT_TRUE(written.drawing.report.complete);
    EXPECT_EQ(handlesIn(written.drawing), (Handles{0x30}));
}

TEST(WrittenDrawing, BringsWhatAnEntityCanNotDoWithout)
{
    const Groups entities{{0, "MTEXT"},  {5, "30"}, {8, "0"}, {1, "note"},
                          {0, "LEADER"}, {5, "31"}, {8, "0"}, {340, "30"},
                          {0, "LINE"},   {5, "32"}, {8, "0"}, {330, "30"}};
    const std::string content = asText(drawing({header("AC1015"), section("ENTITIES", entities)}));
    EXPECT_EQ(handlesIn(writeOf(content, {0x31}).drawing), (Handles{0x30, 0x31}));
    EXPECT_EQ(handlesIn(writeOf(content, {0x32}).drawing), (Handles{0x32}));
}

TEST(WrittenDrawing, BringsBlocksThatOnlyStylesAndExtendedDataName)
{
    const Groups tables = joined({{{0, "TABLE"}, {2, "BLOCK_RECORD"}},
                                  blockRecord("10", "*Model_Space"),
                                  blockRecord("1A", "ARROW"),
                                  blockRecord("1B", "TICK"),
                                  blockRecord("1C", "_DOT"),
                                  {{0, "TABLE"},
                                   {2, "DIMSTYLE"},
                                   {0, "DIMSTYLE"},
                                   {105, "40"},
                                   {2, "S"},
                                   {342, "1A"},
                                   {0, "ENDTAB"}}});
    const Groups blocks = joined({block("2A", "1A", "ARROW", {}), block("2B", "1B", "TICK", {}),
                                  block("2C", "1C", "_DOT", {})});
    const Groups variables{{9, "$ACADVER"}, {1, "AC1015"}, {9, "$DIMBLK"}, {1, "DOT"}};
    const Groups entities{{0, "LINE"},      {5, "30"},   {8, "0"},      {1001, "ACAD"},
                          {1000, "DSTYLE"}, {1002, "{"}, {1070, "343"}, {1005, "1B"},
                          {1002, "}"},      {0, "LINE"}, {5, "31"},     {8, "0"}};
    const std::string content =
        asText(drawing({section("HEADER", variables), section("TABLES", tables),
                        section("BLOCKS", blocks), section("ENTITIES", entities)}));
    const Written with = writeOf(content, {0x30});
    for (const wchar_t* name : {L"ARROW", L"TICK", L"_DOT"})
        EXPECT_TRUE(with.drawing.record<KdDbBlockTable>(name)) << name;
    EXPECT_FALSE(writeOf(content, {0x31}).drawing.record<KdDbBlockTable>(L"TICK"));
}

TEST(WrittenDrawing, MayBeEmpty)
{
    const Written written = writeOf(asText(plan()), {});
    EXPECT_TRUE(handlesIn(written.drawing).empty());
    EXPECT_TRUE(written.drawing.report.complete);
}

} // namespace
