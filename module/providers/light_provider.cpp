#include <entities/light.h>

#include <providers/name_rows.h>
#include <providers/other_providers.h>

namespace {

/// In the order in which they are offered.
constexpr NameRow kTypes[] = {
    {KdDbLight::kDistant, {78006, L"Distant"}},
    {KdDbLight::kPoint, {78007, L"Point"}},
    {KdDbLight::kSpot, {78008, L"Spot"}},
};

/// A number that is no type counts as the first one.
int typeOf(const KdDbLight& light)
{
    const int type = light.lightType();
    return type == KdDbLight::kPoint || type == KdDbLight::kSpot ? type : KdDbLight::kDistant;
}

/// Listed and never answered, as intended.
bool unanswered(const PropertyRequest&, ValueKind)
{
    return false;
}

// Unlike elsewhere, no tab stands before the category "General", which makes it one of its own.
// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                          read-only  kind              value                                choices
    {{77629, L"General:Name"},                        editable,  ResBuf::kString,  value<&KdDbLight::name>,             tag<0>},
    {{77630, L"General:Type"},                        derived,   ResBuf::kString,  nameOf<typeOf, kTypes>,              namesOf<kTypes>},
    {{77631, L"General:On\\of Status"},               editable,  ResBuf::kBool,    value<&KdDbLight::isOn>},
    {{77632, L"General:Shadows"},                     editable,  ResBuf::kBool,    value<&KdDbEntity::receiveShadows>},
    {{77633, L"General:Hotspot angle"},               editable,  ResBuf::kAngle,   value<&KdDbLight::hotspotAngle>},
    {{77634, L"General:Falloff angle"},               editable,  ResBuf::kAngle,   value<&KdDbLight::falloffAngle>},
    {{77635, L"General:Intensity factor"},            editable,  ResBuf::kReal,    value<&KdDbLight::intensity>},
    {{77636, L"General:Filter color"},                editable,  ResBuf::kColor,   value<&KdDbLight::lightColor>},
    {{77643, L"Geometry:Position"},                   editable,  ResBuf::kPoint3d, value<&KdDbLight::position>},
    {{77644, L"Geometry:Target"},                     editable,  ResBuf::kPoint3d, value<&KdDbLight::targetLocation>},
    {{77646, L"Attenuation:Type"},                    derived,   ResBuf::kNone,    unanswered},
    {{77647, L"Attenuation:Use limits"},              derived,   ResBuf::kNone,    unanswered},
    {{77648, L"Attenuation:Start limit offset"},      derived,   ResBuf::kNone,    unanswered},
    {{77649, L"Attenuation:End limit offset"},        derived,   ResBuf::kNone,    unanswered},
    {{77650, L"Rendered Shadow details:Type"},        derived,   ResBuf::kNone,    unanswered},
    {{77651, L"Rendered Shadow details:Map size"},    derived,   ResBuf::kNone,    unanswered},
    {{77652, L"Rendered Shadow details:Softness"},    derived,   ResBuf::kNone,    unanswered},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbLight_Extension::rows()
{
    return kRows;
}
