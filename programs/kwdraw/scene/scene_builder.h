/// From a drawing to what its spaces look like.
#pragma once

#include <functional>
#include <memory>

#include <kwdraw/scene/scene.h>

class KdDbDatabase;

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
                                        const QString& folder = {});
