// Viewports.
#include <entities/viewport.h>

#include <iterator>

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
    kIsPerspective = 1,
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
    viewport.perspective = (flags & kIsPerspective) != 0;
    found.hidesInPlot = (flags & kHidesInPlot) != 0;
    found.flags = true;
}

void addFrozenLayer(ViewportMembers& viewport, KdDbObjectId layer)
{
    if (layer.isKindOf(KdDbLayerTableRecord::desc()))
        viewport.frozenLayers.push_back(layer);
}

/// Takes the group if it tells what the viewport shows of the model.
bool takeView(RecordReader& reader, ViewportMembers& viewport)
{
    switch (reader.code()) {
    case 12:
        viewport.viewCenter = reader.point2d();
        return true;
    case 16:
        viewport.viewDirection = reader.vector();
        return true;
    case 17:
        viewport.viewTarget = reader.point();
        return true;
    case 45:
        viewport.viewHeight = reader.real();
        return true;
    case 51:
        viewport.twist = reader.angle();
        return true;
    case 331:
    case 341: // R2000
        addFrozenLayer(viewport, reader.reference());
        return true;
    default:
        return false;
    }
}

void takeGroup(RecordReader& reader, ViewportMembers& viewport, Found& found)
{
    if (takeView(reader, viewport))
        return;
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

/// Reals of the view in extended data: twist, height, and both coordinates of the centre.
void takeViewReal(double value, int place, ViewportMembers& viewport)
{
    double* const members[] = {&viewport.twist, &viewport.viewHeight, &viewport.viewCenter.x,
                               &viewport.viewCenter.y};
    if (place < static_cast<int>(std::size(members)))
        *members[place] = value;
}

/// The target, then the direction.
void takeViewPoint(const double (&point)[3], int place, ViewportMembers& viewport)
{
    if (place == 0)
        viewport.viewTarget = {point[0], point[1], point[2]};
    else if (place == 1)
        viewport.viewDirection = {point[0], point[1], point[2]};
}

KdDbObjectId layerOfName(const KdDbDatabase& database, const wchar_t* name)
{
    KdDbObjectId layer;
    if (name)
        database.table<KdDbLayerTable>().getIdAt(name, layer);
    return layer;
}

/// Up to R14 the view stands in extended data: points, reals, the names of frozen layers, and
/// integers of which the tenth tells if lines are hidden in print.
void takeViewOfExtendedData(const KdDbDatabase& database, ViewportMembers& viewport, Found& found)
{
    constexpr short kText = 1000;
    constexpr short kLayer = 1003;
    constexpr short kPoint = 1010;
    constexpr short kReal = 1040;
    constexpr short kInteger = 1070;
    constexpr int kHidePlace = 10;
    ApplicationData data(viewport.extendedData, L"ACAD");
    const resbuf* name = data.take(kText);
    if (!name || !KdNameEqual()(name->resval.rstring ? name->resval.rstring : L"", L"MVIEW"))
        return;
    int points = 0;
    int reals = 0;
    int integers = 0;
    for (; const resbuf* record = data.front(); data.step()) {
        switch (record->restype) {
        case kPoint:
            takeViewPoint(record->resval.rpoint, points++, viewport);
            break;
        case kReal:
            takeViewReal(record->resval.rreal, reals++, viewport);
            break;
        case kInteger:
            found.hidesInPlot |= ++integers == kHidePlace && record->resval.rint != 0;
            break;
        case kLayer:
            addFrozenLayer(viewport, layerOfName(database, record->resval.rstring));
            break;
        default:
            break;
        }
    }
}

void readViewport(RecordReader& reader, ViewportMembers& viewport)
{
    Found found;
    while (reader.next())
        takeGroup(reader, viewport, found);
    if (!found.flags && viewport.viewHeight == 0.0)
        takeViewOfExtendedData(reader.source().database, viewport, found);
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
