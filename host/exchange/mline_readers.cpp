// Multilines and their styles.
#include <entities/mline.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kClosed = 2;

void readMline(RecordReader& reader, MlineMembers& mline)
{
    KdString styleName;
    while (reader.next()) {
        switch (reader.code()) {
        case 2:
            styleName = reader.text();
            break;
        case 11:
            mline.vertices.push_back(reader.point());
            break;
        case 40:
            mline.scale = reader.real();
            break;
        case 70:
            mline.justification = static_cast<std::int8_t>(reader.integer());
            break;
        case 71:
            mline.closed = (reader.integer() & kClosed) != 0;
            break;
        case 210:
            mline.normal = reader.vector();
            break;
        case 340:
            mline.style = reader.reference();
            break;
        default:
            break;
        }
    }
    if (mline.style.isNull()) { // some writers give the name alone
        const KdDbObjectId styles = KdDbMlineStyle::styleDictionary(reader.source().database);
        mline.style = kddbDictionaryEntry(styles, styleName.kwszPtr());
    }
}

void readMlineStyle(RecordReader& reader, MlineStyleMembers& style)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 2:
            style.name = reader.text();
            break;
        case 3:
            style.description = reader.text();
            break;
        case 49:
            style.offsets.push_back(reader.real());
            break;
        default:
            break;
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbMline, MlineMembers, readMline>(),
    memberReader<KdDbMlineStyle, MlineStyleMembers, readMlineStyle>(),
};

} // namespace

std::span<const MemberReaderRow> mlineReaders()
{
    return kRows;
}

} // namespace dxf
