#include <kwdraw/scene/hatch_gradients.h>

#include <algorithm>
#include <cmath>
#include <string_view>

#include <kwdraw/scene/curve_box.h>
#include <kwdraw/scene/hatch_paths.h>

namespace {

/// The box around a hatch, its sides along and across the gradient.
struct TurnedBox
{
    KdGeVector2d along; ///< of length 1
    SceneBox box;       ///< in a frame whose x axis runs along

    KdGePoint2d inPlane(double x, double y) const
    {
        return {x * along.x - y * along.y, x * along.y + y * along.x};
    }
};

TurnedBox turnedBoxOf(const HatchContent& hatch, double angle)
{
    const TurnedBox turned{{std::cos(angle), std::sin(angle)}, {}};
    const FlatFrame plane(KdGeVector3d::kZAxis, 0.0);
    ScenePath path;
    for (const HatchLoop& loop : hatch.loops)
        addHatchLoop(path, plane, loop);
    std::vector<QPointF> points;
    for (const KdGePoint3d& point : path.points())
        points.emplace_back(point.x * turned.along.x + point.y * turned.along.y,
                            point.y * turned.along.x - point.x * turned.along.y);
    return {turned.along, boxOfPath(path.steps(), points)};
}

/// A circle in the frame along the gradient, with the part of its radius where the
/// colours begin.
struct Disc
{
    double x = 0.0;
    double y = 0.0;
    double radius = 1.0;
    double core = 0.0;
};

/// Light in the middle.
Disc sphereIn(const SceneBox& box)
{
    return {box.center().x(), box.center().y(), std::hypot(box.width(), box.height()) / 2.0, 0.0};
}

/// Light in the middle of the lower side.
Disc domeOn(const SceneBox& box)
{
    return {box.center().x(), box.bottom, std::hypot(box.width() / 2.0, box.height()), 0.0};
}

/// Bows about a point as far below as the box is high.
Disc bowsOver(const SceneBox& box)
{
    const double radius = std::hypot(box.width() / 2.0, 2.0 * box.height());
    return {box.center().x(), box.bottom - box.height(), radius,
            radius > 0.0 ? box.height() / radius : 0.0};
}

struct GradientRow
{
    std::wstring_view name;
    Disc (*disc)(const SceneBox&); ///< null: straight across
    bool thereAndBack;
    bool swaps; ///< the two colours
};

// clang-format off
constexpr GradientRow kGradients[] = {
    {L"LINEAR",           nullptr,  false, false},
    {L"CYLINDER",         nullptr,  true,  false},
    {L"INVCYLINDER",      nullptr,  true,  true},
    {L"SPHERICAL",        sphereIn, false, true},
    {L"INVSPHERICAL",     sphereIn, false, false},
    {L"HEMISPHERICAL",    domeOn,   false, true},
    {L"INVHEMISPHERICAL", domeOn,   false, false},
    {L"CURVED",           bowsOver, false, false},
    {L"INVCURVED",        bowsOver, false, true},
};
// clang-format on

const GradientRow& rowOf(const HatchContent& hatch)
{
    const auto* row = std::ranges::find_if(kGradients, [&](const GradientRow& candidate) {
        return KdNameEqual()(hatch.gradientName, candidate.name);
    });
    return row != std::end(kGradients) ? *row : kGradients[0];
}

std::vector<SceneGradient::Stop> stopsOf(const GradientRow& row, double core, QRgb first,
                                         QRgb second)
{
    if (row.swaps)
        std::swap(first, second);
    if (row.thereAndBack)
        return {{0.0, first}, {0.5, second}, {1.0, first}};
    return {{core, first}, {1.0, second}};
}

/// A gradient that is not centred has its light from the upper left.
KdGeVector2d shiftOf(const HatchContent& hatch)
{
    const SceneBox box = turnedBoxOf(hatch, 0.0).box;
    const double share = std::clamp(static_cast<double>(hatch.gradientShift), 0.0, 1.0) / 4.0;
    return {-share * box.width(), share * box.height()};
}

} // namespace

HatchGradient gradientOf(const HatchContent& hatch, QRgb first, QRgb second)
{
    const GradientRow& row = rowOf(hatch);
    const auto [along, box] = turnedBoxOf(hatch, hatch.gradientAngle);
    const TurnedBox turned{along, box};
    const KdGeVector2d across{-along.y, along.x};
    const Disc disc = row.disc ? row.disc(box) : Disc{box.left, box.bottom, box.width(), 0.0};

    HatchGradient gradient;
    gradient.colors.form = row.disc ? SceneGradient::Form::Radial : SceneGradient::Form::Linear;
    gradient.colors.stops = stopsOf(row, disc.core, first, second);
    const KdGeVector2d shift = shiftOf(hatch);
    const KdGePoint2d start = turned.inPlane(disc.x, disc.y);
    const FlatFrame plane(hatch.extrusion.normal(), hatch.elevation);
    gradient.placement = KdGeMatrix3d::fromFrame(
        plane(KdGePoint2d{start.x + shift.x, start.y + shift.y}),
        plane(KdGeVector2d{along.x * disc.radius, along.y * disc.radius}),
        plane(KdGeVector2d{across.x * disc.radius, across.y * disc.radius}), KdGeVector3d::kZAxis);
    return gradient;
}

QRgb tinted(QRgb color, double tint)
{
    const double share = std::clamp(std::abs(2.0 * tint - 1.0), 0.0, 1.0);
    const double goal = tint > 0.5 ? 255.0 : 0.0;
    const auto mixed = [&](int part) {
        return static_cast<int>(part * (1.0 - share) + goal * share + 0.5);
    };
    return qRgba(mixed(qRed(color)), mixed(qGreen(color)), mixed(qBlue(color)), qAlpha(color));
}
