#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ascii_groups.h"
#include "file_bytes.h"
#include "file_form.h"
#include "group_values.h"
#include "made_drawing.h"

namespace {

using namespace dxf;

struct Read
{
    int code;
    std::string text;
    bool operator==(const Read&) const = default;
};
void PrintTo(const Read& read, std::ostream* out)
{
    *out << read.code << "=" << read.text;
}

std::vector<Read> readText(const std::string& text, Findings* findings = nullptr)
{
    const FileBytes bytes = FileBytes::copyOf(text);
    AsciiGroups groups(bytes.data(), 0, bytes.size(), findings);
    std::vector<Read> all;
    Group group;
    while (groups.next(group))
        all.push_back({group.code, std::string(group.text)});
    return all;
}

TEST(AsciiGroups, AllowBlanksAroundCodesAndKeepThoseOfValues)
{
    EXPECT_EQ(readText("  0\nLINE\n\t8 \n a b \n"), (std::vector<Read>{{0, "LINE"}, {8, " a b "}}));
}

TEST(AsciiGroups, LeaveOutComments)
{
    EXPECT_EQ(readText("999\nby hand\n0\nEOF\n"), (std::vector<Read>{{0, "EOF"}}));
}

TEST(AsciiGroups, ReadNegativeCodes)
{
    EXPECT_EQ(readText("-3\nx\n"), (std::vector<Read>{{-3, "x"}}));
}

TEST(AsciiGroups, FindTheWayBackAfterALineThatIsNoCode)
{
    Findings findings;
    EXPECT_EQ(readText("1\ntwo\nlines\n40\n2.5\n", &findings),
              (std::vector<Read>{{1, "two"}, {40, "2.5"}}));
    ASSERT_EQ(findings.total(), 1u);
    EXPECT_EQ(findings.kept()[0].number, static_cast<int>(DrawingFinding::BadGroupCode));
}

TEST(AsciiGroups, SayNothingOfBlankLinesAtTheEnd)
{
    Findings findings;
    EXPECT_EQ(readText("0\nEOF\n\n  \n\n", &findings), (std::vector<Read>{{0, "EOF"}}));
    EXPECT_EQ(findings.total(), 0u);
}

TEST(AsciiGroups, DropACodeWithoutValue)
{
    EXPECT_EQ(readText("0\nEOF\n8"), (std::vector<Read>{{0, "EOF"}}));
}

TEST(AsciiGroups, RefuseCodesOutOfRange)
{
    EXPECT_EQ(readText("99999999999999999999\n0\nEOF\n"), (std::vector<Read>{{0, "EOF"}}));
}

TEST(AsciiGroups, ReadCodesWithBlanksOnBothSidesAndWithLeadingZeros)
{
    EXPECT_EQ(readText("0  \nA\n 8 \nB\n010\nC\n1001\nD\n  05\nE\n"),
              (std::vector<Read>{{0, "A"}, {8, "B"}, {10, "C"}, {1001, "D"}, {5, "E"}}));
}

TEST(AsciiGroups, TakeNothingForACodeThatOnlyResemblesOne)
{
    for (const char* line : {"1 0", "!8!", "+10", "1.0", "a", "8a", "-", "\x10\x11", "12345678"})
        EXPECT_EQ(readText(std::string(line) + "\n0\nEOF\n"), (std::vector<Read>{{0, "EOF"}}))
            << line;
}

/// Records of many sizes with all that can stand between them, more than is looked at at once.
std::string manyRecords(int count, const std::string& end)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "  0" + end + "RECORD" + std::to_string(i) + end;
        for (int k = 0; k < i % 23; ++k)
            text += " 10" + end + std::string(static_cast<std::size_t>(i * k % 97), 'x') + end;
        if (i % 5 == 0)
            text += "999" + end + "0" + end + "no code" + end;
        if (i % 7 == 0)
            text += "1000" + end + "0" + end;
    }
    return text;
}

class AsciiRecordsEndedBy : public testing::TestWithParam<const char*>
{
};

TEST_P(AsciiRecordsEndedBy, AreFoundOneAfterTheOther)
{
    constexpr int kCount = 400;
    const std::string end = GetParam();
    const FileBytes bytes = FileBytes::copyOf(manyRecords(kCount, end));
    Findings findings;
    AsciiGroups groups(bytes.data(), 0, bytes.size(), &findings);
    Group group;
    for (int i = 0; i < kCount; ++i) {
        ASSERT_TRUE(groups.nextRecord(group)) << i;
        EXPECT_EQ(group.text, "RECORD" + std::to_string(i));
        EXPECT_EQ(bytes.view().substr(group.offset, 3), "  0");
    }
    EXPECT_FALSE(groups.nextRecord(group));
    EXPECT_EQ(findings.total(), 80u); // the lines that are no code
}

INSTANTIATE_TEST_SUITE_P(LineEnds, AsciiRecordsEndedBy, testing::Values("\n", "\r\n", "\r"),
                         [](const auto& given) {
                             const std::string end = given.param;
                             return end == "\n" ? "LF" : end == "\r" ? "CR" : "CRLF";
                         });

/// Where the records of a text begin, and how many lines are no code.
struct Records
{
    std::vector<std::uint64_t> places;
    std::size_t findings = 0;
    bool operator==(const Records&) const = default;
};
void PrintTo(const Records& records, std::ostream* out)
{
    *out << testing::PrintToString(records.places) << ", findings: " << records.findings;
}

Records recordsOf(const std::string& text, bool (AsciiGroups::*step)(Group&))
{
    const FileBytes bytes = FileBytes::copyOf(text);
    Findings findings;
    AsciiGroups groups(bytes.data(), 0, bytes.size(), &findings);
    Records records;
    Group group;
    while ((groups.*step)(group)) {
        if (group.code == 0)
            records.places.push_back(group.offset);
    }
    records.findings = findings.total();
    return records;
}

/// A text of lines taken at random from those that codes and values can be.
std::string randomGroups(std::mt19937& random, const std::string& end)
{
    static const std::string kCodes[] = {"0",      "  0",
                                         "0  ",    "00",
                                         "\t0",    " 10",
                                         "40",     "330",
                                         "100",    "999",
                                         "005",    "1071",
                                         "  1000", "12345",
                                         "90000",  "-5",
                                         "",       "x",
                                         "1 0",    "100 ",
                                         "10\r",   std::string(70, ' ') + "0"};
    static const std::string kValues[] = {"",
                                          "0",
                                          "  0",
                                          "100",
                                          "1.5",
                                          "LINE",
                                          "a\rb",
                                          "7\r",
                                          std::string(61, 'v'),
                                          std::string(200, '0')};
    const auto pick = [&random](std::size_t count) { return random() % count; };
    std::string text;
    const std::size_t groups = pick(60);
    for (std::size_t i = 0; i < groups; ++i) {
        // Mostly plain codes, or none would be passed together.
        text += kCodes[pick(4) == 0 ? pick(std::size(kCodes)) : 5 + pick(4)] + end;
        text += kValues[pick(std::size(kValues))] + end;
    }
    return text.substr(0, text.size() - pick(3));
}

TEST(AsciiGroups, FindTheSameRecordsWhetherGroupsArePassedTogetherOrOneByOne)
{
    std::mt19937 random(20);
    for (int i = 0; i < 20000; ++i) {
        const std::string end = i % 5 == 0 ? "\r" : i % 2 == 0 ? "\n" : "\r\n";
        const std::string text = randomGroups(random, end);
        ASSERT_EQ(recordsOf(text, &AsciiGroups::nextRecord), recordsOf(text, &AsciiGroups::next))
            << testing::PrintToString(text);
    }
}

struct BinaryCase
{
    const char* name;
    bool narrow;
};

class BinaryGroupsOf : public testing::TestWithParam<BinaryCase>
{
  protected:
    std::vector<Group> read(const Groups& groups)
    {
        m_bytes = FileBytes::copyOf(asBinary(groups, GetParam().narrow));
        KdString error;
        EXPECT_EQ(recognise(m_bytes.view(), m_form, error), eOk);
        GroupStream stream(m_form, m_form.begin, m_bytes.size(), nullptr);
        std::vector<Group> all;
        Group group;
        while (stream.next(group))
            all.push_back(group);
        return all;
    }

    FileBytes m_bytes;
    FileForm m_form;
};

TEST_P(BinaryGroupsOf, IsRecognised)
{
    read({{0, "SECTION"}, {0, "EOF"}});
    EXPECT_TRUE(m_form.binary);
    EXPECT_EQ(m_form.width == CodeWidth::OneByte, GetParam().narrow);
}

TEST_P(BinaryGroupsOf, KeepsValuesOfEveryForm)
{
    const std::vector<Group> all = read({{0, "SECTION"},
                                         {10, "-1.5"},
                                         {70, "-2"},
                                         {90, "70000"},
                                         {160, "5000000000"},
                                         {290, "1"},
                                         {310, "00FF7A"},
                                         {1071, "-5"},
                                         {1004, "41"},
                                         {5, "A0F"}});
    ASSERT_EQ(all.size(), 10u);
    EXPECT_EQ(all[0].text, "SECTION");
    EXPECT_EQ(all[1].real, -1.5);
    EXPECT_EQ(all[2].integer, -2);
    EXPECT_EQ(all[3].integer, 70000);
    EXPECT_EQ(all[4].integer, 5000000000);
    EXPECT_EQ(all[5].integer, 1);
    EXPECT_EQ(all[6].text, std::string_view("\0\xFFz", 3));
    EXPECT_EQ(all[7].integer, -5);
    EXPECT_EQ(all[8].text, "A");
    EXPECT_EQ(looseHandleOf(all[9]), 0xA0Fu);
}

TEST_P(BinaryGroupsOf, LeavesOutAComment)
{
    const std::vector<Group> all = read({{999, "by hand"}, {0, "SECTION"}});
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0].text, "SECTION");
}

TEST_P(BinaryGroupsOf, EndsWhereAValueIsCutOff)
{
    std::string content = asBinary({{0, "SECTION"}, {10, "1"}}, GetParam().narrow);
    const std::size_t whole = content.size();
    for (std::size_t size = whole - 8; size < whole; ++size) {
        const FileBytes bytes = FileBytes::copyOf(content.substr(0, size));
        FileForm form;
        KdString error;
        ASSERT_EQ(recognise(bytes.view(), form, error), eOk);
        GroupStream stream(form, form.begin, bytes.size(), nullptr);
        Group group;
        EXPECT_TRUE(stream.next(group));
        EXPECT_FALSE(stream.next(group)) << size;
    }
}

INSTANTIATE_TEST_SUITE_P(Widths, BinaryGroupsOf,
                         testing::Values(BinaryCase{"codesOfOneByte", true},
                                         BinaryCase{"codesOfTwoBytes", false}),
                         [](const auto& row) { return row.param.name; });

/// A text as it stands in a file, where something follows it.
class TextInFile
{
  public:
    TextInFile(std::string_view text, char behind)
        : m_bytes(std::string(text) + std::string(kReadablePastEnd, behind)), m_size(text.size())
    {
    }
    std::string_view view() const { return std::string_view(m_bytes).substr(0, m_size); }

  private:
    std::string m_bytes;
    std::size_t m_size;
};

/// What stands behind a text counts for nothing, be it a digit.
constexpr char kBehind[] = {'\0', '\n', '7', '.', 'e', '\xFF'};

bool isSame(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

void expectReal(const std::string& text)
{
    for (const char behind : kBehind) {
        double value = 1.0;
        ASSERT_EQ(parseReal(TextInFile(text, behind).view(), value), NumberState::Good) << text;
        ASSERT_PRED2(isSame, value, std::strtod(text.c_str(), nullptr)) << text;
    }
}

TEST(Numbers, AreTheNearestToWhatIsWrittenHoweverManyDigitsThereAre)
{
    std::uint64_t state = 1;
    const auto next = [&state](std::uint64_t below) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return (state >> 33) % below;
    };
    for (int i = 0; i < 20000; ++i) {
        std::string text = next(2) ? "-" : "";
        for (std::uint64_t k = next(11); k > 0; --k)
            text += static_cast<char>('0' + next(10));
        const std::uint64_t decimals = text.ends_with('-') || text.empty() ? 1 : 0;
        text += '.';
        for (std::uint64_t k = decimals + next(20); k > 0; --k)
            text += static_cast<char>('0' + next(10));
        if (next(8) == 0)
            text += "e" + std::to_string(static_cast<int>(next(60)) - 30);
        expectReal(text);
    }
}

TEST(Numbers, AreTheNearestAtTheEdgesOfTheirForms)
{
    for (const char* text : {"1234567.5",
                             "12345678.5",
                             "0.12345678",
                             "0.123456789",
                             "7.1234567812345678",
                             "7.12345678123456781",
                             "123.1234567812345678",
                             "1234.1234567812345678",
                             "999.9999999999999999",
                             "9999999.999999999999",
                             "0.0000000000000001",
                             "0.9999999999999999",
                             "900719.9254740992",
                             "900719.9254740993",
                             "900719.9254740995",
                             "4503599.627370497",
                             "1.00000000000000011",
                             "1.0000000000000002",
                             "0.00000000",
                             "0.000000000",
                             "0000000.000000000000",
                             "0000001.5"})
        expectReal(text);
}

TEST(Numbers, KeepTheSignOfANegativeZero)
{
    for (const char* text : {"-0.0", "-0", "-0.0000000000", "-.0"})
        expectReal(text);
}

struct NumberCase
{
    const char* name;
    std::string_view text;
    double value;
    NumberState state;
};

class RealFrom : public testing::TestWithParam<NumberCase>
{
};

TEST_P(RealFrom, Text)
{
    for (const char behind : kBehind) {
        double value = -1.0;
        EXPECT_EQ(parseReal(TextInFile(GetParam().text, behind).view(), value), GetParam().state);
        EXPECT_PRED2(isSame, value, GetParam().value);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, RealFrom,
    testing::Values(
        NumberCase{"plain", "2.5", 2.5, NumberState::Good},
        NumberCase{"blanks", "  -7.25\t", -7.25, NumberState::Good},
        NumberCase{"blanksAround", " 1234.125 ", 1234.125, NumberState::Good},
        NumberCase{"plusSign", "+3", 3.0, NumberState::Good},
        NumberCase{"plusSignAndDecimals", "+3.25", 3.25, NumberState::Good},
        NumberCase{"whole", "90", 90.0, NumberState::Good},
        NumberCase{"wholeOfEightDigits", "12345678", 12345678.0, NumberState::Good},
        NumberCase{"exponent", "1.5E+02", 150.0, NumberState::Good},
        NumberCase{"negativeExponent", "-1.5e-2", -0.015, NumberState::Good},
        NumberCase{"pointAlone", ".5", 0.5, NumberState::Good},
        NumberCase{"pointAtTheEnd", "5.", 5.0, NumberState::Good},
        NumberCase{"twentyDigits", "12345678901234567890", 12345678901234567890.0,
                   NumberState::Good},
        NumberCase{"comma", "12,75", 12.75, NumberState::Comma},
        NumberCase{"commaAndExponent", "1,5e1", 15.0, NumberState::Comma},
        NumberCase{"commaAndRest", "1,5x", 1.5, NumberState::Malformed},
        NumberCase{"lettersBehind", "7abc", 7.0, NumberState::Malformed},
        NumberCase{"letterBehindDecimals", "7.125x", 7.125, NumberState::Malformed},
        NumberCase{"letterAmongDecimals", "7.5x25", 7.5, NumberState::Malformed},
        NumberCase{"letterBehindTenDecimals", "7.1234567890x", 7.123456789, NumberState::Malformed},
        NumberCase{"byteAmongDecimals",
                   "7.5\xFF"
                   "5",
                   7.5, NumberState::Malformed},
        NumberCase{"colon", "1:5", 1.0, NumberState::Malformed},
        NumberCase{"slashAmongDecimals", "2.5/5", 2.5, NumberState::Malformed},
        NumberCase{"twoPoints", "1.5.5", 1.5, NumberState::Malformed},
        NumberCase{"pointsTogether", "1..5", 1.0, NumberState::Malformed},
        NumberCase{"zeroByte", std::string_view("1.5\0", 4), 1.5, NumberState::Malformed},
        NumberCase{"twoSigns", "--1.5", 0.0, NumberState::Malformed},
        NumberCase{"signBehindPlus", "+-1.5", -1.5, NumberState::Good},
        NumberCase{"signInside", "1-5.5", 1.0, NumberState::Malformed},
        NumberCase{"blankBehindSign", "- 1.5", 0.0, NumberState::Malformed},
        NumberCase{"signAlone", "-", 0.0, NumberState::Malformed},
        NumberCase{"nothingButAPoint", ".", 0.0, NumberState::Malformed},
        NumberCase{"letters", "abc", 0.0, NumberState::Malformed},
        NumberCase{"nothing", "", 0.0, NumberState::Malformed},
        NumberCase{"notANumber", "nan", 0.0, NumberState::Malformed},
        NumberCase{"infinity", "inf", 0.0, NumberState::Malformed},
        NumberCase{"tooLarge", "1e999", 0.0, NumberState::Malformed}),
    [](const auto& row) { return row.param.name; });

struct IntegerCase
{
    const char* name;
    const char* text;
    std::int64_t value;
    NumberState state;
};

class IntegerFrom : public testing::TestWithParam<IntegerCase>
{
};

TEST_P(IntegerFrom, Text)
{
    std::int64_t value = -1;
    EXPECT_EQ(parseInteger(TextInFile(GetParam().text, '\n').view(), value), GetParam().state);
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, IntegerFrom,
    testing::Values(IntegerCase{"padded", "     6", 6, NumberState::Good},
                    IntegerCase{"negative", "-3", -3, NumberState::Good},
                    IntegerCase{"plusSign", "+3", 3, NumberState::Good},
                    IntegerCase{"writtenAsReal", "5.0", 5, NumberState::Good},
                    IntegerCase{"lettersBehind", "12 red", 12, NumberState::Malformed},
                    IntegerCase{"letters", "red", 0, NumberState::Malformed},
                    IntegerCase{"tooLarge", "99999999999999999999", 0, NumberState::Malformed}),
    [](const auto& row) { return row.param.name; });

TEST(ParseHandle, ReadsHexadecimalDigitsAlone)
{
    std::uint64_t handle = 7;
    EXPECT_TRUE(parseHandle(" 1aF ", handle));
    EXPECT_EQ(handle, 0x1AFu);
    EXPECT_FALSE(parseHandle("12G", handle));
    EXPECT_EQ(handle, 0u);
    EXPECT_FALSE(parseHandle("", handle));
}

} // namespace
