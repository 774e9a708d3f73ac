#include <entities/radial_dimensions.h>

KD_RX_DEFINE(KdDbDiametricDimension, KdDbDimension, L"AcDbDiametricDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbRadialDimension, KdDbDimension, L"AcDbRadialDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbRadialDimensionLarge, KdDbDimension, L"AcDbRadialDimensionLarge",
             L"LARGE_RADIAL_DIMENSION")

KdErrorStatus KdDbDiametricDimension::measure(double& value) const
{
    value = chordPoint().distanceTo(farChordPoint());
    return eOk;
}

KdErrorStatus KdDbRadialDimension::measure(double& value) const
{
    value = center().distanceTo(chordPoint());
    return eOk;
}

KdErrorStatus KdDbRadialDimensionLarge::measure(double& value) const
{
    value = center().distanceTo(chordPoint());
    return eOk;
}
