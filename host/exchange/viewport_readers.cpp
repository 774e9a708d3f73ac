// Viewports.
#include <entities/viewport.h>

#include "application_data.h"
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

/// Group 90.
enum Flag : int
{
    kHidesInPlot = 2048,
    kIsLocked = 16384,
    kIsOff = 131072,
};

constexpr std::int16_t kShadedAsHidden = 2;

/// What the groups of a viewport leave open until all are read.
struct Found
{
    bool flags = false; ///< from R2000 on; they overrule the status
    bool shadePlot = false;
    bool hidesInPlot = false;
};

void takeFlags(int flags, ViewportMembers& viewport, Found& found)
{
    viewport.on = (flags & kIsOff) == 0;
    viewport.locked = (flags & kIsLocked) != 0;
    found.hidesInPlot = (flags & kHidesInPlot) != 0;
    found.flags = true;
}

void takeGroup(RecordReader& reader, ViewportMembers& viewport, Found& found)
{
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
    case 45:
        viewport.viewHeight = reader.real();
        break;
    case 68: {
        const bool on = reader.flag();
        viewport.on = found.flags ? viewport.on : on;
        break;
    }
    case 69:
        viewport.number = reader.shortInteger();
        break;
    case 71:
        viewport.ucsPerViewport = reader.flag();
        break;
    case 90:
        takeFlags(reader.integer(), viewport, found);
        break;
    case 170:
        viewport.shadePlot = reader.shortInteger();
        found.shadePlot = true;
        break;
    case 340:
        viewport.clipEntity = reader.reference();
        break;
    default:
        break;
    }
}

/// Up to R14 the view stands in extended data: reals of which the second is its height, and
/// integers of which the tenth tells if lines are hidden in print.
void takeViewOfExtendedData(ViewportMembers& viewport, Found& found)
{
    constexpr short kText = 1000;
    constexpr short kReal = 1040;
    constexpr short kInteger = 1070;
    constexpr int kHeightPlace = 2;
    constexpr int kHidePlace = 10;
    ApplicationData data(viewport.extendedData, L"ACAD");
    const resbuf* name = data.take(kText);
    if (!name || !KdNameEqual()(name->resval.rstring ? name->resval.rstring : L"", L"MVIEW"))
        return;
    int reals = 0;
    int integers = 0;
    for (; const resbuf* record = data.front(); data.step()) {
        if (record->restype == kReal && ++reals == kHeightPlace)
            viewport.viewHeight = record->resval.rreal;
        else if (record->restype == kInteger && ++integers == kHidePlace)
            found.hidesInPlot = record->resval.rint != 0;
    }
}

void readViewport(RecordReader& reader, ViewportMembers& viewport)
{
    Found found;
    while (reader.next())
        takeGroup(reader, viewport, found);
    if (!found.flags && viewport.viewHeight == 0.0)
        takeViewOfExtendedData(viewport, found);
    if (!found.shadePlot && found.hidesInPlot)
        viewport.shadePlot = kShadedAsHidden; // before there were several kinds
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
