/// The colours of a view that the drawing does not give.
#pragma once

#include <QColor>
#include <QPalette>

#include <kwdraw/scene/scene.h>

enum class ViewColors
{
    Light,
    Dark,
    HighContrast, ///< white on black, sheets too; what is marked has a form of its own
};

/// Those that go with the colours of windows.
ViewColors viewColorsOf(const QPalette& palette);

struct Ground
{
    QColor color;       ///< behind the drawing
    QColor surround;    ///< beside the paper of a sheet
    QColor foreground;  ///< of what is drawn in colour 7
    QColor highlighted; ///< of what is selected
    QColor previewed;
    QColor hovered;
    bool isDark = false;
    double legible = 2.4; ///< the least contrast of what is drawn, 1 to 21

    /// The model's ground in windows of these colours, or a sheet's paper.
    static Ground of(ViewColors colors, bool isSheet);

    /// The colour that a look is painted with: colour 7 and colours next to the ground's are
    /// changed until they stand out.
    QColor painted(const SceneLook& look) const;
};
