/// The windows of a sheet.
#pragma once

#include <functional>
#include <memory>

#include <geometry/matrix.h>
#include <kwdraw/scene/scene.h>

class KdDbDatabase;

/// Makes the scene of the model as it is seen through a map; null if the build was given up.
using MakeModel = std::function<std::shared_ptr<const Scene>(const KdGeMatrix3d& toScene)>;

/// Adds the windows of the viewports among the items of a sheet. A viewport that is off, or does
/// not tell what it shows, has none.
/// @param model      as seen from above; null: windows show nothing
/// @param makeModel  for viewports that look from elsewhere; called once for each direction
/// @return           false if the build was given up
bool addWindows(Scene& sheet, const std::shared_ptr<const Scene>& model, bool scalesLinetypes,
                const MakeModel& makeModel);
