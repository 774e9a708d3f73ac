/// What is marked in a view: selected, previewed, under the cursor.
#pragma once

#include <atomic>

#include "glyphs.h"
#include "scene_index.h"
#include "view_request.h"

/// Paints the marks of a layer, as large as they need; a null picture if there are none.
/// @param cancelled  asked all the time; a picture that was cancelled is of no use
ViewPicture paintMarks(ViewLayer layer, const ViewRequest& request, const SceneIndex& index,
                       GlyphStore& glyphs, const std::atomic<bool>& cancelled);
