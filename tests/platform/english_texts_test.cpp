#include "environment.h"

#include <platform/resources.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

namespace {

std::wstring text(const wchar_t* library, unsigned int id)
{
    const EnvironmentVariable language("LC_ALL", "C");
    wchar_t buffer[300];
    LoadStringW(LoadResourceDll(library), id, buffer, 300);
    return buffer;
}

struct TextRow
{
    const char* name;
    unsigned int id;
    const wchar_t* text;
};

class ModuleText : public testing::TestWithParam<TextRow>
{
};

TEST_P(ModuleText, StandsInTheEnglishLibraryLetterByLetter)
{
    EXPECT_EQ(text(L"KwQselectUtilRes.dll", GetParam().id), GetParam().text);
}

const TextRow kTextRows[] = {
    {"buttonTip", 11023, L"Select objects"},
    {"axisWithItsBlank", 24000, L" X"},
    {"lastAxis", 24002, L" Z"},
    {"countLine", 33646, L"\n%d item(s) selected."},
    {"colourWord", 34341, L"BYBlock"},
    {"shortColourWord", 35506, L"r"},
    {"firstArrow", 48281, L"None"},
    {"lastArrow", 48300, L"Dot small blank"},
    {"patternType", 48570, L"Custom"},
    {"tabBeforeTheCategory", 76537, L"\tGeneral:Color"},
    {"transparency", 76556, L"\tGeneral:Transparency"},
    {"normal", 76638, L"Geometry:Normal"},
    {"oneOfAFamily", 77044, L"Alternate units:Alt suppress trailing zeros"},
    {"fourTabs", 77358, L"Geometry:\t\t\t\tStart"},
    {"threeTabs", 77361, L"Geometry:\t\t\tEnd"},
    {"oneTab", 77367, L"Geometry:\tLength"},
    {"edge", 77383, L"Geometry:Edge 4"},
    {"scale", 77413, L"Geometry:Scale Z"},
    {"blockName", 77414, L"Misc:Name"},
    {"doubleColon", 77482, L"Misc::Name"},
    {"categoryOfAttributes", 77571, L"Attributes"},
    {"backslash", 77631, L"General:On\\of Status"},
    {"categoryOfDynamicProperties", 77676, L"Custom"},
    {"apostrophe", 77746, L"Surveyor's Units"},
    {"outOfItsRun", 77938, L"Centered above the dimension line"},
    {"restOfThatRun", 77718, L"By the first extension line"},
    {"flowDirection", 77850, L"Horizontal"},
    {"lineSpacing", 77854, L"Exactly"},
    {"multipleTypes", 78023, L"Multiple"},
    {"operatorNotEqual", 78028, L"<> Not Equal"},
    {"noObjects", 78041, L"There are no objects in the current drawing."},
    {"invalidValue", 78042, L"Invalid value"},
    {"generalCategory", 78044, L"\tGeneral:"},
    {"keyWithoutCategory", 78045, L"Start segment width"},
    {"blankBehindTheColon", 78047, L"Pattern: Hatch style"},
    {"odd", 78070, L"BUTTOM"},
    {"tabsOnBothSides", 78148, L"\tStretch frame:\t\t\t\tVertex"},
    {"spellingOfTheFirstUse", 78305, L"Constrain:Name"},
    {"greatestNumber", 78391, L"Geometry:Horizontal Start Extension"},
};
INSTANTIATE_TEST_SUITE_P(Rows, ModuleText, testing::ValuesIn(kTextRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ModuleTexts, HoldNoNumberThatIsNotUsed)
{
    for (const unsigned int unused : {0u, 24003u, 48301u, 77450u, 78291u, 78392u})
        EXPECT_EQ(text(L"KwQselectUtilRes.dll", unused), L"") << unused;
}

TEST(ArrowNames, AreNoKeysOfLaterArrows)
{
    // A name that equals a later key would be taken for that key and named once more.
    const wchar_t* const keys[] = {L"NONE",        L"CLOSED",     L"DOT",       L"CLOSEDFILLED",
                                   L"CLOSEDBLANK", L"OBLIQUE",    L"ARCHTICK",  L"OPEN",
                                   L"ORIGIN",      L"ORIGIN2",    L"OPEN90",    L"OPEN30",
                                   L"DOTBLANK",    L"DOTSMALL",   L"BOXFILLED", L"BOXBLANK",
                                   L"DATUMFILLED", L"DATUMBLANK", L"INTEGRAL",  L"SMALL"};
    for (unsigned int arrow = 0; arrow < 20; ++arrow)
        for (unsigned int later = arrow + 1; later < 20; ++later)
            EXPECT_NE(wcscasecmp(text(L"KwQselectUtilRes.dll", 48281 + arrow).c_str(), keys[later]),
                      0)
                << arrow;
}

/// The texts of a file that has each on one line, by their numbers.
std::map<unsigned int, std::wstring> textsOfFile(const std::string& file)
{
    std::map<unsigned int, std::wstring> texts;
    std::ifstream stream(file);
    unsigned int id = 0;
    for (std::string line; std::getline(stream, line);) {
        const std::size_t quote = line.find('"');
        if (line.starts_with("msgctxt"))
            id = static_cast<unsigned int>(std::atoi(line.c_str() + quote + 1));
        if (!line.starts_with("msgstr") || id == 0)
            continue;
        std::wstring text;
        for (std::size_t at = quote + 1; at + 1 < line.size(); ++at) {
            const bool isEscape = line[at] == '\\';
            const char c = isEscape ? line[++at] : line[at];
            text += isEscape && c == 't' ? L'\t' : isEscape && c == 'n' ? L'\n' : wchar_t(c);
        }
        texts[id] = text;
    }
    return texts;
}

class EnglishLibrary : public testing::TestWithParam<std::string>
{
};

TEST_P(EnglishLibrary, HoldsEveryTextOfItsFile)
{
    const auto texts = textsOfFile(KW_SOURCE_DIR "/resources/en/" + GetParam() + ".po");
    ASSERT_GT(texts.size(), 100u);
    const std::wstring library(GetParam().begin(), GetParam().end());
    for (const auto& [id, expected] : texts)
        EXPECT_EQ(text(library.c_str(), id), expected) << id;
}

#ifdef KW_MSGFMT
TEST_P(EnglishLibrary, IsMadeFromAFileThatStandardToolsAccept)
{
    const std::string command =
        KW_MSGFMT " -c -o /dev/null " KW_SOURCE_DIR "/resources/en/" + GetParam() + ".po";
    EXPECT_EQ(std::system(command.c_str()), 0);
}
#endif

INSTANTIATE_TEST_SUITE_P(Libraries, EnglishLibrary,
                         testing::Values("KwQselectUtilRes", "KrxOPMRes"),
                         [](const auto& row) { return row.param; });

struct TypeRow
{
    unsigned int id;
    const wchar_t* text;
};

TEST(TypeNames, AreThoseThatDraftersKnow)
{
    const TypeRow rows[] = {{51060, L"3D Face"},          {51069, L"Line"},
                            {51072, L"Polyline"},         {51071, L"MText"},
                            {51100, L"3D Polyline"},      {51139, L"Jogged Radial Dimension"},
                            {51264, L"Linear Parameter"}, {51288, L"Rotation Grip"}};
    for (const TypeRow& row : rows)
        EXPECT_EQ(text(L"KrxOPMRes.dll", row.id), row.text);
}

TEST(TypeNames, TellTypesApart)
{
    std::map<std::wstring, unsigned int> idsByName;
    for (const auto& [id, name] : textsOfFile(KW_SOURCE_DIR "/resources/en/KrxOPMRes.po")) {
        const auto [other, isNew] = idsByName.emplace(name, id);
        // Two class names of one and the same type.
        const bool isPolyline = other->second == 51072 && id == 51073;
        EXPECT_TRUE(isNew || isPolyline) << id << " and " << other->second;
    }
}

} // namespace
