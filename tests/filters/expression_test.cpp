#include <common/expression.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include <gtest/gtest.h>

#include <runtime/utf8.h>

namespace {

/// The tree in brackets: "(and [Circle|Radius] > 5, (not [Layer] = X))".
std::string inWords(const Expression& expression)
{
    switch (expression.kind) {
    case Expression::Kind::Comparison: {
        std::string text = "[";
        for (const std::wstring& piece : expression.comparison.subject)
            text += (text.size() > 1 ? "|" : "") + kdToUtf8(piece);
        text += ']';
        if (!expression.comparison.op.empty())
            text += ' ' + kdToUtf8(expression.comparison.op) + " <" +
                    kdToUtf8(expression.comparison.value) + '>';
        return text;
    }
    case Expression::Kind::Named:
        return '@' + kdToUtf8(expression.name);
    default:
        break;
    }
    std::string text = expression.kind == Expression::Kind::Not   ? "(not"
                       : expression.kind == Expression::Kind::And ? "(and"
                                                                  : "(or";
    for (const Expression& part : expression.parts)
        text += ' ' + inWords(part);
    return text + ')';
}

struct Accepted
{
    const char* name;
    const wchar_t* text;
    const char* tree;
};

constexpr Accepted kAccepted[] = {
    {"aTypeAlone", L"Circle", "[Circle]"},
    {"aNameOfSeveralWords", L"  Block Reference ", "[Block Reference]"},
    {"typePropertyAndValue", L"Circle: Radius > 5", "[Circle|Radius] > <5>"},
    {"noBlanks", L"Circle:Radius>5", "[Circle|Radius] > <5>"},
    {"aWholeKey", L"Circle: Geometry:Radius <> 5", "[Circle|Geometry|Radius] <> <5>"},
    {"allTypes", L"*: Layer = 0", "[*|Layer] = <0>"},
    {"anAxis", L"Line: Start X < -2.5", "[Line|Start X] < <-2.5>"},
    {"aWildcardMatch", L"Text: Contents * *TODO*", "[Text|Contents] * <*TODO*>"},
    {"starsInAValue", L"Layer = PIPES*", "[Layer] = <PIPES*>"},
    {"feetAndInches", L"Line: Length = 2'-6 1/2\"", "[Line|Length] = <2'-6 1/2\">"},
    {"aValueWithBlanks", L"Layer = My layer", "[Layer] = <My layer>"},
    {"aQuotedValue", L"Layer = \"A and B\"", "[Layer] = <A and B>"},
    {"theEmptyValue", L"Hyperlink = \"\"", "[Hyperlink] = <>"},
    {"aDoubledQuote", L"Name = \"2\"\" pipe\"", "[Name] = <2\" pipe>"},
    {"aQuotedName", L"\"Salt and pepper\": \"a:b\" = 1", "[Salt and pepper|a:b] = <1>"},
    {"aValueInBrackets", L"Contents = f(x) and Layer = 0",
     "(and [Contents] = <f(x)> [Layer] = <0>)"},
    {"bothOfThree", L"A = 1 and B = 2 AND C = 3", "(and [A] = <1> [B] = <2> [C] = <3>)"},
    {"andBindsCloserThanOr", L"A = 1 or B = 2 and C = 3",
     "(or [A] = <1> (and [B] = <2> [C] = <3>))"},
    {"bracketsGoFirst", L"(A = 1 or B = 2) and C = 3", "(and (or [A] = <1> [B] = <2>) [C] = <3>)"},
    {"bracketsKeepTheirPlace", L"(A or B) or C", "(or (or [A] [B]) [C])"},
    {"notBindsClosest", L"not A = 1 and B = 2", "(and (not [A] = <1>) [B] = <2>)"},
    {"notOfABracket", L"not(A or B)", "(not (or [A] [B]))"},
    {"notTwice", L"not not A", "(not (not [A]))"},
    {"wordsInsideOfWords", L"Hand = Orlando", "[Hand] = <Orlando>"},
    {"wordsAtTheBeginningOfWords", L"Order = andante", "[Order] = <andante>"},
    {"aFilterByName", L"@pipes and not @small", "(and @pipes (not @small))"},
    {"aFilterByNameInBrackets", L"(@pipes)", "@pipes"},
    {"aNameThatIsAWord", L"\"not\" = 1", "[not] = <1>"},
    {"lettersBeyondAscii", L"Straße: Länge > 5", "[Straße|Länge] > <5>"},
};

class AcceptedExpression : public testing::TestWithParam<Accepted>
{
};

TEST_P(AcceptedExpression, IsReadAs)
{
    const auto read = readExpression(GetParam().text);
    ASSERT_TRUE(std::holds_alternative<Expression>(read))
        << std::get<ExpressionProblem>(read).reason;
    EXPECT_EQ(inWords(std::get<Expression>(read)), GetParam().tree);
}

INSTANTIATE_TEST_SUITE_P(Text, AcceptedExpression, testing::ValuesIn(kAccepted),
                         [](const auto& row) { return row.param.name; });

struct Refused
{
    const char* name;
    const wchar_t* text;
    std::size_t place;
    const char* reason; ///< a part of it
};

constexpr Refused kRefused[] = {
    {"nothing", L"", 0, "a type or a property"},
    {"blanks", L"   ", 3, "a type or a property"},
    {"noValue", L"Radius >", 8, "a value is expected"},
    {"noValueBeforeAWord", L"Radius > and Layer = 0", 9, "a value is expected"},
    {"noSubject", L"= 5", 0, "a type or a property"},
    {"nothingBehindAColon", L"Circle: > 5", 0, "a type or a property"},
    {"nothingBeforeAColon", L": Radius > 5", 0, "a type or a property"},
    {"nothingBehindAnd", L"A = 1 and", 9, "a type or a property"},
    {"nothingBetweenWords", L"A = 1 and or B", 10, "a type or a property"},
    {"nothingBehindNot", L"not", 3, "a type or a property"},
    {"anOpenBracket", L"A or (B = 1", 5, "never closed"},
    {"aLostBracket", L"A = 1)", 5, "no bracket"},
    {"emptyBrackets", L"()", 1, "a type or a property"},
    {"aBracketBehindAName", L"Circle (Radius > 5)", 7, "\"and\", \"or\" or the end"},
    {"anOpenQuote", L"Layer = \"WALLS", 8, "quote is never closed"},
    {"wordsBehindAQuotedValue", L"Layer = \"A\" B", 12, "\"and\", \"or\" or the end"},
    {"wordsBehindAQuotedName", L"\"Layer\" X = A", 8, "colon or an operator"},
    {"noNameOfAFilter", L"@ = 5", 1, "name of a filter"},
};

class RefusedExpression : public testing::TestWithParam<Refused>
{
};

TEST_P(RefusedExpression, TellsPlaceAndReason)
{
    const auto read = readExpression(GetParam().text);
    ASSERT_TRUE(std::holds_alternative<ExpressionProblem>(read))
        << inWords(std::get<Expression>(read));
    const auto& problem = std::get<ExpressionProblem>(read);
    EXPECT_EQ(problem.place, GetParam().place);
    EXPECT_NE(problem.reason.find(GetParam().reason), std::string::npos) << problem.reason;
}

INSTANTIATE_TEST_SUITE_P(Text, RefusedExpression, testing::ValuesIn(kRefused),
                         [](const auto& row) { return row.param.name; });

TEST(Expression, RefusesBracketsThatGoTooDeep)
{
    const std::wstring deep(100'000, L'(');
    EXPECT_TRUE(std::holds_alternative<ExpressionProblem>(readExpression(deep)));
    std::wstring nots;
    for (int i = 0; i < 10'000; ++i)
        nots += L"not ";
    EXPECT_TRUE(std::holds_alternative<ExpressionProblem>(readExpression(nots + L"A")));
}

TEST(Expression, KnowsThePlacesOfNameAndValue)
{
    const auto read = readExpression(L"A = 1 or  Circle: Radius >  5");
    const Comparison& second = std::get<Expression>(read).parts[1].comparison;
    EXPECT_EQ(second.place, 10u);
    EXPECT_EQ(second.valuePlace, 28u);
}

TEST(Expression, MarksAPlaceUnderTheText)
{
    EXPECT_EQ(markedPlace(L"A\t= (1", 4), "  A = (1\n      ^");
    EXPECT_EQ(markedPlace(L"A", 99), "  A\n   ^");
}

class WrittenExpression : public testing::TestWithParam<Accepted>
{
};

TEST_P(WrittenExpression, ReadsBackAsTheSame)
{
    const auto read = readExpression(GetParam().text);
    const auto again = readExpression(textOf(std::get<Expression>(read).comparison));
    ASSERT_TRUE(std::holds_alternative<Expression>(again));
    EXPECT_EQ(inWords(std::get<Expression>(again)), GetParam().tree);
}

/// The rows that are one comparison.
std::vector<Accepted> comparisons()
{
    std::vector<Accepted> rows;
    std::copy_if(std::begin(kAccepted), std::end(kAccepted), std::back_inserter(rows),
                 [](const Accepted& row) { return row.tree[0] == '['; });
    return rows;
}

INSTANTIATE_TEST_SUITE_P(Text, WrittenExpression, testing::ValuesIn(comparisons()),
                         [](const auto& row) { return row.param.name; });

TEST(WrittenName, StandsBetweenQuotesOnlyWhereItHasTo)
{
    EXPECT_EQ(writtenName(L"Block Reference"), L"Block Reference");
    EXPECT_EQ(writtenName(L"A and B"), L"\"A and B\"");
    EXPECT_EQ(writtenName(L"not"), L"\"not\"");
    EXPECT_EQ(writtenName(L"A:B"), L"\"A:B\"");
    EXPECT_EQ(writtenName(L"*"), L"\"*\"");
}

TEST(WrittenValue, StandsBetweenQuotesOnlyWhereItHasTo)
{
    EXPECT_EQ(writtenValue(L"*TODO*"), L"*TODO*");
    EXPECT_EQ(writtenValue(L"2\" pipe"), L"2\" pipe");
    EXPECT_EQ(writtenValue(L"\"x\""), L"\"\"\"x\"\"\"");
    EXPECT_EQ(writtenValue(L" x"), L"\" x\"");
    EXPECT_EQ(writtenValue(L"A or B"), L"\"A or B\"");
    EXPECT_EQ(writtenValue(L""), L"\"\"");
}

} // namespace
