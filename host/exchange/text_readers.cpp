// Single-line texts, attributes and their definitions.
#include <entities/attribute.h>
#include <entities/text.h>

#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kBackward = 2;
constexpr int kUpsideDown = 4;

bool takeTextGeometry(RecordReader& reader, TextMembers& text)
{
    switch (reader.code()) {
    case 10:
        text.position = reader.point();
        return true;
    case 11:
        text.alignmentPoint = reader.point();
        return true;
    case 40:
        text.height = reader.real();
        return true;
    case 41:
        text.widthFactor = reader.real();
        return true;
    case 50:
        text.rotation = reader.angle();
        return true;
    case 51:
        text.oblique = reader.angle();
        return true;
    default:
        return takeExtrusion(reader, text.extrusion);
    }
}

bool takeText(RecordReader& reader, TextMembers& text)
{
    switch (reader.code()) {
    case 1:
        text.text = reader.text();
        return true;
    case 7:
        text.style = reader.source().textStyle(reader.group());
        return true;
    case 71: {
        const int flags = reader.integer();
        text.mirroredInX = (flags & kBackward) != 0;
        text.mirroredInY = (flags & kUpsideDown) != 0;
        return true;
    }
    case 72:
        text.horizontalMode = static_cast<KdDb::TextHorizontalMode>(reader.shortInteger());
        return true;
    default:
        return takeTextGeometry(reader, text);
    }
}

KdDb::TextVerticalMode verticalMode(RecordReader& reader)
{
    return static_cast<KdDb::TextVerticalMode>(reader.shortInteger());
}

void takeStandardStyle(RecordReader& reader, TextMembers& text)
{
    if (text.style.isNull())
        reader.source().database.table<KdDbTextStyleTable>().getIdAt(L"Standard", text.style);
}

void readText(RecordReader& reader, TextMembers& text)
{
    while (reader.next()) {
        if (reader.code() == 73)
            text.verticalMode = verticalMode(reader);
        else
            takeText(reader, text);
    }
    takeStandardStyle(reader, text);
}

AttributeMembers::Mode modeOf(int flags)
{
    AttributeMembers::Mode mode;
    mode.invisible = (flags & 1) != 0;
    mode.constant = (flags & 2) != 0;
    mode.verify = (flags & 4) != 0;
    mode.preset = (flags & 8) != 0;
    return mode;
}

/// What stands behind the text's own groups: 73 and 74 have other meanings than in a text.
bool takeAttribute(RecordReader& reader, AttributeMembers& attribute)
{
    switch (reader.code()) {
    case 2:
        attribute.tag = reader.text();
        return true;
    case 70: {
        const bool locked = attribute.mode.positionLocked;
        attribute.mode = modeOf(reader.integer());
        attribute.mode.positionLocked = locked;
        return true;
    }
    case 73:
        attribute.fieldLength = reader.shortInteger();
        return true;
    case 74:
        attribute.verticalMode = verticalMode(reader);
        return true;
    case 280: // from R2010 on twice: a version, then the lock
        attribute.mode.positionLocked = reader.flag();
        return true;
    default:
        return takeText(reader, attribute);
    }
}

/// Up to R2004 the lock is extended data: 0, then the flag.
void takeOldLock(const KdDbObject& object, AttributeMembers& attribute)
{
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(L"AcDbAttr", end);
    if (record != end && record->rbnext != end && record->rbnext->restype == 1070)
        attribute.mode.positionLocked = record->rbnext->resval.rint != 0;
}

/// True from the group on that tells how many lines the text has. What follows repeats codes of the
/// text for its first line. Without markers the code is the text's own.
bool isAboutLines(const RecordReader& reader)
{
    const bool ownPart = reader.isIn("AcDbAttribute") || reader.isIn("AcDbAttributeDefinition");
    return ownPart && reader.code() == 71;
}

void finishAttribute(RecordReader& reader, AttributeMembers& attribute)
{
    reader.skipRest();
    takeStandardStyle(reader, attribute);
    takeOldLock(reader.object(), attribute);
}

void readAttribute(RecordReader& reader, AttributeMembers& attribute)
{
    while (reader.next() && !isAboutLines(reader))
        takeAttribute(reader, attribute);
    finishAttribute(reader, attribute);
}

void readAttributeDefinition(RecordReader& reader, AttributeDefinitionMembers& definition)
{
    while (reader.next() && !isAboutLines(reader)) {
        if (reader.code() == 3)
            definition.prompt = reader.text();
        else
            takeAttribute(reader, definition);
    }
    finishAttribute(reader, definition);
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbText, TextMembers, readText>(),
    memberReader<KdDbAttribute, AttributeMembers, readAttribute>(),
    memberReader<KdDbAttributeDefinition, AttributeDefinitionMembers, readAttributeDefinition>(),
};

} // namespace

std::span<const MemberReaderRow> textReaders()
{
    return kRows;
}

} // namespace dxf
