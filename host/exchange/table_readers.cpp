// Records of symbol tables. Their names are known from the index pass.
#include <algorithm>
#include <cstdlib>

#include <database/block_table.h>
#include <database/tables.h>

#include "member_readers.h"
#include "table_flags.h"

namespace dxf {
namespace {

constexpr int kFrozen = 1;
constexpr int kShapeFile = 1;
constexpr int kFrozenInNewViewports = 2;
constexpr int kBackward = 2;
constexpr int kUpsideDown = 4;
constexpr int kLocked = 4;
constexpr int kVertical = 4;

void readRecord(RecordReader& reader, SymbolTableRecordMembers& record)
{
    // Other meanings of the code follow in some kinds.
    bool hasFlags = false;
    while (reader.next()) {
        if (reader.code() == 70 && !hasFlags) {
            readTableFlags(reader, record);
            hasFlags = true;
        }
    }
}

/// A layer's transparency is extended data, coded like an entity's.
void takeTransparency(const KdDbObject& object, LayerMembers& layer)
{
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(L"AcCmTransparency", end);
    for (; record != end; record = record->rbnext) {
        if (record->restype == 1071)
            layer.transparency = static_cast<std::uint32_t>(record->resval.rlong);
    }
}

/// Above all indexes of the palette.
constexpr std::int64_t kNoIndex = 257;

/// A layer's description is the second text of an application's extended data.
void takeDescription(const KdDbObject& object, LayerMembers& layer)
{
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(L"AcAecLayerStandard", end);
    int texts = 0;
    for (; record != end; record = record->rbnext) {
        if (record->restype == 1000 && ++texts == 2)
            layer.description = record->resval.rstring;
    }
}

void takeLayerColor(RecordReader& reader, LayerMembers& layer, bool hasTrueColor)
{
    const std::int64_t index = reader.integer(); // wide, so that each can be negated
    layer.off = index < 0;
    if (!hasTrueColor)
        layer.color = colorWordOfIndex(static_cast<int>(std::min(std::abs(index), kNoIndex)));
}

void readLayer(RecordReader& reader, LayerMembers& layer)
{
    bool hasTrueColor = false;
    while (reader.next()) {
        switch (reader.code()) {
        case 6:
            layer.linetype = reader.source().linetype(reader.group());
            break;
        case 62:
            takeLayerColor(reader, layer, hasTrueColor);
            break;
        case 70: {
            const int flags = readTableFlags(reader, layer);
            layer.frozen = (flags & kFrozen) != 0;
            layer.frozenInNewViewports = (flags & kFrozenInNewViewports) != 0;
            layer.locked = (flags & kLocked) != 0;
            break;
        }
        case 290:
            layer.plottable = reader.flag();
            break;
        case 347:
            layer.material = reader.reference();
            break;
        case 370:
            layer.lineweight = reader.shortInteger();
            break;
        case 390:
            layer.plotStyle = reader.reference();
            break;
        case 420:
            layer.color = colorWordOfRgb(reader.integer());
            hasTrueColor = true;
            break;
        case 430:
            layer.colorName = reader.text();
            break;
        default:
            break;
        }
    }
    takeTransparency(reader.object(), layer);
    takeDescription(reader.object(), layer);
}

void readLinetype(RecordReader& reader, LinetypeMembers& linetype)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 3:
            linetype.comments = reader.text();
            break;
        case 40:
            linetype.patternLength = reader.real();
            break;
        case 49:
            linetype.dashes.push_back(reader.real());
            break;
        case 70:
            readTableFlags(reader, linetype);
            break;
        default:
            break;
        }
    }
}

/// The typeface of a TrueType font is extended data: its name, then a word of flags.
void takeTypeface(const KdDbObject& object, TextStyleMembers& style)
{
    constexpr std::int32_t kItalic = 0x01000000;
    constexpr std::int32_t kBold = 0x02000000;
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(L"ACAD", end);
    for (; record != end; record = record->rbnext) {
        if (record->restype == 1000 && style.typeface.isEmpty()) {
            style.typeface = record->resval.rstring;
        } else if (record->restype == 1071) {
            style.italic = (record->resval.rlong & kItalic) != 0;
            style.bold = (record->resval.rlong & kBold) != 0;
        }
    }
}

void takeGeneration(int flags, TextStyleMembers& style)
{
    style.backward = (flags & kBackward) != 0;
    style.upsideDown = (flags & kUpsideDown) != 0;
}

void readTextStyle(RecordReader& reader, TextStyleMembers& style)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 3:
            style.fileName = reader.text();
            break;
        case 4:
            style.bigFontFileName = reader.text();
            break;
        case 40:
            style.textSize = reader.real();
            break;
        case 41:
            style.xScale = reader.real();
            break;
        case 42:
            style.priorSize = reader.real();
            break;
        case 50:
            style.obliquingAngle = reader.angle();
            break;
        case 70: {
            const int flags = readTableFlags(reader, style);
            style.shapeFile = (flags & kShapeFile) != 0;
            style.vertical = (flags & kVertical) != 0;
            break;
        }
        case 71:
            takeGeneration(reader.integer(), style);
            break;
        default:
            break;
        }
    }
    takeTypeface(reader.object(), style);
}

void readUcs(RecordReader& reader, UCSMembers& ucs)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            ucs.origin = reader.point();
            break;
        case 11:
            ucs.xAxis = reader.vector();
            break;
        case 12:
            ucs.yAxis = reader.vector();
            break;
        case 70:
            readTableFlags(reader, ucs);
            break;
        default:
            break;
        }
    }
}

void readViewport(RecordReader& reader, ViewportTableMembers& view)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            view.lowerLeft = reader.point2d();
            break;
        case 11:
            view.upperRight = reader.point2d();
            break;
        case 12:
            view.center = reader.point2d();
            break;
        case 16:
            view.direction = reader.vector();
            break;
        case 17:
            view.target = reader.point();
            break;
        case 40:
            view.height = reader.real();
            break;
        case 41:
            view.aspectRatio = reader.real();
            break;
        case 42:
            view.lensLength = reader.real();
            break;
        case 51:
            view.twist = reader.angle();
            break;
        case 70:
            readTableFlags(reader, view);
            break;
        case 110:
            view.ucsOrigin = reader.point();
            break;
        case 111:
            view.ucsXAxis = reader.vector();
            break;
        case 112:
            view.ucsYAxis = reader.vector();
            break;
        default:
            break;
        }
    }
}

/// Up to R2004 the units of a block are extended data: a word, a brace, a version, the units.
void takeOldUnits(const KdDbObject& object, BlockMembers& block)
{
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(L"ACAD", end);
    while (record != end && !(record->restype == 1000 &&
                              KdString(record->resval.rstring).compare(L"DesignCenter Data") == 0))
        record = record->rbnext;
    int integers = 0;
    for (; record != end; record = record->rbnext) {
        if (record->restype == 1070 && ++integers == 2) {
            block.insertUnits = record->resval.rint;
            return;
        }
    }
}

/// The base point, the path and the flags stand in the block itself.
void readBlock(RecordReader& reader, BlockMembers& block)
{
    constexpr int kFirstWithUnits = 1021;
    while (reader.next()) {
        switch (reader.code()) {
        case 70:
            if (reader.source().version >= kFirstWithUnits)
                block.insertUnits = reader.shortInteger();
            break;
        case 280:
            block.explodable = reader.flag();
            break;
        case 281:
            block.scalesUniformly = reader.flag();
            break;
        case 340: {
            const KdDbObjectId layout = reader.reference();
            if (block.layout.isNull())
                block.layout = layout;
            break;
        }
        default:
            break;
        }
    }
    if (reader.source().version < kFirstWithUnits)
        takeOldUnits(reader.object(), block);
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbSymbolTableRecord, SymbolTableRecordMembers, readRecord>(),
    memberReader<KdDbLayerTableRecord, LayerMembers, readLayer>(),
    memberReader<KdDbLinetypeTableRecord, LinetypeMembers, readLinetype>(),
    memberReader<KdDbTextStyleTableRecord, TextStyleMembers, readTextStyle>(),
    memberReader<KdDbUCSTableRecord, UCSMembers, readUcs>(),
    memberReader<KdDbViewportTableRecord, ViewportTableMembers, readViewport>(),
    memberReader<KdDbBlockTableRecord, BlockMembers, readBlock>(),
};

} // namespace

std::span<const MemberReaderRow> tableReaders()
{
    return kRows;
}

} // namespace dxf
