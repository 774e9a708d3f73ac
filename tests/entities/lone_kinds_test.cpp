#include <database/entity_extents.h>
#include <entities/all.h>

#include "support.h"

using namespace entity_test;

namespace {

std::vector<KdGePoint3d> cells(const KdArray<KdGePoint3d>& array)
{
    std::vector<KdGePoint3d> result;
    for (int i = 0; i < array.length(); ++i)
        result.push_back(array[i]);
    return result;
}

class FilledFaceInEachFrame : public InEachFrame
{
};

TEST_P(FilledFaceInEachFrame, GivesItsCornersInTheWorld)
{
    KdDbSolid solid;
    solid.edit().points.fill(kPointInFrame);
    solid.edit().extrusion.setDirection(GetParam().direction);
    KdGePoint3d point;
    EXPECT_EQ(solid.getPointAt(2, point), eOk);
    EXPECT_THAT(point, IsNear(GetParam().world));
    EXPECT_EQ(solid.normal(), GetParam().normal);
    KdArray<KdGePoint3d> grips;
    EXPECT_EQ(solid.getGripPoints(grips), eOk);
    ASSERT_EQ(grips.length(), 4);
    EXPECT_THAT(grips[3], IsNear(GetParam().world));
}

INSTANTIATE_TEST_SUITE_P(All, FilledFaceInEachFrame, frames(), frameName());

TEST(FilledFace, KeepsItsCornersInTheStoredOrder)
{
    KdDbTrace trace;
    const std::array<KdGePoint3d, 4> bowTie{{{0, 0, 1}, {2, 0, 1}, {0, 1, 1}, {2, 1, 1}}};
    trace.edit().points = bowTie;
    trace.edit().extrusion.setThickness(-3);
    KdArray<KdGePoint3d> grips;
    EXPECT_EQ(trace.getGripPoints(grips), eOk);
    EXPECT_EQ(cells(grips), std::vector(bowTie.begin(), bowTie.end()));
    KdGeExtents3d box;
    EXPECT_EQ(trace.getGeomExtents(box), eOk);
    EXPECT_EQ(box, (KdGeExtents3d{{0, 0, -2}, {2, 1, 1}}));
}

TEST(Face, KnowsItsCornersAndWhichEdgesAreSeen)
{
    KdDbFace face;
    face.edit().vertices = {{{0, 0, 0}, {2, 0, 1}, {2, 1, 3}, {0, 1, 0}}};
    face.edit().hiddenEdges = 4;
    KdGePoint3d vertex;
    EXPECT_EQ(face.getVertexAt(2, vertex), eOk);
    EXPECT_EQ(vertex, (KdGePoint3d{2, 1, 3}));
    bool visible = true;
    EXPECT_EQ(face.isEdgeVisibleAt(2, visible), eOk);
    EXPECT_FALSE(visible);
    EXPECT_EQ(face.isEdgeVisibleAt(3, visible), eOk);
    EXPECT_TRUE(visible);
    KdGeExtents3d box;
    EXPECT_EQ(face.getGeomExtents(box), eOk);
    EXPECT_EQ(box, (KdGeExtents3d{{0, 0, 0}, {2, 1, 3}}));
    KdArray<KdGePoint3d> grips;
    EXPECT_EQ(face.getGripPoints(grips), eOk);
    EXPECT_EQ(grips[1], (KdGePoint3d{2, 0, 1}));
}

TEST(RowsOfPoints, RefuseNumbersBeyondTheirEnds)
{
    KdDbFace face;
    KdDbSolid solid;
    KdDbMline mline;
    KdDbSection section;
    mline.edit().vertices = {{1, 2, 3}};
    section.edit().vertices = {{1, 2, 3}};
    KdGePoint3d point{7, 7, 7};
    bool visible = true;
    for (const int index : {-1, 4}) {
        EXPECT_EQ(face.getVertexAt(index, point), eInvalidInput);
        EXPECT_EQ(face.isEdgeVisibleAt(index, visible), eInvalidInput);
        EXPECT_EQ(solid.getPointAt(index, point), eInvalidInput);
        EXPECT_EQ(mline.getVertexAt(index, point), eInvalidInput);
        EXPECT_EQ(section.getVertex(index, point), eInvalidInput);
    }
    EXPECT_EQ(point, (KdGePoint3d{7, 7, 7}));
    EXPECT_TRUE(visible);
    EXPECT_EQ(mline.getVertexAt(0, point), eOk);
    EXPECT_EQ(section.getVertex(0, point), eOk);
    EXPECT_EQ(point, (KdGePoint3d{1, 2, 3}));
}

TEST(Point, ReachesAlongItsThickness)
{
    KdDbPoint point;
    point.edit().position = {1, 2, 3};
    point.edit().extrusion = {{0, -2, 0}, 5};
    KdGeExtents3d box;
    EXPECT_EQ(point.getGeomExtents(box), eOk);
    EXPECT_EQ(box, (KdGeExtents3d{{1, -3, 3}, {1, 2, 3}}));
}

/// An image of 4 x 2 pixels, each 10 wide and 5 high, turned by a quarter to the left.
class ImageOutline : public testing::Test
{
  protected:
    ImageOutline()
    {
        RasterImageMembers& members = image.edit();
        members.origin = {100, 0, 7};
        members.pixelU = {0, 10, 0};
        members.pixelV = {-5, 0, 0};
        members.size = {4, 2};
        members.clipped = true;
    }
    std::vector<KdGePoint3d> outline() const
    {
        KdArray<KdGePoint3d> points;
        EXPECT_EQ(image.getOutline(points), eOk);
        return cells(points);
    }

    KdDbRasterImage image;
};

TEST_F(ImageOutline, IsTheEdgeOfAWholeImage)
{
    // from the upper left corner round
    const std::vector<KdGePoint3d> whole{{90, 0, 7}, {90, 40, 7}, {100, 40, 7}, {100, 0, 7}};
    EXPECT_EQ(outline(), whole);
    image.edit().clipPolygon = {{0, 0}, {1, 1}};
    image.edit().clipped = false;
    EXPECT_EQ(outline(), whole);
    KdGeExtents3d box;
    EXPECT_EQ(image.getGeomExtents(box), eOk);
    EXPECT_EQ(box, (KdGeExtents3d{{90, 0, 7}, {100, 40, 7}}));
}

TEST_F(ImageOutline, OfARectangularClipGoesRoundItsTwoCorners)
{
    image.edit().clipPolygon = {{0.5, -0.5}, {2.5, 0.5}};
    EXPECT_EQ(outline(),
              (std::vector<KdGePoint3d>{{90, 10, 7}, {90, 30, 7}, {95, 30, 7}, {95, 10, 7}}));
    KdGeExtents3d box;
    EXPECT_EQ(image.getGeomExtents(box), eOk);
    EXPECT_EQ(box, (KdGeExtents3d{{90, 10, 7}, {95, 30, 7}}));
}

TEST_F(ImageOutline, OfAPolygonNamesNoCornerTwice)
{
    image.edit().clipIsRectangle = false;
    image.edit().clipPolygon = {{-0.5, -0.5}, {3.5, -0.5}, {1.5, 1.5}, {-0.5, -0.5}};
    EXPECT_EQ(outline(), (std::vector<KdGePoint3d>{{90, 0, 7}, {90, 40, 7}, {100, 20, 7}}));
}

TEST_F(ImageOutline, OfADamagedClipIsThatOfTheImage)
{
    image.edit().clipPolygon = {{0, 0}};
    EXPECT_EQ(outline().size(), 4u);
    image.edit().clipIsRectangle = false;
    image.edit().clipPolygon = {{0, 0}, {1, 1}, {0, 0}};
    EXPECT_EQ(outline().front(), (KdGePoint3d{90, 0, 7}));
}

TEST(OleFrame, HasItsCornersRound)
{
    KdDbOleFrame frame;
    frame.edit().upperLeft = {1, 9, 2};
    frame.edit().lowerRight = {7, 4, 2};
    EXPECT_EQ(frame.location(),
              (std::array<KdGePoint3d, 4>{{{1, 9, 2}, {7, 9, 2}, {7, 4, 2}, {1, 4, 2}}}));
    KdGeExtents3d box;
    EXPECT_EQ(frame.getGeomExtents(box), eOk);
    EXPECT_EQ(box, (KdGeExtents3d{{1, 4, 2}, {7, 9, 2}}));
}

TEST(Shadows, AreCastAndReceivedUnlessTheEntitySaysOtherwise)
{
    using Shadows = EntityMembers::Shadows;
    const struct
    {
        Shadows shadows;
        bool casts, receives;
    } kRows[] = {{Shadows::CastAndReceive, true, true},
                 {Shadows::Cast, true, false},
                 {Shadows::Receive, false, true},
                 {Shadows::Ignore, false, false}};
    KdDbLine line;
    EXPECT_TRUE(line.castShadows());
    for (const auto& row : kRows) {
        line.edit().shadows = row.shadows;
        EXPECT_EQ(line.castShadows(), row.casts);
        EXPECT_EQ(line.receiveShadows(), row.receives);
    }
}

TEST(EntityExtents, GrowByEntitiesThatHaveSome)
{
    KdDbExtents box;
    KdDbPoint point;
    KdDbRegion region;
    point.edit().position = {1, 2, 3};
    EXPECT_EQ(box.addExt(region), eNotApplicable);
    EXPECT_TRUE(box.isEmpty());
    EXPECT_EQ(box.addExt(point), eOk);
    EXPECT_EQ(box.addExt(region), eNotApplicable);
    EXPECT_EQ(box.minPoint, point.position());
    EXPECT_EQ(box.maxPoint, point.position());
}

TEST(GeoData, PlacesPointsAroundItsReference)
{
    KdDbGeoData data;
    data.edit().designPoint = {1000, 500, 0};
    data.edit().referencePoint = {9, 0, 100};
    data.edit().verticalUnitScale = 0.5;
    // on the equator of the ellipsoid a degree is 111319.491 m eastward, 110574.276 m northward
    const KdGePoint3d place = data.toGlobe({1000 + 111319.49079327, 500 + 110574.27582159, 40});
    EXPECT_NEAR(place.x, 10, 1e-9);
    EXPECT_NEAR(place.y, 1, 1e-9);
    EXPECT_EQ(place.z, 120);
}

TEST(GeoData, TurnsWithItsNorth)
{
    KdDbGeoData data;
    data.edit().north = {3, 0};
    const KdGePoint3d place = data.toGlobe({110574.27582159, 0, 0});
    EXPECT_NEAR(place.x, 0, 1e-9);
    EXPECT_NEAR(place.y, 1, 1e-9);
}

TEST(GeoData, PrefersItsMesh)
{
    KdDbGeoData data;
    data.edit().meshInDrawing = {{0, 0}, {100, 0}, {0, 100}, {100, 100}};
    data.edit().meshOnGlobe = {{10, 50}, {11, 50}, {10, 51}, {13, 52}};
    data.edit().meshFaces = {0, 1, 2, 1, 3, 2, 0, 9, 1};
    const KdGePoint3d inFirst = data.toGlobe({25, 50, 0});
    EXPECT_DOUBLE_EQ(inFirst.x, 10.25);
    EXPECT_DOUBLE_EQ(inFirst.y, 50.5);
    const KdGePoint3d beyondSecond = data.toGlobe({200, 200, 0});
    EXPECT_DOUBLE_EQ(beyondSecond.x, 18); // three times the last corner less the two others
    EXPECT_DOUBLE_EQ(beyondSecond.y, 55);
}

} // namespace
