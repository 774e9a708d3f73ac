// Markers of places on the globe, and what ties a drawing to it.
#include <entities/geo_position_marker.h>

#include "member_fields.h"
#include "member_readers.h"
#include "mtext_reader.h"

namespace dxf {
namespace {

// clang-format off
constexpr FieldRow<GeoPositionMarkerMembers> kMarkerFields[] = {
    {1, field<&GeoPositionMarkerMembers::notes>},
    {10, field<&GeoPositionMarkerMembers::position>},
    {280, field<&GeoPositionMarkerMembers::textAlignment>},
};
constexpr FieldRow<GeoDataMembers> kGeoDataFields[] = {
    {10, field<&GeoDataMembers::designPoint>},
    {11, field<&GeoDataMembers::referencePoint>},
    {12, [](RecordReader& reader, GeoDataMembers& data) { data.north = reader.point2d() - KdGePoint2d::kOrigin; }},
    {13, [](RecordReader& reader, GeoDataMembers& data) { data.meshInDrawing.push_back(reader.point2d()); }},
    {14, [](RecordReader& reader, GeoDataMembers& data) { data.meshOnGlobe.push_back(reader.point2d()); }},
    {40, field<&GeoDataMembers::horizontalUnitScale>},
    {41, field<&GeoDataMembers::verticalUnitScale>},
    {97, [](RecordReader& reader, GeoDataMembers& data) { data.meshFaces.push_back(reader.integer()); }},
    {98, [](RecordReader& reader, GeoDataMembers& data) { data.meshFaces.push_back(reader.integer()); }},
    {99, [](RecordReader& reader, GeoDataMembers& data) { data.meshFaces.push_back(reader.integer()); }},
};
// clang-format on

/// The radius stands before the gap between the text and its frame, under one code.
void readMarker(RecordReader& reader, GeoPositionMarkerMembers& marker)
{
    MTextReader text(marker.mtext->edit());
    bool hasRadius = false;
    reader.includeEmbeddedObjects();
    while (reader.next()) {
        if (reader.isEmbedded()) {
            text.take(reader);
        } else if (reader.code() == 40) {
            (hasRadius ? marker.landingGap : marker.radius) = reader.real();
            hasRadius = true;
        } else {
            takeField(kMarkerFields, reader, marker);
        }
    }
    text.finish(reader);
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbGeoPositionMarker, GeoPositionMarkerMembers, readMarker>(),
    memberReader<KdDbGeoData, GeoDataMembers, readFields<kGeoDataFields>>(),
};

} // namespace

std::span<const MemberReaderRow> geoPositionReaders()
{
    return kRows;
}

} // namespace dxf
