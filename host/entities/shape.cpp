#include <entities/shape.h>

#include "text_box.h"

KD_RX_DEFINE(KdDbShape, KdDbEntity, L"AcDbShape", L"SHAPE")

KdErrorStatus KdDbShape::getGeomExtents(KdGeExtents3d& extents) const
{
    if (size() <= 0.0)
        return eNotApplicable;
    const TextBox box{0.0, size() * widthFactor(), 0.0, size()};
    TextPlacement placement;
    placement.origin = data().position;
    placement.rotation = rotation();
    placement.oblique = oblique();
    extents = placedExtents(box, placement, data().extrusion.frame(), thickness());
    return eOk;
}
