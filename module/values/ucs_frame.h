/// The user coordinate system of the moment.
#pragma once

#include <geometry/matrix.h>

/// The map from user to world coordinates, from "UCSORG", "UCSXDIR" and "UCSYDIR". The world's own
/// frame stands in for what cannot be read.
KdGeMatrix3d UcsToWcsTransform();
/// The same.
KdGeMatrix3d ucsToWcsTransf();
