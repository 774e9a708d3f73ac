// A picture of a scene, for people who want to see what the tests are about.
#pragma once

#include <QImage>

#include <kwdraw/scene/scene.h>

/// The whole scene on a dark ground, as wide as `width` pixels, or less if it is high.
QImage pictureOf(const Scene& scene, int width);
