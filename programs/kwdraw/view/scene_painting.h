/// Whole pictures of a scene.
#pragma once

#include <atomic>

#include "glyphs.h"
#include "pixel_frame.h"
#include "scene_index.h"
#include "shape_painter.h"
#include "view_request.h"

/// Paints one of the pictures of a request; the index is of its scene.
/// @param cancelled  asked all the time; a picture that was cancelled is of no use
ViewPicture paintLayer(ViewLayer layer, const ViewRequest& request, const SceneIndex& index,
                       GlyphStore& glyphs, const std::atomic<bool>& cancelled);

/// From the scene of a request to the pixels of its picture, or of a part that has its corner
/// there.
PixelFrame frameOf(const ViewRequest& request, QPoint corner = {});

/// How shapes are painted that fall into a part of the picture.
PaintStyle styleOf(const ViewRequest& request, const QRect& part);

ClipBox meet(const ClipBox& first, const ClipBox& second);
