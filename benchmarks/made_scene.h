/// A scene of many entities, of the kinds that fill drawings.
#pragma once

#include <memory>

#include <kwdraw/scene/scene.h>

/// The same one at each call with the same number.
std::shared_ptr<const Scene> madeScene(long entities);
