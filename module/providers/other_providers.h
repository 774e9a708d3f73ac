/// Providers of faces, solids, images and the other kinds that stand alone.
#pragma once

#include <entities/all.h>

#include <providers/entity_pe.h>
#include <providers/table_provider.h>

KW_CLASS_CHECKED_PROVIDER(KdDb3dSolid_Extension, KdDbEntity_Extension, KdDb3dSolid)
KW_CLASS_CHECKED_PROVIDER(KdDbFace_Extension, KdDbEntity_Extension, KdDbFace)
KW_CLASS_CHECKED_PROVIDER(KdDbGeoPositionMarker_Extension, KdDbEntity_Extension,
                          KdDbGeoPositionMarker)
KW_CLASS_CHECKED_PROVIDER(KdDbLight_Extension, KdDbEntity_Extension, KdDbLight)
KW_CLASS_CHECKED_PROVIDER(KdDbMline_Extension, KdDbEntity_Extension, KdDbMline)
KW_CLASS_CHECKED_PROVIDER(KdDbOleFrame_Extension, KdDbEntity_Extension, KdDbOleFrame)
KW_CLASS_CHECKED_PROVIDER(KdDbPoint_Extension, KdDbEntity_Extension, KdDbPoint)
KW_CLASS_CHECKED_PROVIDER(KdDbPointCloudEx_Extension, KdDbEntity_Extension, KdDbPointCloudEx)
KW_CLASS_CHECKED_PROVIDER(KdDbPolyFaceMesh_Extension, KdDbEntity_Extension, KdDbPolyFaceMesh)
KW_CLASS_CHECKED_PROVIDER(KdDbPolygonMesh_Extension, KdDbEntity_Extension, KdDbPolygonMesh)
KW_CLASS_CHECKED_PROVIDER(KdDbProxyEntity_Extension, KdDbEntity_Extension, KdDbProxyEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbRasterImage_Extension, KdDbEntity_Extension, KdDbRasterImage)
KW_CLASS_CHECKED_PROVIDER(KdDbRegion_Extension, KdDbEntity_Extension, KdDbRegion)
KW_CLASS_CHECKED_PROVIDER(KdDbRevolvedSurface_Extension, KdDbEntity_Extension, KdDbRevolvedSurface)
KW_CLASS_CHECKED_PROVIDER(KdDbSection_Extension, KdDbEntity_Extension, KdDbSection)
KW_CLASS_CHECKED_PROVIDER(KdDbSolid_Extension, KdDbEntity_Extension, KdDbSolid)
KW_CLASS_CHECKED_PROVIDER(KdDbTrace_Extension, KdDbEntity_Extension, KdDbTrace)

KW_CLASS_CHECKED_PROVIDER(KdDbWipeout_Extension, KdDbRasterImage_Extension, KdDbWipeout)
