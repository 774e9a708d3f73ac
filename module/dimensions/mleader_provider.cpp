#include <database/tables.h>

#include <dimensions/dimension_values.h>
#include <dimensions/leader_providers.h>
#include <providers/name_rows.h>
#include <providers/text_values.h>

namespace {

using Text = KdDbMText;

/// Reads a value of the leader's text; the neutral value of the kind for one without a text.
template <auto Getter>
bool ofText(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    if (const auto text = static_cast<const KdDbMLeader&>(request.entity).mtext())
        store(request.head, std::invoke(Getter, *text));
    return true;
}

/// The same for a number that has a name.
template <auto Getter, const auto& Names>
KdString nameOfText(const Text& text)
{
    return nameIn(Names, std::invoke(Getter, text));
}

KdString linetypeName(const KdDbMLeader& leader)
{
    return nameOfRecord<KdDbLinetypeTableRecord>(leader.leaderLineTypeId());
}

KdString lineweight(const KdDbMLeader& leader)
{
    return lineweightText(leader.leaderLineWeight());
}

KdString arrow(const KdDbMLeader& leader)
{
    return arrowText(leader.arrowSymbolId());
}

KdString styleName(const KdDbMLeader& leader)
{
    return textStyleName(leader.textStyleId());
}

template <KdDb::LeaderDirection Side>
int attachment(const KdDbMLeader& leader)
{
    return leader.textAttachmentType(Side);
}

/// Not that of texts, which rounds its factor: as intended.
double lineSpace(const Text& text)
{
    return text.lineSpacingFactor() * text.textHeight() * 5.0 / 3.0;
}

constexpr NameRow kLeaderTypes[] = {
    {KdDb::kInvisibleLeader, {77843, L"None"}},
    {KdDb::kStraightLeader, {77844, L"Straight"}},
    {KdDb::kSplineLeader, {77845, L"Spline"}},
};

constexpr NameRow kAlignments[] = {
    {0, {77794, L"Left"}},
    {1, {77795, L"Center"}},
    {2, {77796, L"Right"}},
};

constexpr NameRow kDirections[] = {
    {KdDb::kLeftToRight, {77850, L"Horizontal"}},
    {KdDb::kTopToBottom, {77852, L"Vertical"}},
    {KdDb::kFlowByStyle, {77849, L"By Style"}},
};

constexpr NameRow kLineSpacingStyles[] = {
    {KdDb::kAtLeast, {77846, L"At least"}},
    {KdDb::kExactly, {77847, L"Exactly"}},
};

/// In the order of the choices. Two values are the other way round on the right: as intended.
template <int Underline, int Below>
constexpr NameRow kAttachments[] = {
    {0, {78155, L"Top of top line"}},        {1, {78156, L"Middle of top line"}},
    {Below, {78162, L"Bottom of top line"}}, {Underline, {78161, L"Underline top line"}},
    {2, {78157, L"Middle of text"}},         {3, {78158, L"Middle of bottom line"}},
    {4, {78159, L"Bottom of bottom line"}},  {5, {78160, L"Underline bottom line"}},
    {8, {78163, L"Underline all text"}},
};
constexpr const auto& kLeft = kAttachments<6, 7>;
constexpr const auto& kRight = kAttachments<7, 6>;

using MLeader = KdDbMLeader;

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                    read-only  kind                     value                                              choices
    {{77448, L"Misc:Overall scale"},            editable,  ResBuf::kReal,           value<&MLeader::scale>},
    {{77449, L"Misc:Annotative"},               editable,  ResBuf::kBool,           value<&KdDbObject::isAnnotative>},
    {{77451, L"Leaders:Leader type"},           editable,  ResBuf::kString,         nameOf<&MLeader::leaderLineType, kLeaderTypes>,    namesOf<kLeaderTypes>},
    {{77452, L"Leaders:Leader color"},          editable,  ResBuf::kColor,          value<&MLeader::leaderLineColor>},
    {{77453, L"Leaders:Leader linetype"},       editable,  ResBuf::kLinetypeName,   name<linetypeName>,                                linetypesForDisplay},
    {{77454, L"Leaders:Leader lineweight"},     editable,  ResBuf::kLineweightName, name<lineweight>,                                  lineweightsForDisplay},
    {{77455, L"Leaders:Arrowhead"},             editable,  ResBuf::kPlotStyleName,  name<arrow>},
    {{77456, L"Leaders:Arrowhead Size"},        editable,  ResBuf::kReal,           value<&MLeader::arrowSize>},
    {{77457, L"Leaders:Horizontal Landing"},    editable,  ResBuf::kBool,           value<&MLeader::enableDogleg>},
    {{77458, L"Leaders:Landing distance"},      editable,  ResBuf::kReal,           value<&MLeader::doglegLength>},
    {{77459, L"Text:Contents"},                 editable,  ResBuf::kString,         ofText<contentsOf>},
    {{77460, L"Text:Text Style"},               editable,  ResBuf::kString,         value<styleName>,                                  textStyleChoices},
    {{77461, L"Text:Justify"},                  editable,  ResBuf::kString,         nameOf<&MLeader::textAlignmentType, kAlignments>,  namesOf<kAlignments>},
    {{77462, L"Text:Direction"},                editable,  ResBuf::kString,         ofText<nameOfText<&Text::flowDirection, kDirections>>, namesOf<kDirections>},
    {{77463, L"Text:Width"},                    editable,  ResBuf::kReal,           ofText<&Text::width>},
    {{77464, L"Text:Height"},                   editable,  ResBuf::kReal,           value<&MLeader::textHeight>},
    {{77465, L"Text:Rotation"},                 editable,  ResBuf::kAngle,          ofText<&Text::rotation>},
    {{77466, L"Text:Line space factor"},        editable,  ResBuf::kReal,           ofText<&Text::lineSpacingFactor>},
    {{77467, L"Text:Line space distance"},      editable,  ResBuf::kReal,           ofText<lineSpace>},
    {{77468, L"Text:Line space style"},         editable,  ResBuf::kString,         ofText<nameOfText<&Text::lineSpacingStyle, kLineSpacingStyles>>, namesOf<kLineSpacingStyles>},
    {{77469, L"Text:Background mask"},          editable,  ResBuf::kBool,           ofText<&Text::backgroundFillOn>},
    {{77470, L"Text:Left Attachment"},          editable,  ResBuf::kString,         nameOf<attachment<KdDb::kLeftLeader>, kLeft>,      namesOf<kLeft>},
    {{77471, L"Text:Right Attachment"},         editable,  ResBuf::kString,         nameOf<attachment<KdDb::kRightLeader>, kRight>,    namesOf<kRight>},
    {{77472, L"Text:Landing gap"},              editable,  ResBuf::kReal,           value<&MLeader::landingGap>},
    {{77473, L"Text:Text frame"},               editable,  ResBuf::kBool,           value<&MLeader::enableFrameText>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbMLeader_Extension::rows()
{
    return kRows;
}
