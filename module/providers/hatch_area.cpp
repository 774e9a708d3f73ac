// Measuring hatches by filling a copy anew.
#include <memory>
#include <vector>

#include <entities/line.h>

#include <providers/hatch_provider.h>

namespace {

/// The pieces of a copy of `entity` filled with a predefined pattern; none where that fails.
std::vector<std::unique_ptr<KdDbEntity>> refilledPieces(const KdDbEntity* entity,
                                                        const wchar_t* pattern, double scale)
{
    KdDbHatch copy;
    copy.copyFrom(entity);
    copy.setPattern(HatchContent::kPreDefined, pattern);
    copy.setPatternScale(scale);
    KdArray<KdDbEntity*> exploded;
    if (copy.evaluateHatch(true) != eOk || copy.explode(exploded) != eOk)
        return {};
    std::vector<std::unique_ptr<KdDbEntity>> pieces;
    for (int i = 0; i < exploded.length(); ++i)
        pieces.emplace_back(exploded[i]);
    return pieces;
}

double distanceToLine(const KdGePoint3d& point, const KdDbLine& line)
{
    const KdGeVector3d way = line.endPoint() - line.startPoint();
    const KdGeVector3d direction = way.normal();
    return direction.crossProduct(point - line.startPoint()).length();
}

} // namespace

int calculateAreaBySolidPattern(const KdDbEntity* entity, double& area)
{
    double sum = 0.0;
    for (const auto& piece : refilledPieces(entity, L"SOLID", 1.0)) {
        auto* provider = static_cast<KdDbEntityPE*>(piece->x(KdDbEntityPE::desc()));
        double part = 0.0;
        const int status = provider ? provider->getEntityTotalArea(piece.get(), part) : 1;
        if (status != 1 && status != 2)
            sum += part;
    }
    area = sum;
    return 0;
}

int calculateAreaByLinePattern(const KdDbEntity* entity, double& area)
{
    constexpr double kNarrow = 0.01;
    const auto pieces = refilledPieces(entity, L"LINE", kNarrow);
    area = 0.0;
    if (pieces.size() < 2)
        return 0;
    const auto line = [&](std::size_t i) -> const KdDbLine& {
        return static_cast<const KdDbLine&>(*pieces[i]);
    };
    const double spacing = distanceToLine(line(0).startPoint(), line(1));
    double before = line(0).startPoint().distanceTo(line(1).endPoint()); // across, as intended
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const double length = line(i).startPoint().distanceTo(line(i).endPoint());
        area += 0.5 * (length + before) * spacing;
        before = length;
    }
    return 0;
}
