/// Solids, bodies and regions.
#pragma once

#include <entities/modeler_geometry.h>
#include <geometry/point.h>

struct KW_EXPORT Solid3dMembers : ModelerGeometryMembers
{
    KdDbObjectId history;
};

class KW_EXPORT KdDb3dSolid : public KdDbModelerGeometry
{
    KD_RX_DECLARE(KdDb3dSolid)
    KD_DB_MEMBERS(Solid3dMembers)

    /// Whether the drawing keeps how the solid was made, and whether it shows it. False without a
    /// history.
    bool recordHistory() const;
    bool showHistory() const;
};

class KW_EXPORT KdDbBody : public KdDbModelerGeometry
{
    KD_RX_DECLARE(KdDbBody)
};

/// One or more flat areas, all in one plane.
class KW_EXPORT KdDbRegion : public KdDbModelerGeometry
{
    KD_RX_DECLARE(KdDbRegion)

    /// Square drawing units, holes left out. Like the two below: `eNotApplicable` without a body of
    /// flat faces, the result untouched.
    KdErrorStatus getArea(double& area) const;
    /// The length of all edges, those of holes included.
    KdErrorStatus getPerimeter(double& perimeter) const;
    /// In WCS, of length 1.
    KdErrorStatus getNormal(KdGeVector3d& normal) const;
};
