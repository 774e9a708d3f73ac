#include <entities/hatch.h>

#include <algorithm>
#include <memory>

#include <entities/line.h>

#include "hatch_boundary.h"
#include "hatch_lines.h"
#include "hatch_pattern.h"

KD_RX_DEFINE(KdDbHatch, KdDbEntity, L"AcDbHatch", L"HATCH")
KD_RX_DEFINE(KdDbMPolygon, KdDbEntity, L"AcDbMPolygon", L"MPOLYGON")

namespace {

using Pieces = std::vector<std::unique_ptr<KdDbEntity>>;

bool isFilled(const HatchContent& hatch)
{
    return hatch.solid || hatch.gradient;
}

/// All curves around what is filled; they are crossed when an area begins and when it ends.
std::vector<plane::Curve> outlines(const HatchBoundary& boundary)
{
    std::vector<plane::Curve> curves;
    const auto append = [&](std::size_t loop) {
        const auto more = boundary.loops()[loop].curves();
        curves.insert(curves.end(), more.begin(), more.end());
    };
    for (const plane::Region& region : boundary.filledRegions()) {
        append(region.outer);
        for (const std::size_t hole : region.holes)
            append(hole);
    }
    return curves;
}

HatchPatternLine movedTo(HatchPatternLine family, const KdGePoint2d& origin)
{
    family.base = {family.base.x - origin.x, family.base.y - origin.y};
    return family;
}

/// The visible lines in the frame of the boundary; false if there are too many.
bool cutAllLines(const HatchContent& hatch, const HatchBoundary& boundary, std::size_t most,
                 std::vector<plane::Line>& lines)
{
    const std::vector<plane::Curve> curves = outlines(boundary);
    for (const HatchPatternLine& family : hatch.patternLines) {
        if (!cutHatchLines(curves, movedTo(family, boundary.origin()), most, lines))
            return false;
    }
    return true;
}

double estimatedLines(const HatchContent& hatch, const HatchBoundary& boundary)
{
    const std::vector<plane::Curve> curves = outlines(boundary);
    double count = 0.0;
    for (const HatchPatternLine& family : hatch.patternLines)
        count += countHatchLines(curves, movedTo(family, boundary.origin()));
    return count;
}

KdErrorStatus visibleLines(const HatchContent& hatch, const HatchBoundary& boundary,
                           std::size_t most, std::vector<plane::Line>& lines)
{
    if (boundary.loops().empty() || hatch.patternLines.empty())
        return eNotApplicable;
    return cutAllLines(hatch, boundary, most, lines) ? eOk : eOutOfRange;
}

/// A hatch for each region.
Pieces regionPieces(const KdDbHatch& hatch, const HatchContent& content,
                    const HatchBoundary& boundary)
{
    Pieces pieces;
    for (const plane::Region& region : boundary.filledRegions()) {
        auto piece = std::make_unique<KdDbHatch>();
        piece->setPropertiesFrom(hatch);
        HatchContent& part = piece->edit();
        part = content;
        part.loops = {content.loops[boundary.numberOf(region.outer)]};
        for (const std::size_t hole : region.holes)
            part.loops.push_back(content.loops[boundary.numberOf(hole)]);
        pieces.push_back(std::move(piece));
    }
    return pieces;
}

Pieces linePieces(const KdDbHatch& hatch, const HatchContent& content, const KdGePoint2d& origin,
                  const std::vector<plane::Line>& lines)
{
    const KdGeMatrix3d frame = content.extrusion.frame();
    const auto toWorld = [&](const KdGePoint2d& point) {
        return frame * KdGePoint3d{point.x + origin.x, point.y + origin.y, content.elevation};
    };
    Pieces pieces;
    for (const plane::Line& line : lines) {
        auto piece = std::make_unique<KdDbLine>();
        piece->setPropertiesFrom(hatch);
        piece->edit().start = toWorld(line.start);
        piece->edit().end = toWorld(line.end);
        piece->edit().extrusion.setDirection(content.extrusion.direction());
        pieces.push_back(std::move(piece));
    }
    return pieces;
}

/// The range of one world coordinate, given what it is made of: the factors of x and y and the
/// rest.
void addWorldRange(const HatchBoundary& boundary, const KdGeVector2d& direction, double rest,
                   double& low, double& high)
{
    plane::Range range;
    for (const plane::ClosedLoop& loop : boundary.loops()) {
        for (const plane::Curve& curve : loop.curves())
            addRange(curve, direction, range);
    }
    low = range.low + rest;
    high = range.high + rest;
}

} // namespace

std::vector<std::vector<std::size_t>> kddbFilledLoops(const HatchContent& hatch)
{
    const HatchBoundary boundary(hatch);
    std::vector<std::vector<std::size_t>> areas;
    for (const plane::Region& region : boundary.filledRegions()) {
        std::vector<std::size_t>& area = areas.emplace_back();
        area.push_back(boundary.numberOf(region.outer));
        for (const std::size_t hole : region.holes)
            area.push_back(boundary.numberOf(hole));
    }
    return areas;
}

KdErrorStatus kddbPatternLines(const HatchContent& hatch, std::size_t most,
                               std::vector<HatchLineEdge>& lines)
{
    const HatchBoundary boundary(hatch);
    std::vector<plane::Line> cut;
    const KdErrorStatus status =
        visibleLines(hatch, boundary, std::min(most, kMostHatchLines), cut);
    if (status != eOk)
        return status;
    const KdGePoint2d& origin = boundary.origin();
    for (const plane::Line& line : cut)
        lines.push_back({{line.start.x + origin.x, line.start.y + origin.y},
                         {line.end.x + origin.x, line.end.y + origin.y}});
    return eOk;
}

KdErrorStatus KdDbHatch::getGradientColors(unsigned& count, const KdCmColor*& colors,
                                           const float*& values) const
{
    const HatchContent& hatch = data();
    count = static_cast<unsigned>(hatch.gradientColors.size());
    colors = count > 0 ? hatch.gradientColors.data() : nullptr;
    values = count > 0 ? hatch.gradientValues.data() : nullptr;
    return eOk;
}

KdErrorStatus KdDbHatch::getArea(double& area) const
{
    const HatchBoundary boundary(data());
    if (boundary.loops().empty())
        return eNotApplicable;
    double sum = 0.0;
    for (const plane::Region& region : boundary.filledRegions())
        sum += boundary.areaOf(region);
    area = sum;
    return eOk;
}

KdErrorStatus KdDbHatch::getGeomExtents(KdGeExtents3d& extents) const
{
    const HatchBoundary boundary(data());
    if (boundary.loops().empty())
        return eNotApplicable;
    const KdGeMatrix3d frame = data().extrusion.frame();
    const KdGePoint2d& origin = boundary.origin();
    const KdGePoint3d rest = frame * KdGePoint3d{origin.x, origin.y, data().elevation};
    const auto& entry = frame.entry;
    KdGePoint3d low;
    KdGePoint3d high;
    addWorldRange(boundary, {entry[0][0], entry[0][1]}, rest.x, low.x, high.x);
    addWorldRange(boundary, {entry[1][0], entry[1][1]}, rest.y, low.y, high.y);
    addWorldRange(boundary, {entry[2][0], entry[2][1]}, rest.z, low.z, high.z);
    extents = {low, high};
    return eOk;
}

KdErrorStatus KdDbHatch::copyFrom(const KdRxObject* other)
{
    if (!other || !other->isKindOf(KdDbHatch::desc()))
        return eNotThatKindOfClass;
    const auto& hatch = static_cast<const KdDbHatch&>(*other);
    if (&hatch == this)
        return eOk;
    static_cast<HatchContent&>(edit()) = hatch.data();
    setPropertiesFrom(hatch);
    return eOk;
}

KdErrorStatus KdDbHatch::setPattern(int type, const wchar_t* name)
{
    if (!name || type < HatchContent::kUserDefined || type > HatchContent::kCustomDefined)
        return eInvalidInput;
    HatchContent changed = data();
    changed.patternType = static_cast<std::int16_t>(type);
    changed.patternName = name;
    changed.gradient = false;
    const KdErrorStatus status = makePatternLines(changed);
    if (status == eOk)
        static_cast<HatchContent&>(edit()) = std::move(changed);
    return status;
}

KdErrorStatus KdDbHatch::setPatternScale(double scale)
{
    if (!(scale > 0.0))
        return eInvalidInput;
    HatchContent& hatch = edit();
    const double factor = scale / hatch.patternScale;
    hatch.patternScale = scale;
    if (hatch.patternType == HatchContent::kUserDefined)
        return eOk; // its spacing is its own
    for (HatchPatternLine& family : hatch.patternLines) {
        family.base = {hatch.origin.x + (family.base.x - hatch.origin.x) * factor,
                       hatch.origin.y + (family.base.y - hatch.origin.y) * factor};
        family.offset = {family.offset.x * factor, family.offset.y * factor};
        for (double& dash : family.dashes)
            dash *= factor;
    }
    return eOk;
}

KdErrorStatus KdDbHatch::evaluateHatch(bool estimate) const
{
    const HatchContent& hatch = data();
    const HatchBoundary boundary(hatch);
    if (isFilled(hatch))
        return boundary.loops().empty() ? eNotApplicable : eOk;
    if (estimate && !boundary.loops().empty() && !hatch.patternLines.empty())
        return estimatedLines(hatch, boundary) <= static_cast<double>(kMostHatchLines)
                   ? eOk
                   : eOutOfRange;
    std::vector<plane::Line> lines;
    return visibleLines(hatch, boundary, kMostHatchLines, lines);
}

KdErrorStatus KdDbHatch::explode(KdArray<KdDbEntity*>& pieces) const
{
    const HatchContent& hatch = data();
    const HatchBoundary boundary(hatch);
    Pieces made;
    if (isFilled(hatch)) {
        if (boundary.loops().empty())
            return eNotApplicable;
        made = regionPieces(*this, hatch, boundary);
    } else {
        std::vector<plane::Line> lines;
        const KdErrorStatus status = visibleLines(hatch, boundary, kMostHatchLines, lines);
        if (status != eOk)
            return status;
        made = linePieces(*this, hatch, boundary.origin(), lines);
    }
    for (std::unique_ptr<KdDbEntity>& piece : made)
        pieces.append(piece.release());
    return eOk;
}
