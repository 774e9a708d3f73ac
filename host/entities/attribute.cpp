#include <entities/attribute.h>

KD_RX_DEFINE(KdDbAttribute, KdDbText, L"AcDbAttribute", L"ATTRIB")
KD_RX_DEFINE(KdDbAttributeDefinition, KdDbText, L"AcDbAttributeDefinition", L"ATTDEF")

KdErrorStatus KdDbAttributeText::getGeomExtents(KdGeExtents3d& extents) const
{
    return data().lines ? data().lines->getGeomExtents(extents) : KdDbText::getGeomExtents(extents);
}
