#include <editor/insert_units.h>

#include <gtest/gtest.h>

namespace {

TEST(InsertUnits, AreConverted)
{
    const struct
    {
        int from, to;
        double factor;
    } kRows[] = {{6, 4, 1000}, {1, 5, 2.54}, {3, 2, 5280}, {21, 6, 1200.0 / 3937},
                 {6, 6, 1},    {0, 4, 1},    {4, 0, 1}};
    for (const auto& row : kRows) {
        double factor = 0.0;
        EXPECT_EQ(kddbGetUnitsConversion(row.from, row.to, factor), eOk);
        EXPECT_DOUBLE_EQ(factor, row.factor) << row.from << ' ' << row.to;
    }
}

TEST(InsertUnits, BeyondThoseKnownAreRefused)
{
    double factor = 7.0;
    KdString name = L"as before";
    for (const int unit : {-1, kHighestInsertUnit + 1}) {
        EXPECT_EQ(kddbGetUnitsConversion(unit, 4, factor), eInvalidInput);
        EXPECT_EQ(kddbGetUnitsConversion(4, unit, factor), eInvalidInput);
        EXPECT_EQ(kdedGetUnitsValueString(unit, name), RTERROR);
    }
    EXPECT_EQ(factor, 7.0);
    EXPECT_EQ(name, L"as before");
}

TEST(InsertUnits, HaveNames)
{
    KdString name;
    EXPECT_EQ(kdedGetUnitsValueString(kInsertUnitMeters, name), RTNORM);
    EXPECT_EQ(name, L"Meters");
    EXPECT_EQ(kdedGetUnitsValueString(0, name), RTNORM);
    EXPECT_EQ(name, L"Unitless");
}

} // namespace
