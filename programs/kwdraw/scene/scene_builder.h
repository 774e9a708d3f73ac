/// From a drawing to what its spaces look like.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <kwdraw/scene/scene.h>

class KdDbDatabase;

/// What blocks may add to a scene, in points. A drawing can ask for any amount with a few nested
/// references, and beyond this neither the memory of a usual computer nor the patience of its owner
/// last; references then show as boxes. Entities and references that are looked at in blocks count
/// as well, by the time that they take, since they may show nothing.
inline constexpr std::uint64_t kMostPointsOfBlocks = 20'000'000;

/// Builds the scene of a block: of the model, a sheet, or a block definition that is open. Reads
/// the members of all entities in it, so nobody else may use the drawing meanwhile; may run in any
/// thread. Block references that lead into themselves show nothing.
/// @param model     the scene of the model for the windows of a sheet; may be null
/// @param progress  called now and then with the part that is done, 0 to 1; answering false gives
///                  up. May be empty
/// @param folder    of the drawing's file, where pictures of images are looked for; may be empty
/// @return          null if `progress` gave up or `space` is no block
std::shared_ptr<const Scene> buildScene(const KdDbDatabase& database, KdDbObjectId space,
                                        std::shared_ptr<const Scene> model,
                                        const std::function<bool(double)>& progress,
                                        const QString& folder = {},
                                        std::uint64_t mostPoints = kMostPointsOfBlocks);
