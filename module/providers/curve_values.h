/// What the providers of several curves read.
#pragma once

#include <entities/curve.h>

/// Points in WCS; the origin for a curve that has no such end.
KdGePoint3d startPointOf(const KdDbCurve& curve);
KdGePoint3d endPointOf(const KdDbCurve& curve);
/// How far the parameter runs, which for arcs is their angle; 0 for a curve without ends.
double parameterSpan(const KdDbCurve& curve);

/// An area as a text in the units of the working database; empty without a database.
KdString areaText(double area);
/// The same for the area of a curve; a curve without one has 0.
KdString curveAreaText(const KdDbCurve& curve);
