#include <runtime/resbuf.h>

#include <string>

#include <gtest/gtest.h>

#include <runtime/heap.h>

namespace {

TEST(ResbufChain, BeginsCleared)
{
    resbuf* record = kdutNewRb(RTREAL);
    EXPECT_EQ(record->restype, RTREAL);
    EXPECT_EQ(record->rbnext, nullptr);
    EXPECT_EQ(record->resval.rreal, 0.0);
    EXPECT_EQ(record->resval.rstring, nullptr);
    kdutRelRb(record);
}

TEST(ResbufChain, TakesTextsBytesAndAllRecordsWithIt)
{
    const long long before = kdHeapBlocksInUse();
    resbuf* head = nullptr;
    resbuf** next = &head;
    const auto append = [&](short restype) -> resbuf& {
        *next = kdutNewRb(restype);
        resbuf& record = **next;
        next = &record.rbnext;
        return record;
    };
    append(1001).resval.rstring = kdutNewString(L"Application");
    append(RTSTR).resval.rstring = kdutNewString(L"");
    append(1000); // a text that was never set
    append(1040).resval.rreal = 1.5;
    for (const short binary : {short{1004}, short{310}})
        append(binary).resval.rbinary = {3, static_cast<char*>(kdHeapAlloc(3))};
    append(1071).resval.rlong = 7;
    EXPECT_EQ(kdHeapBlocksInUse(), before + 7 + 2 + 2);
    kdutRelRb(head);
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(ResbufChain, IsCopiedWithTextsAndBytesOfItsOwn)
{
    char bytes[] = {1, 0, 3};
    resbuf number{};
    number.restype = RTREAL;
    number.resval.rreal = 2.5;
    resbuf chunk{};
    chunk.restype = 1004;
    chunk.resval.rbinary = {3, bytes};
    chunk.rbnext = &number;
    resbuf text{};
    text.restype = 1000;
    wchar_t characters[] = L"text";
    text.resval.rstring = characters;
    text.rbnext = &chunk;

    resbuf* copy = kdutCopyRb(&text, nullptr);
    characters[0] = L'x';
    bytes[0] = 9;
    ASSERT_NE(copy, nullptr);
    EXPECT_STREQ(copy->resval.rstring, L"text");
    const resbuf& copiedChunk = *copy->rbnext;
    EXPECT_EQ(std::string(copiedChunk.resval.rbinary.buf, 3), std::string("\1\0\3", 3));
    EXPECT_EQ(copiedChunk.rbnext->resval.rreal, 2.5);
    EXPECT_EQ(copiedChunk.rbnext->rbnext, nullptr);
    kdutRelRb(copy);
}

TEST(ResbufChain, IsCopiedUpToARecord)
{
    resbuf second{};
    second.restype = RTSHORT;
    resbuf first{};
    first.restype = RTREAL;
    first.rbnext = &second;
    resbuf* copy = kdutCopyRb(&first, &second);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->restype, RTREAL);
    EXPECT_EQ(copy->rbnext, nullptr);
    kdutRelRb(copy);
    EXPECT_EQ(kdutCopyRb(&first, &first), nullptr);
    EXPECT_EQ(kdutCopyRb(nullptr, nullptr), nullptr);
}

TEST(ResbufChain, MayBeNull)
{
    kdutRelRb(nullptr);
    kdutDelString(nullptr);
    EXPECT_EQ(kdutNewString(nullptr), nullptr);
}

TEST(ResbufText, IsACopy)
{
    wchar_t original[] = L"wörter";
    wchar_t* copy = kdutNewString(original);
    original[0] = L'W';
    EXPECT_STREQ(copy, L"wörter");
    kdutDelString(copy);
}

struct RestypeRow
{
    const char* name;
    short restype;
    bool isText;
};

class RestypeKind : public testing::TestWithParam<RestypeRow>
{
};

TEST_P(RestypeKind, TellsWhetherARecordOwnsAText)
{
    EXPECT_EQ(kdutIsText(GetParam().restype), GetParam().isText);
}

INSTANTIATE_TEST_SUITE_P(
    All, RestypeKind,
    testing::Values(RestypeRow{"listText", RTSTR, true}, RestypeRow{"listReal", RTREAL, false},
                    RestypeRow{"listShort", RTSHORT, false}, RestypeRow{"listLong", RTLONG, false},
                    RestypeRow{"entityType", 0, true}, RestypeRow{"layer", 8, true},
                    RestypeRow{"firstPoint", 10, false}, RestypeRow{"subclass", 100, true},
                    RestypeRow{"lastTextBelowReals", 105, true}, RestypeRow{"real", 110, false},
                    RestypeRow{"anyText", 300, true}, RestypeRow{"bytes", 310, false},
                    RestypeRow{"handle", 330, true}, RestypeRow{"lineweight", 370, false},
                    RestypeRow{"plotStyleHandle", 390, true}, RestypeRow{"layoutName", 410, true},
                    RestypeRow{"trueColor", 420, false}, RestypeRow{"colorName", 430, true},
                    RestypeRow{"transparency", 440, false}, RestypeRow{"gradient", 470, true},
                    RestypeRow{"extendedText", 1000, true},
                    RestypeRow{"applicationName", 1001, true}, RestypeRow{"brace", 1002, true},
                    RestypeRow{"extendedBytes", 1004, false},
                    RestypeRow{"extendedHandle", 1005, true},
                    RestypeRow{"extendedPoint", 1010, false},
                    RestypeRow{"extendedShort", 1070, false}, RestypeRow{"negative", -4, false}),
    [](const auto& row) { return row.param.name; });

} // namespace
