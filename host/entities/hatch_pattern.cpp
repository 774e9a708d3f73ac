#include "hatch_pattern.h"

#include <cmath>
#include <iterator>
#include <numbers>
#include <span>

#include "plane_curve.h"

namespace {

/// A family at scale 1, before it is turned.
struct Family
{
    double angle;
    double spacing;
};

struct Pattern
{
    std::wstring_view name;
    bool solid;
    std::span<const Family> families;
};

constexpr Family kLine[] = {{0.0, 0.125}};

constexpr Pattern kPatterns[] = {
    {L"SOLID", true, {}},
    {L"LINE", false, kLine},
};

HatchPatternLine lineOf(const HatchContent& hatch, double angle, double spacing)
{
    const plane::Turn turn(angle);
    return {angle, hatch.origin, turn(KdGeVector2d{0.0, spacing}), {}};
}

} // namespace

KdErrorStatus makePatternLines(HatchContent& hatch)
{
    if (hatch.patternType == HatchContent::kUserDefined) {
        hatch.solid = false;
        hatch.patternLines = {lineOf(hatch, hatch.patternAngle, hatch.patternSpace)};
        if (hatch.doubled)
            hatch.patternLines.push_back(
                lineOf(hatch, hatch.patternAngle + std::numbers::pi / 2.0, hatch.patternSpace));
        return eOk;
    }
    for (const Pattern& pattern : kPatterns) {
        if (!KdNameEqual()(pattern.name, hatch.patternName))
            continue;
        hatch.solid = pattern.solid;
        hatch.patternLines.clear();
        for (const Family& family : pattern.families)
            hatch.patternLines.push_back(lineOf(hatch, hatch.patternAngle + family.angle,
                                                family.spacing * hatch.patternScale));
        return eOk;
    }
    return eKeyNotFound;
}
