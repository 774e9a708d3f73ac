#include <runtime/kd_string.h>

#include <memory>
#include <string>
#include <unordered_set>
#include <utility>

#include <gtest/gtest.h>

#include <runtime/heap.h>

namespace {

int sign(int number)
{
    return (number > 0) - (number < 0);
}

TEST(KdString, BeginsEmpty)
{
    const KdString text;
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(text.length(), 0u);
    EXPECT_STREQ(text.kwszPtr(), L"");
    EXPECT_EQ(text, KdString(static_cast<const wchar_t*>(nullptr)));
    EXPECT_EQ(text, KdString(static_cast<const char*>(nullptr)));
    EXPECT_EQ(text, KdString(L""));
}

TEST(KdString, ComesFromBytesCharacterByCharacter)
{
    const KdString text("Gr\xF6\xDF"
                        "e");
    EXPECT_STREQ(text.kwszPtr(), L"Gr\u00F6\u00DFe");
}

TEST(KdString, KeepsCharactersBehindAZero)
{
    const KdString text(std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(text.length(), 3u);
    EXPECT_NE(text, KdString(L"a"));
}

TEST(KdString, SharesItsCharactersWithCopies)
{
    const KdString text(L"a text of some length");
    const long long before = kdHeapBlocksInUse();
    const KdString copy(text);
    KdString assigned;
    assigned = copy;
    EXPECT_EQ(kdHeapBlocksInUse(), before);
    EXPECT_EQ(copy.kwszPtr(), text.kwszPtr());
    EXPECT_EQ(assigned.kwszPtr(), text.kwszPtr());
}

TEST(KdString, LeavesCopiesAloneWhenItChanges)
{
    const KdString text(L"Text");
    KdString upper = text;
    upper.makeUpper();
    KdString longer = text;
    longer += L"s";
    EXPECT_STREQ(text.kwszPtr(), L"Text");
    EXPECT_STREQ(upper.kwszPtr(), L"TEXT");
    EXPECT_STREQ(longer.kwszPtr(), L"Texts");
}

TEST(KdString, LeaksNothing)
{
    const long long before = kdHeapBlocksInUse();
    {
        KdString one(L"one");
        KdString two = one + L"two";
        one = two;
        one = std::move(two);
        one.makeLower();
        const KdString& alias = one;
        one = alias;
        KdString three = std::move(one);
        three = KdString();
    }
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(KdString, SurvivesAssignmentToItself)
{
    KdString text(L"self");
    const KdString& alias = text;
    text = alias;
    EXPECT_STREQ(text.kwszPtr(), L"self");
    text = std::move(const_cast<KdString&>(alias));
    EXPECT_STREQ(text.kwszPtr(), L"self");
    text += text;
    EXPECT_STREQ(text.kwszPtr(), L"selfself");
}

TEST(KdString, IsEmptyAfterItWasMoved)
{
    KdString text(L"moved");
    const KdString target(std::move(text));
    EXPECT_TRUE(text.isEmpty()); // NOLINT(bugprone-use-after-move): that is what is asked
    EXPECT_EQ(target, L"moved");
}

TEST(KdString, LiesOnThePlatformsHeapWhenMadeWithNew)
{
    const long long before = kdHeapBlocksInUse();
    auto object = std::make_unique<KdString>();
    EXPECT_EQ(kdHeapBlocksInUse(), before + 1);
    *object = L"text";
    EXPECT_EQ(kdHeapBlocksInUse(), before + 2);
    object.reset();
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(KdString, CanBeBuiltInGivenStorage)
{
    const long long before = kdHeapBlocksInUse();
    alignas(KdString) std::byte storage[sizeof(KdString)];
    auto* object = new (storage) KdString;
    EXPECT_EQ(kdHeapBlocksInUse(), before);
    object->~KdString();
}

struct ComparisonRow
{
    const char* name;
    const wchar_t* left;
    const wchar_t* right;
    int exact;
    int noCase;
};

class KdStringComparison : public testing::TestWithParam<ComparisonRow>
{
};

TEST_P(KdStringComparison, IsTheSameForEveryKindOfOperand)
{
    const ComparisonRow& row = GetParam();
    const KdString left(row.left);
    const KdString right(row.right);
    EXPECT_EQ(sign(left.compare(right)), row.exact);
    EXPECT_EQ(sign(left.compare(row.right)), row.exact);
    EXPECT_EQ(sign(right.compare(left)), -row.exact);
    EXPECT_EQ(left == right, row.exact == 0);
    EXPECT_EQ(left == row.right, row.exact == 0);
    EXPECT_EQ(left < right, row.exact < 0);
    EXPECT_EQ(sign(left.compareNoCase(right)), row.noCase);
    EXPECT_EQ(sign(left.compareNoCase(row.right)), row.noCase);
    EXPECT_EQ(KdNameEqual()(left, right), row.noCase == 0);
    if (row.noCase == 0) {
        EXPECT_EQ(KdNameHash()(left), KdNameHash()(right));
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, KdStringComparison,
    testing::Values(ComparisonRow{"same", L"Layer", L"Layer", 0, 0},
                    ComparisonRow{"otherCase", L"LAYER", L"layer", -1, 0},
                    ComparisonRow{"beginning", L"Lay", L"Layer", -1, -1},
                    ComparisonRow{"emptyAndText", L"", L"a", -1, -1},
                    ComparisonRow{"bothEmpty", L"", L"", 0, 0},
                    ComparisonRow{"caseDecidesExactOrderOnly", L"b", L"C", 1, -1},
                    ComparisonRow{"umlauts", L"\u00C4RGER", L"\u00E4rger", -1, 0},
                    ComparisonRow{"cyrillic", L"\u0421\u041B\u041E\u0419",
                                  L"\u0441\u043B\u043E\u0439", -1, 0},
                    ComparisonRow{"beyondTheFirstPlane", L"\U00010400", L"\U00010428", -1, 0},
                    ComparisonRow{"sharpSIsNoDoubleS", L"\u00DF", L"ss", 1, 1},
                    ComparisonRow{"ideographs", L"\u5899", L"\u5898", 1, 1}),
    [](const auto& row) { return row.param.name; });

TEST(KdString, ComparesWithBytesByNumber)
{
    EXPECT_EQ(KdString(L"\u00E4").compare("\xE4"), 0);
    EXPECT_LT(KdString(L"a").compare("b"), 0);
    EXPECT_LT(KdString(L"a").compare("ab"), 0);
    EXPECT_GT(KdString(L"ab").compare("a"), 0);
    EXPECT_GT(KdString(L"\u0141").compare("\xFF"), 0);
    EXPECT_EQ(KdString().compare(static_cast<const char*>(nullptr)), 0);
    EXPECT_GT(KdString(L"a").compare(static_cast<const char*>(nullptr)), 0);
}

TEST(KdString, TakesNullAsEmptyInComparisons)
{
    EXPECT_EQ(KdString().compare(static_cast<const wchar_t*>(nullptr)), 0);
    EXPECT_GT(KdString(L"a").compareNoCase(static_cast<const wchar_t*>(nullptr)), 0);
}

TEST(KdString, ComparesWithoutAllocation)
{
    const KdString text(L"General:Color");
    const long long before = kdHeapBlocksInUse();
    EXPECT_NE(text.compare(L"General:Layer"), 0);
    EXPECT_NE(text.compare("General:Layer"), 0);
    EXPECT_EQ(text.compareNoCase(L"GENERAL:COLOR"), 0);
    EXPECT_EQ(text.findOneOf(L":"), 7);
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(KdString, ChangesCaseBeyondAscii)
{
    EXPECT_EQ(KdString(L"a\u00E4\u0436\u00DFZ1").makeUpper(), L"A\u00C4\u0416\u00DFZ1");
    EXPECT_EQ(KdString(L"A\u00C4\u0416z1").makeLower(), L"a\u00E4\u0436z1");
    EXPECT_EQ(KdString().makeUpper(), L"");
}

TEST(KdString, LeavesWhatIsNoCharacterAsItIs)
{
    for (const wchar_t odd :
         {wchar_t(-1), wchar_t(0xD800), wchar_t(0x110000), wchar_t(0x7FFFFFFF)}) {
        EXPECT_EQ(kdFoldCase(odd), odd);
        EXPECT_EQ(kdUpperCase(odd), odd);
    }
}

TEST(KdString, FindsTheFirstOfSeveralCharacters)
{
    const KdString text(L"a:b;c");
    EXPECT_EQ(text.findOneOf(L";:"), 1);
    EXPECT_EQ(text.findOneOf(L"xyz"), -1);
    EXPECT_EQ(text.findOneOf(L""), -1);
    EXPECT_EQ(text.findOneOf(nullptr), -1);
    EXPECT_EQ(KdString().findOneOf(L"a"), -1);
}

TEST(KdString, FindsAPart)
{
    const KdString text(L"ISO pen ISO");
    EXPECT_EQ(text.find(L"ISO"), 0);
    EXPECT_EQ(text.find(L"pen"), 4);
    EXPECT_EQ(text.find(L"iso"), -1);
    EXPECT_EQ(text.find(L""), 0);
    EXPECT_EQ(KdString().find(L"a"), -1);
}

TEST(KdString, GivesParts)
{
    const KdString text(L"BOOK$COLOR");
    EXPECT_EQ(text.substr(0, 4), L"BOOK");
    EXPECT_EQ(text.substr(5), L"COLOR");
    EXPECT_EQ(text.substr(5, 100), L"COLOR");
    EXPECT_EQ(text.substr(10), L"");
    EXPECT_EQ(text.substr(11, 3), L"");
    EXPECT_EQ(text.substr(3, 0), L"");
}

TEST(KdString, Joins)
{
    EXPECT_EQ(KdString(L"a") + L"b", L"ab");
    EXPECT_EQ(KdString() + L"b", L"b");
    EXPECT_EQ(KdString(L"a") + L"", L"a");
    KdString text(L"same");
    const wchar_t* before = text.kwszPtr();
    text += L"";
    EXPECT_EQ(text.kwszPtr(), before);
}

TEST(KdString, NamesAreFoundInAMapWithoutCase)
{
    std::unordered_set<KdString, KdNameHash, KdNameEqual> names{L"Wände", L"0"};
    EXPECT_TRUE(names.contains(std::wstring_view(L"WÄNDE")));
    EXPECT_FALSE(names.contains(std::wstring_view(L"WANDE")));
    EXPECT_FALSE(names.insert(L"wÄNDE").second);
}

} // namespace
