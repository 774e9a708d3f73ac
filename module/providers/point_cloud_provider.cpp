#include <entities/point_cloud.h>

#include <cmath>

#include <editor/insert_units.h>
#include <editor/system_variables.h>

#include <providers/name_rows.h>
#include <providers/other_providers.h>

namespace {

constexpr NameRow kStylizations[] = {
    {1, {78226, L"Scan colors"}},
    {2, {78227, L"Object color"}},
    {3, {78228, L"Normal"}},
};

int insertUnit()
{
    resbuf variable{};
    const bool isThere =
        kdedGetVar(L"INSUNITS", &variable) == RTNORM && variable.restype == RTSHORT;
    return isThere ? variable.resval.rint : kInsertUnitMillimeters;
}

/// Drawing units in a metre, the unit of clouds.
double unitFactor(const KdDbPointCloudEx&)
{
    double factor = 0.0;
    kddbGetUnitsConversion(kInsertUnitMeters, insertUnit(), factor);
    return factor;
}

double scale(const KdDbPointCloudEx& cloud)
{
    constexpr double kNoFactor = 1e-10;
    const double factor = unitFactor(cloud);
    return std::abs(factor) <= kNoFactor ? cloud.scale() : cloud.scale() / factor;
}

KdString unitName(const KdDbPointCloudEx&)
{
    KdString name;
    kdedGetUnitsValueString(kInsertUnitMeters, name);
    return name;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                  read-only  kind              value                                                      choices
    {{78216, L"3D Visualization:Stylization"}, editable, ResBuf::kString,  nameOf<&KdDbPointCloudEx::stylizationType, kStylizations>, namesOf<kStylizations>},
    {{78217, L"Geometry:Insertion point"},    editable,  ResBuf::kPoint3d, value<&KdDbPointCloudEx::location>},
    {{78218, L"Geometry:Rotation"},           editable,  ResBuf::kAngle,   value<&KdDbPointCloudEx::rotation>},
    {{78219, L"Geometry:Scale"},              editable,  ResBuf::kReal,    value<scale>},
    {{78220, L"Misc:Name"},                   editable,  ResBuf::kString,  value<&KdDbPointCloudEx::getPointCloudName>},
    {{78221, L"Misc:Saved path"},             derived,   ResBuf::kString,  value<&KdDbPointCloudEx::getActiveFileName>},
    {{78222, L"Misc:Show cropped"},           editable,  ResBuf::kBool,    value<&KdDbPointCloudEx::showCropped>},
    {{78223, L"Misc:Locked"},                 editable,  ResBuf::kBool,    value<&KdDbPointCloudEx::locked>},
    {{78224, L"Misc:Unit"},                   derived,   ResBuf::kString,  value<unitName>},
    {{78225, L"Misc:Unit factor"},            derived,   ResBuf::kReal,    value<unitFactor>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbPointCloudEx_Extension::rows()
{
    return kRows;
}
