// Solids, regions, bodies and surfaces, and how solids were made.
#include <entities/solid3d.h>
#include <entities/solid_history.h>
#include <entities/surface.h>

#include "body_data.h"
#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

/// Takes the group if it begins the body's data or tells that this stands elsewhere. Either is only
/// read when the body is asked for.
bool takeBody(RecordReader& reader, ModelerGeometryMembers& members)
{
    DrawingSource* const source = &reader.source();
    if (reader.code() == 1 && !members.bodyData) {
        members.bodyData = [source, range = reader.object().source()] {
            return textOfBody(*source, range);
        };
    } else if (reader.code() == 290 && reader.isIn("AcDbModelerGeometry")) {
        members.bodyData = [source, handle = reader.object().handle()] {
            return source->bodies.find(*source, handle);
        };
    } else {
        return reader.code() == 1;
    }
    return true;
}

void readBody(RecordReader& reader, ModelerGeometryMembers& body)
{
    while (reader.next())
        takeBody(reader, body);
}

void readSolid(RecordReader& reader, Solid3dMembers& solid)
{
    while (reader.next()) {
        if (reader.code() == 350)
            solid.history = reader.reference();
        else
            takeBody(reader, solid);
    }
}

void readSurface(RecordReader& reader, SurfaceMembers& surface)
{
    constexpr FieldRow<SurfaceMembers> kFields[] = {
        {71, field<&SurfaceMembers::uIsolines>},
        {72, field<&SurfaceMembers::vIsolines>},
    };
    while (reader.next()) {
        if (reader.isIn("AcDbSurface"))
            takeField(kFields, reader, surface);
        else
            takeBody(reader, surface);
    }
}

constexpr FieldRow<SolidHistoryMembers> kHistoryFields[] = {
    {280, field<&SolidHistoryMembers::show>},
    {281, field<&SolidHistoryMembers::record>},
};

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDb3dSolid, Solid3dMembers, readSolid>(),
    memberReader<KdDbBody, ModelerGeometryMembers, readBody>(),
    memberReader<KdDbRegion, ModelerGeometryMembers, readBody>(),
    memberReader<KdDbSurface, SurfaceMembers, readSurface>(),
    memberReader<KdDbShHistory, SolidHistoryMembers, readFields<kHistoryFields>>(),
};

} // namespace

std::span<const MemberReaderRow> solid3dReaders()
{
    return kRows;
}

} // namespace dxf
