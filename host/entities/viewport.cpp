#include <entities/viewport.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

#include <database/database.h>

KD_RX_DEFINE(KdDbViewport, KdDbEntity, L"AcDbViewport", L"VIEWPORT")

namespace {

struct ScaleRow
{
    KdDbViewport::StandardScaleType type;
    double factor; ///< sheet by model
};

constexpr double kInchesInFoot = 12.0;

constexpr ScaleRow kScales[] = {
    {KdDbViewport::k1_1, 1.0},
    {KdDbViewport::k1_2, 1.0 / 2.0},
    {KdDbViewport::k1_4, 1.0 / 4.0},
    {KdDbViewport::k1_5, 1.0 / 5.0},
    {KdDbViewport::k1_8, 1.0 / 8.0},
    {KdDbViewport::k1_10, 1.0 / 10.0},
    {KdDbViewport::k1_16, 1.0 / 16.0},
    {KdDbViewport::k1_20, 1.0 / 20.0},
    {KdDbViewport::k1_30, 1.0 / 30.0},
    {KdDbViewport::k1_40, 1.0 / 40.0},
    {KdDbViewport::k1_50, 1.0 / 50.0},
    {KdDbViewport::k1_100, 1.0 / 100.0},
    {KdDbViewport::k2_1, 2.0},
    {KdDbViewport::k4_1, 4.0},
    {KdDbViewport::k8_1, 8.0},
    {KdDbViewport::k10_1, 10.0},
    {KdDbViewport::k100_1, 100.0},
    {KdDbViewport::k1_128in_1ft, 1.0 / 128.0 / kInchesInFoot},
    {KdDbViewport::k1_64in_1ft, 1.0 / 64.0 / kInchesInFoot},
    {KdDbViewport::k1_32in_1ft, 1.0 / 32.0 / kInchesInFoot},
    {KdDbViewport::k1_16in_1ft, 1.0 / 16.0 / kInchesInFoot},
    {KdDbViewport::k3_32in_1ft, 3.0 / 32.0 / kInchesInFoot},
    {KdDbViewport::k1_8in_1ft, 1.0 / 8.0 / kInchesInFoot},
    {KdDbViewport::k3_16in_1ft, 3.0 / 16.0 / kInchesInFoot},
    {KdDbViewport::k1_4in_1ft, 1.0 / 4.0 / kInchesInFoot},
    {KdDbViewport::k3_8in_1ft, 3.0 / 8.0 / kInchesInFoot},
    {KdDbViewport::k1_2in_1ft, 1.0 / 2.0 / kInchesInFoot},
    {KdDbViewport::k3_4in_1ft, 3.0 / 4.0 / kInchesInFoot},
    {KdDbViewport::k1in_1ft, 1.0 / kInchesInFoot},
    {KdDbViewport::k1and1_2in_1ft, 1.5 / kInchesInFoot},
    {KdDbViewport::k3in_1ft, 3.0 / kInchesInFoot},
    {KdDbViewport::k6in_1ft, 6.0 / kInchesInFoot},
    {KdDbViewport::k1ft_1ft, 1.0},
};

/// The factor at which the model fills a window as far as it goes.
std::optional<double> fittingFactor(const KdDbDatabase* database, double width, double height)
{
    if (!database)
        return std::nullopt;
    const KdDbHeaderVariables& header = database->header();
    const KdGeVector3d size = header.point(L"EXTMAX") - header.point(L"EXTMIN");
    if (!(size.x > 0.0) || !(size.y > 0.0))
        return std::nullopt;
    return std::min(width / size.x, height / size.y);
}

} // namespace

double KdDbViewport::customScale() const
{
    return data().viewHeight > 0.0 ? height() / data().viewHeight : 0.0;
}

KdDbViewport::StandardScaleType KdDbViewport::standardScale() const
{
    constexpr double kNear = 1e-9; // drawings keep fewer digits than we
    if (data().scaledToFit)
        return kScaleToFit;
    const double scale = customScale();
    const auto* const row = std::ranges::find_if(kScales, [scale](const ScaleRow& candidate) {
        return std::abs(scale - candidate.factor) <= kNear * candidate.factor;
    });
    return row == std::end(kScales) ? kCustomScale : row->type;
}

KdErrorStatus KdDbViewport::setStandardScale(StandardScaleType type)
{
    std::optional<double> factor;
    if (type == kScaleToFit) {
        factor = fittingFactor(database(), width(), height());
        if (!factor)
            return eNotApplicable;
    } else if (type == kCustomScale) {
        factor = customScale();
    } else {
        const auto* const row = std::ranges::find(kScales, type, &ScaleRow::type);
        if (row == std::end(kScales))
            return eInvalidInput;
        factor = row->factor;
    }
    ViewportMembers& members = edit();
    members.scaledToFit = type == kScaleToFit;
    if (*factor > 0.0)
        members.viewHeight = members.height / *factor;
    return eOk;
}

KdErrorStatus KdDbViewport::getGeomExtents(KdGeExtents3d& extents) const
{
    const KdGeVector3d half{width() / 2.0, height() / 2.0, 0.0};
    KdGeExtents3d box;
    box.addPoint(centerPoint() + half);
    box.addPoint(centerPoint() + -half);
    extents = box;
    return eOk;
}
