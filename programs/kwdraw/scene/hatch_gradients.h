/// The running colours of hatches.
#pragma once

#include <entities/hatch.h>
#include <kwdraw/scene/scene_writer.h>

/// What a gradient is made of, and in which frame.
struct HatchGradient
{
    SceneGradient colors;
    KdGeMatrix3d placement; ///< from the frame of the gradient to that in which
                            ///< the hatch is given
};

/// @param first   the hatch's first colour
/// @param second  the second one, or the first one's tint
HatchGradient gradientOf(const HatchContent& hatch, QRgb first, QRgb second);

/// A colour that runs to white with a tint of 1, and to black with 0.
QRgb tinted(QRgb color, double tint);
