#include <platform/safe_text.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <string>

namespace {

TEST(SafeText, CopiesATextThatFits)
{
    wchar_t room[5] = L"????";
    EXPECT_EQ(wcsncpy_s(room, 5, L"abcd", 4), 0);
    EXPECT_EQ(std::wstring(room), L"abcd");
}

TEST(SafeText, CopiesNoMoreThanTheCount)
{
    wchar_t room[5] = L"????";
    EXPECT_EQ(wcsncpy_s(room, 5, L"abcd", 2), 0);
    EXPECT_EQ(std::wstring(room), L"ab");
    EXPECT_EQ(room[3], L'?');
}

TEST(SafeText, StopsAtTheEndOfTheSource)
{
    wchar_t room[5] = L"????";
    EXPECT_EQ(wcsncpy_s(room, 5, L"a", ULONG_MAX), 0);
    EXPECT_EQ(std::wstring(room), L"a");
}

TEST(SafeText, TakesASourceWithoutTerminator)
{
    const wchar_t source[2] = {L'a', L'b'};
    wchar_t room[3] = L"??";
    EXPECT_EQ(wcsncpy_s(room, 3, source, 2), 0);
    EXPECT_EQ(std::wstring(room), L"ab");
}

TEST(SafeText, CutsWhatDoesNotFitAndSaysSo)
{
    wchar_t room[4] = L"???";
    EXPECT_EQ(wcsncpy_s(room, 3, L"abcd", 4), ERANGE);
    EXPECT_EQ(std::wstring(room), L"ab");
}

TEST(SafeText, LeavesAnEmptyTextForNull)
{
    wchar_t room[4] = L"???";
    EXPECT_EQ(wcsncpy_s(room, 4, nullptr, 4), EINVAL);
    EXPECT_EQ(std::wstring(room), L"");
}

TEST(SafeText, RefusesRoomThatIsNone)
{
    wchar_t room[4] = L"???";
    EXPECT_EQ(wcsncpy_s(room, 0, L"a", 1), EINVAL);
    EXPECT_EQ(wcsncpy_s(room, -1, L"a", 1), EINVAL);
    EXPECT_EQ(wcsncpy_s(nullptr, 4, L"a", 1), EINVAL);
    EXPECT_EQ(std::wstring(room), L"???");
}

} // namespace
