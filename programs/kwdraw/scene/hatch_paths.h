/// Boundaries of hatches as paths.
#pragma once

#include <entities/hatch.h>
#include <kwdraw/scene/flat_paths.h>

/// Adds a loop as a closed line. Edges that a drawing has turned round run on as they should.
void addHatchLoop(ScenePath& path, const FlatFrame& frame, const HatchLoop& loop);
