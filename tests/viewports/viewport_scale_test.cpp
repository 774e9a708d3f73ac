#include <gtest/gtest.h>

#include <database/database.h>
#include <entities/viewport.h>

namespace {

struct ScaleRow
{
    const char* name;
    int type;
    double factor;
};

class StandardScales : public testing::TestWithParam<ScaleRow>
{
};

TEST_P(StandardScales, AreFoundByTheirFactor)
{
    KdDbViewport viewport;
    viewport.edit().height = 120;
    viewport.edit().viewHeight = 120 / GetParam().factor;
    EXPECT_DOUBLE_EQ(viewport.customScale(), GetParam().factor);
    EXPECT_EQ(viewport.standardScale(), GetParam().type);
    viewport.edit().viewHeight *= 1 + 1e-6;
    EXPECT_EQ(viewport.standardScale(), KdDbViewport::kCustomScale);
}

TEST_P(StandardScales, CanBeSet)
{
    KdDbViewport viewport;
    viewport.edit().height = 120;
    const auto type = static_cast<KdDbViewport::StandardScaleType>(GetParam().type);
    EXPECT_EQ(viewport.setStandardScale(type), eOk);
    EXPECT_EQ(viewport.standardScale(), type);
    EXPECT_DOUBLE_EQ(viewport.customScale(), GetParam().factor);
}

const ScaleRow kScales[] = {
    {"one", 2, 1},
    {"half", 3, 0.5},
    {"quarter", 4, 0.25},
    {"fifth", 5, 0.2},
    {"eighth", 6, 0.125},
    {"tenth", 7, 0.1},
    {"sixteenth", 8, 0.0625},
    {"twentieth", 9, 0.05},
    {"thirtieth", 10, 1.0 / 30},
    {"fortieth", 11, 0.025},
    {"fiftieth", 12, 0.02},
    {"hundredth", 13, 0.01},
    {"two", 14, 2},
    {"four", 15, 4},
    {"eight", 16, 8},
    {"ten", 17, 10},
    {"hundred", 18, 100},
    {"in128AFoot", 19, 1.0 / 1536},
    {"in64AFoot", 20, 1.0 / 768},
    {"in32AFoot", 21, 1.0 / 384},
    {"in16AFoot", 22, 1.0 / 192},
    {"threeIn32AFoot", 23, 1.0 / 128},
    {"eighthInchAFoot", 24, 1.0 / 96},
    {"threeIn16AFoot", 25, 1.0 / 64},
    {"quarterInchAFoot", 26, 1.0 / 48},
    {"threeEighthsAFoot", 27, 1.0 / 32},
    {"halfInchAFoot", 28, 1.0 / 24},
    {"inchAFoot", 30, 1.0 / 12},
};
INSTANTIATE_TEST_SUITE_P(Rows, StandardScales, testing::ValuesIn(kScales),
                         [](const auto& row) { return std::string(row.param.name); });

struct TwinRow
{
    const char* name;
    int set;
    int found;
};

class TwinScales : public testing::TestWithParam<TwinRow>
{
};

TEST_P(TwinScales, AreKnownByTheLowerNumber)
{
    KdDbViewport viewport;
    viewport.edit().height = 5;
    EXPECT_EQ(
        viewport.setStandardScale(static_cast<KdDbViewport::StandardScaleType>(GetParam().set)),
        eOk);
    EXPECT_EQ(viewport.standardScale(), GetParam().found);
}

const TwinRow kTwins[] = {
    {"threeQuarterInch", 29, 8}, {"inchAndAHalf", 31, 6}, {"threeInches", 32, 4},
    {"sixInches", 33, 3},        {"foot", 34, 2},
};
INSTANTIATE_TEST_SUITE_P(Rows, TwinScales, testing::ValuesIn(kTwins),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ViewportScale, IsUnknownWithoutAView)
{
    KdDbViewport viewport;
    viewport.edit().height = 5;
    EXPECT_EQ(viewport.customScale(), 0);
    EXPECT_EQ(viewport.standardScale(), KdDbViewport::kCustomScale);
    EXPECT_EQ(viewport.setStandardScale(KdDbViewport::kCustomScale), eOk);
    EXPECT_EQ(viewport.customScale(), 0);
}

TEST(ViewportScale, RefusesNumbersThatAreNoScale)
{
    KdDbViewport viewport;
    EXPECT_EQ(viewport.setStandardScale(static_cast<KdDbViewport::StandardScaleType>(35)),
              eInvalidInput);
    EXPECT_EQ(viewport.setStandardScale(static_cast<KdDbViewport::StandardScaleType>(-1)),
              eInvalidInput);
}

TEST(ViewportScale, FitsTheModel)
{
    KdDbDatabase drawing;
    auto* viewport = new KdDbViewport;
    KdDbBlockTableRecord* sheet = nullptr;
    ASSERT_EQ(kddbOpenObject(sheet, drawing.activeSheetId(), KdDb::kForWrite), eOk);
    ASSERT_EQ(sheet->appendEntity(viewport), eOk);
    sheet->close();
    KdDbViewport* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, viewport->objectId(), KdDb::kForWrite), eOk);
    opened->edit().width = 20;
    opened->edit().height = 10;
    EXPECT_EQ(opened->setStandardScale(KdDbViewport::kScaleToFit), eNotApplicable)
        << "the model is empty";

    auto& header = drawing.header();
    ASSERT_TRUE(header.setValue(header.indexOf(L"EXTMIN"), KdGePoint3d{-10, 0, 0}));
    ASSERT_TRUE(header.setValue(header.indexOf(L"EXTMAX"), KdGePoint3d{90, 40, 0}));
    EXPECT_EQ(opened->setStandardScale(KdDbViewport::kScaleToFit), eOk);
    EXPECT_EQ(opened->standardScale(), KdDbViewport::kScaleToFit);
    EXPECT_DOUBLE_EQ(opened->customScale(), 0.2) << "20 by 100, since 10 by 40 would be more";
    EXPECT_EQ(opened->setStandardScale(KdDbViewport::kCustomScale), eOk);
    EXPECT_EQ(opened->standardScale(), KdDbViewport::k1_5);
    opened->close();
    EXPECT_EQ(KdDbViewport().setStandardScale(KdDbViewport::kScaleToFit), eNotApplicable);
}

TEST(Viewport, HasTheExtentsOfItsWindow)
{
    KdDbViewport viewport;
    viewport.edit().center = {10, 20, 1};
    viewport.edit().width = 8;
    viewport.edit().height = 6;
    KdGeExtents3d box;
    ASSERT_EQ(viewport.getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint, (KdGePoint3d{6, 17, 1}));
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{14, 23, 1}));
    EXPECT_TRUE(viewport.isPlanar());
}

} // namespace
