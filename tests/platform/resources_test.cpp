#include "environment.h"

#include <platform/resources.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

constexpr wchar_t kTestLibrary[] = L"TestRes.dll";

class Resources : public testing::Test
{
  protected:
    Resources() { setResourceFolder(KW_TEST_RESOURCES); }
    ~Resources() override
    {
        while (AfxGetResourceHandle())
            RestorePreviousResource();
        setResourceFolder({});
        setResourceLanguage("");
    }

    static std::wstring text(HINSTANCE library, unsigned int id)
    {
        wchar_t buffer[100] = L"untouched";
        const int length = LoadStringW(library, id, buffer, 100);
        EXPECT_EQ(static_cast<std::size_t>(length), std::wstring(buffer).size());
        return buffer;
    }

    EnvironmentVariable m_language{"LC_ALL", "C"};
};

TEST_F(Resources, GivesTheLibrarysOwnTextWhenAskedForItsPlace)
{
    const HINSTANCE library = LoadResourceDll(kTestLibrary);
    ASSERT_TRUE(library);
    wchar_t* place = nullptr;
    const int length = LoadStringW(library, 24000, reinterpret_cast<wchar_t*>(&place), 0);
    ASSERT_EQ(length, 2);
    EXPECT_EQ(std::wstring(place, 2), L" X");

    wchar_t* again = nullptr;
    LoadStringW(library, 24000, reinterpret_cast<wchar_t*>(&again), 0);
    EXPECT_EQ(place, again);
}

TEST_F(Resources, GivesANullPlaceForAMissingNumber)
{
    wchar_t something = L'x';
    wchar_t* place = &something;
    EXPECT_EQ(
        LoadStringW(LoadResourceDll(kTestLibrary), 24001, reinterpret_cast<wchar_t*>(&place), 0),
        0);
    EXPECT_EQ(place, nullptr);
}

TEST_F(Resources, CopiesAndTerminatesATextThatFits)
{
    wchar_t buffer[6] = L"?????";
    EXPECT_EQ(LoadStringW(LoadResourceDll(kTestLibrary), 101, buffer, 5), 4);
    EXPECT_EQ(std::wstring(buffer), L"size");
    EXPECT_EQ(buffer[5], L'\0');
}

TEST_F(Resources, CutsATextThatDoesNotFit)
{
    wchar_t buffer[6] = L"?????";
    EXPECT_EQ(LoadStringW(LoadResourceDll(kTestLibrary), 101, buffer, 4), 3);
    EXPECT_EQ(std::wstring(buffer), L"siz");
    EXPECT_EQ(buffer[4], L'?');
}

TEST_F(Resources, LeavesAnEmptyTextForAMissingNumber)
{
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 5), L"");
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 0), L"");
}

TEST_F(Resources, HoldsNumbersBeyondSixteenBits)
{
    const HINSTANCE library = LoadResourceDll(kTestLibrary);
    EXPECT_EQ(text(library, 78391), L"\tGeometry:\t\tStart");
    EXPECT_EQ(text(library, 78391 - 65536), L"");
    EXPECT_EQ(text(library, 2147483647), L"the greatest number");
    EXPECT_EQ(text(library, 4294967295u), L"");
}

TEST_F(Resources, JoinsPiecesAndKeepsEscapedCharacters)
{
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 104),
              L"in pieces: \"1\", \"2\" and a backslash \\");
}

TEST_F(Resources, LeavesObsoleteTextsOut)
{
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 105), L"");
}

TEST_F(Resources, FindsNothingWithoutALibrary)
{
    EXPECT_EQ(text(nullptr, 101), L"");
}

TEST_F(Resources, RefusesABufferThatIsNoRoom)
{
    const HINSTANCE library = LoadResourceDll(kTestLibrary);
    wchar_t buffer[2] = L"?";
    EXPECT_EQ(LoadStringW(library, 101, nullptr, 10), 0);
    EXPECT_EQ(LoadStringW(library, 101, nullptr, 0), 0);
    EXPECT_EQ(LoadStringW(library, 101, buffer, -1), 0);
    EXPECT_EQ(buffer[0], L'?');
}

TEST_F(Resources, LoadsALibraryOnce)
{
    const HINSTANCE library = LoadResourceDll(kTestLibrary);
    EXPECT_EQ(LoadResourceDll(kTestLibrary), library);
    EXPECT_EQ(LoadResourceDll(L"TestRes"), library);
}

class UnusableLibrary : public Resources, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(UnusableLibrary, GivesANullHandle)
{
    EXPECT_EQ(LoadResourceDll(GetParam()), nullptr);
    EXPECT_FALSE(SetCurrentResourceName(GetParam()));
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Names, UnusableLibrary,
                         testing::Values(nullptr, L"", L".dll", L"Missing.dll",
                                         L"without_table.dll", L"other_version.dll",
                                         L"../en/TestRes.dll", L"Gr\u00f6\u00dfe.dll",
                                         L"\xD800.dll"));

TEST_F(Resources, FindsALibraryThatCameAfterAFailedLook)
{
    setResourceFolder("/nowhere");
    ASSERT_EQ(LoadResourceDll(kTestLibrary), nullptr);
    const EnvironmentVariable folders("KW_RESOURCE_PATH", KW_TEST_RESOURCES);
    EXPECT_NE(LoadResourceDll(kTestLibrary), nullptr);
}

TEST_F(Resources, MakesLibrariesCurrentOneInsideTheOther)
{
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
    ASSERT_TRUE(SetCurrentResourceName(kTestLibrary));
    const HINSTANCE outer = AfxGetResourceHandle();
    EXPECT_EQ(outer, LoadResourceDll(kTestLibrary));
    ASSERT_TRUE(SetCurrentResourceName(L"KwQselectUtilRes.dll"));
    EXPECT_NE(AfxGetResourceHandle(), outer);
    EXPECT_EQ(text(AfxGetResourceHandle(), 78023), L"Multiple");

    RestorePreviousResource();
    EXPECT_EQ(AfxGetResourceHandle(), outer);
    RestorePreviousResource();
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

TEST_F(Resources, KeepsTheCurrentLibraryWhenAnotherCantBeLoaded)
{
    ASSERT_TRUE(SetCurrentResourceName(kTestLibrary));
    EXPECT_FALSE(SetCurrentResourceName(L"Missing.dll"));
    EXPECT_EQ(AfxGetResourceHandle(), LoadResourceDll(kTestLibrary));
}

TEST_F(Resources, HasNothingToUndoAtTheStart)
{
    RestorePreviousResource();
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

TEST_F(Resources, SpeaksTheChosenLanguage)
{
    setResourceLanguage("de_AT.UTF-8");
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 101), L"Gr\u00f6\u00dfe \U0001D11E");
}

TEST_F(Resources, SpeaksTheLanguageOfTheEnvironment)
{
    const EnvironmentVariable language("LC_ALL", "de_DE.UTF-8");
    setResourceLanguage("");
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 101), L"Gr\u00f6\u00dfe \U0001D11E");
}

TEST_F(Resources, StaysEnglishWhereATextIsNotTranslatedOrNotSure)
{
    setResourceLanguage("de");
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 102), L"fine");
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 103), L"not yet");
}

TEST_F(Resources, FallsBackToTheEnglishLibrary)
{
    setResourceLanguage("fr");
    EXPECT_EQ(text(LoadResourceDll(kTestLibrary), 101), L"size");
}

TEST_F(Resources, LeavesHandlesAliveWhenTheLanguageChanges)
{
    const HINSTANCE english = LoadResourceDll(kTestLibrary);
    setResourceLanguage("de");
    EXPECT_NE(LoadResourceDll(kTestLibrary), english);
    EXPECT_EQ(text(english, 101), L"size");
    setResourceLanguage("en");
    EXPECT_EQ(LoadResourceDll(kTestLibrary), english);
}

} // namespace
