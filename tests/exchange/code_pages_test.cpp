// Every code page that drawings name, each with a character looked up in its published table.
#include <algorithm>

#include <gtest/gtest.h>

#include "made_drawing.h"
#include "text_decoder.h"

namespace {

struct PageRow
{
    const char* page;
    const char* bytes;
    const wchar_t* text;
};

// clang-format off
constexpr PageRow kPages[] = {
    {"ANSI_874",  "\xA1\xDF",         L"\u0E01\u0E3F"}, // KO KAI, BAHT
    {"ANSI_932",  "\x88\x9F\xB1",     L"\u4E9C\uFF71"}, // the first of the kanji; half-width A
    {"ANSI_936",  "\xB0\xA1\x81\x40", L"\u554A\u4E02"}, // the first of GB 2312 and of GBK
    {"ANSI_949",  "\xB0\xA1",         L"\uAC00"},       // the first syllable
    {"ANSI_950",  "\xA4\x40",         L"\u4E00"},       // one
    {"ANSI_1250", "\xA3\xB9",         L"\u0141\u0105"}, // L stroke, a ogonek
    {"ANSI_1251", "\xC0\xFF\xB9",     L"\u0410\u044F\u2116"},
    {"ANSI_1252", "\x80\xDF\xFF",     L"\u20AC\u00DF\u00FF"},
    {"ANSI_1253", "\xC1\xF9",         L"\u0391\u03C9"},
    {"ANSI_1254", "\xD0\xFD",         L"\u011E\u0131"}, // G breve, dotless i
    {"ANSI_1255", "\xE0\xFA",         L"\u05D0\u05EA"}, // alef, tav
    {"ANSI_1256", "\xC7.\x8D",        L"\u0627.\u0686"}, // alef, tcheh; as a pair they look like UTF-8
    {"ANSI_1257", "\xE0\xFE",         L"\u0105\u017E"},
    {"ANSI_1258", "\xD5\xFE",         L"\u01A0\u20AB"}, // O horn, dong
    {"gb2312",    "\xB0\xA1",         L"\u554A"},
    {"ANSI_1361", "\x88\x61",         L"\uAC00"},
    {"johab",     "\x88\x61",         L"\uAC00"},
    {"big5",      "\xA4\x40",         L"\u4E00"},
    {"ksc5601",   "\xB0\xA1",         L"\uAC00"},
    {"dos437",    "\x81\xE1\xEA",     L"\u00FC\u00DF\u03A9"},
    {"dos850",    "\x81\xE1\x9E",     L"\u00FC\u00DF\u00D7"},
    {"dos852",    "\xA5\x9D",         L"\u0105\u0141"},
    {"dos855",    "\xA1\xE0",         L"\u0410\u042F"},
    {"dos857",    "\xA6\x8D",         L"\u011E\u0131"},
    {"dos860",    "\x84\x8E",         L"\u00E3\u00C3"},
    {"dos861",    "\x95\x8B",         L"\u00FE\u00D0"},
    {"dos863",    "\x84\x86",         L"\u00C2\u00B6"},
    {"dos864",    "\xC7.\xB0",        L"\uFE8D.\u0660"}, // isolated alef, Arabic zero
    {"dos865",    "\x9B\xAF",         L"\u00F8\u00A4"},
    {"dos866",    "\x80\xEF",         L"\u0410\u044F"},
    {"dos869",    "\xA4\xFA",         L"\u0391\u03C9"},
    {"dos932",    "\x88\x9F",         L"\u4E9C"},
    {"iso8859_1", "\xC4\xFF",         L"\u00C4\u00FF"},
    {"iso8859_2", "\xA1\xB3",         L"\u0104\u0142"},
    {"iso8859_3", "\xA1\xFD",         L"\u0126\u016D"}, // H stroke, u breve
    {"iso8859_4", "\xA2\xFE",         L"\u0138\u016B"}, // kra, u macron
    {"iso8859_5", "\xB0\xF0",         L"\u0410\u2116"},
    {"iso8859_6", "\xC7\xD4",         L"\u0627\u0634"},
    {"iso8859_7", "\xC1\xF9",         L"\u0391\u03C9"},
    {"iso8859_8", "\xE0\xFA",         L"\u05D0\u05EA"},
    {"iso8859_9", "\xD0\xFD",         L"\u011E\u0131"},
    {"ascii",     "A",                L"A"},
    {"mac-roman", "\x80\xA7",         L"\u00C4\u00DF"},
};
// clang-format on

class EveryCodePage : public testing::TestWithParam<PageRow>
{
};

TEST_P(EveryCodePage, IsRead)
{
    dxf::TextDecoder decoder;
    ASSERT_TRUE(decoder.useCodePage(GetParam().page));
    EXPECT_EQ(decoder.decodeWide(GetParam().bytes), GetParam().text);
}

TEST_P(EveryCodePage, IsFoundByTheHeaderInAnyCase)
{
    std::string name = GetParam().page;
    for (char& c : name)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    const Groups text{{0, "TEXT"}, {8, GetParam().bytes}};
    const ReadDrawing drawn =
        readGroups(drawing({header("AC1015", name), section("ENTITIES", text)}));
    EXPECT_FALSE(drawn.hasFinding(DrawingFinding::UnknownCodePage));
    ASSERT_EQ(drawn.entities().size(), 1u);
    EXPECT_EQ(drawn.entities()[0]->layer(), GetParam().text);
}

std::string pageName(std::string name)
{
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Names, EveryCodePage, testing::ValuesIn(kPages),
                         [](const auto& row) { return pageName(row.param.page); });

/// A drawing whose every text holds an escaped character, and where each is looked for.
TEST(Escapes, AreReadWhereverTextStands)
{
    const std::string escaped = "a^I\\U+00E4\\M+1889F";
    const KdString text = L"a\t\u00E4\u4E9C";
    const Groups tables{{0, "LAYER"}, {2, escaped},    {1001, "AcAecLayerStandard"},
                        {1000, ""},   {1000, escaped}, {0, "LTYPE"},
                        {2, escaped}, {3, escaped},    {0, "STYLE"},
                        {2, escaped}, {3, escaped},    {0, "BLOCK_RECORD"},
                        {5, "1B"},    {2, escaped}};
    const Groups blocks{{0, "BLOCK"}, {2, escaped}, {4, escaped}, {0, "ENDBLK"}};
    const Groups entities{{0, "TEXT"},    {5, "A"},     {8, escaped},  {6, escaped},
                          {430, escaped}, {1, escaped}, {1001, "APP"}, {1000, escaped}};
    const Groups objects{{0, "DICTIONARY"}, {5, "C"}, {3, escaped}, {350, "C"}};
    const ReadDrawing drawn = readGroupsWhole(
        drawing({section("HEADER", {{9, "$ACADVER"}, {1, "AC1015"}, {9, "$CLAYER"}, {8, escaped}}),
                 section("TABLES", tables), section("BLOCKS", blocks),
                 section("ENTITIES", entities), section("OBJECTS", objects)}));
    EXPECT_FALSE(drawn.hasFinding(DrawingFinding::UndefinedLayer)); // the names agree
    EXPECT_FALSE(drawn.hasFinding(DrawingFinding::UndefinedLinetype));
    EXPECT_EQ(drawn.database->header().text(L"CLAYER"), text);
    ASSERT_TRUE(drawn.record<KdDbLayerTable>(text.kwszPtr()));
    EXPECT_EQ(drawn.record<KdDbLayerTable>(text.kwszPtr())->description(), text);
    EXPECT_EQ(drawn.record<KdDbLinetypeTable>(text.kwszPtr())->comments(), text);
    EXPECT_EQ(drawn.record<KdDbTextStyleTable>(text.kwszPtr())->fileName(), text);
    EXPECT_EQ(drawn.record<KdDbBlockTable>(text.kwszPtr())->comments(), text);
    const KdDbEntity& entity = *drawn.entities()[0];
    EXPECT_EQ(entity.layer(), text);
    EXPECT_EQ(entity.linetype(), text);
    const resbuf* end = nullptr;
    const resbuf* data = entity.extendedData(L"APP", end);
    ASSERT_TRUE(data);
    EXPECT_EQ(KdString(data->resval.rstring), text);
    KdString key;
    const OpenForRead<KdDbDictionary> root(drawn.database->namedObjectsDictionaryId());
    EXPECT_EQ(root->nameAt(root->objectId(), key), eOk);
    EXPECT_EQ(key, text);
}

} // namespace
