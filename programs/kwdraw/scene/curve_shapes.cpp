// Lines, round curves, splines and curves without end.
#include <numbers>

#include <entities/circle.h>
#include <entities/ellipse.h>
#include <entities/line.h>
#include <entities/ray.h>
#include <entities/spline.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

constexpr double kWholeTurn = 2.0 * std::numbers::pi;

void drawLine(const KdDbLine& line, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    path.moveTo(line.startPoint());
    path.lineTo(line.endPoint());
    walk.writer().stroke(path);
}

void drawCircle(const KdDbCircle& circle, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    addArc(path, {circle.center(), circle.normal(), circle.radius(), 0.0, kWholeTurn});
    path.close();
    walk.writer().stroke(path);
}

void drawArc(const KdDbArc& arc, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    const double start = arc.startAngle();
    addArc(path, {arc.center(), arc.normal(), arc.radius(), start,
                  KdGe::endOfTurn(start, arc.endAngle())});
    walk.writer().stroke(path);
}

void drawEllipse(const KdDbEllipse& ellipse, EntityWalk& walk)
{
    double start = 0.0;
    double end = kWholeTurn;
    if (ellipse.getStartParam(start) != eOk || ellipse.getEndParam(end) != eOk)
        return;
    ScenePath& path = walk.newPath();
    path.ellipseTo(ellipse.center(), ellipse.majorAxis(), ellipse.minorAxis(), start, end);
    if (ellipse.isClosed())
        path.close();
    walk.writer().stroke(path);
}

void drawSpline(const KdDbSpline& spline, EntityWalk& walk)
{
    const KdDbNurbsData nurbs = spline.getNurbsData();
    const auto curve =
        KdGeNurbCurve3d::create(nurbs.degree, nurbs.knots, nurbs.controlPoints, nurbs.weights);
    if (!curve)
        return; // its parts don't fit each other, in a damaged drawing
    ScenePath& path = walk.newPath();
    addCubics(path, curve->cubicPieces());
    walk.writer().stroke(path);
}

void drawRay(const KdDbRay& ray, EntityWalk& walk)
{
    walk.writer().ray(ray.basePoint(), ray.unitDir(), false);
}

void drawXline(const KdDbXline& line, EntityWalk& walk)
{
    walk.writer().ray(line.basePoint(), line.unitDir(), true);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbArc, drawArc>(),         shapeRow<KdDbCircle, drawCircle>(),
    shapeRow<KdDbEllipse, drawEllipse>(), shapeRow<KdDbLine, drawLine>(),
    shapeRow<KdDbRay, drawRay>(),         shapeRow<KdDbSpline, drawSpline>(),
    shapeRow<KdDbXline, drawXline>(),
};

} // namespace

std::span<const ShapeRow> curveShapes()
{
    return kRows;
}
