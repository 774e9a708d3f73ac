#include <set>
#include <string>

#include <gtest/gtest.h>

#include "findings.h"
#include "made_drawing.h"

namespace {

struct FindingCase
{
    const char* name;
    DrawingFinding kind;
    std::string content;
    std::uint64_t line;
    bool complete = true;
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
        {"badGroupCode", F::BadGroupCode, entities("0\nLINE\nx\n8\n0\n"), 7},
        {"badNumber", F::BadNumber, entities("0\nLINE\n10\n1mm\n"), 7},
        {"decimalComma", F::DecimalComma, entities("0\nLINE\n8\n0\n10\n1,5\n"), 9},
        {"badHandle", F::BadHandle, entities("0\nLINE\n390\nXY\n"), 7},
        {"textTooLong", F::TextTooLong,
         entities("0\nTEXT\n1\n" + std::string((1 << 20) + 1, 'x') + "\n"), 7},
        {"noEndOfFile", F::NoEndOfFile, "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n", 7, false},
        {"sectionNotClosed", F::SectionNotClosed, "0\nSECTION\n2\nENTITIES\n0\nEOF\n", 5, false},
        {"recordOutside", F::RecordOutsideSection,
         "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nLINE\n0\nEOF\n", 7},
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
        {"partWithoutParent", F::PartWithoutParent, entities("0\nLINE\n0\nVERTEX\n"), 7},
        {"tableNotClosed", F::TableNotClosed, tables("0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nA\n"), 13},
        {"blockNotClosed", F::BlockNotClosed, blocks("0\nBLOCK\n2\nA\n0\nLINE\n"), 11},
        {"badHeaderVariable", F::BadHeaderVariable, headerWith("9\n$LUNITS\n70\nx\n"), 5},
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
    std::set<DrawingFinding> covered{DrawingFinding::RecordTooLong};
    for (const FindingCase& row : samples())
        covered.insert(row.kind);
    for (int number = 1; *drawingFindingSentence(static_cast<DrawingFinding>(number)); ++number)
        EXPECT_TRUE(covered.contains(static_cast<DrawingFinding>(number))) << number;
    EXPECT_EQ(covered.size(), 24u);
}

TEST(Findings, TellTheNameConcerned)
{
    const ReadDrawing drawn = readBytes(entities("0\nLINE\n8\nPIPES\n"));
    ASSERT_EQ(drawn.report.findings.size(), 1u);
    EXPECT_EQ(drawn.report.findings[0].sentence,
              L"A layer is used and not defined; it was made with defaults: PIPES");
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

} // namespace
