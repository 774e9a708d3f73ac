#include <gtest/gtest.h>

#include <runtime/c_array.h>
#include <runtime/kd_array.h>
#include <runtime/kd_string.h>
#include <runtime/std_str.h>

namespace {

TEST(KdArray, GrowsAndNumbersFromZero)
{
    KdArray<KdString> names;
    EXPECT_TRUE(names.isEmpty());
    EXPECT_EQ(names.append(L"a"), 0);
    EXPECT_EQ(names.append(L"b"), 1);
    EXPECT_EQ(names.length(), 2);
    EXPECT_EQ(names.at(0), L"a");
    names[1] = L"c";
    EXPECT_EQ(names.at(1), L"c");
    names.removeAll();
    EXPECT_TRUE(names.isEmpty());
}

TEST(KdArray, HoldsFlagsThatCanBeReferredTo)
{
    KdArray<bool> flags;
    flags.append(false);
    flags.append(true);
    bool& first = flags[0];
    bool* const second = &flags.at(1);
    EXPECT_EQ(second, &first + 1);
    first = true;
    *second = false;
    EXPECT_TRUE(flags.at(0));
    EXPECT_FALSE(flags.at(1));
}

TEST(KdArray, IsCopiedAndComparedByContent)
{
    KdArray<int> one;
    one.append(3);
    KdArray<int> two = one;
    EXPECT_EQ(one, two);
    two[0] = 4;
    EXPECT_EQ(one[0], 3);
    EXPECT_FALSE(one == two);
    two[0] = 3;
    two.append(3);
    EXPECT_FALSE(one == two);
}

TEST(KdArray, TakesACopyOfItsOwnElement)
{
    KdArray<KdString> names;
    names.append(L"only");
    for (int i = 0; i < 20; ++i)
        names.append(names[0]);
    EXPECT_EQ(names[20], L"only");
}

TEST(CArray, GrowsAndNumbersFromZero)
{
    CArray<int> numbers;
    EXPECT_EQ(numbers.GetSize(), 0);
    EXPECT_EQ(numbers.Add(7), 0);
    EXPECT_EQ(numbers.Add(8), 1);
    EXPECT_EQ(numbers.GetSize(), 2);
    EXPECT_EQ(numbers.GetAt(1), 8);
    numbers.RemoveAll();
    EXPECT_EQ(numbers.GetSize(), 0);
}

TEST(CArray, TakesElementsInTheGivenForm)
{
    CArray<int*, int*> pointers;
    int number = 5;
    pointers.Add(&number);
    EXPECT_EQ(pointers.GetAt(0), &number);
}

TEST(CStdStr, IsEmptyForNullPointers)
{
    EXPECT_TRUE(CStdStr<wchar_t>(static_cast<const wchar_t*>(nullptr)).IsEmpty());
    EXPECT_TRUE(CStdStr<char>().IsEmpty());
    EXPECT_FALSE(CStdStr<char>("a").IsEmpty());
}

TEST(CStdStr, BehavesAsAStandardString)
{
    CStdStr<wchar_t> text(L"one");
    text += L" two";
    EXPECT_TRUE(text == L"one two");
    EXPECT_EQ(text.size(), 7u);
    EXPECT_EQ(text[4], L't');
    EXPECT_EQ(text, CStdStr<wchar_t>(std::wstring(L"one two")));
    EXPECT_EQ(text, CStdStr<wchar_t>(std::wstring_view(L"one two!", 7)));
}

TEST(CStdStr, GivesItsCharacters)
{
    const CStdStr<wchar_t> text(L"wide");
    const wchar_t* characters = text;
    EXPECT_STREQ(characters, L"wide");
}

} // namespace
