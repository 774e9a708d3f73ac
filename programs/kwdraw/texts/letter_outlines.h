/// Outlines of letters in units of the height of a capital letter.
#pragma once

#include <QString>

#include <vector>

#include <kwdraw/scene/scene.h>

/// A path as a scene has it, filled by the winding rule.
struct LetterOutline
{
    std::vector<PathStep> steps;
    std::vector<QPointF> points; ///< y upwards, from the start of the base line
    double advance = 0.0;
};

/// Needs a QGuiApplication.
LetterOutline outlineOf(const SceneFont& font, const QString& text);
/// True for texts that can't be put together letter by letter.
bool needsShaping(const QString& text);
