#include <entities/spline.h>

#include <memory>

#include <providers/curve_geometry.h>
#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/name_rows.h>

namespace {

constexpr NameRow kConstraints[] = {{KdDb::kHelixHeight, {77990, L"Height"}},
                                    {KdDb::kHelixTurnHeight, {77991, L"TurnHeight"}},
                                    {KdDb::kHelixTurns, {77992, L"Turns"}}};

constexpr ResourceText kTotalLength{77624, L"Geometry:Total length"};

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text             read-only  kind              value                                       choices
    {{77615, L"Geometry:Position"},      editable,  ResBuf::kPoint3d, value<&KdDbHelix::position>},
    {{77616, L"Geometry:Constrain"},     editable,  ResBuf::kString,  nameOf<&KdDbHelix::constrain, kConstraints>, namesOf<kConstraints>},
    {{77617, L"Geometry:Height"},        editable,  ResBuf::kReal,    value<&KdDbHelix::height>},
    {{77618, L"Geometry:Turns"},         editable,  ResBuf::kReal,    value<&KdDbHelix::turns>},
    {{77619, L"Geometry:Turn Height"},   editable,  ResBuf::kReal,    value<&KdDbHelix::turnHeight>},
    {{77620, L"Geometry:Base Radius"},   editable,  ResBuf::kReal,    value<&KdDbHelix::baseRadius>},
    {{77621, L"Geometry:Top Radius"},    editable,  ResBuf::kReal,    value<&KdDbHelix::topRadius>},
    {{77622, L"Geometry:Twist"},         editable,  ResBuf::kBool,    value<&KdDbHelix::twist>},
    {{77623, L"Geometry:Turn slope"},    derived,   ResBuf::kReal,    value<&KdDbHelix::turnSlope>},
    {kTotalLength,                       derived,   ResBuf::kReal,    answeredByTheProvider},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbHelix_Extension::rows()
{
    return kRows;
}

int KdDbHelix_Extension::PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                                          bool asDisplayText, bool withChoices)
{
    if (!entity || !entity->isKindOf(KdDbHelix::desc()) || !kTotalLength.matches(name))
        return TableProvider::PropertyValueGet(entity, name, result, asDisplayText, withChoices);
    double length = 0.0;
    getEntityTotalLength(entity, length);
    result->setRestype(ResBuf::kReal);
    result->setDouble(length);
    return 1;
}

int KdDbHelix_Extension::getEntityTotalLength(const KdDbEntity* entity, double& length) const
{
    constexpr int kNoEntity = 15;
    if (!entity)
        return kNoEntity;
    if (!entity->isKindOf(KdDbCurve::desc()))
        return 0;
    const std::unique_ptr<KdGeCurve3d> curve(asIcGeCurve(entity, false, false));
    if (!curve)
        return 0;
    double start = 0.0;
    double end = 0.0;
    static_cast<const KdDbCurve*>(entity)->getStartParam(start);
    static_cast<const KdDbCurve*>(entity)->getEndParam(end);
    length = curve->length(start, end, KdGeContext::gTol.equalPoint);
    return 0;
}
