/// Which items are at a place or in a box.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "scene_index.h"
#include "view_place.h"

/// How the drawing looks to whoever picks.
struct PickView
{
    double unitsPerPixel = 1.0;
    double viewHeight = 0.0; ///< pixels; some markers go by it in size
    std::span<const LayerState> layers;
};

/// The item whose line, text or marker is nearest to the place; where there is none, the topmost
/// whose area holds it. Of equally near ones the one that is painted last.
/// @param aperture  pixels that lines may be away
std::optional<std::uint32_t> itemAt(const SceneIndex& index, QPointF place, double aperture,
                                    const PickView& view);

enum class BoxRule
{
    Window,   ///< what lies in the box with all that is seen of it
    Crossing, ///< also what the box touches
};

/// Numbers of items, ascending.
std::vector<std::uint32_t> itemsIn(const SceneIndex& index, const SceneBox& box, BoxRule rule,
                                   const PickView& view);
