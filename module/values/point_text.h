/// Points as text and back.
#pragma once

#include <geometry/point.h>
#include <runtime/kd_string.h>
#include <runtime/std_str.h>

/// Prints the three coordinates with commas between them, each as `kddbRToS` does.
/// @param units, precision  -1: those of the drawing
/// @param out               untouched on failure
/// @return                  `RTNORM`, or `RTERROR` if a coordinate cannot be printed
int point3dToString(const KdGePoint3d& point, int units, int precision, CStdStr<wchar_t>& out);

/// Reads two or three coordinates with commas between them, each as `stringToDistance` does. A
/// missing third is 0.
/// @param point  untouched on failure
/// @return       the first status of a coordinate that is not `RTNORM`, or `RTNORM`
int stringTo3dPoint(const KdString& text, int units, KdGePoint3d& point);
