// Texts of several lines.
#include "mtext_reader.h"

#include <cmath>

#include <geometry/matrix.h>

#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kFillOn = 1;
constexpr int kFillWithBackground = 2;
constexpr int kFrame = 16;

void addColumnHeight(double height, MTextData& text)
{
    constexpr std::size_t kMostColumns = 1000;
    if (text.columns.heights.size() < kMostColumns)
        text.columns.heights.push_back(height);
}

/// Columns, since R2018 told by an embedded object.
bool takeColumns(RecordReader& reader, MTextData& text)
{
    switch (reader.code()) {
    case 41:
        if (text.height == 0.0)
            text.height = reader.real();
        return true;
    case 42:
        text.actualWidth = reader.real();
        return true;
    case 43:
        text.actualHeight = reader.real();
        return true;
    case 44:
        text.columns.width = reader.real();
        return true;
    case 45:
        text.columns.gutter = reader.real();
        return true;
    case 46:
        addColumnHeight(reader.real(), text);
        return true;
    case 71:
        text.columns.type = static_cast<KdDb::MTextColumnType>(reader.shortInteger());
        return true;
    case 72:
        text.columns.count = reader.shortInteger();
        return true;
    default:
        return false;
    }
}

/// Up to R2013 columns and the defined height are extended data: names, and pairs of a key and a
/// value between them. Behind the number of heights stand these.
void takeOldColumn(int key, const resbuf& value, MTextData& text)
{
    constexpr short kReal = 1040;
    constexpr short kInteger = 1070;
    if (value.restype == kReal) {
        if (key == 46 && text.height == 0.0)
            text.height = value.resval.rreal;
        else if (key == 48)
            text.columns.width = value.resval.rreal;
        else if (key == 49)
            text.columns.gutter = value.resval.rreal;
    } else if (value.restype == kInteger) {
        if (key == 75)
            text.columns.type = static_cast<KdDb::MTextColumnType>(value.resval.rint);
        else if (key == 76)
            text.columns.count = value.resval.rint;
    }
}

void takeOldColumns(const KdDbObject& object, MTextData& text)
{
    constexpr short kName = 1000;
    constexpr short kReal = 1040;
    constexpr short kInteger = 1070;
    bool isInside = false;
    const resbuf* end = nullptr;
    for (const resbuf* record = object.extendedData(L"ACAD", end); record != end;
         record = record->rbnext) {
        if (record->restype == kName) {
            const std::wstring_view name(record->resval.rstring);
            isInside = name == L"ACAD_MTEXT_COLUMN_INFO_BEGIN" ||
                       name == L"ACAD_MTEXT_DEFINED_HEIGHT_BEGIN";
        } else if (isInside && record->restype == kInteger && record->rbnext != end) {
            const int key = record->resval.rint;
            record = record->rbnext;
            takeOldColumn(key, *record, text);
        } else if (isInside && record->restype == kReal) {
            addColumnHeight(record->resval.rreal, text);
        }
    }
}

/// Appends the letters of columns that are entities of their own.
void takeColumnTexts(RecordReader& reader, MTextData& text)
{
    const auto* columns = reader.source().columnsOf(reader.object().objectId());
    if (!columns || reader.source().leave())
        return;
    for (const KdDbObjectId id : *columns) {
        KdDbMText* column = nullptr;
        if (kddbOpenObject(column, id, KdDb::kForRead, true) != eOk)
            continue;
        KdString contents;
        column->contents(contents);
        column->close();
        text.contents = text.contents + contents;
    }
}

void readMText(RecordReader& reader, MTextMembers& text)
{
    MTextReader parts(text);
    reader.includeEmbeddedObjects();
    while (reader.next()) {
        if (reader.isEmbedded())
            takeColumns(reader, text);
        else
            parts.take(reader);
    }
    parts.finish(reader);
    takeOldColumns(reader.object(), text);
    takeColumnTexts(reader, text);
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbMText, MTextMembers, readMText>()),
};

} // namespace

KdDbObjectId standardTextStyle(DrawingSource& source)
{
    KdDbObjectId& style = source.standardStyle; // many texts name none
    if (style.isNull() || style.isErased()) {
        style = {};
        source.database.table<KdDbTextStyleTable>().getIdAt(L"Standard", style);
    }
    return style;
}

bool MTextReader::take(RecordReader& reader)
{
    return takePlace(reader) || takeSetting(reader) || takeGround(reader);
}

bool MTextReader::takePlace(RecordReader& reader)
{
    switch (reader.code()) {
    case 10:
        m_text.location = reader.point();
        return true;
    case 11:
        m_text.direction = reader.vector();
        return true;
    case 50:
        m_angle = reader.angle();
        return true;
    case 210:
        m_text.normal = reader.vector();
        return true;
    case 41:
        m_text.width = reader.real();
        return true;
    case 42:
        m_text.actualWidth = reader.real();
        return true;
    case 43:
        m_text.actualHeight = reader.real();
        return true;
    case 46:
        m_text.height = reader.real();
        return true;
    default:
        return false;
    }
}

bool MTextReader::takeSetting(RecordReader& reader)
{
    switch (reader.code()) {
    case 1:
    case 3:
        takeLetters(reader);
        return true;
    case 7:
        m_text.style = reader.source().textStyle(reader.group());
        return true;
    case 40:
        m_text.textHeight = reader.real();
        return true;
    case 44:
        m_text.lineSpacingFactor = reader.real();
        return true;
    case 71:
        m_text.attachment = static_cast<KdDb::MTextAttachment>(reader.shortInteger());
        return true;
    case 72:
        m_text.flow = static_cast<KdDb::MTextFlow>(reader.shortInteger());
        return true;
    case 73:
        m_text.lineSpacingStyle = static_cast<KdDb::LineSpacingStyle>(reader.shortInteger());
        return true;
    default:
        return false;
    }
}

bool MTextReader::takeGround(RecordReader& reader)
{
    switch (reader.code()) {
    case 45:
        m_text.fillFactor = reader.real();
        return true;
    case 63:
        if (!m_hasFillRgb)
            m_text.fillColor = colorWordOfIndex(reader.integer());
        return true;
    case 90: {
        const int flags = reader.integer();
        m_text.fill = (flags & (kFillOn | kFillWithBackground)) != 0;
        m_text.fillWithBackground = (flags & kFillWithBackground) != 0;
        m_text.frame = (flags & kFrame) != 0;
        return true;
    }
    case 421:
        m_text.fillColor = colorWordOfRgb(reader.integer());
        m_hasFillRgb = true;
        return true;
    case 431:
        m_text.fillColorName = reader.text();
        return true;
    default:
        return false;
    }
}

/// A long text stands in pieces of code 3 before the last one, which has code 1.
void MTextReader::takeLetters(RecordReader& reader)
{
    constexpr std::size_t kMostLetters = 1 << 22;
    if (reader.code() == 3 && m_letters.size() < kMostLetters) {
        m_letters += reader.group().text;
    } else if (m_letters.empty()) {
        m_text.contents = reader.text();
    } else {
        m_text.contents = reader.source().decoder.decode(m_letters.append(reader.group().text));
        m_letters.clear();
    }
}

void MTextReader::finish(RecordReader& reader)
{
    if (!m_letters.empty())
        m_text.contents = reader.source().decoder.decode(m_letters);
    if (m_text.style.isNull())
        m_text.style = standardTextStyle(reader.source());
    if (m_angle && m_text.direction == KdGeVector3d{}) {
        const KdGeVector3d inPlane{std::cos(*m_angle), std::sin(*m_angle), 0.0};
        m_text.direction = KdGeMatrix3d::planeToWorld(m_text.normal) * inPlane;
    }
}

std::span<const MemberReaderRow> mtextReaders()
{
    return kRows;
}

} // namespace dxf
