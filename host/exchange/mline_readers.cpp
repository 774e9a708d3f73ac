// Multilines and their styles.
#include <entities/mline.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

/// Group 71.
enum Flag : int
{
    kClosed = 2,
    kWithoutStartCaps = 4,
    kWithoutEndCaps = 8,
};

void takeFlags(int flags, MlineMembers& mline)
{
    mline.closed = (flags & kClosed) != 0;
    mline.withoutStartCaps = (flags & kWithoutStartCaps) != 0;
    mline.withoutEndCaps = (flags & kWithoutEndCaps) != 0;
}

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
            takeFlags(reader.integer(), mline);
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
        case 6:
            if (!style.linetypes.empty())
                style.linetypes.back() = reader.source().linetype(reader.group());
            break;
        case 49: // begins an element
            style.offsets.push_back(reader.real());
            style.colors.push_back(KdCmColor().color());
            style.linetypes.emplace_back();
            break;
        case 51:
            style.startAngle = reader.angle();
            break;
        case 52:
            style.endAngle = reader.angle();
            break;
        case 62:
            (style.colors.empty() ? style.fillColor : style.colors.back()) =
                colorWordOfIndex(reader.integer());
            break;
        case 70:
            style.flags = reader.integer();
            break;
        case 420:
            (style.colors.empty() ? style.fillColor : style.colors.back()) =
                colorWordOfRgb(reader.integer());
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
