#include "variable_rules.h"

#include <cassert>
#include <span>
#include <vector>

namespace {

using Names = std::span<const wchar_t* const>;

template <class Table>
bool isIn(const KdDbDatabase& database, const KdString& name)
{
    return database.table<Table>().has(name.kwszPtr());
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kSmallest = std::numeric_limits<double>::min();

// clang-format off
constexpr const wchar_t* kSwitches[] = {
    L"ANGDIR", L"CAMERADISPLAY", L"DIMALT", L"DIMASO", L"DIMFXLON", L"DIMLIM", L"DIMSAH", L"DIMSD1",
    L"DIMSD2", L"DIMSE1", L"DIMSE2", L"DIMSHO", L"DIMSOXD", L"DIMTIH", L"DIMTIX", L"DIMTOFL",
    L"DIMTOH", L"DIMTOL", L"DIMTXTDIRECTION", L"DIMUPT", L"DISPSILH", L"EXTNAMES", L"FILLMODE",
    L"HIDETEXT", L"LIGHTGLYPHDISPLAY", L"LIMCHECK", L"LWDISPLAY", L"MEASUREMENT", L"MIRRTEXT",
    L"OLESTARTUP", L"ORTHOMODE", L"PLIMCHECK", L"PLINEGEN", L"PROXYGRAPHICS", L"PSLTSCALE",
    L"QTEXTMODE", L"REALWORLDSCALE", L"REGENMODE", L"SKPOLY", L"SOLIDHIST", L"SPLFRAME",
    L"TILEMODE", L"TILEMODELIGHTSYNCH", L"UNITMODE", L"USRTIMER", L"VISRETAIN", L"WORLDVIEW",
    L"XEDIT",
};
constexpr const wchar_t* kThreeChoices[] = {
    L"ATTMODE", L"CMLJUST", L"DGNFRAME", L"DIMARCSYM", L"DIMASSOC", L"DIMFRAC", L"DIMTFILL",
    L"DIMTMOVE", L"DIMTOLJ", L"DWFFRAME", L"SHOWHIST", L"XCLIPFRAME",
};
constexpr const wchar_t* kFourChoices[] = {
    L"CEPSNTYPE", L"CSHADOW", L"DIMATFIT", L"DIMAZIN", L"ENDCAPS", L"INDEXCTL", L"JOINSTYLE",
    L"SHADEDGE",
};
constexpr const wchar_t* kFiveChoices[] = {L"AUNITS", L"DIMAUNIT", L"DIMJUST", L"DIMTAD"};
constexpr const wchar_t* kPrecisions[] = {
    L"AUPREC", L"DIMADEC", L"DIMALTD", L"DIMALTTD", L"DIMDEC", L"DIMTDEC", L"LUPREC",
};
constexpr const wchar_t* kZeroSuppressions[] = {L"DIMALTTZ", L"DIMALTZ", L"DIMTZIN", L"DIMZIN"};
constexpr const wchar_t* kColours[] = {
    L"CECOLOR", L"DIMCLRD", L"DIMCLRE", L"DIMCLRT", L"DIMTFILLCLR", L"INTERFERECOLOR",
};
constexpr const wchar_t* kHiddenLineColours[] = {L"INTERSECTIONCOLOR", L"OBSCOLOR"};
constexpr const wchar_t* kLineweights[] = {L"CELWEIGHT", L"DIMLWD", L"DIMLWE"};
constexpr const wchar_t* kPositive[] = {
    L"CELTSCALE", L"DIMALTF", L"DIMTFAC", L"LENSLENGTH", L"LTSCALE", L"TEXTSIZE",
};
constexpr const wchar_t* kNotNegative[] = {
    L"CHAMFERA", L"CHAMFERB", L"CHAMFERC", L"DIMALTRND", L"DIMASZ", L"DIMDLE", L"DIMDLI", L"DIMEXE",
    L"DIMEXO", L"DIMFXL", L"DIMRND", L"DIMSCALE", L"DIMTSZ", L"DIMTXT", L"FILLETRAD", L"PLINEWID",
    L"PSVPSCALE", L"SKETCHINC", L"TRACEWID",
};
constexpr const wchar_t* kLinearUnits[] = {L"LUNITS"};
constexpr const wchar_t* kDimensionUnits[] = {L"DIMLUNIT"};
constexpr const wchar_t* kAlternateUnits[] = {L"DIMALTU"};
constexpr const wchar_t* kInsertUnits[] = {L"INSUNITS"};
constexpr const wchar_t* kSurfaceDensities[] = {L"SURFTAB1", L"SURFTAB2"};
constexpr const wchar_t* kSurfaceCounts[] = {L"SURFU", L"SURFV"};
constexpr const wchar_t* kSplineTypes[] = {L"SPLINETYPE"};
constexpr const wchar_t* kPercents[] = {L"HALOGAP", L"SHADEDIF"};
constexpr const wchar_t* kViewportCounts[] = {L"MAXACTVP"};
// clang-format on

struct RangeRow
{
    VariableRange range;
    Names names;
};

// clang-format off
constexpr RangeRow kRanges[] = {
    {{0, 1}, kSwitches},
    {{0, 2}, kThreeChoices},
    {{0, 3}, kFourChoices},
    {{0, 4}, kFiveChoices},
    {{0, 8}, kPrecisions},
    {{0, 15}, kZeroSuppressions},
    {{0, 256}, kColours},              // 0 by block, 256 by layer
    {{0, 257}, kHiddenLineColours},    // 257: that of the object
    {{-3, 211}, kLineweights},         // 1/100 mm; -1 by layer, -2 by block, -3 default
    {{kSmallest, kInfinity}, kPositive},
    {{0, kInfinity}, kNotNegative},
    {{1, 5}, kLinearUnits},
    {{1, 6}, kDimensionUnits},
    {{1, 8}, kAlternateUnits},
    {{0, 24}, kInsertUnits},
    {{2, 32766}, kSurfaceDensities},
    {{0, 200}, kSurfaceCounts},
    {{5, 6}, kSplineTypes},
    {{0, 100}, kPercents},
    {{2, 64}, kViewportCounts},
};
// clang-format on

// Facts about the drawing, and what only changes together with something else.
// clang-format off
constexpr const wchar_t* kReadOnly[] = {
    L"DIMSTYLE", L"EXTMAX", L"EXTMIN", L"LASTSAVEDBY", L"PEXTMAX", L"PEXTMIN", L"PSTYLEMODE",
    L"PUCSNAME", L"PUCSORG", L"PUCSXDIR", L"PUCSYDIR", L"TDCREATE", L"TDINDWG", L"TDUCREATE",
    L"TDUPDATE", L"TDUSRTIMER", L"TDUUPDATE", L"UCSNAME", L"UCSORG", L"UCSXDIR", L"UCSYDIR",
};
// clang-format on

struct NameRow
{
    const wchar_t* name;
    bool (*names)(const KdDbDatabase& database, const KdString& name);
};

constexpr NameRow kNames[] = {
    {L"CLAYER", isIn<KdDbLayerTable>},
    {L"CELTYPE", isIn<KdDbLinetypeTable>},
    {L"TEXTSTYLE", isIn<KdDbTextStyleTable>},
    {L"DIMTXSTY", isIn<KdDbTextStyleTable>},
};

std::vector<VariableRule> makeRules()
{
    std::vector<VariableRule> rules(KdDbHeaderVariables::all().size());
    const auto ruleOf = [&rules](const wchar_t* name) -> VariableRule& {
        const int index = KdDbHeaderVariables::indexOf(name);
        assert(index >= 0);
        return rules[static_cast<std::size_t>(index)];
    };
    for (const RangeRow& row : kRanges)
        for (const wchar_t* name : row.names)
            ruleOf(name).range = row.range;
    for (const wchar_t* name : kReadOnly)
        ruleOf(name).readOnly = true;
    for (const NameRow& row : kNames)
        ruleOf(row.name).names = row.names;
    return rules;
}

} // namespace

const VariableRule& ruleOfHeaderVariable(int index)
{
    static const std::vector<VariableRule> rules = makeRules();
    return rules[static_cast<std::size_t>(index)];
}
