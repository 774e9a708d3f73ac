/// Dimensions.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbDimension, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbAlignedDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDbRotatedDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDb2LineAngularDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDb3PointAngularDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDbDiametricDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDbOrdinateDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDbRadialDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDbArcDimension, KdDbDimension)
KD_DB_PLAIN_ENTITY(KdDbRadialDimensionLarge, KdDbDimension)
