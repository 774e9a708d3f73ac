/// The colours of a view that the drawing does not give.
#pragma once

#include <QColor>

#include <kwdraw/scene/scene.h>

struct Ground
{
    QColor color;       ///< behind the drawing
    QColor surround;    ///< beside the paper of a sheet
    QColor foreground;  ///< of what is drawn in colour 7
    QColor highlighted; ///< of what is selected
    QColor previewed;
    QColor hovered;
    bool isDark = false;

    /// The model's ground in a dark or light window, or white paper.
    static Ground of(bool isDark, bool isSheet);

    /// The colour that a look is painted with: colour 7 and colours next to the ground's are
    /// changed until they stand out.
    QColor painted(const SceneLook& look) const;
};
