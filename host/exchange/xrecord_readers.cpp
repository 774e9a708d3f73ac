// Free records.
#include <database/xrecord.h>

#include "group_records.h"
#include "member_readers.h"

namespace dxf {
namespace {

void readXrecord(RecordReader& reader, XrecordMembers& xrecord)
{
    constexpr int kCloning = 280;
    ChainBuilder groups(xrecord.groups);
    bool isFirst = true;
    while (reader.next()) {
        if (!reader.isIn(kFreeSubclass))
            continue;
        // Old drawings have no such group; a later one of that code is content.
        if (isFirst && reader.code() == kCloning)
            xrecord.cloning = reader.shortInteger();
        else
            groups.append(recordOfGroup(reader));
        isFirst = false;
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbXrecord, XrecordMembers, readXrecord>(),
};

} // namespace

std::span<const MemberReaderRow> xrecordReaders()
{
    return kRows;
}

} // namespace dxf
