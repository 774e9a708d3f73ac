// Texts along an arc, and texts that are computed.
#include <cmath>
#include <numbers>

#include <entities/special_text.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kInward = 2;
constexpr int kConcave = 2;

constexpr FieldRow<ArcTextData> kArcText[] = {
    {1, field<&ArcTextData::text>},           {2, field<&ArcTextMembers::fontName>},
    {10, field<&ArcTextData::center>},        {40, field<&ArcTextMembers::radius>},
    {41, field<&ArcTextData::widthFactor>},   {42, field<&ArcTextMembers::height>},
    {43, field<&ArcTextData::letterSpacing>}, {44, field<&ArcTextMembers::offset>},
    {45, field<&ArcTextData::rightOffset>},   {46, field<&ArcTextMembers::leftOffset>},
    {50, field<&ArcTextData::startAngle>},    {51, field<&ArcTextMembers::endAngle>},
    {70, field<&ArcTextData::reversed>},      {72, field<&ArcTextMembers::alignment>},
    {74, field<&ArcTextData::bold>},          {75, field<&ArcTextMembers::italic>},
    {76, field<&ArcTextData::underlined>},    {210, field<&ArcTextMembers::normal>},
};

/// Angles stand as radians, but as degrees in drawings of some writers: no arc that is meant for
/// letters lies within a few degrees of the x axis whole.
void finishAngles(ArcTextMembers& text)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    constexpr double kNear = 1e-6;
    if (std::fabs(text.startAngle) <= kTurn + kNear && std::fabs(text.endAngle) <= kTurn + kNear)
        return;
    text.startAngle *= std::numbers::pi / 180.0;
    text.endAngle *= std::numbers::pi / 180.0;
}

void readArcText(RecordReader& reader, ArcTextMembers& text)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 7:
            text.style = reader.source().textStyle(reader.group());
            break;
        case 71:
            text.inward = reader.integer() == kInward;
            break;
        case 73:
            text.concave = reader.integer() == kConcave;
            break;
        default:
            takeField(kArcText, reader, static_cast<ArcTextData&>(text));
        }
    }
    finishAngles(text);
}

void readRText(RecordReader& reader, RTextMembers& text)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 1:
            text.text = reader.text();
            break;
        case 7:
            text.style = reader.source().textStyle(reader.group());
            break;
        case 10:
            text.position = reader.point();
            break;
        case 40:
            text.height = reader.real();
            break;
        case 50:
            text.rotation = reader.angle();
            break;
        case 70:
            text.expression = (reader.integer() & 1) != 0;
            break;
        case 210:
            text.normal = reader.vector();
            break;
        default:
            break;
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbArcAlignedText, ArcTextMembers, readArcText>(),
    memberReader<KdDbRText, RTextMembers, readRText>(),
};

} // namespace

std::span<const MemberReaderRow> specialTextReaders()
{
    return kRows;
}

} // namespace dxf
