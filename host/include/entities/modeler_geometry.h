/// What solids, regions and surfaces share: a body in the form of a solid modeler.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <entities/declare.h>
#include <entities/modeler_edge.h>

struct KW_EXPORT ModelerGeometryMembers : EntityMembers
{
    /// Gives the data of the body: the modeler's text, or its binary form. Called at each question
    /// about the body, so that large bodies take no memory in between. Null: there is no body.
    std::function<std::string()> bodyData;
};

/// Base of all entities with such a body.
class KW_EXPORT KdDbModelerGeometry : public KdDbEntity
{
    KD_DB_MEMBERS(ModelerGeometryMembers)

    /// The data of the body; empty if there is none.
    std::string bodyData() const;
    /// The edges of the body in WCS, as far as its data is understood.
    std::vector<ModelerEdge> edges() const;
    /// Exact for plane, cylindrical and conical faces. Spheres and tori count as far as circles
    /// bound them, free surfaces by the hull of their control points. `eNotApplicable` without a
    /// body.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
