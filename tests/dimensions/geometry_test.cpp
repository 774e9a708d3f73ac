// The points and measurements that the providers of dimensions answer.
#include <limits>

#include "support.h"

using namespace dimension_test;
using testing::ElementsAre;

namespace {

class GeometryOfDimensions : public DimensionTest
{
  protected:
    GeometryOfDimensions()
    {
        const auto linear = [](auto& m) {
            m.xLine1Point = {1, 2, 0};
            m.xLine2Point = {4, 6, 0};
            m.dimLinePoint = {7, 8, 0};
        };
        changeAs<KdDbRotatedDimension>(DimensionKind::Rotated, linear);
        changeAs<KdDbAlignedDimension>(DimensionKind::Aligned, linear);
        const auto angular = [](auto& m) {
            m.centerPoint = {0, 0, 0};
            m.xLine1Point = {2, 0, 0};
            m.xLine2Point = {0, 2, 0};
            m.arcPoint = {1, 1, 0};
        };
        changeAs<KdDb3PointAngularDimension>(DimensionKind::ThreePoint, angular);
        changeAs<KdDbArcDimension>(DimensionKind::Arc, [angular](auto& m) {
            angular(m);
            m.leader1Point = {5, 5, 0};
            m.leader2Point = {6, 6, 0};
        });
        changeAs<KdDb2LineAngularDimension>(DimensionKind::TwoLine, [](auto& m) {
            m.xLine1Start = {1, 0, 0};
            m.xLine1End = {2, 0, 0};
            m.xLine2Start = {0, 1, 0};
            m.xLine2End = {0, 2, 0};
            m.arcPoint = {3, 3, 0};
        });
        changeAs<KdDbRadialDimension>(DimensionKind::Radial, [](auto& m) {
            m.center = {1, 1, 0};
            m.chordPoint = {1, 4, 0};
            m.leaderLength = 0.5;
        });
        changeAs<KdDbRadialDimensionLarge>(DimensionKind::RadialLarge, [](auto& m) {
            m.center = {0, 0, 0};
            m.chordPoint = {30, 40, 0};
            m.overrideCenter = {11, 12, 0};
            m.jogPoint = {13, 14, 0};
        });
        changeAs<KdDbDiametricDimension>(DimensionKind::Diametric, [](auto& m) {
            m.chordPoint = {1, 0, 0};
            m.farChordPoint = {-1, 0, 0};
            m.leaderLength = 0.75;
        });
        changeAs<KdDbOrdinateDimension>(DimensionKind::Ordinate, [](auto& m) {
            m.origin = {1, 1, 0};
            m.definingPoint = {4, 8, 0};
            m.leaderEndPoint = {9, 8, 0};
            m.usesXAxis = true;
        });
    }
};

struct PointCase
{
    DimensionKind kind;
    const wchar_t* key;
    const char* answer;
};

// clang-format off
const PointCase kPointCases[] = {
    {DimensionKind::Rotated, L"Geometry:Dim definition point", "5009 7,8,0"},
    {DimensionKind::Rotated, L"Geometry:1st Dim definition point", "5009 1,2,0"},
    {DimensionKind::Rotated, L"Geometry:2nd Dim definition point", "5009 4,6,0"},
    {DimensionKind::Rotated, L"Text:Measurement", "5001 3"},
    {DimensionKind::Aligned, L"Geometry:Dim definition point", "5009 7,8,0"},
    {DimensionKind::Aligned, L"Geometry:1st Dim definition point", "5009 1,2,0"},
    {DimensionKind::Aligned, L"Geometry:2nd Dim definition point", "5009 4,6,0"},
    {DimensionKind::Aligned, L"Text:Measurement", "5001 5"},
    {DimensionKind::Arc, L"Geometry:1st Dim definition point", "5009 2,0,0"},
    {DimensionKind::Arc, L"Geometry:2nd Dim definition point", "5009 0,2,0"},
    {DimensionKind::Arc, L"Geometry:Arc defining point", "5009 1,1,0"},
    {DimensionKind::Arc, L"Geometry:Dim Arc center point", "5009 0,0,0"},
    {DimensionKind::Arc, L"Geometry:Leader definition point 1", "5009 5,5,0"},
    {DimensionKind::Arc, L"Geometry:Leader definition point 2", "5009 6,6,0"},
    {DimensionKind::Arc, L"Text:Measurement", "5001 3.14159"},
    {DimensionKind::TwoLine, L"Geometry:First line defining point 1", "5009 1,0,0"},
    {DimensionKind::TwoLine, L"Geometry:First line defining point 2", "5009 2,0,0"},
    {DimensionKind::TwoLine, L"Geometry:Second line defining point 1", "5009 0,1,0"},
    {DimensionKind::TwoLine, L"Geometry:Second line defining point 2", "5009 0,2,0"},
    {DimensionKind::TwoLine, L"Geometry:Arc defining point", "5009 3,3,0"},
    {DimensionKind::TwoLine, L"Text:Measurement", "5001 1.5708"},
    {DimensionKind::ThreePoint, L"Geometry:1st Dim definition point", "5009 2,0,0"},
    {DimensionKind::ThreePoint, L"Geometry:2nd Dim definition point", "5009 0,2,0"},
    {DimensionKind::ThreePoint, L"Geometry:Arc defining point", "5009 1,1,0"},
    {DimensionKind::ThreePoint, L"Geometry:Dim Arc center point", "5009 0,0,0"},
    {DimensionKind::ThreePoint, L"Text:Measurement", "5001 1.5708"},
    {DimensionKind::Radial, L"Geometry:Dim Arc center point", "5009 1,1,0"},
    {DimensionKind::Radial, L"Geometry:Chord point", "5009 1,4,0"},
    {DimensionKind::Radial, L"Geometry:Leader Length", "5001 0.5"},
    {DimensionKind::Radial, L"Text:Measurement", "5001 3"},
    {DimensionKind::RadialLarge, L"Lines & Arrows:Center location override X", "5001 11"},
    {DimensionKind::RadialLarge, L"Lines & Arrows:Center location override Y", "5001 12"},
    {DimensionKind::RadialLarge, L"Lines & Arrows:Jog location X", "5001 13"},
    {DimensionKind::RadialLarge, L"Lines & Arrows:Jog location Y", "5001 14"},
    {DimensionKind::RadialLarge, L"Geometry:Dim Arc center point", "5009 0,0,0"},
    {DimensionKind::RadialLarge, L"Geometry:Override center of the arc", "5009 11,12,0"},
    {DimensionKind::RadialLarge, L"Geometry:Chord point", "5009 30,40,0"},
    {DimensionKind::RadialLarge, L"Geometry:Jog Point", "5009 13,14,0"},
    {DimensionKind::RadialLarge, L"Text:Measurement", "5001 50"},
    {DimensionKind::Diametric, L"Geometry:Chord point", "5009 1,0,0"},
    {DimensionKind::Diametric, L"Geometry:Far Chord point", "5009 -1,0,0"},
    {DimensionKind::Diametric, L"Geometry:Leader Length", "5001 0.75"},
    {DimensionKind::Diametric, L"Text:Measurement", "5001 2"},
    {DimensionKind::Ordinate, L"Geometry:Leader definition point", "5009 4,8,0"},
    {DimensionKind::Ordinate, L"Geometry:Feature definition point", "5009 9,8,0"},
    {DimensionKind::Ordinate, L"Text:Measurement", "5001 3"},
};
// clang-format on

TEST_F(GeometryOfDimensions, IsAnsweredByKind)
{
    for (const PointCase& row : kPointCases) {
        SCOPED_TRACE(kindOf(row.kind).name + (" " + provider_test::ascii(row.key)));
        EXPECT_TRUE(isListed(row.kind, row.key));
        for (const int choice : {0, 1, 2, 3}) {
            const Answer given = answer(row.kind, row.key, (choice & 1) != 0, (choice & 2) != 0);
            EXPECT_EQ(given.status, 1);
            EXPECT_THAT(given.chain, ElementsAre(row.answer));
        }
    }
}

TEST_F(GeometryOfDimensions, HasNoMeasurementFromDamagedPoints)
{
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const KdGePoint3d nowhere{kNan, 0, 0};
    changeAs<KdDbRotatedDimension>(DimensionKind::Rotated,
                                   [&](auto& m) { m.xLine1Point = nowhere; });
    changeAs<KdDbAlignedDimension>(DimensionKind::Aligned,
                                   [&](auto& m) { m.xLine1Point = nowhere; });
    changeAs<KdDbArcDimension>(DimensionKind::Arc, [](auto& m) { m.xLine1Point = m.centerPoint; });
    changeAs<KdDb2LineAngularDimension>(DimensionKind::TwoLine,
                                        [](auto& m) { m.xLine1End = m.xLine1Start; });
    changeAs<KdDb3PointAngularDimension>(DimensionKind::ThreePoint,
                                         [](auto& m) { m.xLine2Point = m.centerPoint; });
    changeAs<KdDbRadialDimension>(DimensionKind::Radial, [&](auto& m) { m.center = nowhere; });
    changeAs<KdDbRadialDimensionLarge>(DimensionKind::RadialLarge,
                                       [&](auto& m) { m.center = nowhere; });
    changeAs<KdDbDiametricDimension>(DimensionKind::Diametric,
                                     [&](auto& m) { m.chordPoint = nowhere; });
    changeAs<KdDbOrdinateDimension>(DimensionKind::Ordinate, [&](auto& m) { m.origin = nowhere; });
    for (const Kind& kind : kKinds) {
        const bool asksFirst = kind.number == DimensionKind::Rotated ||
                               kind.number == DimensionKind::Radial ||
                               kind.number == DimensionKind::RadialLarge;
        const Answer given = answer(kind.number, L"Text:Measurement");
        EXPECT_EQ(given.status, 0) << kind.name;
        EXPECT_THAT(given.chain, ElementsAre(asksFirst ? "5000 nothing" : "5001 0")) << kind.name;
    }
}

} // namespace
