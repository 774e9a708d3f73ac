/// Entities as curves of geometry, and polylines of one form as those of another.
#pragma once

#include <entities/circle.h>
#include <entities/polyline.h>
#include <geometry/arcs.h>
#include <geometry/chains.h>

/// The arc, with angles from the x axis of its object frame. The caller owns it.
KdGeCircArc3d* circArc3d(const KdDbArc& arc);

/// The lines and arcs of the polyline, in WCS; segments without length are left out. Null for fewer
/// than two vertices. The caller owns it.
KdGeCompositeCurve3d* compositeCurve3d(const KdDbPolyline& polyline);

/// Refills a lightweight polyline with what a 2D polyline shows: its vertices but for those that
/// only control a spline, and its properties.
/// @param lightweight        a `KdDbPolyline`, open for write or not in a database
/// @param source             a `KdDb2dPolyline`; neither may be of a derived class
/// @param ignoreVertexXData  false: do nothing if a vertex has extended data, which would be lost
/// @return                   0; 2 if a vertex has extended data; 3 for other classes
int lwPlineFrom2DPline(KdDbCurve*& lightweight, KdDbCurve*& source, bool ignoreVertexXData);

/// The curve of an entity, or the outline of one that is no curve, in WCS.
/// @param unbounded   a line without end for what is straight, the whole round for arcs
/// @param exactClass  leave out entities of classes that only derive from one that has a conversion
/// @return            owned by the caller; null for what has no conversion, splines among them
KdGeCurve3d* asIcGeCurve(const KdDbEntity* entity, bool unbounded, bool exactClass);
