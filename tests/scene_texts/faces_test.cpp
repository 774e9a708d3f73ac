#include "support.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <thread>
#include <vector>

namespace {

using namespace text_test;

TEST(Face, IsThatOfTheStyle)
{
    KdDbTextStyleTableRecord style;
    style.edit().typeface = L"DejaVu Serif";
    style.edit().bold = true;
    const TextFace face = faceOf(&style);
    EXPECT_EQ(face.font.family, QFontInfo(QFont("DejaVu Serif")).family());
    EXPECT_TRUE(face.font.bold);
    EXPECT_FALSE(face.font.italic);
}

TEST(Face, FollowsFromTheNameOfAFontFile)
{
    EXPECT_EQ(faceOfFile(L"ARIALBD.TTF"), faceOfFamily(L"Arial", true, false));
    EXPECT_EQ(faceOfFile(L"C:\\Windows\\Fonts\\timesi.ttf"),
              faceOfFamily(L"Times New Roman", false, true));
    EXPECT_EQ(faceOfFile(L"/fonts/Somewhat Odd.otf"), faceOfFamily(L"Somewhat Odd", false, false));
}

TEST(Face, OfAShapeFontFillsTheRoomOfItsLetters)
{
    const QString alphabet("abcdefghijklmnopqrstuvwxyz");
    for (const wchar_t* name : {L"simplex.shx", L"ROMANS", L"romans.SHX"}) {
        const TextFace face = faceOfFile(name);
        EXPECT_NEAR(advanceOf(face.font, alphabet) * face.stretch, 21.0, kNear);
    }
    const TextFace narrow = faceOfFile(L"isocp.shx");
    EXPECT_NEAR(advanceOf(narrow.font, alphabet) * narrow.stretch, 17.2, kNear);
}

TEST(Face, IsPlainWhereTheStyleSaysNothing)
{
    const KdDbTextStyleTableRecord style;
    EXPECT_EQ(faceOf(&style), faceOf(nullptr));
    EXPECT_EQ(faceOfFile(L""), faceOf(nullptr));
    EXPECT_EQ(faceOfFile(L"unknown.shx"), faceOf(nullptr));
}

TEST(Face, IsOfTrueTypeByItsNameOrItsFile)
{
    KdDbTextStyleTableRecord style;
    EXPECT_FALSE(isTrueType(nullptr));
    EXPECT_FALSE(isTrueType(&style));
    style.edit().fileName = L"txt.shx";
    style.edit().vertical = true;
    EXPECT_FALSE(isTrueType(&style));
    EXPECT_TRUE(isVertical(&style));
    style.edit().fileName = L"Fonts\\ARIAL.TTF";
    EXPECT_TRUE(isTrueType(&style));
    EXPECT_FALSE(isVertical(&style));
    style.edit().fileName = L"";
    style.edit().typeface = L"Arial";
    EXPECT_TRUE(isTrueType(&style));
}

TEST(Face, IsFoundForAnyNumberOfNames)
{
    for (int i = 0; i < 5000; ++i) {
        const std::wstring name = L"No Such Family " + std::to_wstring(i);
        EXPECT_FALSE(faceOfFamily(name, false, false).font.family.isEmpty());
    }
}

TEST(Advance, IsThatOfTheFontForCapitalsOneHigh)
{
    const SceneFont font = faceOf(nullptr).font;
    const QFontMetricsF metrics(letterFont(font, 1000));
    for (const char* text : {"A", "AVAVA", "Some words, 12%"}) {
        EXPECT_NEAR(advanceOf(font, text), metrics.horizontalAdvance(text) / metrics.capHeight(),
                    0.005 * QString(text).size());
    }
    EXPECT_EQ(advanceOf(font, ""), 0.0);
    EXPECT_GT(descentOf(font), 0.1);
    EXPECT_LT(descentOf(font), 0.6);
}

TEST(Advance, IsTheSumOfItsLetters)
{
    const SceneFont font = faceOf(nullptr).font;
    const QString text = QString::fromWCharArray(L"Stra\u00DFe \u4E00\U0001D11E");
    double sum = 0.0;
    for (int at = 0; at < text.size(); at = letterEnd(text, at))
        sum += advanceOf(font, text.mid(at, letterEnd(text, at) - at));
    EXPECT_NEAR(advanceOf(font, text), sum, kNear);
}

TEST(Advance, TakesWholeTextsWhoseLettersJoin)
{
    const SceneFont font = faceOf(nullptr).font;
    const QFontMetricsF metrics(letterFont(font, 512));
    const QString text = QString::fromWCharArray(L"\u0633\u0644\u0627\u0645");
    EXPECT_NEAR(advanceOf(font, text), metrics.horizontalAdvance(text) / metrics.capHeight(), 0.01);
}

TEST(Advance, MayBeAskedForInSeveralThreads)
{
    const std::vector<SceneFont> fonts = {faceOfFamily(L"DejaVu Serif", false, true).font,
                                          faceOfFamily(L"DejaVu Sans Mono", true, false).font};
    std::vector<std::vector<double>> widths(4);
    std::vector<std::thread> threads;
    for (std::vector<double>& own : widths) {
        threads.emplace_back([&own, &fonts] {
            for (ushort letter = 0x20; letter < 0x600; ++letter)
                own.push_back(advanceOf(fonts[letter % 2], QString(QChar(letter))));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const std::vector<double>& own : widths)
        EXPECT_EQ(own, widths.front());
}

} // namespace
