/// Surfaces.
#pragma once

#include <entities/modeler_geometry.h>

struct KW_EXPORT SurfaceMembers : ModelerGeometryMembers
{
    std::int16_t uIsolines = 0;
    std::int16_t vIsolines = 0;
};

class KW_EXPORT KdDbSurface : public KdDbModelerGeometry
{
    KD_RX_DECLARE(KdDbSurface)
    KD_DB_MEMBERS(SurfaceMembers)

    /// How many lines show the surface's bend in each direction.
    std::int16_t uIsolineDensity() const { return data().uIsolines; }
    std::int16_t vIsolineDensity() const { return data().vIsolines; }
};

KD_DB_PLAIN_ENTITY(KdDbExtrudedSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbLoftedSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbPlaneSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbRevolvedSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbSweptSurface, KdDbSurface)
