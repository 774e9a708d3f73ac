#include <dimensions/dimension_kind_readers.h>

namespace {

bool measuresBeforeTheKindIsSet(DimensionKind kind)
{
    return kind == DimensionKind::Rotated || kind == DimensionKind::Radial ||
           kind == DimensionKind::RadialLarge;
}

} // namespace

bool neverRead(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    return true;
}

bool unanswered(const PropertyRequest&, ValueKind)
{
    return false;
}

bool measurement(const PropertyRequest& request, ValueKind kind)
{
    if (!measuresBeforeTheKindIsSet(kindOfDimension(request.entity)))
        request.head.setRestype(kind);
    double measured = 0.0;
    if (dimensionOf(request).measurement(measured) != eOk)
        return false;
    request.head.setRestype(kind);
    request.head.setDouble(measured);
    return true;
}

bool alternatePrefix(const PropertyRequest& request, ValueKind)
{
    storeTagged(request.head, prefixOf(dimensionOf(request).dimapost()));
    return true;
}

bool alternateSuffix(const PropertyRequest& request, ValueKind)
{
    storeTagged(request.head, suffixOf(dimensionOf(request).dimapost()));
    return true;
}

bool subUnitsSuffix(const PropertyRequest& request, ValueKind)
{
    storeTagged(request.head, dimensionOf(request).dimmzs());
    return true;
}

KdString singleArrow(const KdDbDimension& dimension)
{
    return dimension.isKindOf(KdDbRadialDimensionLarge::desc())
               ? arrow<&KdDbDimension::dimblk1>(dimension)
               : arrow<&KdDbDimension::dimblk2>(dimension);
}

int centerMarkSign(const KdDbDimension& dimension)
{
    const double size = dimension.dimcen();
    return size < 0.0 ? -1 : size > 0.0 ? 1 : 0;
}

int textDirection(const KdDbDimension& dimension)
{
    return dimension.dimtxtdirection() == 1 ? 1 : 0;
}

double overrideCenterX(const KdDbRadialDimensionLarge& dimension)
{
    return dimension.overrideCenter().x;
}

double overrideCenterY(const KdDbRadialDimensionLarge& dimension)
{
    return dimension.overrideCenter().y;
}

double jogPointX(const KdDbRadialDimensionLarge& dimension)
{
    return dimension.jogPoint().x;
}

double jogPointY(const KdDbRadialDimensionLarge& dimension)
{
    return dimension.jogPoint().y;
}
