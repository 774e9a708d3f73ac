// Points, and what is shown by a mark or an outline in place of its own look.
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include <entities/geo_position_marker.h>
#include <entities/light.h>
#include <entities/point.h>
#include <entities/section.h>
#include <entities/shape.h>
#include <entities/viewport.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

void drawPoint(const KdDbPoint& point, EntityWalk& walk)
{
    walk.writer().marker(point.position(), walk.settings().pointMode, walk.settings().pointSize);
}

/// A light shows in any drawing as a small sign of one size on the screen.
void drawLight(const KdDbLight& light, EntityWalk& walk)
{
    constexpr int kCrossInCircle = 3 + 32;
    constexpr double kPercentOfView = -3.0;
    walk.writer().marker(light.position(), kCrossInCircle, kPercentOfView);
}

void drawGeoPosition(const KdDbGeoPositionMarker& marker, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    addArc(path,
           {marker.position(), KdGeVector3d::kZAxis, marker.radius(), 0.0, 2.0 * std::numbers::pi});
    path.close();
    walk.writer().stroke(path);
    writeMText(marker.mtext(), walk.writer());
}

void drawSection(const KdDbSection& section, EntityWalk& walk)
{
    std::vector<KdGePoint3d> points(static_cast<std::size_t>(section.numVertices()));
    for (int i = 0; i < section.numVertices(); ++i)
        section.getVertex(i, points[static_cast<std::size_t>(i)]);
    ScenePath& path = walk.newPath();
    addPolygon(path, points, false);
    walk.writer().stroke(path);
}

/// The square that the shape is drawn in; the shape itself is in a file of another kind.
void drawShape(const KdDbShape& shape, EntityWalk& walk)
{
    const KdGeMatrix3d plane = KdGeMatrix3d::planeToWorld(shape.normal());
    const double c = std::cos(shape.rotation());
    const double s = std::sin(shape.rotation());
    const KdGeVector3d right =
        plane * (KdGeVector3d{c, s, 0.0} * (shape.size() * shape.widthFactor()));
    const KdGeVector3d up = plane * (KdGeVector3d{-s, c, 0.0} * shape.size());
    const KdGePoint3d corner = shape.position();
    const std::array<KdGePoint3d, 4> corners = {corner, corner + right, corner + right + up,
                                                corner + up};
    ScenePath& path = walk.newPath();
    addPolygon(path, corners, true);
    walk.writer().stroke(path);
}

/// The edge of the window; what is seen in it is a scene of its own. A sheet's own viewport is no
/// window.
void drawViewport(const KdDbViewport& viewport, EntityWalk& walk)
{
    constexpr int kSheet = 1;
    if (viewport.number() == kSheet || !walk.isInSpace())
        return;
    if (viewport.nonRectClipEntityId().isKindOf(KdDbEntity::desc()))
        return walk.drawPart(viewport.nonRectClipEntityId());
    const KdGePoint3d center = viewport.centerPoint();
    const double x = viewport.width() / 2.0;
    const double y = viewport.height() / 2.0;
    const std::array<KdGePoint3d, 4> corners = {
        center + KdGeVector3d{-x, -y, 0.0}, center + KdGeVector3d{x, -y, 0.0},
        center + KdGeVector3d{x, y, 0.0}, center + KdGeVector3d{-x, y, 0.0}};
    ScenePath& path = walk.newPath();
    addPolygon(path, corners, true);
    walk.writer().stroke(path);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbGeoPositionMarker, drawGeoPosition>(),
    shapeRow<KdDbLight, drawLight>(),
    shapeRow<KdDbPoint, drawPoint>(),
    shapeRow<KdDbSection, drawSection>(),
    shapeRow<KdDbShape, drawShape>(),
    shapeRow<KdDbViewport, drawViewport>(),
};

} // namespace

std::span<const ShapeRow> markShapes()
{
    return kRows;
}
