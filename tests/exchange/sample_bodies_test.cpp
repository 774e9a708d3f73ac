// Bodies in the drawings of a test collection that lies beside the sources. Where it is missing,
// these tests do not exist.
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include <entities/solid3d.h>

#include "made_drawing.h"

namespace fs = std::filesystem;

namespace {

/// What was computed from the points of a body by hand: for regions the area by the shoelace rule
/// and the sum of the distances, for solids the box.
struct BodyRow
{
    const char* name;
    const char* file;
    KdDbHandle handle;
    double area;
    double perimeter;
    KdGeExtents3d box;
};

const BodyRow kRows[] = {
    {"rectangle",
     "allkinds/example_r2000.dxf",
     0x176,
     12910556.411860555,
     14466.874797129261,
     {{-6836.331483613787, -45.80779034293664, 0}, {-3632.0418544487547, 3983.339979056662, 0}}},
    {"quadrangle",
     "allkinds/example_r2000.dxf",
     0x37D,
     2294313.9741117572,
     6218.203801275405,
     {{-2199.2082707150694, 10344.68927305872, 0}, {-54.05474532926735, 12535.434744313578, 0}}},
    {"polysolid",
     "allkinds/example_r2000.dxf",
     0x2E1,
     0,
     0,
     {{2229.632278886831, 13562.283472337987, 0}, {4237.09785008781, 14169.087206813578, 4}}},
    {"square",
     "allkinds/ts1_r2000.dxf",
     0x227,
     8.989565591845551,
     11.993041710488995,
     {{28.492670172559485, 7.835223403910426, 0}, {31.490930600181734, 10.833483831532675, 0}}},
    {"box",
     "allkinds/ts1_r2000.dxf",
     0x21D,
     0,
     0,
     {{26.810853275478053, 25.593409628260602, 0},
      {28.747687000152595, 27.530243352935145, 1.4409008897758497}}},
    {"binaryBox",
     "allkinds/uncommon_r2018.dxf",
     0x622,
     0,
     0,
     {{43.88619541178137, 23.236528127783604, 0},
      {49.09896176824458, 25.958531582440667, 0.6383777655023175}}},
};

fs::path collection()
{
    const char* stated = std::getenv("KW_SAMPLE_DRAWINGS");
    return stated ? fs::path(stated) : fs::path(KW_SOURCE_DIR) / "../shared/drawings";
}

std::vector<BodyRow> presentRows()
{
    std::vector<BodyRow> rows;
    std::error_code missing;
    for (const BodyRow& row : kRows) {
        if (fs::exists(collection() / row.file, missing))
            rows.push_back(row);
    }
    return rows;
}

class SampleBody : public testing::TestWithParam<BodyRow>
{
};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleBody);

TEST_P(SampleBody, HasTheMeasuresComputedByHand)
{
    const BodyRow& row = GetParam();
    constexpr double kRelative = 1e-12;
    ReadDrawing drawn;
    ASSERT_EQ(readDrawing(collection() / row.file, drawn.database, drawn.report), eOk);
    const auto* body = dynamic_cast<const KdDbModelerGeometry*>(drawn.object(row.handle));
    ASSERT_TRUE(body);
    if (const auto* region = dynamic_cast<const KdDbRegion*>(body)) {
        double area = 0.0;
        double perimeter = 0.0;
        EXPECT_EQ(region->getArea(area), eOk);
        EXPECT_EQ(region->getPerimeter(perimeter), eOk);
        EXPECT_NEAR(area, row.area, kRelative * row.area);
        EXPECT_NEAR(perimeter, row.perimeter, kRelative * row.perimeter);
    }
    constexpr double kNear = 1e-9;
    KdGeExtents3d box;
    EXPECT_EQ(body->getGeomExtents(box), eOk);
    EXPECT_LT(box.minPoint.distanceTo(row.box.minPoint), kNear);
    EXPECT_LT(box.maxPoint.distanceTo(row.box.maxPoint), kNear);
}

INSTANTIATE_TEST_SUITE_P(Collection, SampleBody, testing::ValuesIn(presentRows()),
                         [](const auto& row) { return row.param.name; });

} // namespace
