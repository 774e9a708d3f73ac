// Multileaders and their styles.
#include <cmath>

#include <database/mleader_style.h>
#include <entities/mleader.h>
#include <geometry/matrix.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

using Branch = MLeaderMembers::Branch;
using Line = MLeaderMembers::Line;
using Block = MLeaderMembers::Block;
using BlockAttribute = MLeaderMembers::BlockAttribute;

/// What the content tells beside its text and its block.
struct Content
{
    KdGePoint3d base;
    double scale = 1.0;
    double textHeight = 0.0;
    double landingGap = 0.0;
    double rotation = 0.0; ///< radians, of the text
    bool hasText = false;
    bool hasBlock = false;
};

constexpr FieldRow<MLeaderMembers> kEntity[] = {
    {340, field<&MLeaderMembers::style>},          {170, field<&MLeaderMembers::lineType>},
    {91, field<&MLeaderMembers::lineColor>},       {341, field<&MLeaderMembers::linetype>},
    {171, field<&MLeaderMembers::lineWeight>},     {290, field<&MLeaderMembers::landing>},
    {291, field<&MLeaderMembers::dogleg>},         {41, field<&MLeaderMembers::doglegLength>},
    {342, field<&MLeaderMembers::arrowSymbol>},    {42, field<&MLeaderMembers::arrowSize>},
    {172, field<&MLeaderMembers::content>},        {343, field<&MLeaderMembers::textStyle>},
    {173, field<&MLeaderMembers::leftAttachment>}, {95, field<&MLeaderMembers::rightAttachment>},
    {174, field<&MLeaderMembers::textAngleKind>},  {175, field<&MLeaderMembers::textAlignment>},
    {92, field<&MLeaderMembers::textColor>},       {292, field<&MLeaderMembers::textFrame>},
    {293, field<&MLeaderMembers::annotative>},     {272, field<&MLeaderMembers::bottomAttachment>},
    {273, field<&MLeaderMembers::topAttachment>},
};

constexpr FieldRow<BlockAttribute> kAttribute[] = {
    {177, field<&BlockAttribute::index>},
    {44, field<&BlockAttribute::width>},
    {302, field<&BlockAttribute::text>},
};

constexpr FieldRow<Content> kContent[] = {
    {40, field<&Content::scale>},      {10, field<&Content::base>},
    {41, field<&Content::textHeight>}, {145, field<&Content::landingGap>},
    {290, field<&Content::hasText>},   {42, field<&Content::rotation>},
    {296, field<&Content::hasBlock>},
};

constexpr FieldRow<MTextData> kText[] = {
    {304, field<&MTextData::contents>},
    {11, field<&MTextData::normal>},
    {340, field<&MTextData::style>},
    {12, field<&MTextData::location>},
    {13, field<&MTextData::direction>},
    {43, field<&MTextData::width>},
    {44, field<&MTextData::height>},
    {45, field<&MTextData::lineSpacingFactor>},
    {170, field<&MTextData::lineSpacingStyle>},
    {171, field<&MTextData::attachment>},
    {172, field<&MTextData::flow>},
    {91, field<&MTextData::fillColor>},
    {141, field<&MTextData::fillFactor>},
    {291, field<&MTextData::fill>},
    {292, field<&MTextData::fillWithBackground>},
};

using Columns = MTextData::Columns;

constexpr FieldRow<Columns> kColumns[] = {
    {173, field<&Columns::type>},
    {142, field<&Columns::width>},
    {143, field<&Columns::gutter>},
    {144, [](RecordReader&, Columns& columns) { ++columns.count; }}, // the height of one
};

void takeScale(RecordReader& reader, Block& block)
{
    const KdGeVector3d scale = reader.vector();
    block.scale = {scale.x, scale.y, scale.z};
}

constexpr FieldRow<Block> kBlock[] = {
    {341, field<&Block::record>},  {14, field<&Block::normal>},
    {15, field<&Block::position>}, {16, takeScale},
    {46, field<&Block::rotation>}, {93, field<&Block::color>},
};

constexpr FieldRow<Branch> kBranch[] = {
    {10, field<&Branch::lastPoint>},
    {11, field<&Branch::direction>},
    {40, field<&Branch::landingLength>},
    {90, field<&Branch::index>},
};

constexpr FieldRow<Line> kLine[] = {
    {10, [](RecordReader& reader, Line& line) { line.vertices.push_back(reader.point()); }},
    {91, field<&Line::index>},
};

/// Reads the groups of one multileader. Its content stands in braces between groups that name
/// them; inside it stand the leaders, and in these their lines, in braces of their own.
class MLeaderReader
{
  public:
    explicit MLeaderReader(MLeaderMembers& leader) : m_leader(leader) {}

    void read(RecordReader& reader)
    {
        while (reader.next()) {
            if (reader.isIn("AcDbMLeader") && !takeBrace(reader))
                takeInside(reader);
        }
        finish();
    }

  private:
    enum class Place
    {
        InEntity,
        InContent,
        InBranch,
        InLine,
    };

    bool takeBrace(RecordReader& reader);
    bool step(Place from, Place to);
    void takeInside(RecordReader& reader);
    void takeEntity(RecordReader& reader);
    void takeContent(RecordReader& reader);
    void finish();
    void finishText();

    MLeaderMembers& m_leader;
    Content m_content;
    MTextData m_text;
    Block m_block;
    Place m_place = Place::InEntity;
    bool m_hasScale = false;
};

bool MLeaderReader::step(Place from, Place to)
{
    if (m_place != from)
        return false;
    m_place = to;
    return true;
}

/// Steps into and out of braces. Elsewhere the codes have other meanings.
bool MLeaderReader::takeBrace(RecordReader& reader)
{
    switch (reader.code()) {
    case 300:
        return step(Place::InEntity, Place::InContent);
    case 301:
        return step(Place::InContent, Place::InEntity);
    case 302:
        if (!step(Place::InContent, Place::InBranch))
            return false;
        m_leader.branches.emplace_back();
        return true;
    case 303:
        return step(Place::InBranch, Place::InContent);
    case 304:
        if (!step(Place::InBranch, Place::InLine))
            return false;
        m_leader.branches.back().lines.emplace_back();
        return true;
    case 305:
        return step(Place::InLine, Place::InBranch);
    default:
        return false;
    }
}

void MLeaderReader::takeInside(RecordReader& reader)
{
    switch (m_place) {
    case Place::InEntity:
        takeEntity(reader);
        break;
    case Place::InContent:
        takeContent(reader);
        break;
    case Place::InBranch:
        takeField(kBranch, reader, m_leader.branches.back());
        break;
    case Place::InLine:
        takeField(kLine, reader, m_leader.branches.back().lines.back());
        break;
    }
}

void MLeaderReader::takeEntity(RecordReader& reader)
{
    if (reader.code() == 45) {
        m_leader.scale = reader.real();
        m_hasScale = true;
    } else if (reader.code() == 330) { // begins the next attribute of the block
        m_block.attributes.push_back({reader.reference(), 0, 0.0, {}});
    } else if (m_block.attributes.empty() ||
               !takeField(kAttribute, reader, m_block.attributes.back())) {
        takeField(kEntity, reader, m_leader);
    }
}

void MLeaderReader::takeContent(RecordReader& reader)
{
    takeField(kText, reader, m_text) || takeField(kColumns, reader, m_text.columns) ||
        takeField(kBlock, reader, m_block) || takeField(kContent, reader, m_content);
}

void MLeaderReader::finishText()
{
    m_text.textHeight = m_content.textHeight;
    if (m_text.style.isNull())
        m_text.style = m_leader.textStyle;
    if (m_text.direction == KdGeVector3d{}) {
        const double angle = m_content.rotation;
        const KdGeVector3d inPlane{std::cos(angle), std::sin(angle), 0.0};
        m_text.direction = KdGeMatrix3d::planeToWorld(m_text.normal) * inPlane;
    }
    m_leader.text = std::make_unique<MTextData>(std::move(m_text));
}

void MLeaderReader::finish()
{
    if (!m_hasScale)
        m_leader.scale = m_content.scale;
    // The content is as it is drawn; the entity speaks of lengths before scaling.
    const double drawn = m_content.scale > 0.0 ? m_content.scale : 1.0;
    m_leader.contentBase = m_content.base;
    m_leader.landingGap = m_content.landingGap / drawn;
    m_leader.textHeight = m_content.textHeight / drawn;
    if (m_content.hasText)
        finishText();
    if (m_content.hasBlock)
        m_leader.block = std::make_unique<Block>(std::move(m_block));
}

void readMLeader(RecordReader& reader, MLeaderMembers& leader)
{
    MLeaderReader(leader).read(reader);
}

constexpr FieldRow<MLeaderStyleMembers> kStyle[] = {
    {3, field<&MLeaderStyleMembers::description>},
    {300, field<&MLeaderStyleMembers::defaultText>},
    {340, field<&MLeaderStyleMembers::linetype>},
    {341, field<&MLeaderStyleMembers::arrowSymbol>},
    {342, field<&MLeaderStyleMembers::textStyle>},
    {343, field<&MLeaderStyleMembers::block>},
    {91, field<&MLeaderStyleMembers::lineColor>},
    {93, field<&MLeaderStyleMembers::textColor>},
    {42, field<&MLeaderStyleMembers::landingGap>},
    {43, field<&MLeaderStyleMembers::doglegLength>},
    {44, field<&MLeaderStyleMembers::arrowSize>},
    {45, field<&MLeaderStyleMembers::textHeight>},
    {142, field<&MLeaderStyleMembers::scale>},
    {170, field<&MLeaderStyleMembers::content>},
    {173, field<&MLeaderStyleMembers::lineType>},
    {92, field<&MLeaderStyleMembers::lineWeight>},
    {174, field<&MLeaderStyleMembers::leftAttachment>},
    {178, field<&MLeaderStyleMembers::rightAttachment>},
    {175, field<&MLeaderStyleMembers::textAngleKind>},
    {176, field<&MLeaderStyleMembers::textAlignment>},
    {290, field<&MLeaderStyleMembers::landing>},
    {291, field<&MLeaderStyleMembers::dogleg>},
    {292, field<&MLeaderStyleMembers::textFrame>},
    {296, field<&MLeaderStyleMembers::annotative>},
};

void readMLeaderStyle(RecordReader& reader, MLeaderStyleMembers& style)
{
    while (reader.next()) {
        if (reader.isIn("AcDbMLeaderStyle"))
            takeField(kStyle, reader, style);
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbMLeader, MLeaderMembers, readMLeader>(),
    memberReader<KdDbMLeaderStyle, MLeaderStyleMembers, readMLeaderStyle>(),
};

} // namespace

std::span<const MemberReaderRow> mleaderReaders()
{
    return kRows;
}

} // namespace dxf
