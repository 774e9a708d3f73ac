/// The program's icons, drawn in the colours of the theme.
#pragma once

#include <QIcon>

enum class Icon
{
    None,
    Open,
    Reload,
    Undo,
    Redo,
    QuickSelect,
    SelectSimilar,
    ZoomExtents,
    ZoomWindow,
    ZoomSelection,
    ZoomPrevious,
    Next,
    Previous,
    Layers,
    Properties,
    CommandLine,
    Lineweights,
    Theme,
    Help,
    Block,
};

/// Follows the palette whenever it is painted; sharp at every size. Null for `None`.
QIcon iconOf(Icon icon);
/// The picture of the program itself.
QIcon programIcon();
