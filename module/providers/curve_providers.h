/// Providers of the curves.
#pragma once

#include <entities/all.h>

#include <providers/entity_pe.h>
#include <providers/table_provider.h>

/// Groups the curves and overrides nothing.
KW_PLAIN_PROVIDER(KdDbCurve_Extension, KdDbEntity_Extension)

KW_CLASS_CHECKED_PROVIDER(KdDb2dPolyline_Extension, KdDbCurve_Extension, KdDb2dPolyline)
KW_CLASS_CHECKED_PROVIDER(KdDb3dPolyline_Extension, KdDbCurve_Extension, KdDb3dPolyline)
KW_TABLE_PROVIDER(KdDbArc_Extension, KdDbCurve_Extension, KdDbArc)
KW_TABLE_PROVIDER(KdDbCircle_Extension, KdDbCurve_Extension, KdDbCircle)
KW_TABLE_PROVIDER(KdDbEllipse_Extension, KdDbCurve_Extension, KdDbEllipse)
KW_TABLE_PROVIDER(KdDbLine_Extension, KdDbCurve_Extension, KdDbLine)
KW_CLASS_CHECKED_PROVIDER(KdDbPolyline_Extension, KdDbCurve_Extension, KdDbPolyline)
KW_TABLE_PROVIDER(KdDbRay_Extension, KdDbCurve_Extension, KdDbRay)
KW_CLASS_CHECKED_PROVIDER(KdDbSpline_Extension, KdDbCurve_Extension, KdDbSpline)
KW_TABLE_PROVIDER(KdDbXline_Extension, KdDbCurve_Extension, KdDbXline)

// A helix is a curve to the host, but not to the protocol.
KW_CLASS_CHECKED_PROVIDER(KdDbHelix_Extension, KdDbEntity_Extension, KdDbHelix)
