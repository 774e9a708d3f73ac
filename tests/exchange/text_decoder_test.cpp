#include <string>

#include <gtest/gtest.h>

#include "text_decoder.h"
#include "utf8.h"

namespace {

using namespace dxf;

struct PageCase
{
    const char* name;
    const char* page;
    std::string bytes;
    std::wstring text;
};

class TextDecoderFor : public testing::TestWithParam<PageCase>
{
};

TEST_P(TextDecoderFor, ReadsItsPage)
{
    TextDecoder decoder;
    ASSERT_TRUE(decoder.useCodePage(GetParam().page));
    EXPECT_EQ(decoder.decodeWide(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    CodePages, TextDecoderFor,
    testing::Values(PageCase{"western", "ANSI_1252", "\xC4\xE4\x80", L"\u00C4\u00E4\u20AC"},
                    PageCase{"lowerCaseName", "ansi_1252", "\xDF", L"\u00DF"},
                    PageCase{"centralEuropean", "ANSI_1250", "\xE8\xEC", L"\u010D\u011B"},
                    PageCase{"cyrillic", "ANSI_1251", "\xCF\xEB\xE0\xED",
                             L"\u041F\u043B\u0430\u043D"},
                    PageCase{"hebrew", "ANSI_1255", "\xF9", L"\u05E9"},
                    PageCase{"vietnamese", "ANSI_1258", "\xD0", L"\u0110"},
                    PageCase{"thai", "ANSI_874", "\xA1", L"\u0E01"},
                    PageCase{"dos", "dos850", "\x84", L"\u00E4"},
                    PageCase{"iso", "iso8859_5", "\xB0", L"\u0410"},
                    PageCase{"macintosh", "mac-roman", "\x8A", L"\u00E4"},
                    PageCase{"japanese", "ANSI_932", "\x93\x8C\x8B\x9E", L"\u6771\u4EAC"},
                    PageCase{"japaneseSingles", "ANSI_932", "\xB1\xB2", L"\uFF71\uFF72"},
                    PageCase{"simplifiedChinese", "ANSI_936", "\xC4\xA3\xD0\xCD", L"\u6A21\u578B"},
                    PageCase{"korean", "ANSI_949", "\xC7\xD1", L"\uD55C"},
                    PageCase{"johab", "ANSI_1361", "\xD0\x65", L"\uD55C"},
                    PageCase{"traditionalChinese", "big5", "\xA4\xA4", L"\u4E2D"},
                    // The second byte is a backslash or a caret and no escape.
                    PageCase{"backslashInPair", "ANSI_932", "\x95\x5CU+0041", L"\u8868U+0041"},
                    PageCase{"caretInPair", "ANSI_932", "\x83\x5EJ", L"\u30BFJ"},
                    PageCase{"pairCutOff", "ANSI_936", "a\xC4", L"a\uFFFD"},
                    PageCase{"noCharacterThere", "ANSI_1252", "\x81", L"\uFFFD"}),
    [](const auto& row) { return row.param.name; });

TEST(TextDecoder, RefusesUnknownPages)
{
    TextDecoder decoder;
    EXPECT_FALSE(decoder.useCodePage("ANSI_4711"));
    EXPECT_EQ(decoder.decodeWide("\xE4"), L"\u00E4");
}

struct EscapeCase
{
    const char* name;
    std::string bytes;
    std::wstring text;
};

class TextDecoderOn : public testing::TestWithParam<EscapeCase>
{
};

TEST_P(TextDecoderOn, Escapes)
{
    const TextDecoder decoder;
    EXPECT_EQ(decoder.decodeWide(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Escapes, TextDecoderOn,
    testing::Values(EscapeCase{"none", "plain text", L"plain text"},
                    EscapeCase{"unicode", "\\U+00E4b", L"\u00E4b"},
                    EscapeCase{"lowerCaseDigits", "\\U+20ac", L"\u20AC"},
                    EscapeCase{"surrogatePair", "\\U+D83D\\U+DE00", L"\U0001F600"},
                    EscapeCase{"loneSurrogate", "\\U+D83Dx", L"\uFFFDx"},
                    EscapeCase{"tooShort", "\\U+12", L"\\U+12"},
                    EscapeCase{"japanesePair", "\\M+1938C", L"\u6771"},
                    EscapeCase{"traditionalPair", "\\M+2A4A4", L"\u4E2D"},
                    EscapeCase{"koreanPair", "\\M+3C7D1", L"\uD55C"},
                    EscapeCase{"johabPair", "\\M+4D065", L"\uD55C"},
                    EscapeCase{"simplifiedPair", "\\M+5C4A3", L"\u6A21"},
                    EscapeCase{"unknownPage", "\\M+9C4A3", L"\\M+9C4A3"},
                    EscapeCase{"lineFeed", "a^Jb", L"a\nb"},
                    EscapeCase{"tabulator", "a^Ib", L"a\tb"}, EscapeCase{"caret", "a^ b", L"a^b"},
                    EscapeCase{"caretBeforeALetter", "a^b", L"a^b"},
                    EscapeCase{"caretAtTheEnd", "a^", L"a^"},
                    EscapeCase{"otherBackslash", "\\P\\S1/2;", L"\\P\\S1/2;"}),
    [](const auto& row) { return row.param.name; });

TEST(TextDecoder, ReadsUtf8)
{
    TextDecoder decoder;
    decoder.useUtf8();
    EXPECT_EQ(decoder.decodeWide("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"),
              L"\u00E4\u20AC\U0001F600");
}

TEST(TextDecoder, PutsAReplacementForMalformedUtf8)
{
    TextDecoder decoder;
    decoder.useUtf8();
    EXPECT_EQ(decoder.decodeWide("a\xFFz"), L"a\uFFFDz");
    EXPECT_EQ(decoder.decodeWide("\xC3"), L"\uFFFD");
    EXPECT_EQ(decoder.decodeWide("\xC0\x80").size(), 2u);        // a longer form than needed
    EXPECT_EQ(decoder.decodeWide("\xED\xA0\x80")[0], L'\uFFFD'); // half a pair
}

TEST(FindUtf8, CountsCharactersUpToTheFirstFault)
{
    const std::string filler(100, 'x');
    EXPECT_EQ(findUtf8(filler).characters, 0u);
    EXPECT_TRUE(findUtf8(filler + "\xC3\xA4" + filler).wellFormed);
    EXPECT_EQ(findUtf8("\xC3\xA4" + filler + "\xE2\x82\xAC").characters, 2u);
    EXPECT_FALSE(findUtf8(filler + "\xC3\xA4\xE4 ").wellFormed);
}

} // namespace
