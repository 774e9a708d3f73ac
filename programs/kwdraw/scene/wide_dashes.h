/// Linetypes of polylines with widths.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include <kwdraw/scene/flat_paths.h>

/// A segment with its width, and how its ends are cut so that it meets its neighbours.
struct WideSegment
{
    FlatSegment line;
    double startWidth = 0.0;
    double endWidth = 0.0;
    KdGeVector2d startCut; ///< from the middle to the left edge, for half a width of 1
    KdGeVector2d endCut;

    bool isWide() const { return startWidth > 0.0 || endWidth > 0.0; }
    /// True for the dot of a linetype, which is a line across.
    bool isDot() const { return line.start == line.end; }
};

/// To the left of a direction, which is in radians; of length 1.
KdGeVector2d leftOf(double direction);

struct DashPattern
{
    std::span<const double> dashes; ///< above 0 drawn, below 0 left out, 0 a dot
    double scale = 1.0;
    bool runsOn = false; ///< begins once, and not at each segment
};

/// What a pattern draws of the wide ones among some segments. Nothing at all for a pattern without
/// length, or if it has too many dashes.
std::optional<std::vector<WideSegment>> dashesAlong(std::span<const WideSegment> segments,
                                                    const DashPattern& pattern, std::size_t most);
