#include <providers/curve_geometry.h>

#include <cmath>
#include <memory>

#include "made_curves.h"
#include "support.h"

using namespace provider_test;

namespace {

/// (0,0), (4,0), (4,2) with half a circle in the second segment.
class CompositeCurve : public testing::Test
{
  protected:
    CompositeCurve()
    {
        polyline.reset(3);
        polyline.setPointAt(1, {4, 0});
        polyline.setPointAt(2, {4, 2});
        polyline.setBulgeAt(1, 1);
    }
    std::unique_ptr<KdGeCompositeCurve3d> curve() const
    {
        return std::unique_ptr<KdGeCompositeCurve3d>(compositeCurve3d(polyline));
    }

    KdDbPolyline polyline;
};

TEST_F(CompositeCurve, RunsThroughLinesAndArcs)
{
    const auto composite = curve();
    ASSERT_EQ(composite->pieces().size(), 2u);
    EXPECT_NEAR(wholeLength(*composite), 4 + kPi, kNear);
    expectNear(startOf(*composite), {0, 0, 0});
    expectNear(composite->evalPoint(1.5), {5, 1, 0});
    expectNear(endOf(*composite), {4, 2, 0});
}

TEST_F(CompositeCurve, RunsThroughArcsInTheDirectionOfThePolyline)
{
    polyline.setBulgeAt(1, -1);
    const auto composite = curve();
    expectNear(startOf(*composite->pieces()[1]), {4, 0, 0});
    expectNear(endOf(*composite->pieces()[1]), {4, 2, 0});
    expectNear(composite->evalPoint(1.5), {3, 1, 0});
    EXPECT_NEAR(wholeLength(*composite), 4 + kPi, kNear);
}

TEST_F(CompositeCurve, LiesInThePlaneOfThePolyline)
{
    polyline.setElevation(7);
    polyline.setNormal({0, 0, -1}); // x and z change sides
    for (const double bulge : {1.0, -1.0}) {
        polyline.setBulgeAt(1, bulge);
        const auto composite = curve();
        expectNear(startOf(*composite->pieces()[1]), {-4, 0, -7});
        expectNear(endOf(*composite->pieces()[1]), {-4, 2, -7});
        expectNear(composite->evalPoint(1.5), {-4 - bulge, 1, -7});
    }
}

TEST_F(CompositeCurve, LiesInATiltedPlane)
{
    polyline.setNormal({0.6, 0, 0.8}); // x axis (0,1,0), y axis (-0.8,0,0.6)
    polyline.setElevation(5);
    const auto composite = curve();
    expectNear(startOf(*composite->pieces()[1]), {3, 4, 4});
    expectNear(composite->evalPoint(1.5), {3 - 0.8, 5, 4 + 0.6});
}

TEST_F(CompositeCurve, ClosesWithTheBulgeOfTheLastVertex)
{
    polyline.setClosed(true);
    EXPECT_EQ(curve()->pieces().size(), 3u);
    expectNear(endOf(*curve()), {0, 0, 0});
    const double chord = std::sqrt(20.0);
    EXPECT_NEAR(wholeLength(*curve()->pieces()[2]), chord, kNear);
    polyline.setBulgeAt(2, 1);
    EXPECT_NEAR(wholeLength(*curve()->pieces()[2]), chord * kPi / 2, kNear);
}

TEST_F(CompositeCurve, HasNoClosingSegmentIfTheEndsMeet)
{
    polyline.setClosed(true);
    polyline.setPointAt(2, {0, 0});
    EXPECT_EQ(curve()->pieces().size(), 2u);
}

TEST_F(CompositeCurve, LeavesOutSegmentsWithoutLength)
{
    polyline.setPointAt(1, {0, 0});
    EXPECT_EQ(curve()->pieces().size(), 1u);
}

TEST_F(CompositeCurve, TakesATinyBulgeForNone)
{
    polyline.setBulgeAt(1, 4e-6);
    EXPECT_EQ(wholeLength(*curve()), 6.0);
    polyline.setBulgeAt(1, 0.01);
    EXPECT_GT(wholeLength(*curve()), 6.0001);
}

TEST_F(CompositeCurve, NeedsTwoVertices)
{
    polyline.reset(1);
    EXPECT_EQ(curve(), nullptr);
    polyline.reset(0);
    EXPECT_EQ(curve(), nullptr);
}

class LightweightPolyline : public CurveTest
{
  protected:
    LightweightPolyline()
    {
        for (const KdGePoint3d& point : {KdGePoint3d{0, 0, 9}, {4, 0, 9}, {4, 2, 9}})
            vertices.push_back(add2dVertex(polyline, point));
    }
    int convert(bool ignoreVertexXData = true)
    {
        KdDbCurve* target = &lightweight;
        KdDbCurve* source = polyline;
        return lwPlineFrom2DPline(target, source, ignoreVertexXData);
    }
    static ResbufChain data(const wchar_t* text)
    {
        resbuf* application = kdutNewRb(1001);
        application->resval.rstring = kdutNewString(L"APP");
        application->rbnext = kdutNewRb(1000);
        application->rbnext->resval.rstring = kdutNewString(text);
        return ResbufChain(application);
    }
    KdGePoint2d pointAt(unsigned int index) const
    {
        KdGePoint2d point;
        EXPECT_EQ(lightweight.getPointAt(index, point), eOk);
        return point;
    }

    KdDb2dPolyline* polyline = add<KdDb2dPolyline>();
    std::vector<KdDb2dVertex*> vertices;
    KdDbPolyline lightweight;
};

TEST_F(LightweightPolyline, TakesOverVerticesAndProperties)
{
    change(polyline, [](Polyline2dMembers& members) {
        members.closed = true;
        members.plinegen = true;
        members.elevation = 2;
        members.extrusion = {{0, 0, -1}, 1.5};
        members.lineweight = 35;
        members.extendedData = data(L"hello");
    });
    lightweight.reset(9);
    EXPECT_EQ(convert(), 0);
    ASSERT_EQ(lightweight.numVerts(), 3u);
    EXPECT_EQ(pointAt(2), (KdGePoint2d{4, 2}));
    EXPECT_TRUE(lightweight.isClosed());
    EXPECT_TRUE(lightweight.hasPlinegen());
    EXPECT_EQ(lightweight.elevation(), 2.0);
    EXPECT_EQ(lightweight.thickness(), 1.5);
    EXPECT_EQ(lightweight.normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_EQ(lightweight.lineWeight(), 35);
    EXPECT_EQ(lightweight.layerId(), polyline->layerId());
    const resbuf* end = nullptr;
    const resbuf* first = lightweight.extendedData(L"APP", end);
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->resval.rstring, L"hello");
    EXPECT_NE(first, polyline->extendedData(L"APP", end)); // a copy
}

TEST_F(LightweightPolyline, TakesOverBulges)
{
    change(vertices[1], [](Vertex2dMembers& members) { members.bulge = -0.5; });
    EXPECT_EQ(convert(), 0);
    double bulge = 7.0;
    EXPECT_EQ(lightweight.getBulgeAt(1, bulge), eOk);
    EXPECT_EQ(bulge, -0.5);
    EXPECT_EQ(lightweight.getBulgeAt(0, bulge), eOk);
    EXPECT_EQ(bulge, 0.0);
}

TEST_F(LightweightPolyline, TakesOverOneWidthOrEachItsOwn)
{
    for (KdDb2dVertex* vertex : vertices)
        setWidths(vertex, 2, 2);
    EXPECT_EQ(convert(), 0);
    double width = 0.0;
    EXPECT_EQ(lightweight.getConstantWidth(width), eOk);
    EXPECT_EQ(width, 2.0);
    setWidths(vertices[2], 2, 3);
    EXPECT_EQ(convert(), 0);
    EXPECT_NE(lightweight.getConstantWidth(width), eOk);
    double start = 0.0;
    double end = 0.0;
    EXPECT_EQ(lightweight.getWidthsAt(2, start, end), eOk);
    EXPECT_EQ(start, 2.0);
    EXPECT_EQ(end, 3.0);
}

TEST_F(LightweightPolyline, LeavesOutTheControlPointsOfASpline)
{
    add2dVertex(polyline, {50, 50, 0}, KdDb::kControlVertex);
    add2dVertex(polyline, {6, 6, 0}, KdDb::kSplineFitVertex);
    EXPECT_EQ(convert(), 0);
    ASSERT_EQ(lightweight.numVerts(), 4u);
    EXPECT_EQ(pointAt(3), (KdGePoint2d{6, 6}));
}

TEST_F(LightweightPolyline, IsNotMadeIfAVertexHasExtendedDataThatCounts)
{
    change(vertices[1],
           [](Vertex2dMembers& members) { members.extendedData = data(L"on a vertex"); });
    lightweight.reset(1);
    EXPECT_EQ(convert(false), 2);
    EXPECT_EQ(lightweight.numVerts(), 1u);
    EXPECT_EQ(convert(true), 0);
    EXPECT_EQ(lightweight.numVerts(), 3u);
}

TEST_F(LightweightPolyline, IsMadeOfA2dPolylineAlone)
{
    KdDbPolyline other;
    KdDb3dPolyline spatial;
    KdDbCurve* light = &lightweight;
    KdDbCurve* alsoLight = &other;
    KdDbCurve* flat = polyline;
    KdDbCurve* foreign = &spatial;
    KdDbCurve* nothing = nullptr;
    EXPECT_EQ(lwPlineFrom2DPline(light, alsoLight, true), 3);
    EXPECT_EQ(lwPlineFrom2DPline(light, foreign, true), 3);
    EXPECT_EQ(lwPlineFrom2DPline(flat, flat, true), 3);
    EXPECT_EQ(lwPlineFrom2DPline(light, nothing, true), 3);
    EXPECT_EQ(lwPlineFrom2DPline(nothing, flat, true), 3);
}

TEST_F(LightweightPolyline, MayBeEmpty)
{
    polyline = add<KdDb2dPolyline>();
    EXPECT_EQ(convert(), 0);
    EXPECT_EQ(lightweight.numVerts(), 0u);
}

} // namespace
