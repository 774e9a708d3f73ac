// Leaders and tolerance frames.
#include <entities/fcf.h>
#include <entities/leader.h>

#include "dimension_variables_reader.h"
#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr FieldRow<LeaderMembers> kLeader[] = {
    {10, [](RecordReader& reader,
            LeaderMembers& leader) { leader.vertices.push_back(reader.point()); }},
    {71, field<&LeaderMembers::arrowHead>},
    {72, field<&LeaderMembers::splined>},
    {73, field<&LeaderMembers::annotationKind>},
    {75, field<&LeaderMembers::hookLine>},
    {210, field<&LeaderMembers::normal>},
    {340, field<&LeaderMembers::annotation>},
};

constexpr FieldRow<FcfMembers> kFcf[] = {
    {1, field<&FcfMembers::text>},
    {10, field<&FcfMembers::location>},
    {11, field<&FcfMembers::direction>},
    {210, field<&FcfMembers::normal>},
};

/// Reads the rows' groups and the use of a dimension style.
template <class Members, std::size_t N>
void readWithStyle(const FieldRow<Members> (&rows)[N], RecordReader& reader, Members& members)
{
    while (reader.next()) {
        if (!takeDimensionStyle(reader, members.dimension))
            takeField(rows, reader, members);
    }
    finishDimensionStyleUse(reader, members.dimension);
}

void readLeader(RecordReader& reader, LeaderMembers& leader)
{
    readWithStyle(kLeader, reader, leader);
}

void readFcf(RecordReader& reader, FcfMembers& frame)
{
    readWithStyle(kFcf, reader, frame);
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbLeader, LeaderMembers, readLeader>(),
    memberReader<KdDbFcf, FcfMembers, readFcf>(),
};

} // namespace

std::span<const MemberReaderRow> leaderReaders()
{
    return kRows;
}

} // namespace dxf
