#include <dimensions/dimension_kind.h>

#include <algorithm>
#include <iterator>

#include <entities/all.h>

DimensionKind kindOfDimension(const KdDbEntity& entity)
{
    static KdRxClass* (*const kClasses[kDimensionKinds])() = {
        KdDbRotatedDimension::desc,       KdDbAlignedDimension::desc,
        KdDbArcDimension::desc,           KdDb2LineAngularDimension::desc,
        KdDb3PointAngularDimension::desc, KdDbRadialDimension::desc,
        KdDbRadialDimensionLarge::desc,   KdDbDiametricDimension::desc,
        KdDbOrdinateDimension::desc,
    };
    const auto* const found =
        std::ranges::find_if(kClasses, [&](auto desc) { return entity.isKindOf(desc()); });
    return found == std::end(kClasses)
               ? DimensionKind::Rotated
               : static_cast<DimensionKind>(std::distance(std::begin(kClasses), found));
}
