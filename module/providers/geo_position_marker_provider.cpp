#include <entities/geo_position_marker.h>

#include <providers/name_rows.h>
#include <providers/other_providers.h>
#include <providers/text_values.h>

namespace {

constexpr NameRow kAlignments[] = {
    {KdDbGeoPositionMarker::kLeft, {77694, L"Left"}},
    {KdDbGeoPositionMarker::kCenter, {77698, L"Middle"}},
    {KdDbGeoPositionMarker::kRight, {77696, L"Right"}},
};

/// A value of the marker's text.
template <auto Getter>
auto ofText(const KdDbGeoPositionMarker& marker)
{
    return std::invoke(Getter, marker.mtext());
}

KdString styleName(const KdDbMText& text)
{
    return textStyleName(text.textStyle());
}

template <double KdGePoint3d::*Coordinate>
double placeOnGlobe(const KdDbGeoPositionMarker& marker)
{
    return marker.geoPosition().*Coordinate;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                 read-only  kind              value                                             choices
    {{78313, L"Geometry:Position"},          editable,  ResBuf::kPoint3d, value<&KdDbGeoPositionMarker::position>},
    {{78314, L"Geometry:Size"},              editable,  ResBuf::kReal,    value<&KdDbGeoPositionMarker::radius>},
    {{77082, L"Text:Contents"},              editable,  ResBuf::kString,  value<ofText<contentsOf>>,                        tag<1>},
    {{77083, L"Text:Style"},                 editable,  ResBuf::kString,  value<ofText<styleName>>,                         textStyleChoices},
    {{77084, L"Text:Justify"},               editable,  ResBuf::kString,  nameOf<&KdDbGeoPositionMarker::textAlignmentType, kAlignments>, namesOf<kAlignments>},
    {{77085, L"Text:Direction"},             editable,  ResBuf::kString,  value<ofText<directionName>>,                     directionChoices},
    {{77091, L"Text:Defined width"},         editable,  ResBuf::kReal,    value<ofText<&KdDbMText::width>>},
    {{77086, L"Text:Text height"},           editable,  ResBuf::kReal,    value<ofText<&KdDbMText::textHeight>>},
    {{77087, L"Text:Rotation"},              editable,  ResBuf::kAngle,   value<ofText<&KdDbMText::rotation>>},
    {{77088, L"Text:Line space factor"},     editable,  ResBuf::kReal,    value<ofText<&KdDbMText::lineSpacingFactor>>},
    {{77089, L"Text:Line space distance"},   editable,  ResBuf::kReal,    value<ofText<lineSpaceDistance>>},
    {{77090, L"Text:Line space style"},      editable,  ResBuf::kString,  value<ofText<lineSpacingStyleName>>,              lineSpacingStyleChoices},
    {{77094, L"Text:Background mask"},       editable,  ResBuf::kBool,    value<ofText<&KdDbMText::backgroundFillOn>>},
    {{77472, L"Text:Landing gap"},           editable,  ResBuf::kReal,    value<&KdDbGeoPositionMarker::landingGap>},
    {{77473, L"Text:Text frame"},            editable,  ResBuf::kBool,    value<ofText<&KdDbMText::showBorders>>},
    {{78315, L"Position:Latitude"},          editable,  ResBuf::kReal,    value<placeOnGlobe<&KdGePoint3d::y>>},
    {{78316, L"Position:Longitude"},         editable,  ResBuf::kReal,    value<placeOnGlobe<&KdGePoint3d::x>>},
    {{78317, L"Position:Elevation"},         editable,  ResBuf::kReal,    value<placeOnGlobe<&KdGePoint3d::z>>},
    {{78318, L"Misc:Description"},           editable,  ResBuf::kString,  value<&KdDbGeoPositionMarker::notes>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbGeoPositionMarker_Extension::rows()
{
    return kRows;
}
