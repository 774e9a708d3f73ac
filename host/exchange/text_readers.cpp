// Single-line texts, attributes and their definitions, and shapes.
#include <entities/attribute.h>
#include <entities/shape.h>
#include <entities/text.h>

#include "extrusion_reader.h"
#include "member_readers.h"
#include "mtext_reader.h"

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
        text.style = standardTextStyle(reader.source());
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

/// The lines of an attribute that has several: embedded in the record since R2018, before that in
/// a record of the dictionary that extends it.
class AttributeLines
{
  public:
    explicit AttributeLines(AttributeMembers& attribute) : m_attribute(attribute) {}

    /// Takes the group if it is embedded or tells of the lines. What follows the latter repeats
    /// codes of the text for its first line.
    bool take(RecordReader& reader)
    {
        if (reader.isEmbedded()) {
            text().take(reader);
            return true;
        }
        const bool isOwnPart =
            reader.isIn("AcDbAttribute") || reader.isIn("AcDbAttributeDefinition");
        // without markers the code is the text's own
        m_isBehindCount = m_isBehindCount || (isOwnPart && reader.code() == 71);
        return m_isBehindCount;
    }

    /// To be called behind the last group.
    void finish(RecordReader& reader)
    {
        if (!m_text)
            takeExtension(reader);
        if (m_text) {
            if (m_attribute.lines->edit().style.isNull())
                m_attribute.lines->edit().style = m_attribute.style;
            m_text->finish(reader);
        }
    }

  private:
    MTextReader& text()
    {
        if (!m_text) {
            m_attribute.lines = std::make_unique<KdDbMText>();
            m_text.emplace(m_attribute.lines->edit());
        }
        return *m_text;
    }

    void takeExtension(RecordReader& reader)
    {
        if (reader.object().extensionDictionary().isNull() || reader.source().leave())
            return;
        const KdDbObjectId id = kddbExtensionEntry(reader.object(), L"ACAD_MLATT");
        const OpenForRead<KdDbObject> record(id);
        if (!record || record->source().length == 0)
            return;
        ObjectMembers ignored;
        RecordReader groups(reader.source(), *record, record->source(), ignored, nullptr);
        bool isInText = false;
        while (groups.next()) {
            if (isInText)
                text().take(groups);
            else
                isInText = groups.code() == 1; // says what follows
        }
    }

    AttributeMembers& m_attribute;
    std::optional<MTextReader> m_text;
    bool m_isBehindCount = false;
};

void finishAttribute(RecordReader& reader, AttributeLines& lines, AttributeMembers& attribute)
{
    takeStandardStyle(reader, attribute);
    takeOldLock(reader.object(), attribute);
    lines.finish(reader);
}

void readAttribute(RecordReader& reader, AttributeMembers& attribute)
{
    AttributeLines lines(attribute);
    reader.includeEmbeddedObjects();
    while (reader.next()) {
        if (!lines.take(reader))
            takeAttribute(reader, attribute);
    }
    finishAttribute(reader, lines, attribute);
}

void readAttributeDefinition(RecordReader& reader, AttributeDefinitionMembers& definition)
{
    AttributeLines lines(definition);
    reader.includeEmbeddedObjects();
    while (reader.next()) {
        if (lines.take(reader))
            continue;
        if (reader.code() == 3)
            definition.prompt = reader.text();
        else
            takeAttribute(reader, definition);
    }
    finishAttribute(reader, lines, definition);
}

void readShape(RecordReader& reader, ShapeMembers& shape)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 2:
            shape.name = reader.text();
            break;
        case 10:
            shape.position = reader.point();
            break;
        case 40:
            shape.size = reader.real();
            break;
        case 41:
            shape.widthFactor = reader.real();
            break;
        case 50:
            shape.rotation = reader.angle();
            break;
        case 51:
            shape.oblique = reader.angle();
            break;
        default:
            takeExtrusion(reader, shape.extrusion);
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbText, TextMembers, readText>()),
    beside(memberReader<KdDbAttribute, AttributeMembers, readAttribute>()),
    beside(memberReader<KdDbAttributeDefinition, AttributeDefinitionMembers,
                        readAttributeDefinition>()),
    beside(memberReader<KdDbShape, ShapeMembers, readShape>()),
};

} // namespace

std::span<const MemberReaderRow> textReaders()
{
    return kRows;
}

} // namespace dxf
