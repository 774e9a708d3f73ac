/// Multilines with gaps.
#pragma once

#include <vector>

#include <entities/mline.h>
#include <kwdraw/scene/scene_writer.h>

/// One line of a multiline, with a point for each vertex of the path.
struct MlineLine
{
    std::size_t element; ///< in the order of the style
    std::vector<KdGePoint3d> points;
};

/// Adds what the gaps leave of a line.
void addCutLine(ScenePath& path, const KdDbMline& mline, const MlineLine& line);
/// Adds the gaps in the fill between two lines, as closed polygons.
void addFillGaps(ScenePath& path, const KdDbMline& mline, const MlineLine& right,
                 const MlineLine& left);
