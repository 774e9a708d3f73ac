// The readers of members: one small function for each class that has members of its own.
#pragma once

#include <span>

#include "record_reader.h"

namespace dxf {

/// Ties a class to the function that reads its members. A class without a row is read by that of
/// its nearest ancestor.
struct MemberReaderRow
{
    KdRxClass* (*rxClass)();
    void (*read)(RecordReader&, ObjectMembers&);
    bool mayBeBeside = false; ///< see `beside`
};

/// A row for a function that takes the class's own record.
template <class Class, class Members, void (*Read)(RecordReader&, Members&)>
constexpr MemberReaderRow memberReader()
{
    return {Class::desc, [](RecordReader& reader, ObjectMembers& members) {
                Read(reader, static_cast<Members&>(members));
            }};
}

/// The row of a function that changes nothing but its record and asks no other object for anything
/// but its class, so that it may run beside others of its kind. Where it can't do without, it asks
/// `DrawingSource::leave` first.
constexpr MemberReaderRow beside(MemberReaderRow row)
{
    row.mayBeBeside = true;
    return row;
}

std::span<const MemberReaderRow> tableReaders();
std::span<const MemberReaderRow> dimensionStyleReaders();
std::span<const MemberReaderRow> dimensionReaders();
std::span<const MemberReaderRow> associativityReaders();
std::span<const MemberReaderRow> objectReaders();
std::span<const MemberReaderRow> curveReaders();
std::span<const MemberReaderRow> polylineReaders();
std::span<const MemberReaderRow> splineReaders();
std::span<const MemberReaderRow> meshReaders();
std::span<const MemberReaderRow> textReaders();
std::span<const MemberReaderRow> mtextReaders();
std::span<const MemberReaderRow> specialTextReaders();
std::span<const MemberReaderRow> spatialFilterReaders();
std::span<const MemberReaderRow> leaderReaders();
std::span<const MemberReaderRow> mleaderReaders();
std::span<const MemberReaderRow> insertReaders();
std::span<const MemberReaderRow> hatchReaders();
std::span<const MemberReaderRow> viewportReaders();
std::span<const MemberReaderRow> proxyReaders();
std::span<const MemberReaderRow> faceReaders();
std::span<const MemberReaderRow> imageReaders();
std::span<const MemberReaderRow> mlineReaders();
std::span<const MemberReaderRow> lightReaders();
std::span<const MemberReaderRow> sectionReaders();
std::span<const MemberReaderRow> solid3dReaders();
std::span<const MemberReaderRow> pointCloudReaders();
std::span<const MemberReaderRow> geoPositionReaders();
std::span<const MemberReaderRow> xrecordReaders();
std::span<const MemberReaderRow> blockElementReaders();
std::span<const MemberReaderRow> actionBodyReaders();

} // namespace dxf
