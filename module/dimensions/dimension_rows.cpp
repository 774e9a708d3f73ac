#include <dimensions/dimension_rows.h>

#include <database/tables.h>

#include <dimensions/dimension_readers.h>
#include <providers/name_rows.h>
#include <providers/text_values.h>
#include <values/value_lists.h>

namespace {

// clang-format off
constexpr NameRow kVerticalPositions[] = {
    {0, {77829, L"Center"}}, {1, {77830, L"Above"}}, {2, {77831, L"Outside"}}, {3, {77832, L"JIS"}},
    {4, {77977, L"Below"}}, // as intended
};
constexpr NameRow kFits[] = {
    {0, {77833, L"Moves text and arrows outside extension lines"}},
    {1, {77834, L"Moves arrows, then text, outside extension lines"}},
    {2, {77835, L"Moves text, then arrows, outside extension lines"}},
    {3, {77836, L"Moves text or arrows for best fit"}},
};
constexpr NameRow kMovements[] = {
    {0, {77837, L"Moving dimension text moves the dimension line"}},
    {1, {77838, L"Moving dimension text adds a leader"}},
    {2, {77839, L"Moving dimension text does not append a leader"}},
};
constexpr NameRow kToleranceAlignments[] = {
    {0, {77984, L"Align plus/minus sign"}}, {1, {77985, L"Align decimal point"}},
};
constexpr NameRow kTolerancePositions[] = {
    {0, {77840, L"Bottom"}}, {1, {77841, L"Middle"}}, {2, {77842, L"Top"}},
};
constexpr ResourceText kToleranceDisplays[] = {
    {77986, L"None"}, {77987, L"Deviation"}, {77988, L"Limits"}, {77989, L"Basic"},
};
// clang-format on

// Flags, of dimensions alone.

const KdDbDimension& asDimension(const KdDbEntity* entity)
{
    return static_cast<const KdDbDimension&>(*entity);
}

/// Zeros of architectural units are told by feet and inches.
bool isArchitectural(const KdDbEntity* entity)
{
    constexpr int kArchitectural = 4;
    return asDimension(entity).dimlunit() == kArchitectural;
}

/// True while tolerances are shown; rotated dimensions flag their own keys the other way round.
bool hasTolerances(const KdDbEntity* entity)
{
    return showsTolerances(asDimension(entity));
}

bool isArchitecturalOrHasTolerances(const KdDbEntity* entity)
{
    return isArchitectural(entity) || hasTolerances(entity);
}

// Values.

bool dimensionStyle(const PropertyRequest& request, ValueKind kind)
{
    return readDimensionStyle(request, kind, dimensionOf(request).dimensionStyle());
}

KdString textStyle(const KdDbDimension& dimension)
{
    return nameOfRecord<KdDbTextStyleTableRecord>(dimension.dimtxsty());
}

KdString decimalSeparator(const KdDbDimension& dimension)
{
    const auto character = static_cast<wchar_t>(static_cast<unsigned char>(dimension.dimdsep()));
    return KdString(std::wstring_view(&character, 1));
}

KdString prefix(const KdDbDimension& dimension)
{
    return prefixOf(dimension.dimpost());
}

KdString suffix(const KdDbDimension& dimension)
{
    return suffixOf(dimension.dimpost());
}

KdString toleranceDisplay(const KdDbDimension& dimension)
{
    enum Display
    {
        kNone,
        kDeviation,
        kLimits,
        kBasic,
    };
    Display display = dimension.dimlim() ? kLimits : kNone;
    if (dimension.dimgap() < 0.0)
        display = kBasic;
    if (dimension.dimtol())
        display = kDeviation;
    return kToleranceDisplays[display].text();
}

/// Comes from the style; what the dimension sets apart is not looked at.
KdString toleranceAlignmentName(KdDbObjectId style)
{
    const OpenForRead<KdDbObject> opened(style);
    if (!opened)
        return {};
    const auto* record = opened->isKindOf(KdDbDimStyleTableRecord::desc())
                             ? static_cast<const KdDbDimStyleTableRecord*>(opened.get())
                             : nullptr;
    return nameIn(kToleranceAlignments, toleranceAlignmentOf(record));
}

bool toleranceAlignment(const PropertyRequest& request, ValueKind kind)
{
    const KdDbObjectId style = dimensionOf(request).dimensionStyle();
    request.head.setRestype(kind);
    request.head.setString(toleranceAlignmentName(style));
    namesOf<kToleranceAlignments>(request);
    return !style.isNull();
}

// The colour behind the text.

KdCmColor noColor()
{
    KdCmColor color;
    color.setColorMethod(KdCmColor::kNone);
    return color;
}

/// An index of no colour, which only its name tells from others.
KdCmColor backgroundColor()
{
    KdCmColor color(std::uint32_t{KdCmColor::kByACI} << 24);
    color.setNames(L"Background", {});
    return color;
}

KdCmColor fillColor(const KdDbDimension& dimension)
{
    switch (dimension.dimtfill()) {
    case 0:
        return noColor();
    case 1:
        return backgroundColor();
    case 2:
        return dimension.dimtfillclr();
    default:
        return {};
    }
}

bool fillColorChoices(const PropertyRequest& request)
{
    if (!request.withChoices)
        return true;
    ResBuf* tail = &request.head;
    for (const KdCmColor& color : {noColor(), backgroundColor()}) {
        tail = tail->setNext(ResBuf::newRb(ResBuf::kColor));
        tail->setColor(color);
    }
    PropListUtil::addStandartColorList(tail);
    return true;
}

using Dimension = KdDbDimension;

// clang-format off
constexpr PropertyRow kAssociativeRows[] = {
    {{77487, L"\tGeneral:Associative"}, derived, ResBuf::kString, value<associativeText>},
};

constexpr PropertyRow kArrowRows[] = {
    {{76554, L"Lines & Arrows:Arrow 1"}, editable, ResBuf::kPlotStyleName, name<arrow<&Dimension::dimblk1>>},
    {{76555, L"Lines & Arrows:Arrow 2"}, editable, ResBuf::kPlotStyleName, name<arrow<&Dimension::dimblk2>>},
};

constexpr PropertyRow kRows[] = {
    // key: id, default text                                read-only        kind                     value                                                        choices
    {{76638, L"Geometry:Normal"},                           derived,         ResBuf::kPoint3d,        value<&Dimension::normal>},
    {{77488, L"Misc:Dim style"},                            editable,        ResBuf::kString,         dimensionStyle},
    {{77489, L"Misc:Annotative"},                           editable,        ResBuf::kBool,           value<&KdDbObject::isAnnotative>},
    {{77490, L"Lines & Arrows:Arrow size"},                 editable,        ResBuf::kReal,           value<&Dimension::dimasz>},
    {{77491, L"Lines & Arrows:Dim line lineweight"},        editable,        ResBuf::kLineweightName, name<lineweight<&Dimension::dimlwd>>,                        lineweightsForDisplay},
    {{77492, L"Lines & Arrows:Dim line color"},             editable,        ResBuf::kColor,          value<&Dimension::dimclrd>},
    {{77493, L"Text:Fill color"},                           editable,        ResBuf::kColor,          value<fillColor>,                                            fillColorChoices},
    {{77494, L"Text:Text color"},                           editable,        ResBuf::kColor,          value<&Dimension::dimclrt>},
    {{77495, L"Text:Text height"},                          editable,        ResBuf::kReal,           value<&Dimension::dimtxt>},
    {{77496, L"Text:Text offset"},                          editable,        ResBuf::kReal,           value<&Dimension::dimgap>},
    {{77497, L"Text:Text outside align"},                   editable,        ResBuf::kBool,           value<&Dimension::dimtoh>},
    {{77498, L"Text:Text pos vert"},                        editable,        ResBuf::kString,         nameOf<&Dimension::dimtad, kVerticalPositions>,              namesOf<kVerticalPositions>},
    {{77499, L"Text:Text style"},                           editable,        ResBuf::kString,         value<textStyle>,                                            textStyleChoices},
    {{77500, L"Text:Text inside align"},                    editable,        ResBuf::kBool,           value<&Dimension::dimtih>},
    {{77501, L"Text:Text position"},                        derived,         ResBuf::kPoint3d,        value<&Dimension::textPosition>},
    {{77503, L"Text:Text rotation"},                        editable,        ResBuf::kAngle,          value<&Dimension::textRotation>},
    {{77504, L"Text:Text override"},                        editable,        ResBuf::kString,         value<&Dimension::dimensionText>,                            tag<0>},
    {{77505, L"Fit:Dim line forced"},                       editable,        ResBuf::kBool,           value<&Dimension::dimtofl>},
    {{77506, L"Fit:Dim scale overall"},                     editable,        ResBuf::kReal,           value<&Dimension::dimscale>},
    {{77507, L"Fit:Fit"},                                   editable,        ResBuf::kString,         nameOf<&Dimension::dimatfit, kFits>,                         namesOf<kFits>},
    {{77508, L"Fit:Text inside"},                           editable,        ResBuf::kBool,           value<&Dimension::dimtix>},
    {{77509, L"Fit:Text movement"},                         editable,        ResBuf::kString,         nameOf<&Dimension::dimtmove, kMovements>,                    namesOf<kMovements>},
    {{77510, L"Primary units:Decimal separator"},           editable,        ResBuf::kString,         value<decimalSeparator>,                                     tag<0>},
    {{77511, L"Primary units:Dim prefix"},                  editable,        ResBuf::kString,         value<prefix>,                                               tag<0>},
    {{77512, L"Primary units:Dim suffix"},                  editable,        ResBuf::kString,         value<suffix>,                                               tag<0>},
    {{77513, L"Primary units:Suppress leading zeros"},      isArchitectural, ResBuf::kBool,           value<suppressed<&Dimension::dimzin, kLeadingZeros>>},
    {{77514, L"Primary units:Suppress trailing zeros"},     isArchitectural, ResBuf::kBool,           value<suppressed<&Dimension::dimzin, kTrailingZeros>>},
    {{77515, L"Tolerances:Tolerance display"},              editable,        ResBuf::kString,         value<toleranceDisplay>,                                     namesOf<kToleranceDisplays>},
    {{77516, L"Tolerances:Tolerance limit lower"},          hasTolerances,   ResBuf::kReal,           value<&Dimension::dimtm>},
    {{77517, L"Tolerances:Tolerance limit upper"},          hasTolerances,   ResBuf::kReal,           value<&Dimension::dimtp>},
    {{77518, L"Tolerances:Tolerance pos vert"},             editable,        ResBuf::kString,         nameOf<&Dimension::dimtolj, kTolerancePositions>,            namesOf<kTolerancePositions>},
    {{77519, L"Tolerances:Tolerance alignment"},            editable,        ResBuf::kString,         toleranceAlignment},
    {{77520, L"Tolerances:Tolerance precision"},            hasTolerances,   ResBuf::kInt16,          value<&Dimension::dimtdec>},
    {{77521, L"Tolerances:Tolerance suppress leading zeros"},  isArchitecturalOrHasTolerances, ResBuf::kBool, value<suppressed<&Dimension::dimtzin, kLeadingZeros>>},
    {{77522, L"Tolerances:Tolerance suppress trailing zeros"}, isArchitecturalOrHasTolerances, ResBuf::kBool, value<suppressed<&Dimension::dimtzin, kTrailingZeros>>},
    {{77523, L"Tolerances:Tolerance text height"},          hasTolerances,   ResBuf::kReal,           value<&Dimension::dimtfac>},
};
// clang-format on

constexpr std::span<const PropertyRow> kTextRotation = [] {
    constexpr int kId = 77503;
    std::size_t place = 0;
    while (kRows[place].key.id != kId)
        ++place;
    return std::span<const PropertyRow>(kRows).subspan(place, 1);
}();

} // namespace

std::span<const PropertyRow> associativeRows()
{
    return kAssociativeRows;
}

std::span<const PropertyRow> dimensionRows()
{
    return kRows;
}

std::span<const PropertyRow> textRotationRows()
{
    return kTextRotation;
}

std::span<const PropertyRow> arrowRows()
{
    return kArrowRows;
}
