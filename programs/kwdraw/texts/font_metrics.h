/// Sizes of letters in units of the height of a capital letter.
#pragma once

#include <QString>

#include <kwdraw/scene/scene.h>

class KdDbTextStyleTableRecord;

/// The font that stands for a text style's, which may name a TrueType face or a shape font; shape
/// fonts are replaced by one that is there.
SceneFont fontOf(const KdDbTextStyleTableRecord* style);

/// How far a text reaches along its base line. Answers from a cache for each letter; for any
/// thread.
double advanceOf(const SceneFont& font, const QString& text);
/// How far letters reach below the base line, as a number above 0.
double descentOf(const SceneFont& font);
