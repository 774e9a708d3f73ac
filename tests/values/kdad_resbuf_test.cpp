#include <values/kdad_resbuf.h>

#include <cstring>

#include <gtest/gtest.h>

namespace {

TEST(KdadNewResbuf, GivesAClearedRecordOfTheCode)
{
    resbuf* const record = KdadNewResbuf(RTREAL);
    const kds_value cleared{};
    EXPECT_EQ(record->restype, RTREAL);
    EXPECT_EQ(record->rbnext, nullptr);
    EXPECT_EQ(std::memcmp(&record->resval, &cleared, sizeof cleared), 0);
    kdutRelRb(record);
}

TEST(KdadNewResbuf, NarrowsTheCodeTo16Bits)
{
    resbuf* const record = KdadNewResbuf(0x10000 + RTSHORT);
    EXPECT_EQ(record->restype, RTSHORT);
    kdutRelRb(record);
}

} // namespace
