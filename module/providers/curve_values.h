/// What the providers of several curves read.
#pragma once

#include <entities/curve.h>

#include <providers/property_row.h>

/// Points in WCS; the origin for a curve that has no such end.
KdGePoint3d startPointOf(const KdDbCurve& curve);
KdGePoint3d endPointOf(const KdDbCurve& curve);
/// How far the parameter runs, which for arcs is their angle; 0 for a curve without ends.
double parameterSpan(const KdDbCurve& curve);

/// The whole length; 0 for a curve without end.
double curveLength(const KdDbCurve& curve);
/// The area inside; 0 for a curve without one.
double curveArea(const KdDbCurve& curve);

/// An area as a text in the units of the working database; `otherwise` without a database.
KdString areaText(double area, const wchar_t* otherwise = L"");
/// The same for the area of a curve; a curve without one has 0.
KdString curveAreaText(const KdDbCurve& curve);
