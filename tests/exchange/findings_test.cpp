#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <runtime/utf8.h>

#include "findings.h"
#include "made_drawing.h"

namespace {

constexpr int kKinds = 31;

struct FindingCase
{
    const char* name;
    DrawingFinding kind;
    std::string content;
    std::uint64_t line;
    bool complete = true; ///< false where something of the file was not read
};

std::string entities(const std::string& text)
{
    return "0\nSECTION\n2\nENTITIES\n" + text + "0\nENDSEC\n0\nEOF\n";
}

std::string tables(const std::string& text)
{
    return "0\nSECTION\n2\nTABLES\n" + text + "0\nENDSEC\n0\nEOF\n";
}

std::string blocks(const std::string& text)
{
    return "0\nSECTION\n2\nBLOCKS\n" + text + "0\nENDSEC\n0\nEOF\n";
}

std::string headerWith(const std::string& text)
{
    return "0\nSECTION\n2\nHEADER\n" + text + "0\nENDSEC\n0\nEOF\n";
}

const std::vector<FindingCase>& samples()
{
    using F = DrawingFinding;
    static const std::vector<FindingCase> rows = {
        {"badGroupCode", F::BadGroupCode, entities("0\nLINE\nx\n8\n0\n"), 7, false},
        {"badNumber", F::BadNumber, entities("0\nLINE\n10\n1mm\n"), 7, false},
        {"decimalComma", F::DecimalComma, entities("0\nLINE\n8\n0\n10\n1,5\n"), 9},
        {"badHandle", F::BadHandle, entities("0\nLINE\n390\nXY\n"), 7, false},
        {"textTooLong", F::TextTooLong,
         entities("0\nTEXT\n1\n" + std::string((1 << 20) + 1, 'x') + "\n"), 7, false},
        {"noEndOfFile", F::NoEndOfFile, "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n", 7, false},
        {"sectionNotClosed", F::SectionNotClosed, "0\nSECTION\n2\nENTITIES\n0\nEOF\n", 5, false},
        {"recordOutside", F::RecordOutsideSection,
         "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nLINE\n0\nEOF\n", 7, false},
        {"unknownCodePage", F::UnknownCodePage, headerWith("9\n$DWGCODEPAGE\n3\nANSI_1\n"), 5},
        {"codePageIsWrong", F::CodePageIsWrong,
         headerWith("9\n$DWGCODEPAGE\n3\nANSI_1252\n9\n$CLAYER\n8\n\xC3\xA4\n"), 5},
        {"handleIsZero", F::HandleIsZero, entities("0\nLINE\n5\n0\n"), 5},
        {"handleIsDoubled", F::HandleIsDoubled, entities("0\nLINE\n5\nA\n0\nLINE\n5\nA\n"), 9},
        {"doubledName", F::DoubledName, tables("0\nLAYER\n2\nA\n0\nLAYER\n2\na\n"), 9},
        {"missingName", F::MissingName, tables("0\nLAYER\n70\n0\n"), 5},
        {"undefinedLayer", F::UndefinedLayer, entities("0\nLINE\n8\nPIPES\n"), 5},
        {"undefinedLinetype", F::UndefinedLinetype, entities("0\nLINE\n6\nDASHED\n"), 7},
        {"undefinedStyle", F::UndefinedStyle, entities("0\nTEXT\n7\nNOTES\n"), 7},
        {"undefinedBlock", F::UndefinedBlock, entities("0\nINSERT\n2\nDOOR\n"), 7},
        {"unknownEntity", F::UnknownEntity, entities("0\nSTRANGE\n"), 5},
        {"partWithoutParent", F::PartWithoutParent, entities("0\nLINE\n0\nVERTEX\n"), 7, false},
        {"tableNotClosed", F::TableNotClosed, tables("0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nA\n"), 13},
        {"blockNotClosed", F::BlockNotClosed, blocks("0\nBLOCK\n2\nA\n0\nLINE\n"), 11},
        {"badHeaderVariable", F::BadHeaderVariable, headerWith("9\n$LUNITS\n70\nx\n"), 5, false},
        {"handleIsMissing", F::HandleIsMissing,
         "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n" + entities("0\nLINE\n8\n0\n"),
         15},
        {"ownerIsMissing", F::OwnerIsMissing, entities("0\nLINE\n5\nA\n330\nFF\n100\nAcDbEntity\n"),
         5},
        {"ownerOfObjectIsMissing", F::OwnerIsMissing,
         "0\nSECTION\n2\nOBJECTS\n0\nDICTIONARY\n5\nC\n330\nFF\n0\nENDSEC\n0\nEOF\n", 5},
        {"blockHoldsItself", F::BlockHoldsItself,
         blocks("0\nBLOCK\n2\nA\n0\nINSERT\n2\nA\n0\nENDBLK\n"), 9},
        {"blocksHoldOneAnother", F::BlockHoldsItself,
         blocks("0\nBLOCK\n2\nA\n0\nINSERT\n2\nB\n0\nENDBLK\n"
                "0\nBLOCK\n2\nB\n0\nINSERT\n2\nA\n0\nENDBLK\n"),
         19},
        {"unknownVersion", F::UnknownVersion, headerWith("9\n$ACADVER\n1\nAC1099\n"), 5},
        {"versionThatIsNone", F::UnknownVersion, headerWith("9\n$ACADVER\n1\nlatest\n"), 5},
        {"unknownSection", F::UnknownSection,
         "0\nSECTION\n2\nENTITES\n0\nLINE\n0\nENDSEC\n0\nEOF\n", 1, false},
        {"recordOutsideTable", F::RecordOutsideTable, tables("0\nLAYER\n2\nA\n"), 5},
        {"recordBehindItsTable", F::RecordOutsideTable,
         tables("0\nTABLE\n2\nLAYER\n0\nENDTAB\n0\nLAYER\n2\nA\n"), 11},
        {"ownerOfTableRecordIsMissing", F::OwnerIsMissing,
         tables("0\nTABLE\n2\nLAYER\n0\nLAYER\n5\n10\n330\nFF\n2\nA\n0\nENDTAB\n"), 9},
        {"unknownTable", F::UnknownTable, tables("0\nLAYR\n2\nA\n"), 5, false},
        // The same kinds in other places.
        {"numberThatIsNone", F::BadNumber, entities("0\nLINE\n8\n0\n10\nnan\n"), 9, false},
        {"infiniteNumber", F::BadNumber, entities("0\nLINE\n8\n0\n10\ninf\n"), 9, false},
        {"numberBeyondAll", F::BadNumber, entities("0\nLINE\n8\n0\n10\n1e999\n"), 9, false},
        {"integerBeyondAll", F::BadNumber, entities("0\nLINE\n8\n0\n60\n1e99\n"), 9, false},
        {"emptyNumber", F::BadNumber, entities("0\nLINE\n8\n0\n10\n\n"), 9, false},
        {"handleTooLong", F::BadHandle, entities("0\nLINE\n390\n12345678901234567\n"), 7, false},
        {"handleOfADrawingWithLoneReturns", F::HandleIsZero,
         "0\rSECTION\r2\rENTITIES\r0\rLINE\r5\r0\r0\rENDSEC\r0\rEOF\r", 5},
        {"handleOfADrawingWithBothLineEnds", F::HandleIsZero,
         "0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nLINE\r\n5\r\n0\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n", 5},
        {"groupCodeTooLarge", F::BadGroupCode, entities("0\nLINE\n40000\n8\n0\n"), 7, false},
    };
    return rows;
}

class Finding : public testing::TestWithParam<FindingCase>
{
};

TEST_P(Finding, IsToldWithItsLine)
{
    ReadOptions options;
    options.readAllMembers = true;
    const ReadDrawing drawn = readBytes(GetParam().content, options);
    ASSERT_EQ(drawn.status, eOk);
    EXPECT_EQ(drawn.lineOf(GetParam().kind), GetParam().line);
    EXPECT_EQ(drawn.report.complete, GetParam().complete);
    EXPECT_EQ(drawn.report.findings.size(), drawn.report.totalFindings);
}

INSTANTIATE_TEST_SUITE_P(Samples, Finding, testing::ValuesIn(samples()),
                         [](const auto& row) { return row.param.name; });

TEST(FindingSamples, CoverEveryKindButRecordsOfGigabytes)
{
    std::set<DrawingFinding> covered{DrawingFinding::RecordTooLong}; // see long_record_test.cpp
    for (const FindingCase& row : samples())
        covered.insert(row.kind);
    for (int number = 1; *drawingFindingSentence(static_cast<DrawingFinding>(number)); ++number)
        EXPECT_TRUE(covered.contains(static_cast<DrawingFinding>(number))) << number;
    EXPECT_EQ(covered.size(), static_cast<std::size_t>(kKinds));
}

TEST(FindingSamples, StandInTheManual)
{
    std::ifstream file(KW_SOURCE_DIR "/docs/drawing_files.md");
    const std::string manual{std::istreambuf_iterator<char>(file), {}};
    for (int number = 1; number <= kKinds; ++number) {
        const auto kind = static_cast<DrawingFinding>(number);
        const std::string row = "| " + std::to_string(number) + " | " +
                                kdToUtf8(drawingFindingSentence(kind)) + " | " +
                                (drawingFindingLosesContent(kind) ? "yes" : "") + " |\n";
        EXPECT_NE(manual.find(row), std::string::npos) << row;
    }
}

TEST(Findings, TellTheNameConcerned)
{
    const ReadDrawing drawn = readBytes(entities("0\nLINE\n8\nPIPES\n"));
    ASSERT_EQ(drawn.report.findings.size(), 1u);
    EXPECT_EQ(drawn.report.findings[0].sentence,
              L"A layer is used and not defined; it was made with defaults: PIPES");
}

TEST(Findings, SayWhichKindsLoseContent)
{
    for (const FindingCase& row : samples())
        EXPECT_EQ(drawingFindingLosesContent(row.kind), !row.complete) << row.name;
}

TEST(Findings, TellTheHandleOfTheObject)
{
    const char* const texts[] = {"0\nLINE\n5\nAB\n8\nPIPES\n",       "0\nLINE\n5\nAB\n10\nx\n",
                                 "0\nLINE\n5\nAB\n6\nDASHED\n",      "0\nTEXT\n5\nAB\n7\nNOTES\n",
                                 "0\nINSERT\n5\nAB\n2\nDOOR\n",      "0\nSTRANGE\n5\nAB\n",
                                 "0\nLINE\n5\n1\n0\nVERTEX\n5\nAB\n"};
    ReadOptions options;
    options.readAllMembers = true;
    for (const char* text : texts) {
        const ReadDrawing drawn = readBytes(entities(text), options);
        ASSERT_EQ(drawn.report.findings.size(), 1u) << text;
        EXPECT_EQ(drawn.report.findings[0].handle, 0xABu) << text;
    }
}

TEST(Findings, ComeUpOnceAlthoughRecordsAreReadTwice)
{
    ReadOptions options;
    options.readAllMembers = true;
    const ReadDrawing drawn = readBytes(entities("0\nLINE\nx\n8\n0\n"), options);
    EXPECT_EQ(drawn.report.totalFindings, 1u);
}

TEST(Findings, AreToldAsTheyAreMetAlsoWhenMembersAreReadLater)
{
    std::vector<int> numbers;
    ReadOptions options;
    options.found = [&](const ReadFinding& finding) { numbers.push_back(finding.number); };
    const ReadDrawing drawn =
        readBytes(entities("0\nLINE\n5\nA\n48\nx\n0\nSTRANGE\n5\nB\n"), options);
    EXPECT_EQ(numbers, std::vector<int>{static_cast<int>(DrawingFinding::UnknownEntity)});
    EXPECT_TRUE(drawn.report.complete);
    drawn.entities()[0]->linetypeScale();
    EXPECT_EQ(numbers.back(), static_cast<int>(DrawingFinding::BadNumber));
    EXPECT_EQ(numbers.size(), 2u);
}

TEST(Findings, BeyondThoseKeptAreStillTold)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "0\nSTRANGE\n8\n0\n";
    std::uint64_t last = 0;
    ReadOptions options;
    options.found = [&](const ReadFinding& finding) { last = finding.line; };
    const ReadDrawing drawn = readBytes(entities(text), options);
    EXPECT_EQ(last, 4u * 1000 + 1);
}

TEST(Findings, AreCappedAndAllCounted)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "0\nSTRANGE\n8\n0\n";
    const ReadDrawing drawn = readBytes(entities(text));
    EXPECT_EQ(drawn.report.findings.size(), ReadReport::kMostFindings);
    EXPECT_EQ(drawn.report.totalFindings, 1000u);
}

TEST(LineNumbers, CountEveryKindOfLineEnd)
{
    dxf::LineNumbers numbers("a\nb\r\nc\rd");
    EXPECT_EQ(numbers.lineAt(0), 1u);
    EXPECT_EQ(numbers.lineAt(2), 2u);
    EXPECT_EQ(numbers.lineAt(5), 3u);
    EXPECT_EQ(numbers.lineAt(7), 4u);
    EXPECT_EQ(numbers.lineAt(2), 2u); // also backwards
    EXPECT_EQ(numbers.lineAt(1000), 4u);
}

TEST(LineNumbers, AgreeWithACountInAnyOrder)
{
    std::string text;
    for (int i = 0; i < 40000; ++i)
        text += i % 3 == 0 ? "ab\r\n" : i % 3 == 1 ? "c\n" : "\r";
    dxf::LineNumbers numbers(text);
    for (const std::size_t offset : {text.size() - 1, std::size_t{16384}, std::size_t{0},
                                     std::size_t{16383}, std::size_t{40000}, std::size_t{5}}) {
        std::uint64_t line = 1;
        for (std::size_t i = 0; i < offset; ++i) {
            const bool loneReturn =
                text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n');
            line += text[i] == '\n' || loneReturn ? 1 : 0;
        }
        EXPECT_EQ(numbers.lineAt(offset), line) << offset;
    }
}

} // namespace
