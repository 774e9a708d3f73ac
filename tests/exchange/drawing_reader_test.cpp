#include <chrono>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "made_drawing.h"

namespace {

using testing::HasSubstr;

std::string narrow(const KdString& text)
{
    const std::wstring_view wide = text.view();
    return std::string(wide.begin(), wide.end());
}

const Groups kOneLine = section("ENTITIES", {{0, "LINE"},
                                             {5, "A1"},
                                             {8, "0"},
                                             {10, "1"},
                                             {20, "2"},
                                             {30, "3"},
                                             {11, "4"},
                                             {21, "5"},
                                             {31, "6"}});

TEST(ReadDrawing, ReadsADrawingOfEntitiesAlone)
{
    const ReadDrawing drawn = readGroups(drawing({kOneLine}));
    ASSERT_EQ(drawn.status, eOk);
    EXPECT_EQ(drawn.report.version, L"AC1009");
    EXPECT_EQ(drawn.report.entities, 1u);
    EXPECT_TRUE(drawn.report.complete);
    EXPECT_EQ(drawn.report.totalFindings, 0u);
    ASSERT_EQ(drawn.entities().size(), 1u);
    EXPECT_EQ(drawn.entities()[0]->handle(), 0xA1u);
}

TEST(ReadDrawing, MakesWhatEveryDrawingHas)
{
    const ReadDrawing drawn = readGroups(drawing({kOneLine}));
    EXPECT_TRUE(drawn.record<KdDbLayerTable>(L"0"));
    EXPECT_TRUE(drawn.record<KdDbLinetypeTable>(L"Continuous"));
    EXPECT_TRUE(drawn.record<KdDbTextStyleTable>(L"Standard"));
    ASSERT_TRUE(drawn.record<KdDbBlockTable>(kPaperSpaceName));
    EXPECT_TRUE(drawn.record<KdDbBlockTable>(kPaperSpaceName)->isLayout());
    EXPECT_FALSE(drawn.database->namedObjectsDictionaryId().isNull());
}

TEST(ReadDrawing, LeavesNothingOpen)
{
    ReadOptions options;
    options.readAllMembers = true;
    const ReadDrawing drawn = readGroups(drawing({kOneLine}), options);
    EXPECT_EQ(drawn.database->openCount(), 0);
}

struct FailureCase
{
    const char* name;
    std::string content;
    KdErrorStatus status;
    const char* error;
};

class UnreadableFile : public testing::TestWithParam<FailureCase>
{
};

TEST_P(UnreadableFile, IsTurnedAwayWithOneSentence)
{
    const ReadDrawing drawn = readBytes(GetParam().content);
    EXPECT_EQ(drawn.status, GetParam().status);
    EXPECT_THAT(narrow(drawn.report.error), HasSubstr(GetParam().error));
    EXPECT_FALSE(drawn.database);
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnreadableFile,
    testing::Values(FailureCase{"empty", "", eBadDrawing, "empty"},
                    FailureCase{"otherFormat", std::string("AC1027\0\0\0\0\0", 11), eBadDrawing,
                                "DWG drawing (AC1027)"},
                    FailureCase{"prose", "Dear reader,\nthis is a letter.\n", eBadDrawing,
                                "no DXF"},
                    FailureCase{"zeros", std::string(5000, '\0'), eBadDrawing, "no DXF"},
                    FailureCase{"blankLines", std::string(5000, '\n'), eBadDrawing, "no DXF"},
                    FailureCase{"numbers", "1\n2\n3\n4\n", eBadDrawing, "no DXF"}),
    [](const auto& row) { return row.param.name; });

TEST(ReadDrawing, SaysThatAFileDoesNotExist)
{
    ReadReport report;
    std::unique_ptr<KdDbDatabase> database;
    EXPECT_EQ(readDrawing("/nowhere/at all.dxf", database, report), eFileAccessError);
    EXPECT_EQ(narrow(report.error), "The file does not exist.");
}

TEST(ReadDrawing, SaysThatAFolderIsNoDrawing)
{
    ReadReport report;
    std::unique_ptr<KdDbDatabase> database;
    EXPECT_EQ(readDrawing("/tmp", database, report), eFileAccessError);
    EXPECT_THAT(narrow(report.error), HasSubstr("is a folder"));
}

TEST(ReadDrawing, TurnsAwayWhatIsNoRegularFile)
{
    ReadReport report;
    std::unique_ptr<KdDbDatabase> database;
    EXPECT_EQ(readDrawing("/dev/zero", database, report), eFileAccessError);
    EXPECT_THAT(narrow(report.error), HasSubstr("no regular file"));
}

TEST(ReadDrawing, CanBeCancelled)
{
    ReadOptions options;
    options.progress = [](double) { return false; };
    const ReadDrawing drawn = readGroups(drawing({kOneLine}), options);
    EXPECT_EQ(drawn.status, eUserBreak);
    EXPECT_THAT(narrow(drawn.report.error), HasSubstr("cancelled"));
    EXPECT_FALSE(drawn.database);
}

TEST(ReadDrawing, CanBeCancelledWhileItReadsMembers)
{
    ReadOptions options;
    options.readAllMembers = true;
    options.progress = [](double fraction) { return fraction < 0.5; };
    EXPECT_EQ(readGroups(drawing({kOneLine}), options).status, eUserBreak);
}

TEST(ReadDrawing, ReportsProgressInOrder)
{
    Groups entities;
    for (int i = 0; i < 300000; ++i)
        entities.insert(entities.end(), {{0, "POINT"}, {8, "0"}, {10, "1.0"}, {20, "2.0"}});
    ReadOptions options;
    options.readAllMembers = true;
    double last = -1.0;
    int calls = 0;
    options.progress = [&](double fraction) {
        EXPECT_GE(fraction, last);
        EXPECT_LE(fraction, 1.0);
        last = fraction;
        return ++calls > 0;
    };
    EXPECT_EQ(readGroups(drawing({section("ENTITIES", entities)}), options).status, eOk);
    EXPECT_GT(calls, 3);
}

struct FormCase
{
    const char* name;
    std::string content;
};

std::string withBehind(const std::string& junk)
{
    return asText(drawing({kOneLine})) + junk;
}

class FormOfFile : public testing::TestWithParam<FormCase>
{
};

TEST_P(FormOfFile, GivesTheSameLine)
{
    const ReadDrawing drawn = readBytes(GetParam().content);
    ASSERT_EQ(drawn.status, eOk);
    EXPECT_TRUE(drawn.report.complete);
    EXPECT_EQ(drawn.report.totalFindings, 0u);
    ASSERT_EQ(drawn.entities().size(), 1u);
    EXPECT_EQ(drawn.entities()[0]->handle(), 0xA1u);
    EXPECT_STREQ(drawn.entities()[0]->isA()->name(), L"AcDbLine");
}

INSTANTIATE_TEST_SUITE_P(
    Forms, FormOfFile,
    testing::Values(FormCase{"lineFeeds", asText(drawing({kOneLine}), "\n")},
                    FormCase{"carriageReturnsAndFeeds", asText(drawing({kOneLine}), "\r\n")},
                    FormCase{"carriageReturns", asText(drawing({kOneLine}), "\r")},
                    FormCase{"byteOrderMark", "\xEF\xBB\xBF" + asText(drawing({kOneLine}))},
                    FormCase{"comment", "999\nby hand\n" + asText(drawing({kOneLine}))},
                    FormCase{"substituteBehind", withBehind("\x1A")},
                    FormCase{"junkBehind", withBehind("nothing\nof\ninterest\n0\nLINE\n")},
                    FormCase{"binary", asBinary(drawing({kOneLine}))},
                    FormCase{"narrowBinary", asBinary(drawing({kOneLine}), true)}),
    [](const auto& row) { return row.param.name; });

TEST(ReadDrawing, ReadsAFileWithoutLastLineEnd)
{
    std::string content = asText(drawing({kOneLine}));
    content.pop_back();
    EXPECT_TRUE(readBytes(content).report.complete);
}

TEST(ReadDrawing, ReadsWhatItCanOfAFileCutAnywhere)
{
    const Groups whole = drawing(
        {header("AC1015", "ANSI_1252"),
         section(
             "TABLES",
             {{0, "TABLE"}, {2, "LAYER"}, {0, "LAYER"}, {5, "10"}, {2, "PIPES"}, {0, "ENDTAB"}}),
         section("BLOCKS", {{0, "BLOCK"}, {2, "B"}, {0, "ENDBLK"}}), kOneLine});
    for (const std::string& content : {asText(whole), asBinary(whole)}) {
        for (std::size_t size = 60; size < content.size(); ++size) {
            ReadOptions options;
            options.readAllMembers = true;
            const ReadDrawing drawn = readBytes(content.substr(0, size), options);
            ASSERT_EQ(drawn.status, eOk) << size;
        }
    }
}

TEST(ReadDrawing, SaysThatACutFileIsNotComplete)
{
    const ReadDrawing drawn = readGroups(section("ENTITIES", {{0, "LINE"}, {8, "0"}}));
    EXPECT_FALSE(drawn.report.complete);
    EXPECT_EQ(drawn.report.entities, 1u);
}

TEST(ReadDrawing, ReadsEntitiesOfASectionThatIsNotClosed)
{
    const ReadDrawing drawn =
        readGroups({{0, "SECTION"}, {2, "ENTITIES"}, {0, "LINE"}, {8, "0"}, {0, "EOF"}});
    EXPECT_FALSE(drawn.report.complete);
    EXPECT_EQ(drawn.entities().size(), 1u);
}

TEST(ReadDrawing, NeverTrustsCounts)
{
    const Groups entities{{0, "LWPOLYLINE"},  {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbPolyline"},
                          {90, "2147483647"}, {10, "1"},           {20, "2"}};
    const Groups tables{{0, "TABLE"}, {2, "LAYER"}, {70, "2147483647"}, {0, "ENDTAB"}};
    const ReadDrawing drawn = readGroupsWhole(
        drawing({header("AC1015"), section("TABLES", tables), section("ENTITIES", entities)}));
    ASSERT_EQ(drawn.status, eOk);
    EXPECT_EQ(drawn.entities().size(), 1u);
}

TEST(ReadDrawing, ReadsBlocksThatContainEachOther)
{
    const auto block = [](const char* name, const char* inserted) {
        return Groups{{0, "BLOCK"}, {2, name},     {0, "INSERT"},
                      {8, "0"},     {2, inserted}, {0, "ENDBLK"}};
    };
    Groups blocks = block("A", "B");
    const Groups second = block("B", "A");
    blocks.insert(blocks.end(), second.begin(), second.end());
    const ReadDrawing drawn = readGroupsWhole(drawing({section("BLOCKS", blocks)}));
    EXPECT_EQ(drawn.status, eOk);
    EXPECT_EQ(drawn.entities(L"A").size(), 1u);
    EXPECT_EQ(drawn.entities(L"B").size(), 1u);
}

TEST(ReadDrawing, KeepsTheFileOpenToOthersAndNeedsItNoMore)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    {
        const TemporaryFile file(asText(drawing({kOneLine})));
        ASSERT_EQ(readDrawing(file.path(), database, report), eOk);
        std::filesystem::resize_file(file.path(), 10);
    }
    KdDbObjectId id;
    ASSERT_EQ(database->getObjectId(id, 0xA1), eOk);
    const OpenForRead<KdDbEntity> line(id);
    EXPECT_EQ(line->linetypeScale(), 1.0);
}

TEST(ReadDrawing, KeepsThePlaceOfEachEntityInTheFile)
{
    const std::string content = asText(drawing({kOneLine}));
    const ReadDrawing drawn = readBytes(content);
    const SourceRange range = drawn.entities()[0]->source();
    const std::string record = content.substr(range.offset, range.length);
    EXPECT_TRUE(record.starts_with("0\nLINE\n5\nA1\n"));
    EXPECT_TRUE(record.ends_with("31\n6\n"));
}

} // namespace
