#include <geometry/nurb_curve.h>

#include <BSplCLib.hxx>
#include <Standard_Failure.hxx>
#include <TColStd_Array1OfInteger.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TColgp_Array1OfPnt.hxx>

namespace {

constexpr int kDegree = 3;

/// The points without repetitions, and the way to each.
struct Course
{
    explicit Course(const KdGeFitData& data)
    {
        for (const KdGePoint3d& point : data.points)
            append(point);
        if (data.closed && points.size() > 2)
            append(points.front());
    }

    void append(const KdGePoint3d& point)
    {
        const double step = points.empty() ? 0.0 : points.back().distanceTo(point);
        if (!points.empty() && !(step > 0.0))
            return;
        ways.push_back(points.empty() ? 0.0 : ways.back() + step);
        points.push_back(point);
    }

    bool isClosed() const { return points.size() > 3 && points.front() == points.back(); }
    int size() const { return static_cast<int>(points.size()); }

    std::vector<KdGePoint3d> points;
    std::vector<double> ways;
};

std::vector<double> clampedKnots(const Course& course)
{
    std::vector<double> knots(kDegree, course.ways.front());
    knots.insert(knots.end(), course.ways.begin(), course.ways.end());
    knots.insert(knots.end(), kDegree, course.ways.back());
    return knots;
}

/// What an end of the curve has to meet: its first or second derivative.
struct EndCondition
{
    int order = 2;
    KdGeVector3d derivative;
};

gp_Pnt kernelPoint(const KdGePoint3d& point)
{
    return {point.x, point.y, point.z};
}

/// The control points of the curve through the course; empty if there are none.
std::vector<KdGePoint3d> solve(const Course& course, const std::vector<double>& knots,
                               const EndCondition& start, const EndCondition& end)
{
    const int count = course.size() + 2;
    TColStd_Array1OfReal flat(knots.front(), 1, count + kDegree + 1);
    TColStd_Array1OfReal places(1, count);
    TColStd_Array1OfInteger orders(1, count);
    TColgp_Array1OfPnt points(1, count);
    const auto condition = [&](int row, int place, int order, const KdGePoint3d& value) {
        places(row) = course.ways[static_cast<std::size_t>(place)];
        orders(row) = order;
        points(row) = kernelPoint(value);
    };
    const int last = course.size() - 1;
    condition(1, 0, 0, course.points.front());
    condition(2, 0, start.order, KdGePoint3d::kOrigin + start.derivative);
    for (int i = 1; i < last; ++i)
        condition(i + 2, i, 0, course.points[static_cast<std::size_t>(i)]);
    condition(count - 1, last, end.order, KdGePoint3d::kOrigin + end.derivative);
    condition(count, last, 0, course.points.back());
    int faultyRow = 0;
    BSplCLib::Interpolate(kDegree, flat, places, orders, points, faultyRow);
    std::vector<KdGePoint3d> result;
    for (int i = 1; faultyRow == 0 && i <= count; ++i)
        result.push_back({points(i).X(), points(i).Y(), points(i).Z()});
    return result;
}

EndCondition conditionOf(const KdGeVector3d& tangent)
{
    // The parameter is the way along the points, so the curve runs at about unit speed.
    return tangent.length() > 0.0 ? EndCondition{1, tangent.normal()} : EndCondition{};
}

/// The second derivative at the start less that at the end.
KdGeVector3d curvatureStep(const std::vector<double>& knots, const std::vector<KdGePoint3d>& points)
{
    const auto secondDerivative = [](const KdGePoint3d& end, const KdGePoint3d& next,
                                     const KdGePoint3d& third, double near, double far) {
        const KdGeVector3d first = (next - end) * (3.0 / near);
        const KdGeVector3d second = (third - next) * (3.0 / far);
        return (second + -first) * (2.0 / near);
    };
    const std::size_t n = points.size();
    const std::size_t last = knots.size() - 1;
    const KdGeVector3d atStart =
        secondDerivative(points[0], points[1], points[2], knots[4] - knots[0], knots[5] - knots[0]);
    const KdGeVector3d atEnd =
        secondDerivative(points[n - 1], points[n - 2], points[n - 3], knots[last] - knots[last - 4],
                         knots[last] - knots[last - 5]);
    return atStart + -atEnd;
}

/// The closed curve that is as smooth at its seam as elsewhere. The step of curvature there is, for
/// each coordinate by itself, a linear function of the tangent.
std::vector<KdGePoint3d> solveClosed(const Course& course, const std::vector<double>& knots)
{
    const auto withTangent = [&](const KdGeVector3d& tangent) {
        return solve(course, knots, {1, tangent}, {1, tangent});
    };
    const auto flat = withTangent({});
    const auto other = withTangent({1.0, 1.0, 1.0});
    if (flat.empty() || other.empty())
        return {};
    const KdGeVector3d step = curvatureStep(knots, flat);
    const KdGeVector3d change = curvatureStep(knots, other) + -step;
    return withTangent({-step.x / change.x, -step.y / change.y, -step.z / change.z});
}

} // namespace

KdGeFitCurve kdgeInterpolate(const KdGeFitData& data)
{
    const Course course(data);
    if (course.size() < 2)
        return {};
    const EndCondition start = conditionOf(data.startTangent);
    const EndCondition end = conditionOf(data.endTangent);
    const bool isSmoothRing = course.isClosed() && start.order == 2 && end.order == 2;
    KdGeFitCurve curve{clampedKnots(course), {}};
    try {
        curve.controlPoints = isSmoothRing ? solveClosed(course, curve.knots)
                                           : solve(course, curve.knots, start, end);
    } catch (const Standard_Failure&) {
        // numbers out of all proportion: no curve
    }
    return curve.controlPoints.empty() ? KdGeFitCurve{} : curve;
}
