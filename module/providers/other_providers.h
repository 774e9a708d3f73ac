/// Providers of faces, solids, images and the other kinds that stand alone.
#pragma once

#include <entities/all.h>
#include <plugin/entity_pe.h>

#include <providers/table_provider.h>

KW_TABLE_PROVIDER(KdDb3dSolid_Extension, KdDbEntity_Extension, KdDb3dSolid)
KW_TABLE_PROVIDER(KdDbFace_Extension, KdDbEntity_Extension, KdDbFace)
KW_TABLE_PROVIDER(KdDbGeoPositionMarker_Extension, KdDbEntity_Extension, KdDbGeoPositionMarker)
KW_TABLE_PROVIDER(KdDbLight_Extension, KdDbEntity_Extension, KdDbLight)
KW_TABLE_PROVIDER(KdDbMline_Extension, KdDbEntity_Extension, KdDbMline)
KW_TABLE_PROVIDER(KdDbOleFrame_Extension, KdDbEntity_Extension, KdDbOleFrame)
KW_TABLE_PROVIDER(KdDbPoint_Extension, KdDbEntity_Extension, KdDbPoint)
KW_TABLE_PROVIDER(KdDbPointCloudEx_Extension, KdDbEntity_Extension, KdDbPointCloudEx)
KW_TABLE_PROVIDER(KdDbPolyFaceMesh_Extension, KdDbEntity_Extension, KdDbPolyFaceMesh)
KW_TABLE_PROVIDER(KdDbPolygonMesh_Extension, KdDbEntity_Extension, KdDbPolygonMesh)
KW_TABLE_PROVIDER(KdDbProxyEntity_Extension, KdDbEntity_Extension, KdDbProxyEntity)
KW_TABLE_PROVIDER(KdDbRegion_Extension, KdDbEntity_Extension, KdDbRegion)
KW_TABLE_PROVIDER(KdDbRevolvedSurface_Extension, KdDbEntity_Extension, KdDbRevolvedSurface)
KW_TABLE_PROVIDER(KdDbSection_Extension, KdDbEntity_Extension, KdDbSection)
KW_TABLE_PROVIDER(KdDbSolid_Extension, KdDbEntity_Extension, KdDbSolid)
KW_TABLE_PROVIDER(KdDbTrace_Extension, KdDbEntity_Extension, KdDbTrace)

class KdDbRasterImage_Extension
    : public TableProvider<KdDbRasterImage_Extension, KdDbEntity_Extension, KdDbRasterImage>
{
  public:
    static std::span<const PropertyRow> rows();

    /// How much larger than its file an image is shown, along both edges; the lengths of the edges
    /// where the file is not known.
    static void GetScale(KdDbRasterImage* image, KdGeVector2d& scale);
};

/// Lists less than an image, and answers the same, for images as well.
class KdDbWipeout_Extension : public KdDbRasterImage_Extension
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
};
