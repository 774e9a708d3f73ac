// Under locales of other countries, which the build makes for these tests.
#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <editor/units.h>
#include <platform/locale.h>
#include <runtime/number_text.h>
#include <values/angle_text.h>
#include <values/distance_text.h>
#include <values/linear_text.h>
#include <values/point_text.h>
#include <values/real_text.h>

#include <runtime/export.h>

#include "support.h"

// The C library itself never frees the folders that it takes from LOCPATH.
extern "C" KW_EXPORT const char* __lsan_default_suppressions();
extern "C" KW_EXPORT const char* __lsan_default_suppressions()
{
    return "leak:__argz_add_sep";
}

namespace {

/// Makes a locale that of the user and of the process for a scope.
class LocaleScope
{
  public:
    explicit LocaleScope(const char* name)
    {
        setenv("LOCPATH", KW_TEST_LOCALES, 1);
        setenv("LC_ALL", name, 1);
        EXPECT_NE(nullptr, std::setlocale(LC_ALL, ""));
    }
    ~LocaleScope()
    {
        std::setlocale(LC_ALL, "C");
        unsetenv("LC_ALL");
        unsetenv("LOCPATH");
    }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;
};

class GermanTest : public UnitsTest
{
  protected:
    LocaleScope m_locale{"de_DE.UTF-8"};
};

TEST_F(GermanTest, TheStandardLibraryPrintsACommaHere)
{
    std::array<char, 16> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%.1f", 1.5);
    EXPECT_STREQ("1,5", buffer.data());
}

TEST_F(GermanTest, ReadersTakeADotAlone)
{
    double value = 0.0;
    for (const wchar_t* text : {L"1.5", L"15e-1", L"1.5\"", L"1 1/2"}) {
        EXPECT_EQ(RTNORM, ConvertStringToDistance(text, -1, &value, false));
        EXPECT_DOUBLE_EQ(1.5, value);
    }
    EXPECT_EQ(RTERROR, ConvertStringToDistance(L"1,5", -1, &value, false));
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(0, L"1.5r", -1, &value));
    EXPECT_DOUBLE_EQ(1.5, value);
    EXPECT_EQ(1.5, kdReadReal(L"1.5,5"));
    KdGePoint3d point;
    EXPECT_EQ(RTNORM, stringTo3dPoint(KdString(L"1.5,2.5,3.5"), -1, point));
    EXPECT_EQ((KdGePoint3d{1.5, 2.5, 3.5}), point);
}

TEST_F(GermanTest, PrintersWriteADotAlone)
{
    CStdStr<wchar_t> text;
    EXPECT_EQ(RTNORM, formatLinear(text, 1234.5));
    EXPECT_STREQ(L"1234.5000", text.c_str());
    EXPECT_EQ(RTNORM, realAreaToString(1234.5, 2, 1, text));
    EXPECT_STREQ(L"1234.5", text.c_str());
    EXPECT_EQ(RTNORM, realAreaToString(1234.5, 1, 1, text));
    EXPECT_STREQ(L"1.2E+03", text.c_str());
    EXPECT_EQ(RTNORM, realAreaToString(146.5, 3, 1, text));
    EXPECT_STREQ(L"1'-2.5\"", text.c_str());
    EXPECT_EQ(RTNORM, point3dToString({1.5, 2.5, 3.5}, 2, 1, text));
    EXPECT_STREQ(L"1.5,2.5,3.5", text.c_str());
    KdString angle;
    EXPECT_EQ(RTNORM, kddbAngToS(1.5, angle, 3, 1));
    EXPECT_EQ(L"1.5r", std::wstring(angle.view()));
}

std::wstring habit(unsigned long which)
{
    std::array<wchar_t, 80> buffer;
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, which, buffer.data(), 80);
    return length > 0 ? std::wstring(buffer.data()) : L"(none)";
}

TEST_F(GermanTest, HabitsAreThoseOfTheUser)
{
    EXPECT_EQ(L",", habit(LOCALE_SDECIMAL));
    EXPECT_EQ(L".", habit(LOCALE_STHOUSAND));
    EXPECT_EQ(L"3;0", habit(LOCALE_SGROUPING));
    EXPECT_EQ(L"1", habit(LOCALE_INEGNUMBER));
}

TEST_F(GermanTest, TheLocaleOfTheProcessHasNoPartInThem)
{
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(L",", habit(LOCALE_SDECIMAL));
}

std::wstring inUserUnits(double value, int precision, int zeros)
{
    KdDbHeaderVariables variables;
    EXPECT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(L"DIMALTTZ"), zeros));
    std::array<wchar_t, 128> buffer;
    constexpr int kUserLocale = 8;
    constexpr int kDimalttz = -3;
    EXPECT_EQ(RTNORM, KdadConvertRealToStringInternal(KdDbHeaderVar(variables), value, kUserLocale,
                                                      precision, buffer.data(), buffer.size(),
                                                      RealKind::Dimension, kDimalttz, 0));
    return buffer.data();
}

TEST_F(GermanTest, DimensionsInUserUnitsFollowThem)
{
    EXPECT_EQ(L"1.234.567,50", inUserUnits(1234567.5, 2, 0));
    EXPECT_EQ(L"-1.234,5", inUserUnits(-1234.5, 2, 8)) << "as many decimals as are left";
}

TEST_F(GermanTest, TheLeadingZeroOfUserUnitsIsTheBitItself)
{
    EXPECT_EQ(L",50", inUserUnits(0.5, 2, 0));
    EXPECT_EQ(L"0,50", inUserUnits(0.5, 2, 4));
}

TEST(OtherLocales, GroupsMayDifferInSize)
{
    const LocaleScope locale("en_IN.UTF-8");
    EXPECT_EQ(L"3;2;0", habit(LOCALE_SGROUPING));
    EXPECT_EQ(L"1,23,45,678.50", inUserUnits(12345678.5, 2, 0));
}

TEST(OtherLocales, SeparatorsMayLieOutsideOfAscii)
{
    const LocaleScope locale("fr_FR.UTF-8");
    EXPECT_EQ(L"\u202F", habit(LOCALE_STHOUSAND));
    EXPECT_EQ(L"1\u202F234,50", inUserUnits(1234.5, 2, 0));
}

TEST(OtherLocales, OneThatIsNotInstalledLeavesTheNeutralForm)
{
    setenv("LC_ALL", "xx_XX.UTF-8", 1);
    EXPECT_EQ(L"(none)", habit(LOCALE_SDECIMAL));
    EXPECT_EQ(L"1234.50", inUserUnits(1234.5, 2, 0));
    unsetenv("LC_ALL");
}

} // namespace
