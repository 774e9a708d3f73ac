// Viewports.
#include <entities/viewport.h>

#include "member_readers.h"

namespace dxf {
namespace {

constexpr std::int16_t kSheetNumber = 1;

/// In a layout that was never active no viewport has a number; its first one is the sheet.
bool isUnnumberedSheet(RecordReader& reader)
{
    const KdDbObject& object = reader.object();
    if (reader.source().firstViewport(object.ownerId()) != object.objectId())
        return false;
    const OpenForRead<KdDbBlockTableRecord> block(object.ownerId());
    if (!block)
        return false;
    for (const KdDbObjectId id : block->entityIds()) {
        if (id == object.objectId() || id.objectClass() != KdDbViewport::desc())
            continue;
        const OpenForRead<KdDbViewport> other(id);
        if (other && other->number() == kSheetNumber)
            return false;
    }
    return true;
}

void readViewport(RecordReader& reader, ViewportMembers& viewport)
{
    constexpr int kIsOff = 131072;
    bool hasFlags = false; // from R2000 on; they overrule the status
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            viewport.center = reader.point();
            break;
        case 40:
            viewport.width = reader.real();
            break;
        case 41:
            viewport.height = reader.real();
            break;
        case 68: {
            const bool on = reader.flag();
            viewport.on = hasFlags ? viewport.on : on;
            break;
        }
        case 69:
            viewport.number = reader.shortInteger();
            break;
        case 90:
            viewport.on = (reader.integer() & kIsOff) == 0;
            hasFlags = true;
            break;
        case 340:
            viewport.clipEntity = reader.reference();
            break;
        default:
            break;
        }
    }
    if (viewport.number == 0 && isUnnumberedSheet(reader))
        viewport.number = kSheetNumber;
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbViewport, ViewportMembers, readViewport>(),
};

} // namespace

std::span<const MemberReaderRow> viewportReaders()
{
    return kRows;
}

} // namespace dxf
