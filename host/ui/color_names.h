/// Colours as rows of a list show them.
#pragma once

#include <database/color.h>

#include <QString>

/// A word for by layer, by block and the colours 1 to 7, a number for other indices, and red, green
/// and blue for the rest.
QString colorName(const KdCmColor& color);
