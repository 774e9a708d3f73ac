#include <entities/dimension.h>

KD_RX_DEFINE_ABSTRACT(KdDbDimension, KdDbEntity, L"AcDbDimension")
KD_RX_DEFINE(KdDbAlignedDimension, KdDbDimension, L"AcDbAlignedDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbRotatedDimension, KdDbDimension, L"AcDbRotatedDimension", L"DIMENSION")
KD_RX_DEFINE(KdDb2LineAngularDimension, KdDbDimension, L"AcDb2LineAngularDimension", L"DIMENSION")
KD_RX_DEFINE(KdDb3PointAngularDimension, KdDbDimension, L"AcDb3PointAngularDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbDiametricDimension, KdDbDimension, L"AcDbDiametricDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbOrdinateDimension, KdDbDimension, L"AcDbOrdinateDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbRadialDimension, KdDbDimension, L"AcDbRadialDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbArcDimension, KdDbDimension, L"AcDbArcDimension", L"ARC_DIMENSION")
KD_RX_DEFINE(KdDbRadialDimensionLarge, KdDbDimension, L"AcDbRadialDimensionLarge",
             L"LARGE_RADIAL_DIMENSION")
