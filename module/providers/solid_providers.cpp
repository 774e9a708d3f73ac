#include <database/entity_extents.h>
#include <entities/solid3d.h>
#include <entities/surface.h>

#include <providers/other_providers.h>
#include <providers/shadow_names.h>
#include <values/globals.h>

namespace {

/// The box around a solid; without size at the origin while values are gathered for lists, since
/// measuring takes long, and for a solid that has none.
KdGeExtents3d boxOf(const KdDb3dSolid& solid)
{
    KdDbExtents box;
    if (!g_bIsIni3DSolidProp)
        box.addExt(solid);
    return box.isEmpty() ? KdGeExtents3d{{}, {}} : box;
}

KdGePoint3d centerOfBox(const KdDb3dSolid& solid)
{
    const KdGeExtents3d box = boxOf(solid);
    return box.minPoint + (box.maxPoint - box.minPoint) * 0.5;
}

template <double KdGeVector3d::*Coordinate>
double sizeOfBox(const KdDb3dSolid& solid)
{
    const KdGeExtents3d box = boxOf(solid);
    return (box.maxPoint - box.minPoint).*Coordinate;
}

/// One word for all solids, as intended.
KdString solidType(const KdDb3dSolid&)
{
    return ResourceText{78154, L"Box"}.text();
}

double noRotation(const KdDb3dSolid&)
{
    return 0.0;
}

double area(const KdDbRegion& region)
{
    double value = 0.0;
    region.getArea(value);
    return value;
}

double perimeter(const KdDbRegion& region)
{
    double value = 0.0;
    region.getPerimeter(value);
    return value;
}

KdGeVector3d normal(const KdDbRegion& region)
{
    KdGeVector3d value;
    region.getNormal(value);
    return value;
}

KdString surfaceType(const KdDbRevolvedSurface&)
{
    return ResourceText{78005, L"Revolve"}.text();
}

/// The kind of a value and no value.
bool kindAlone(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    return true;
}

// clang-format off
constexpr PropertyRow kSolidRows[] = {
    // key: id, default text                      read-only  kind              value                                choices, listed
    shadowRow<kShadowNames>(76618),
    {{77564, L"Geometry:Position"},               editable,  ResBuf::kPoint3d, value<centerOfBox>},
    {{77565, L"Geometry:Length"},                 derived,   ResBuf::kReal,    value<sizeOfBox<&KdGeVector3d::x>>},
    {{77566, L"Geometry:Width"},                  derived,   ResBuf::kReal,    value<sizeOfBox<&KdGeVector3d::y>>},
    {{77567, L"Geometry:Height"},                 derived,   ResBuf::kReal,    value<sizeOfBox<&KdGeVector3d::z>>},
    // answered and not listed: as intended
    {{77563, L"Geometry:Solid type"},             editable,  ResBuf::kString,  value<solidType>,                    noChoices, never},
    {{77568, L"Geometry:Rotation"},               editable,  ResBuf::kReal,    value<noRotation>,                   noChoices, never},
    {{77569, L"Solid history:History"},           editable,  ResBuf::kBool,    value<&KdDb3dSolid::recordHistory>,  noChoices, never},
    {{77570, L"Solid history:Show history"},      editable,  ResBuf::kBool,    value<&KdDb3dSolid::showHistory>,    noChoices, never},
};

constexpr PropertyRow kRegionRows[] = {
    shadowRow<kShadowNames>(77573),
    {{77574, L"Geometry:Area"},                   derived,   ResBuf::kReal,    value<area>},
    {{77575, L"Geometry:Perimeter"},              derived,   ResBuf::kReal,    value<perimeter>},
    {{76638, L"Geometry:Normal"},                 derived,   ResBuf::kPoint3d, value<&normal>},
};

constexpr PropertyRow kRevolvedSurfaceRows[] = {
    shadowRow<kShadowNamesOfFaces>(77998),
    {{77999, L"Geometry:Surface Type"},           derived,   ResBuf::kString,  value<surfaceType>},
    // without values, as intended
    {{78000, L"Geometry:Angle of revolution"},    editable,  ResBuf::kAngle,   kindAlone},
    {{78001, L"Geometry:Axis position"},          editable,  ResBuf::kPoint3d, kindAlone},
    {{78002, L"Geometry:Axis direction"},         derived,   ResBuf::kPoint3d, kindAlone},
    {{78003, L"Geometry:U isolines"},             editable,  ResBuf::kInt16,   value<&KdDbSurface::uIsolineDensity>},
    {{78004, L"Geometry:V isolines"},             editable,  ResBuf::kInt16,   value<&KdDbSurface::vIsolineDensity>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDb3dSolid_Extension::rows()
{
    return kSolidRows;
}

std::span<const PropertyRow> KdDbRegion_Extension::rows()
{
    return kRegionRows;
}

std::span<const PropertyRow> KdDbRevolvedSurface_Extension::rows()
{
    return kRevolvedSurfaceRows;
}
