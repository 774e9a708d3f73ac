#include <geometry/chains.h>

#include <geometry/arcs.h>
#include <geometry/linear_curves.h>

#include "support.h"

namespace {

using namespace geometry_test;

TEST(PolylineCurve, CountsItsSegmentsByTheParameter)
{
    const KdGePolyline3d polyline({{0, 0, 0}, {3, 0, 0}, {3, 4, 0}});
    EXPECT_EQ(polyline.interval().upper, 2.0);
    EXPECT_EQ(polyline.evalPoint(1.25), (KdGePoint3d{3, 1, 0}));
    EXPECT_EQ(endOf(polyline), (KdGePoint3d{3, 4, 0}));
    EXPECT_EQ(wholeLength(polyline), 7.0);
    EXPECT_EQ(polyline.length(1.5, 0.5, kTolerance), 3.5);
    EXPECT_EQ(polyline.length(-1, 9, kTolerance), 7.0);
    EXPECT_EQ(polyline.length(1, 1, kTolerance), 0.0);
}

TEST(PolylineCurve, EnclosesAnAreaOnceClosedByAStraightLine)
{
    const KdGePolyline3d triangle({{5, 0, 1}, {8, 0, 1}, {8, 4, 1}});
    EXPECT_THAT(triangle.areaVector(), IsNear(KdGeVector3d{0, 0, 6}));
    const KdGePolyline3d clockwise({{0, 0, 0}, {0, 2, 0}, {2, 2, 0}, {2, 0, 0}, {0, 0, 0}});
    EXPECT_THAT(clockwise.areaVector(), IsNear(KdGeVector3d{0, 0, -4}));
}

TEST(PolylineCurve, MayBeASinglePoint)
{
    const KdGePolyline3d point({{1, 2, 3}});
    EXPECT_EQ(startOf(point), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(endOf(point), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(wholeLength(point), 0.0);
    EXPECT_EQ(extentsOf(point).maxPoint, (KdGePoint3d{1, 2, 3}));
}

/// A line of length 4, and half a circle of radius 2 back to its start.
KdGeCompositeCurve3d halfDisk()
{
    KdGeCompositeCurve3d::Pieces pieces;
    pieces.push_back(std::make_unique<KdGeLineSeg3d>(KdGePoint3d{-2, 0, 0}, KdGePoint3d{2, 0, 0}));
    pieces.push_back(std::make_unique<KdGeCircArc3d>(KdGePoint3d{}, KdGeVector3d::kZAxis,
                                                     KdGeVector3d::kXAxis, 2, 0, kPi));
    return KdGeCompositeCurve3d(std::move(pieces));
}

TEST(CompositeCurve, RunsThroughItsPieces)
{
    const KdGeCompositeCurve3d curve = halfDisk();
    EXPECT_EQ(curve.pieces().size(), 2u);
    EXPECT_EQ(curve.interval().upper, 2.0);
    EXPECT_THAT(curve.evalPoint(0.75), IsNear(KdGePoint3d{1, 0, 0}));
    EXPECT_THAT(curve.evalPoint(1.5), IsNear(KdGePoint3d{0, 2, 0}));
    EXPECT_THAT(endOf(curve), IsNear(KdGePoint3d{-2, 0, 0}));
    EXPECT_DOUBLE_EQ(wholeLength(curve), 4 + 2 * kPi);
    EXPECT_DOUBLE_EQ(curve.length(0.5, 1.5, kTolerance), 2 + kPi);
    EXPECT_THAT(curve.areaVector(), IsNear(KdGeVector3d{0, 0, 2 * kPi}));
    EXPECT_THAT(extentsOf(curve).minPoint, IsNear(KdGePoint3d{-2, 0, 0}));
    EXPECT_THAT(extentsOf(curve).maxPoint, IsNear(KdGePoint3d{2, 2, 0}));
}

TEST(CompositeCurve, WithoutPiecesHasNoLengthAndNoBox)
{
    const KdGeCompositeCurve3d nothing({});
    EXPECT_EQ(wholeLength(nothing), 0.0);
    EXPECT_EQ(nothing.areaVector(), KdGeVector3d());
    EXPECT_TRUE(extentsOf(nothing).isEmpty());
}

} // namespace
