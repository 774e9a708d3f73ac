// Files that are made to hurt: endless lines, absurd counts, deep nesting.
#include <sys/resource.h>

#include <gtest/gtest.h>

#include <entities/block_nesting.h>
#include <entities/block_reference.h>

#include "made_drawing.h"

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

ReadDrawing readWhole(const std::string& content)
{
    ReadOptions options;
    options.readAllMembers = true;
    return readBytes(content, options);
}

std::string entities(const std::string& text)
{
    return "0\nSECTION\n2\nENTITIES\n" + text + "0\nENDSEC\n0\nEOF\n";
}

/// The most memory that the process has used so far, in bytes.
std::size_t peakMemory()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

struct EndlessLine
{
    const char* name;
    std::string before;
    std::string after;
};

class EndlessLines : public testing::TestWithParam<EndlessLine>
{
};

TEST_P(EndlessLines, CostLittleMoreThanThemselves)
{
    constexpr std::size_t kLength = 64 * kMegabyte;
    const std::string content = GetParam().before + std::string(kLength, 'x') + GetParam().after;
    const std::size_t before = peakMemory();
    const ReadDrawing drawn = readWhole(content);
    EXPECT_EQ(drawn.status, eOk);
    EXPECT_LT(peakMemory(), before + 3 * kLength); // the file itself, and its writing
}

INSTANTIATE_TEST_SUITE_P(
    Places, EndlessLines,
    testing::Values(
        EndlessLine{"text", "0\nSECTION\n2\nENTITIES\n0\nTEXT\n1\n", "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"layer", "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n", "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"recordName", "0\nSECTION\n2\nENTITIES\n0\n", "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"groupCode", "0\nSECTION\n2\nENTITIES\n", "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"number", "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n1", "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"sectionName", "0\nSECTION\n2\n", "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"headerValue", "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\n",
                    "\n0\nENDSEC\n0\nEOF\n"},
        EndlessLine{"withoutEnd", "0\nSECTION\n2\nENTITIES\n0\nTEXT\n1\n", ""}),
    [](const auto& row) { return row.param.name; });

TEST(AbsurdCounts, ReserveNothing)
{
    const char* const records[] = {
        "0\nLWPOLYLINE\n90\n2147483647\n10\n1\n20\n2\n",
        "0\nHATCH\n91\n2147483647\n92\n2\n93\n2147483647\n10\n1\n20\n2\n",
        "0\nSPLINE\n72\n2147483647\n73\n2147483647\n74\n2147483647\n40\n0\n10\n1\n",
        "0\nMESH\n100\nAcDbSubDMesh\n92\n2147483647\n10\n1\n93\n2147483647\n90\n4\n",
        "0\nMLINE\n72\n2147483647\n73\n2147483647\n11\n1\n74\n2147483647\n41\n1\n",
        "0\nLEADER\n76\n2147483647\n10\n1\n",
        "0\nIMAGE\n91\n2147483647\n14\n1\n24\n1\n",
        "0\nINSERT\n2\nA\n70\n32767\n71\n32767\n",
        "0\nACAD_PROXY_ENTITY\n92\n2147483647\n310\n00\n93\n2147483647\n",
        "0\nPOLYLINE\n70\n16\n71\n32767\n72\n32767\n0\nVERTEX\n10\n1\n0\nSEQEND\n",
    };
    const std::size_t before = peakMemory();
    for (const char* record : records)
        EXPECT_EQ(readWhole(entities(record)).status, eOk) << record;
    EXPECT_LT(peakMemory(), before + 32 * kMegabyte);
}

std::string blockWith(const std::string& name, const std::string& reference)
{
    return "0\nBLOCK\n2\n" + name + "\n0\nINSERT\n2\n" + reference + "\n0\nENDBLK\n";
}

TEST(NestedBlocks, MayBeAsDeepAsThereAreBlocks)
{
    constexpr int kDepth = 20000;
    std::string text = "0\nSECTION\n2\nBLOCKS\n";
    for (int i = 0; i < kDepth; ++i)
        text += blockWith("B" + std::to_string(i), "B" + std::to_string((i + 1) % kDepth));
    const ReadDrawing drawn = readWhole(text + "0\nENDSEC\n0\nEOF\n");
    ASSERT_EQ(drawn.status, eOk);
    EXPECT_TRUE(drawn.hasFinding(DrawingFinding::BlockHoldsItself));
    EXPECT_EQ(kddbReferencesThatLoop(*drawn.database).size(), 1u);
}

TEST(NestedBlocks, FormNoLoopWithoutTheReferencesFound)
{
    const ReadDrawing drawn =
        readWhole("0\nSECTION\n2\nBLOCKS\n" + blockWith("A", "B") + blockWith("B", "C") +
                  blockWith("C", "A") + blockWith("D", "A") + "0\nENDSEC\n0\nEOF\n");
    const std::vector<KdDbObjectId> loops = kddbReferencesThatLoop(*drawn.database);
    ASSERT_EQ(loops.size(), 1u);
    EXPECT_EQ(loops[0].ownerId(), drawn.record<KdDbBlockTable>(L"C")->objectId());
}

TEST(NestedBlocks, ThatOnlyShareABlockAreNoLoop)
{
    const ReadDrawing drawn =
        readWhole("0\nSECTION\n2\nBLOCKS\n" + blockWith("A", "C") + blockWith("B", "C") +
                  blockWith("C", "MISSING") + "0\nENDSEC\n0\nEOF\n");
    EXPECT_TRUE(kddbReferencesThatLoop(*drawn.database).empty());
    EXPECT_FALSE(drawn.hasFinding(DrawingFinding::BlockHoldsItself));
}

TEST(OwnersThatAreNotThere, DoNotHideTheirEntities)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("ENTITIES", {{0, "LINE"}, {5, "A"}, {330, "FFFF"}})}));
    EXPECT_EQ(drawn.entities().size(), 1u);
    EXPECT_EQ(drawn.entities()[0]->blockId(), drawn.database->modelSpaceId());
}

TEST(DictionariesThatOwnOneAnother, AreRead)
{
    const ReadDrawing drawn = readGroupsWhole(drawing({section("OBJECTS", {{0, "DICTIONARY"},
                                                                           {5, "A"},
                                                                           {330, "B"},
                                                                           {3, "X"},
                                                                           {350, "B"},
                                                                           {0, "DICTIONARY"},
                                                                           {5, "B"},
                                                                           {330, "A"},
                                                                           {3, "Y"},
                                                                           {350, "A"}})}));
    EXPECT_EQ(drawn.status, eOk);
    EXPECT_EQ(drawn.object(0xA)->ownerId().handle(), 0xBu);
}

TEST(Sections, MayAllBeMissingButTheEntities)
{
    const ReadDrawing drawn = readBytes(entities("0\nCIRCLE\n8\n0\n10\n1\n20\n2\n40\n3\n"));
    EXPECT_EQ(drawn.report.version, L"AC1009");
    EXPECT_EQ(drawn.entities().size(), 1u);
    EXPECT_TRUE(drawn.report.complete);
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

TEST(Sections, MayComeTwice)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "LINE"}, {8, "0"}}),
                                                  section("ENTITIES", {{0, "ARC"}, {8, "0"}})}));
    EXPECT_EQ(drawn.entities().size(), 2u);
}

TEST(Numbers, MayHaveBlanksAroundThem)
{
    const ReadDrawing drawn = readGroups(drawing(
        {section("ENTITIES", {{0, "LINE"}, {5, "  A "}, {48, "\t 2.5  "}, {370, "  25"}})}));
    EXPECT_EQ(drawn.entities()[0]->linetypeScale(), 2.5);
    EXPECT_EQ(drawn.entities()[0]->lineWeight(), 25);
    EXPECT_EQ(drawn.entities()[0]->handle(), 0xAu);
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

} // namespace
