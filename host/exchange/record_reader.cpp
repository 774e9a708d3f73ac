#include "record_reader.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <numbers>

#include <entities/proxy_entity.h>

#include "extended_data.h"
#include "group_values.h"

namespace dxf {
namespace {

using Seldom = EntityMembers::Seldom;

constexpr std::string_view kEntitySubclass = "AcDbEntity";

/// Parts in which the codes of general properties have other meanings. In all others they mean the
/// same as in the general part, where some writers do not put them.
constexpr std::string_view kPartsWithOtherMeanings[] = {
    "AcDbSection",     "AcDbTable",        "AcDbSubDMesh",
    "AcDbProxyEntity", "AcDbPointCloudEx", "AcDbGeoPositionMarker",
};

/// Codes of groups that are not always the reader's.
constexpr int kGeneralCodes[] = {6,   38,  48,  60,  62,  92,  100, 101, 102, 160,
                                 284, 310, 370, 380, 390, 420, 430, 440, 1001};

constexpr auto kIsGeneralCode = [] {
    std::array<bool, 1024> isGeneral{};
    for (const int code : kGeneralCodes)
        isGeneral[static_cast<std::size_t>(code)] = true;
    return isGeneral;
}();

/// Nearly all groups of most records are told apart by their code alone.
bool mayBeGeneral(int code)
{
    const auto place = static_cast<std::size_t>(code);
    return place < kIsGeneralCode.size() && kIsGeneralCode[place];
}

} // namespace

std::uint32_t colorWordOfIndex(int index)
{
    KdCmColor color;
    color.setColorIndex(index);
    return color.color();
}

std::uint32_t colorWordOfRgb(int rgb)
{
    return std::uint32_t{KdCmColor::kByColor} << 24 |
           (static_cast<std::uint32_t>(rgb) & 0x00FFFFFFu);
}

RecordReader::RecordReader(DrawingSource& source, const KdDbObject& object, SourceRange range,
                           ObjectMembers& members, EntityMembers* entity)
    : m_source(source),
      m_object(object),
      m_members(members),
      m_entity(entity),
      m_groups(source.groups(range)),
      m_readBefore(source.reading)
{
    m_source.reading = object.handle();
    if (advance() && m_group.code == 0)
        m_recordName = trimmed(m_group.text);
}

RecordReader::~RecordReader()
{
    m_source.reading = m_readBefore;
}

bool RecordReader::advance()
{
    if (m_steppedBack) {
        m_steppedBack = false;
        return true;
    }
    return m_groups.next(m_group);
}

bool RecordReader::next()
{
    while (advance()) {
        if (!mayBeGeneral(m_group.code) || m_subclass == kFreeSubclass)
            return true;
        switch (m_group.code) {
        case 100:
            m_subclass = trimmed(m_group.text);
            continue;
        case 101:
            if (m_includesEmbedded)
                m_isEmbedded = true;
            else
                skipEmbeddedObject();
            continue;
        case 102:
            readApplicationGroup();
            continue;
        case 1001:
            stepBack();
            ExtendedDataReader(*this).read(m_members.extendedData);
            return false;
        default:
            break;
        }
        if (!m_entity || m_isEmbedded || !takeGeneral())
            return true;
    }
    return false;
}

void RecordReader::skipRest()
{
    while (next()) {
    }
}

void RecordReader::skipEmbeddedObject()
{
    while (advance()) {
        if (m_group.code == 1001) {
            stepBack();
            return;
        }
    }
}

void RecordReader::readApplicationGroup()
{
    const std::string_view name = trimmed(m_group.text);
    const bool isExtensionDictionary = name == "{ACAD_XDICTIONARY";
    const bool isReactors = name == "{ACAD_REACTORS";
    while (advance()) {
        if (m_group.code == 102)
            return;
        if (m_group.code == 100 || m_group.code == 1001) { // not closed
            stepBack();
            return;
        }
        if (isExtensionDictionary && (m_group.code == 360 || m_group.code == 350))
            m_members.links.edit().extensionDictionary = reference();
        else if (isReactors && m_group.code == 330)
            addReactor(reference());
    }
}

void RecordReader::addReactor(KdDbObjectId reactor)
{
    if (!reactor.isNull())
        m_members.links.edit().reactors.push_back(reactor);
}

bool RecordReader::takeColor()
{
    switch (m_group.code) {
    case 62:
        if (!m_hasTrueColor)
            m_entity->color = colorWordOfIndex(integer());
        return true;
    case 420:
        m_entity->color = colorWordOfRgb(integer());
        m_hasTrueColor = true;
        return true;
    case 430:
        m_entity->seldom.set(&Seldom::colorName, text());
        return true;
    case 440:
        m_entity->seldom.set(&Seldom::transparency, static_cast<std::uint32_t>(integer()));
        return true;
    default:
        return false;
    }
}

bool RecordReader::isGeneralPart() const
{
    if (m_subclass.empty() || m_subclass == kEntitySubclass)
        return true;
    if (m_object.isA() == KdDbProxyEntity::desc())
        return false;
    const auto* const end = std::end(kPartsWithOtherMeanings);
    return std::find(std::begin(kPartsWithOtherMeanings), end, m_subclass) == end;
}

bool RecordReader::takeGeneral()
{
    switch (m_group.code) {
    case 92:
    case 160:
    case 310: // preview graphics; elsewhere these codes belong to the kind
        return m_subclass == kEntitySubclass;
    case 284: // elsewhere this is a number of the kind's own
        if (!m_subclass.empty() && m_subclass != kEntitySubclass)
            return false;
        m_entity->shadows = static_cast<EntityMembers::Shadows>(integer() & 3);
        return true;
    case 38: // otherwise this is an elevation of the kind's own
        if (m_subclass.empty())
            m_elevation = real();
        return m_subclass.empty();
    case 6:
    case 48:
    case 60:
    case 62:
    case 370:
    case 380:
    case 390:
    case 420:
    case 430:
    case 440:
        return isGeneralPart() && takeProperty();
    default:
        return false;
    }
}

bool RecordReader::takeProperty()
{
    switch (m_group.code) {
    case 6:
        m_entity->linetype = m_source.linetype(m_group);
        return true;
    case 48:
        m_entity->seldom.set(&Seldom::linetypeScale, real());
        return true;
    case 60:
        m_entity->invisible = flag();
        return true;
    case 370:
        m_entity->lineweight = shortInteger();
        return true;
    case 380:
        m_entity->plotStyleKind = static_cast<EntityMembers::PlotStyle>(integer() & 3);
        return true;
    case 390:
        m_entity->seldom.set(&Seldom::plotStyle, reference());
        m_entity->plotStyleKind = EntityMembers::PlotStyle::ByName;
        return true;
    default:
        return takeColor();
    }
}

void RecordReader::note(DrawingFinding kind, std::wstring_view detail)
{
    m_source.findings.add(kind, m_group.offset, detail, m_object.handle());
}

void RecordReader::noteState(NumberState state)
{
    if (state != NumberState::Good)
        note(state == NumberState::Comma ? DrawingFinding::DecimalComma
                                         : DrawingFinding::BadNumber);
}

double RecordReader::real()
{
    double value = 0.0;
    const bool isText = m_group.form == Group::Form::Text;
    noteState(isText ? parseReal(m_group.text, value) : realOf(m_group, value));
    return value;
}

double RecordReader::angle()
{
    return real() * (std::numbers::pi / 180.0);
}

int RecordReader::integer()
{
    std::int64_t value = 0;
    noteState(integerOf(m_group, value));
    // Some writers give colours and flags as unsigned words.
    if (value > std::numeric_limits<std::int32_t>::max() &&
        value <= std::numeric_limits<std::uint32_t>::max())
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
    return static_cast<int>(std::clamp<std::int64_t>(
        value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

std::int16_t RecordReader::shortInteger()
{
    return static_cast<std::int16_t>(std::clamp<int>(integer(),
                                                     std::numeric_limits<std::int16_t>::min(),
                                                     std::numeric_limits<std::int16_t>::max()));
}

std::size_t RecordReader::statedCount(std::uint32_t leastBytes) const
{
    const std::int64_t count = looseIntegerOf(m_group);
    const bool fits = count > 0 && count <= m_object.source().length / leastBytes;
    return fits ? static_cast<std::size_t>(count) : 0;
}

KdString RecordReader::text()
{
    if (m_group.text.size() > TextDecoder::kLongestText)
        note(DrawingFinding::TextTooLong);
    return m_source.decoder.decode(m_group.text);
}

KdDbHandle RecordReader::handle()
{
    KdDbHandle value = 0;
    if (!parseHandle(m_group.text, value) && !trimmed(m_group.text).empty())
        note(DrawingFinding::BadHandle);
    return value;
}

KdDbObjectId RecordReader::reference()
{
    KdDbObjectId id;
    const KdDbHandle value = handle();
    if (value != 0)
        m_source.database.getObjectId(id, value);
    return id;
}

bool RecordReader::nextCoordinate(int code, double& value)
{
    if (!advance())
        return false;
    if (m_group.code != code) {
        stepBack();
        return false;
    }
    value = real();
    return true;
}

KdGePoint3d RecordReader::point()
{
    return coordinates(m_elevation);
}

KdGePoint3d RecordReader::coordinates(double missingZ)
{
    const int code = m_group.code;
    KdGePoint3d result{real(), 0.0, missingZ};
    if (nextCoordinate(code + 10, result.y))
        nextCoordinate(code + 20, result.z);
    return result;
}

KdGePoint2d RecordReader::point2d()
{
    const KdGePoint3d result = point();
    return {result.x, result.y};
}

} // namespace dxf
