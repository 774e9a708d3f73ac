#include <runtime/utf8.h>

#include <gtest/gtest.h>

namespace {

struct Utf8Row
{
    const char* name;
    const wchar_t* wide;
    const char* bytes;
};

class Utf8RoundTrip : public testing::TestWithParam<Utf8Row>
{
};

TEST_P(Utf8RoundTrip, GoesThereAndBack)
{
    EXPECT_EQ(kdToUtf8(GetParam().wide), GetParam().bytes);
    EXPECT_EQ(kdFromUtf8(GetParam().bytes), GetParam().wide);
}

INSTANTIATE_TEST_SUITE_P(All, Utf8RoundTrip,
                         testing::Values(Utf8Row{"empty", L"", ""}, Utf8Row{"ascii", L"a 1", "a 1"},
                                         Utf8Row{"umlaut", L"\u00E4", "\xC3\xA4"},
                                         Utf8Row{"ideograph", L"\u5899", "\xE5\xA2\x99"},
                                         Utf8Row{"beyondTheFirstPlane", L"\U0001F600",
                                                 "\xF0\x9F\x98\x80"}),
                         [](const auto& row) { return row.param.name; });

TEST(Utf8, ReplacesWhatIsNoCharacter)
{
    for (const wchar_t odd : {wchar_t(0xD800), wchar_t(0xDC00), wchar_t(0x110000), wchar_t(-1)}) {
        const wchar_t text[] = {L'a', odd, L'b'};
        EXPECT_EQ(kdToUtf8(std::wstring_view(text, 3)), "a\xEF\xBF\xBD"
                                                        "b")
            << static_cast<unsigned>(odd);
    }
}

TEST(Utf8, ReplacesMalformedBytes)
{
    EXPECT_EQ(kdFromUtf8("a\xFFz"), L"a\uFFFDz");
    EXPECT_EQ(kdFromUtf8("a\xC3"), L"a\uFFFD");
}

TEST(Utf8, KeepsZeros)
{
    EXPECT_EQ(kdToUtf8(std::wstring_view(L"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(kdFromUtf8(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
}

} // namespace
