#include <cmath>
#include <numbers>

#include <entities/circle.h>
#include <entities/ellipse.h>
#include <entities/face.h>
#include <entities/mesh.h>
#include <entities/polyline.h>
#include <entities/ray.h>
#include <entities/spline.h>
#include <entities/vertex_polyline.h>
#include <geometry/nurb_curve.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

using Kind = SceneShape::Kind;
constexpr double kPi = std::numbers::pi;

class CurveScenes : public SceneTest
{
  protected:
    PolylineMembers& square(PolylineMembers& polyline) const
    {
        polyline.points = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
        return polyline;
    }
    static std::vector<SceneShape> ofKind(const std::vector<SceneShape>& shapes, Kind kind)
    {
        std::vector<SceneShape> result;
        for (const SceneShape& shape : shapes) {
            if (shape.kind == kind)
                result.push_back(shape);
        }
        return result;
    }
};

TEST_F(CurveScenes, LinesAreSeenFromAbove)
{
    const auto* line = addLine(modelId(), {1, 2, 3}, {4, 6, 8});
    const auto scene = build();
    const auto shapes = shapesOf(*scene, line);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(stepsOf(*scene, shapes[0]), "ML");
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(1, 2), IsPoint(4, 6)));
    EXPECT_THAT(itemOf(*scene, line)->box, IsBox(1, 2, 4, 6));
    EXPECT_THAT(scene->box, IsBox(1, 2, 4, 6));
}

TEST_F(CurveScenes, CirclesCloseAndTilt)
{
    const auto* circle = add<KdDbCircle>([](CircleMembers& members) {
        members.center = {5, 5, 0};
        members.radius = 2;
    });
    const auto* tilted = add<KdDbCircle>([](CircleMembers& members) {
        members.radius = 5;
        members.extrusion.setDirection({0.6, 0, 0.8});
    });
    const auto scene = build();
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, circle)[0]).back(), 'Z');
    EXPECT_THAT(itemOf(*scene, circle)->box, IsBox(3, 3, 7, 7));
    const SceneBox& box = itemOf(*scene, tilted)->box;
    EXPECT_NEAR(box.width(), 8.0, 1e-5); // seen under the angle of its plane
    EXPECT_NEAR(box.height(), 10.0, 1e-5);
}

TEST_F(CurveScenes, ArcsRunAgainstTheClockAboutTheirNormal)
{
    const auto quarter = [](ArcMembers& arc) {
        arc.radius = 1;
        arc.startAngle = 1.5 * kPi;
        arc.endAngle = 0.0; // in the next turn
    };
    const auto* arc = add<KdDbArc>(quarter);
    const auto* mirrored = add<KdDbArc>([&](ArcMembers& members) {
        quarter(members);
        members.extrusion.setDirection({0, 0, -1});
    });
    const auto scene = build();
    EXPECT_THAT(itemOf(*scene, arc)->box, IsBox(0, -1, 1, 0));
    EXPECT_THAT(itemOf(*scene, mirrored)->box, IsBox(-1, -1, 0, 0));
}

TEST_F(CurveScenes, EllipsesFollowTheirParameters)
{
    const auto* whole = add<KdDbEllipse>([](EllipseMembers& members) {
        members.majorAxis = {4, 0, 0};
        members.radiusRatio = 0.5;
    });
    const auto* half = add<KdDbEllipse>([](EllipseMembers& members) {
        members.majorAxis = {4, 0, 0};
        members.radiusRatio = 0.5;
        members.startParam = kPi;
        members.endParam = 2.0 * kPi;
    });
    const auto scene = build();
    EXPECT_THAT(itemOf(*scene, whole)->box, IsBox(-4, -2, 4, 2));
    EXPECT_THAT(itemOf(*scene, half)->box, IsBox(-4, -2, 4, 0));
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, half)[0]), "MCCCCCC");
}

TEST_F(CurveScenes, PlainSplinesAreExact)
{
    const std::vector<double> knots = {0, 0, 0, 0, 1, 3, 3, 3, 3};
    const std::vector<KdGePoint3d> points = {
        {0, 0, 0}, {1, 5, 0}, {4, 6, 0}, {7, -2, 0}, {9, 1, 0}};
    const auto* spline = add<KdDbSpline>([&](SplineMembers& members) {
        members.knots = knots;
        members.controlPoints = points;
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, spline);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(stepsOf(*scene, shapes[0]), "MCC"); // a piece for each stretch between knots
    const auto curve = KdGeNurbCurve3d::create(3, knots, points);
    const std::vector<QPointF> drawn = pointsAlong(*scene, shapes[0], 4);
    ASSERT_THAT(drawn, SizeIs(9));
    for (int i = 0; i <= 8; ++i) {
        const double t = i <= 4 ? i / 4.0 : 1.0 + 2.0 * (i - 4) / 4.0;
        const KdGePoint3d truth = curve->evalPoint(t);
        EXPECT_THAT(drawn[static_cast<std::size_t>(i)], IsPoint(truth.x, truth.y));
    }
}

TEST_F(CurveScenes, RationalSplinesAreFittedFinely)
{
    const double half = std::sqrt(0.5); // a quarter of a circle
    const auto* spline = add<KdDbSpline>([&](SplineMembers& members) {
        members.degree = 2;
        members.knots = {0, 0, 0, 1, 1, 1};
        members.controlPoints = {{1000, 0, 0}, {1000, 1000, 0}, {0, 1000, 0}};
        members.weights = {1, half, 1};
    });
    const auto scene = build();
    for (const QPointF& point : pointsAlong(*scene, shapesOf(*scene, spline)[0], 16))
        EXPECT_NEAR(std::hypot(point.x(), point.y()), 1000.0, 2e-4);
}

TEST_F(CurveScenes, SplinesThatAreNoneShowNothing)
{
    const auto* spline = add<KdDbSpline>([](SplineMembers& members) {
        members.knots = {0, 1};
        members.controlPoints = {{0, 0, 0}, {1, 1, 0}};
    });
    EXPECT_THAT(shapesOf(*build(), spline), SizeIs(0));
}

TEST_F(CurveScenes, RaysAreNoPartOfTheScenesBox)
{
    addLine(modelId(), {0, 0, 0}, {1, 1, 0});
    add<KdDbXline>([](RayMembers& members) {
        members.basePoint = {1000, 0, 0};
        members.direction = {0, 2, 0};
    });
    const auto scene = build();
    ASSERT_THAT(scene->rays, SizeIs(1));
    EXPECT_TRUE(scene->rays[0].bothSides);
    EXPECT_THAT(scene->rays[0].direction, IsPoint(0, 1));
    EXPECT_THAT(scene->box, IsBox(0, 0, 1, 1));
}

TEST_F(CurveScenes, PolylinesWithoutWidthAreOneLine)
{
    const auto* open = add<KdDbPolyline>([&](PolylineMembers& members) { square(members); });
    const auto* closed = add<KdDbPolyline>([&](PolylineMembers& members) {
        square(members).closed = true;
        members.elevation = 7;
    });
    const auto scene = build();
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, open)[0]), "MLLL");
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, closed)[0]), "MLLLLZ");
    EXPECT_THAT(shapesOf(*scene, closed), SizeIs(1));
}

TEST_F(CurveScenes, BulgesAreArcs)
{
    const auto* polyline = add<KdDbPolyline>([](PolylineMembers& members) {
        members.points = {{0, 0}, {2, 0}};
        members.bulges = {1.0}; // half a circle to the right of the chord
    });
    const auto scene = build();
    const auto shape = shapesOf(*scene, polyline)[0];
    EXPECT_THAT(shape.box, IsBox(0, -1, 2, 0));
    for (const QPointF& point : pointsAlong(*scene, shape, 8))
        EXPECT_NEAR(std::hypot(point.x() - 1.0, point.y()), 1.0, 1e-6);
}

TEST_F(CurveScenes, ClockwiseBulgesLieOnTheOtherSide)
{
    const auto* polyline = add<KdDbPolyline>([](PolylineMembers& members) {
        members.points = {{0, 0}, {2, 0}};
        members.bulges = {-1.0};
    });
    EXPECT_THAT(itemOf(*build(), polyline)->box, IsBox(0, 0, 2, 1));
}

TEST_F(CurveScenes, WideSegmentsAreFilledWithMiteredCorners)
{
    const auto* polyline = add<KdDbPolyline>([&](PolylineMembers& members) {
        square(members).closed = true;
        members.constantWidth = 2.0;
    });
    const auto scene = build();
    const auto fills = ofKind(shapesOf(*scene, polyline), Kind::Fill);
    ASSERT_THAT(fills, SizeIs(4));
    EXPECT_THAT(itemOf(*scene, polyline)->box, IsBox(-1, -1, 11, 11));
    EXPECT_THAT(pointsOf(*scene, fills[0]),
                ElementsAre(IsPoint(1, 1), IsPoint(9, 1), IsPoint(11, -1), IsPoint(-1, -1)));
    EXPECT_TRUE(holds(*scene, fills[0], {5, -0.9}));
    EXPECT_FALSE(holds(*scene, fills[0], {5, 1.1}));
}

TEST_F(CurveScenes, WidthsMayChangeAlongASegment)
{
    const auto* polyline = add<KdDbPolyline>([](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}, {20, 0}};
        members.widths = {{4.0, 0.0}};
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, polyline);
    const auto fills = ofKind(shapes, Kind::Fill);
    ASSERT_THAT(fills, SizeIs(1)); // the second segment has no width
    EXPECT_THAT(fills[0].box, IsBox(0, -2, 10, 2));
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(10, 0), IsPoint(20, 0)));
}

TEST_F(CurveScenes, WideArcsHaveRoundEdges)
{
    const auto* polyline = add<KdDbPolyline>([](PolylineMembers& members) {
        members.points = {{0, 0}, {20, 0}};
        members.bulges = {1.0};
        members.constantWidth = 4.0;
    });
    const auto scene = build();
    const auto fills = ofKind(shapesOf(*scene, polyline), Kind::Fill);
    ASSERT_THAT(fills, SizeIs(1));
    EXPECT_NEAR(fills[0].box.bottom, -12.0, 1e-5);
    for (const QPointF& point : pointsAlong(*scene, fills[0], 8)) {
        const double radius = std::hypot(point.x() - 10.0, point.y());
        EXPECT_NEAR(std::abs(radius - 10.0), 2.0, 1e-5);
    }
    EXPECT_TRUE(holds(*scene, fills[0], {10, -11}));
    EXPECT_FALSE(holds(*scene, fills[0], {10, -7}));
}

TEST_F(CurveScenes, WithoutFillingWideSegmentsShowTheirEdges)
{
    setHeader(L"FILLMODE", std::int32_t{0});
    const auto* polyline = add<KdDbPolyline>([](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}};
        members.constantWidth = 2.0;
    });
    const auto scene = build();
    EXPECT_THAT(ofKind(shapesOf(*scene, polyline), Kind::Fill), SizeIs(0));
    EXPECT_THAT(itemOf(*scene, polyline)->box, IsBox(0, -1, 10, 1));
}

TEST_F(CurveScenes, SmoothedPolylinesLeaveTheirControlPointsOut)
{
    auto* polyline = add<KdDb2dPolyline>(
        [](Polyline2dMembers& members) { members.type = KdDb::kCubic2dPolyline; });
    const std::pair<double, KdDb::VertexType> vertices[] = {
        {0.0, KdDb::kControlVertex}, {1.0, KdDb::kSplineFitVertex}, {2.0, KdDb::kSplineFitVertex}};
    for (const auto& row : vertices) {
        addPart<KdDb2dVertex>(polyline, [&row](Vertex2dMembers& vertex) {
            vertex.position = {row.first, row.first, 0};
            vertex.type = row.second;
        });
    }
    EXPECT_THAT(itemOf(*build(), polyline)->box, IsBox(1, 1, 2, 2));
}

TEST_F(CurveScenes, PolylinesInSpaceAreFlattened)
{
    auto* polyline = add<KdDb3dPolyline>([](Polyline3dMembers& members) { members.closed = true; });
    for (const KdGePoint3d& point :
         {KdGePoint3d{0, 0, 5}, KdGePoint3d{4, 0, 1}, KdGePoint3d{4, 3, -2}})
        addPart<KdDb3dPolylineVertex>(polyline,
                                      [&](VertexMembers& vertex) { vertex.position = point; });
    const auto scene = build();
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, polyline)[0]), "MLLZ");
    EXPECT_THAT(itemOf(*scene, polyline)->box, IsBox(0, 0, 4, 3));
}

TEST_F(CurveScenes, SolidsAreFilledRoundTheirBowTie)
{
    const auto* solid = add<KdDbSolid>([](FilledFaceMembers& members) {
        members.points = {{{0, 0, 0}, {4, 0, 0}, {0, 4, 0}, {4, 4, 0}}};
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, solid);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(shapes[0].kind, Kind::Fill);
    EXPECT_TRUE(holds(*scene, shapes[0], {3.9, 2}));
    EXPECT_TRUE(holds(*scene, shapes[0], {0.1, 2}));
}

TEST_F(CurveScenes, FacesLeaveTheirHiddenEdgesOut)
{
    const auto* face = add<KdDbFace>([](FaceMembers& members) {
        members.vertices = {{{0, 0, 0}, {4, 0, 1}, {4, 4, 2}, {0, 4, 3}}};
        members.hiddenEdges = 0b1010;
    });
    const auto* triangle = add<KdDbFace>([](FaceMembers& members) {
        members.vertices = {{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {4, 4, 0}}};
    });
    const auto scene = build();
    EXPECT_THAT(pointsOf(*scene, shapesOf(*scene, face)[0]),
                ElementsAre(IsPoint(0, 0), IsPoint(4, 0), IsPoint(4, 4), IsPoint(0, 4)));
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, triangle)[0]), "MLMLML");
}

TEST_F(CurveScenes, MeshesShowTheEdgesOfTheirFaces)
{
    auto* grid = add<KdDbPolygonMesh>([](PolygonMeshMembers& members) {
        members.mSize = 2;
        members.nSize = 3;
        members.nClosed = true;
    });
    for (int i = 0; i < 6; ++i)
        addPart<KdDbPolygonMeshVertex>(grid, [&](VertexMembers& vertex) {
            vertex.position = {static_cast<double>(i % 3), static_cast<double>(i / 3), 0};
        });
    const auto* mesh = add<KdDbSubDMesh>([](SubDMeshMembers& members) {
        members.vertices = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
        members.faces = {3, 0, 1, 2, 3, 0, 2, 3, 3, 0, 1, 99, 4, 0};
    });
    const auto scene = build();
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, grid)[0]), "MLLZMLLZMLMLML");
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, mesh)[0]), "MLMLMLMLML"); // the diagonal once
}

TEST_F(CurveScenes, FaceMeshesLeaveTheirHiddenEdgesOut)
{
    auto* mesh = add<KdDbPolyFaceMesh>([](PolyFaceMeshMembers&) {});
    for (const KdGePoint3d& point :
         {KdGePoint3d{0, 0, 0}, KdGePoint3d{5, 0, 0}, KdGePoint3d{5, 5, 0}})
        addPart<KdDbPolyFaceMeshVertex>(mesh,
                                        [&](VertexMembers& vertex) { vertex.position = point; });
    addPart<KdDbFaceRecord>(mesh, [](FaceRecordMembers& face) { face.corners = {1, -2, 3, 0}; });
    addPart<KdDbFaceRecord>(mesh, [](FaceRecordMembers& face) { face.corners = {1, 9, 0, 0}; });
    const auto scene = build();
    EXPECT_THAT(pointsOf(*scene, shapesOf(*scene, mesh)[0]),
                ElementsAre(IsPoint(0, 0), IsPoint(5, 0), IsPoint(5, 5), IsPoint(0, 0)));
}

} // namespace
