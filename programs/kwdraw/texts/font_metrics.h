/// Sizes of letters in units of the height of a capital letter.
#pragma once

#include <QFont>
#include <QString>

#include <kwdraw/scene/scene.h>

/// How far a text reaches along its base line, each letter standing for itself: without kerning.
/// Answers from a cache for each letter, except in writing systems whose letters join; for any
/// thread. Needs a QGuiApplication.
double advanceOf(const SceneFont& font, const QString& text);
/// How far letters reach below the base line, as a number above 0.
double descentOf(const SceneFont& font);

/// The font at a size, set up so that its letters have the widths told here.
QFont letterFont(const SceneFont& font, int pixelSize);
