#include <array>

#include <dimensions/dimension_kind_flags.h>
#include <dimensions/dimension_kind_names.h>
#include <dimensions/dimension_kind_readers.h>

namespace {

/// The id of a property for one kind of dimension, and how its flag comes about.
struct Cell
{
    enum class Flag
    {
        Editable,
        ReadOnly,
        Computed,
        Unlisted,
    };

    constexpr Cell(int cellId, Flag cellFlag = Flag::Editable) : id(cellId), flag(cellFlag) {}

    int id; ///< 0: the kind lacks the property
    Flag flag;
};

constexpr Cell operator""_r(unsigned long long id)
{
    return {static_cast<int>(id), Cell::Flag::ReadOnly};
}
constexpr Cell operator""_c(unsigned long long id)
{
    return {static_cast<int>(id), Cell::Flag::Computed};
}
constexpr Cell operator""_h(unsigned long long id)
{
    return {static_cast<int>(id), Cell::Flag::Unlisted};
}

/// One property of the family.
struct FamilyRow
{
    const wchar_t* defaultText;
    ValueKind kind;
    std::array<Cell, kDimensionKinds> cells;
    bool (*read)(const PropertyRequest&, ValueKind);
    bool (*choices)(const PropertyRequest&) = noChoices;
    bool (*rotatedFlag)(const KdDbEntity*) = editable; ///< where a rotated dimension computes it
};

using Dimension = KdDbDimension;
using Rotated = KdDbRotatedDimension;
using Aligned = KdDbAlignedDimension;
using Arc = KdDbArcDimension;
using TwoLine = KdDb2LineAngularDimension;
using ThreePoint = KdDb3PointAngularDimension;
using Radial = KdDbRadialDimension;
using RadialLarge = KdDbRadialDimensionLarge;
using Diametric = KdDbDiametricDimension;
using Ordinate = KdDbOrdinateDimension;

// An id alone: can be set; _r: read-only; _c: computed; _h: answered and not listed.
// clang-format off
constexpr FamilyRow kFamily[] = {
    // default text                                         kind                      ids: Rotated, Aligned, Arc, TwoLine, ThreePoint, Radial, RadialLarge, Diametric, Ordinate            value, choices, flag of rotated ones
    {L"Lines & Arrows:Arrow",                               ResBuf::kPlotStyleName,  {      0,       0,       0,       0,       0,   76781,   76847,       0,       0}, name<singleArrow>},
    {L"Lines & Arrows:Arrow 1",                             ResBuf::kPlotStyleName,  {  76554,   76554,   76554,   76554,   76554,       0,       0,   76554,       0}, name<arrow<&Dimension::dimblk1>>},
    {L"Lines & Arrows:Arrow 2",                             ResBuf::kPlotStyleName,  {  76555,   76555,   76555,   76555,   76555,       0,       0,   76555,       0}, name<arrow<&Dimension::dimblk2>>},
    {L"Lines & Arrows:Center mark",                         ResBuf::kString,         {      0,       0,       0,       0,       0,   76783,   76849,   77129,       0}, kindName<centerMarkSign, kCenterMarks>, kindNames<kCenterMarks>},
    {L"Lines & Arrows:Center mark size",                    ResBuf::kReal,           {      0,       0,       0,       0,       0,   76784,   76850,   77130,       0}, value<&Dimension::dimcen>},
    {L"Lines & Arrows:Arrow size",                          ResBuf::kReal,           {      0,       0,       0,       0, 77121_h,       0,       0,       0,       0}, value<&Dimension::dimasz>},
    {L"Lines & Arrows:Dim line",                            ResBuf::kBool,           {      0,       0,       0,       0,       0,   76786,   76852,       0,       0}, value<&Dimension::dimsd2>},
    {L"Lines & Arrows:Ext line lineweight",                 ResBuf::kLineweightName, {  76930,   77210,   76703,   76561,   76645,       0,       0,       0,       0}, name<lineweight<&Dimension::dimlwe>>, lineweightsForDisplay},
    {L"Lines & Arrows:Ext line weight",                     ResBuf::kLineweightName, {      0,       0,       0,       0,       0,   76790,   76862,   77138,   77007}, name<lineweight<&Dimension::dimlwe>>, lineweightsForDisplay},
    {L"Lines & Arrows:Hide Dim line 1",                     ResBuf::kBool,           {  76931,   77211,   76704,   76562,   76646,       0,       0,   77132,       0}, value<&Dimension::dimsd1>},
    {L"Lines & Arrows:Hide Dim line 2",                     ResBuf::kBool,           {  76932,   77212,   76705,   76563,   76647,       0,       0,   77133,       0}, value<&Dimension::dimsd2>},
    {L"Lines & Arrows:Dim line linetype",                   ResBuf::kLinetypeName,   {  76934,   77214,   76707,   76565,   76649,   76788,   76854,   77135,       0}, linetype<&Dimension::dimltype>, linetypesForDisplay},
    {L"Lines & Arrows:Center location override X",          ResBuf::kReal,           {      0,       0,       0,       0,       0,       0,   76855,       0,       0}, value<overrideCenterX>},
    {L"Lines & Arrows:Center location override Y",          ResBuf::kReal,           {      0,       0,       0,       0,       0,       0,   76856,       0,       0}, value<overrideCenterY>},
    {L"Lines & Arrows:Jog location X",                      ResBuf::kReal,           {      0,       0,       0,       0,       0,       0,   76857,       0,       0}, value<jogPointX>},
    {L"Lines & Arrows:Jog location Y",                      ResBuf::kReal,           {      0,       0,       0,       0,       0,       0,   76858,       0,       0}, value<jogPointY>},
    {L"Lines & Arrows:Ext line",                            ResBuf::kBool,           {      0,       0,       0,       0,       0,       0,   76859,   77136,       0}, value<&Dimension::dimse1>},
    {L"Lines & Arrows:Jog angle",                           ResBuf::kReal,           {      0,       0,       0,       0,       0,       0,   76860,       0,       0}, value<&RadialLarge::jogAngle>},
    {L"Lines & Arrows:Dim line ext",                        ResBuf::kReal,           {  76935,   77215,   76708,   76566,       0,       0,       0,       0,       0}, value<&Dimension::dimdle>},
    {L"Lines & Arrows:Ext 1 linetype",                      ResBuf::kLinetypeName,   {      0,       0,   76709,       0,       0,       0,       0,       0,       0}, linetype<&Dimension::dimltex1>, linetypesForDisplay},
    {L"Lines & Arrows:Ext 2 linetype",                      ResBuf::kLinetypeName,   {      0,       0,   76710,       0,       0,       0,       0,       0,       0}, linetype<&Dimension::dimltex2>, linetypesForDisplay},
    {L"Lines & Arrows:Ext line 1 linetype",                 ResBuf::kLinetypeName,   {  76936,   77216,       0,   76567,   76650,       0,       0,       0,       0}, linetype<&Dimension::dimltex1>, linetypesForDisplay},
    {L"Lines & Arrows:Ext line 2 linetype",                 ResBuf::kLinetypeName,   {  76937,   77217,       0,   76568,   76651,       0,       0,       0,       0}, linetype<&Dimension::dimltex2>, linetypesForDisplay},
    {L"Lines & Arrows:Ext line type",                       ResBuf::kLinetypeName,   {      0,       0,       0,       0,       0,   76791,   76863,   77139,   77008}, linetype<&Dimension::dimltex1>, linetypesForDisplay},
    {L"Lines & Arrows:Mask Ext line 1",                     ResBuf::kBool,           {  76938,   77218,   76711,   76569,   76652,       0,       0,       0,       0}, value<&Dimension::dimse1>},
    {L"Lines & Arrows:Mask Ext line 2",                     ResBuf::kBool,           {  76939,   77219,   76712,   76570,   76653,       0,       0,       0,       0}, value<&Dimension::dimse2>},
    {L"Lines & Arrows:Ext line fixed",                      ResBuf::kBool,           {  76940,   77220,   76713,   76571,   76654,       0,       0,       0,   77009}, neverRead},
    {L"Lines & Arrows:Ext line fixed length",               ResBuf::kReal,           {  76941,   77221,   76714,   76572,   76655,       0,       0,       0,   77010}, neverRead},
    {L"Lines & Arrows:Ext line color",                      ResBuf::kColor,          {  76942,   77222,   76715,   76573,   76656,   76789,   76861,   77137,   77011}, value<&Dimension::dimclre>},
    {L"Lines & Arrows:Ext line ext",                        ResBuf::kReal,           {  76943,   77223,   76716,   76574,   76657,   76792,   76864,   77140,       0}, value<&Dimension::dimexe>},
    {L"Lines & Arrows:Ext line offset",                     ResBuf::kReal,           {  76944,   77224,   76717,   76575,   76658,   76793,   76865,   77141,   77012}, value<&Dimension::dimexo>},

    {L"Text:Fractional type",                               ResBuf::kString,         {76946_r, 77226_r, 76719_r,       0,       0, 76795_r, 76867_r, 77143_r, 77014_r}, kindName<&Dimension::dimfrac, kFractions>, kindNames<kFractions>},
    {L"Text:Text pos hor",                                  ResBuf::kString,         {  76951,   77231,   76724,   76581,   76665,       0,       0,       0,       0}, kindName<&Dimension::dimjust, kHorizontalPositions>, kindNames<kHorizontalPositions>},
    {L"Text:Measurement",                                   ResBuf::kReal,           {76958_r, 77238_r, 76732_r, 76588_h, 76672_r, 76796_r, 76878_r, 77154_r, 77023_r}, measurement},
    {L"Text:Text Measurement",                              ResBuf::kReal,           {      0,       0,       0, 76588_r,       0,       0,       0,       0,       0}, unanswered},
    {L"Text:Text direction",                                ResBuf::kString,         {      0,       0,       0,   77612,       0,       0,       0,       0,       0}, nameOf<textDirection, kTextDirections>, namesOf<kTextDirections>},
    {L"Text:Arc length symbol",                             ResBuf::kString,         {      0,       0,   76731,       0,       0,       0,       0,       0,       0}, kindName<&Dimension::dimarcsym, kArcSymbols>, kindNames<kArcSymbols>},

    {L"Fit:Dim line inside",                                ResBuf::kBool,           {  76961,   77241,   76735,   76591,   76675,       0,       0,       0,       0}, value<&Dimension::dimsoxd>},

    {L"Primary units:Angle precision",                      ResBuf::kInt16,          {      0,       0,       0,   76601,   76685,       0,       0,       0,       0}, value<&Dimension::dimadec>},
    {L"Primary units:Angle format",                         ResBuf::kString,         {      0,       0,       0,   76602,   76686,       0,       0,       0,       0}, kindName<&Dimension::dimaunit, kAngleForms>, kindNames<kAngleForms>},
    {L"Primary units:Dim roundoff",                         ResBuf::kReal,           {  76969,   77249,   76743,       0,       0,   76812,   76888,   77164,   77030}, value<&Dimension::dimrnd>},
    {L"Primary units:Dim scale linear",                     ResBuf::kReal,           {  76970,   77250,   76744,       0,       0,   76813,   76889,   77165,   77031}, value<&Dimension::dimlfac>},
    {L"Primary units:Dim units",                            ResBuf::kString,         {  76971,   77251,   76745,       0,       0,   76814,   76890,   77166,   77032}, kindName<&Dimension::dimlunit, kUnits>, kindNames<kUnits>},
    {L"Primary units:Suppress zero feet",                   ResBuf::kBool,           {76974_c, 77254_r, 76748_r,       0,       0, 76815_r, 76893_r, 77169_r, 77035_r}, value<suppressed<&Dimension::dimzin, kZeroFeet>>, noChoices, rotated<hasNoFeet>},
    {L"Primary units:Suppress zero inches",                 ResBuf::kBool,           {76975_c, 77255_r, 76749_r,       0,       0, 76816_r, 76894_r, 77170_r, 77036_r}, value<suppressed<&Dimension::dimzin, kZeroInches>>, noChoices, rotated<hasNoFeet>},
    {L"Primary units:precision",                            ResBuf::kInt16,          {  76976,   77256,   76750,       0,       0,   76817,   76895,   77171,   77037}, value<&Dimension::dimdec>},
    {L"Primary units:Sub-units factor",                     ResBuf::kReal,           {  77672,       0,       0,       0,       0,       0,       0,       0,       0}, value<&Dimension::dimmzf>},
    {L"Primary units:Sub-units suffix",                     ResBuf::kString,         {  77673,       0,       0,       0,       0,       0,       0,       0,       0}, subUnitsSuffix},

    {L"Alternate units:Alt enabled",                        ResBuf::kBool,           {  77122,   77257,   76751,       0,       0,   76818,   76896,   77172,   77038}, value<styleHasAlternateUnits>},
    {L"Alternate units:Alt format",                         ResBuf::kString,         {76977_c, 77258_r, 76752_c,       0,       0, 76819_r, 76897_r, 77173_r, 77039_r}, kindName<&Dimension::dimaltu, kAlternateUnits>, kindNames<kAlternateUnits>, rotated<hasNoAlternate>},
    {L"Alternate units:Alt precision",                      ResBuf::kInt16,          {76978_c, 77259_r, 76753_c,       0,       0, 76820_r, 76898_r, 77174_r, 77040_r}, value<&Dimension::dimaltd>, noChoices, rotated<hasNoAlternate>},
    {L"Alternate units:Alt round",                          ResBuf::kReal,           {76979_c, 77260_r, 76754_c,       0,       0, 76821_r, 76899_r, 77175_r, 77041_r}, value<&Dimension::dimaltrnd>, noChoices, rotated<hasNoAlternate>},
    {L"Alternate units:Alt scale factor",                   ResBuf::kReal,           {76980_c, 77261_r, 76755_c,       0,       0, 76822_r, 76900_r, 77176_r, 77042_r}, value<&Dimension::dimaltf>, noChoices, rotated<hasNoAlternate>},
    {L"Alternate units:Alt suppress leading zeros",         ResBuf::kBool,           {76981_c, 77262_r, 76756_c,       0,       0, 76823_r, 76901_r, 77177_r, 77043_r}, value<suppressed<&Dimension::dimaltz, kLeadingZeros>>, noChoices, rotated<hasNoAlternateDecimals>},
    {L"Alternate units:Alt suppress trailing zeros",        ResBuf::kBool,           {76982_c, 77263_r, 76757_c,       0,       0,       0, 76902_r, 77178_r, 77044_r}, value<suppressed<&Dimension::dimaltz, kTrailingZeros>>, noChoices, rotated<hasNoAlternateDecimals>},
    {L"Alternate units:Alt suppress zero feet",             ResBuf::kBool,           {76983_c, 77264_r, 76758_r,       0,       0, 76824_r, 76903_r, 77179_r, 77045_r}, value<suppressed<&Dimension::dimaltz, kZeroFeet>>, noChoices, rotated<hasNoAlternateFeet>},
    {L"Alternate units:Alt suppress zero inches",           ResBuf::kBool,           {76984_c, 77265_r, 76759_r,       0,       0, 76825_r, 76904_r, 77180_r, 77046_r}, value<suppressed<&Dimension::dimaltz, kZeroInches>>, noChoices, rotated<hasNoAlternateFeet>},
    {L"Alternate units:Alt prefix",                         ResBuf::kString,         {76985_c, 77266_r, 76760_c,       0,       0, 76826_r, 76905_r, 77181_r, 77047_r}, alternatePrefix, noChoices, rotated<hasNoAlternate>},
    {L"Alternate units:Alt suffix",                         ResBuf::kString,         {76986_c, 77267_r, 76761_c,       0,       0, 76827_r, 76906_r, 77182_r, 77048_r}, alternateSuffix, noChoices, rotated<hasNoAlternate>},
    {L"Alternate units:Alt sub-units factor",               ResBuf::kReal,           {77674_c,       0,       0,       0,       0,       0,       0,       0,       0}, value<&Dimension::dimaltmzf>, noChoices, rotated<hasNoAlternate>},
    {L"Alternate units:Alt sub-units suffix",               ResBuf::kString,         {77675_c,       0,       0,       0,       0,       0,       0,       0,       0}, value<&Dimension::dimaltmzs>, tag<0>, rotated<hasNoAlternate>},

    {L"Tolerances:Tolerance suppress zero feet",            ResBuf::kBool,           {76995_c, 77276_r, 76770_r,       0,       0,   76836,   76915, 77191_r,   77057}, value<suppressed<&Dimension::dimtzin, kZeroFeet>>, noChoices, rotated<hasNoToleranceFeet>},
    {L"Tolerances:Tolerance suppress zero inches",          ResBuf::kBool,           {76996_c, 77277_r, 76771_r,       0,       0,   76837,   76916, 77192_r,   77058}, value<suppressed<&Dimension::dimtzin, kZeroInches>>, noChoices, rotated<hasNoToleranceFeet>},
    {L"Tolerances:Alt tolerance precision",                 ResBuf::kInt16,          {76998_c, 77279_r, 76773_r,       0,       0,   76839,   76918, 77194_r,   77060}, value<&Dimension::dimalttd>, noChoices, rotated<hasNoAlternateTolerances>},
    {L"Tolerances:Alt tolerance suppress leading zeros",    ResBuf::kBool,           {76999_c, 77280_r, 76774_r,       0,       0,   76840,   76919, 77195_r,   77061}, value<suppressed<&Dimension::dimalttz, kLeadingZeros>>, noChoices, rotated<hasNoAlternateToleranceDecimals>},
    {L"Tolerances:Alt tolerance suppress trailing zeros",   ResBuf::kBool,           {77000_c, 77281_r, 76775_r,       0,       0,   76841,   76920, 77196_r,   77062}, value<suppressed<&Dimension::dimalttz, kTrailingZeros>>, noChoices, rotated<hasNoAlternateToleranceDecimals>},
    {L"Tolerances:Alt tolerance suppress zero feet",        ResBuf::kBool,           {77001_c, 77282_r, 76776_r,       0,       0,   76842,   76921, 77197_r,   77063}, value<suppressed<&Dimension::dimalttz, kZeroFeet>>, noChoices, rotated<hasNoAlternateToleranceFeet>},
    {L"Tolerances:Alt tolerance suppress zero inches",      ResBuf::kBool,           {77002_c, 77283_r, 76777_r,       0,       0,   76843,   76922, 77198_r,   77064}, value<suppressed<&Dimension::dimalttz, kZeroInches>>, noChoices, rotated<hasNoAlternateToleranceFeet>},

    {L"Geometry:Dim definition point",                      ResBuf::kPoint3d,        {77607_r, 77585_r,       0,       0,       0,       0,       0,       0,       0}, firstOf<&Rotated::dimLinePoint, &Aligned::dimLinePoint>},
    {L"Geometry:1st Dim definition point",                  ResBuf::kPoint3d,        {77608_r, 77586_r, 77588_r,       0, 77581_r,       0,       0,       0,       0}, firstOf<&Rotated::xLine1Point, &Aligned::xLine1Point, &Arc::xLine1Point, &ThreePoint::xLine1Point>},
    {L"Geometry:2nd Dim definition point",                  ResBuf::kPoint3d,        {77609_r, 77587_r, 77589_r,       0, 77582_r,       0,       0,       0,       0}, firstOf<&Rotated::xLine2Point, &Aligned::xLine2Point, &Arc::xLine2Point, &ThreePoint::xLine2Point>},
    {L"Geometry:First line defining point 1",               ResBuf::kPoint3d,        {      0,       0,       0, 77576_r,       0,       0,       0,       0,       0}, value<&TwoLine::xLine1Start>},
    {L"Geometry:First line defining point 2",               ResBuf::kPoint3d,        {      0,       0,       0, 77577_r,       0,       0,       0,       0,       0}, value<&TwoLine::xLine1End>},
    {L"Geometry:Second line defining point 1",              ResBuf::kPoint3d,        {      0,       0,       0, 77578_r,       0,       0,       0,       0,       0}, value<&TwoLine::xLine2Start>},
    {L"Geometry:Second line defining point 2",              ResBuf::kPoint3d,        {      0,       0,       0, 77579_r,       0,       0,       0,       0,       0}, value<&TwoLine::xLine2End>},
    {L"Geometry:Arc defining point",                        ResBuf::kPoint3d,        {      0,       0, 77605_r, 77580_r, 77584_r,       0,       0,       0,       0}, firstOf<&Arc::arcPoint, &TwoLine::arcPoint, &ThreePoint::arcPoint>},
    {L"Geometry:Dim Arc center point",                      ResBuf::kPoint3d,        {      0,       0, 77606_r,       0, 77583_r, 77597_r, 77600_r,       0,       0}, firstOf<&Arc::centerPoint, &ThreePoint::centerPoint, &Radial::center, &RadialLarge::center>},
    {L"Geometry:Leader definition point 1",                 ResBuf::kPoint3d,        {      0,       0, 77590_r,       0,       0,       0,       0,       0,       0}, value<&Arc::leader1Point>},
    {L"Geometry:Leader definition point 2",                 ResBuf::kPoint3d,        {      0,       0, 77591_r,       0,       0,       0,       0,       0,       0}, value<&Arc::leader2Point>},
    {L"Geometry:Leader definition point",                   ResBuf::kPoint3d,        {      0,       0,       0,       0,       0,       0,       0,       0, 77595_r}, value<&Ordinate::definingPoint>},
    {L"Geometry:Feature definition point",                  ResBuf::kPoint3d,        {      0,       0,       0,       0,       0,       0,       0,       0, 77596_r}, value<&Ordinate::leaderEndPoint>},
    {L"Geometry:Override center of the arc",                ResBuf::kPoint3d,        {      0,       0,       0,       0,       0,       0, 77601_r,       0,       0}, value<&RadialLarge::overrideCenter>},
    {L"Geometry:Chord point",                               ResBuf::kPoint3d,        {      0,       0,       0,       0,       0, 77598_r, 77602_r, 77592_r,       0}, firstOf<&Radial::chordPoint, &RadialLarge::chordPoint, &Diametric::chordPoint>},
    {L"Geometry:Far Chord point",                           ResBuf::kPoint3d,        {      0,       0,       0,       0,       0,       0,       0, 77593_r,       0}, value<&Diametric::farChordPoint>},
    {L"Geometry:Jog Point",                                 ResBuf::kPoint3d,        {      0,       0,       0,       0,       0,       0, 77603_r,       0,       0}, value<&RadialLarge::jogPoint>},
    {L"Geometry:Jog Angle",                                 ResBuf::kAngle,          {      0,       0,       0,       0,       0,       0, 77604_r,       0,       0}, value<&RadialLarge::jogAngle>},
    {L"Geometry:Leader Length",                             ResBuf::kReal,           {      0,       0,       0,       0,       0, 77599_r,       0, 77594_r,       0}, firstOf<&Radial::leaderLength, &Diametric::leaderLength>},
};
// clang-format on

/// Keys that are not listed at the place of their id, but behind another one.
struct Displaced
{
    int id;
    int behind;
    int step;
};
constexpr Displaced kDisplaced[] = {
    {77672, 76976, 1}, {77673, 76976, 2}, {77122, 76976, 3},
    {77674, 76986, 1}, {77675, 76986, 2}, {77612, 76588, 1},
};

constexpr int placeOf(const PropertyRow& row)
{
    constexpr int kSteps = 10;
    for (const Displaced& each : kDisplaced)
        if (each.id == row.key.id)
            return each.behind * kSteps + each.step;
    return row.key.id * kSteps;
}

constexpr bool (*flagOf(const FamilyRow& row, DimensionKind kind,
                        Cell::Flag flag))(const KdDbEntity*)
{
    if (flag == Cell::Flag::Computed)
        return kind == DimensionKind::Arc ? arcHasAlternate : row.rotatedFlag;
    return flag == Cell::Flag::ReadOnly ? derived : editable;
}

constexpr PropertyRow rowOf(const FamilyRow& row, DimensionKind kind)
{
    const Cell& cell = row.cells[static_cast<std::size_t>(kind)];
    PropertyRow result{
        {cell.id, row.defaultText}, flagOf(row, kind, cell.flag), row.kind, row.read, row.choices};
    if (cell.flag == Cell::Flag::Unlisted)
        result.listed = never;
    return result;
}

template <DimensionKind Kind>
constexpr std::size_t countOf()
{
    std::size_t count = 0;
    for (const FamilyRow& row : kFamily)
        count += row.cells[static_cast<std::size_t>(Kind)].id != 0;
    return count;
}

/// The rows of a kind in the order in which they are listed; of two with one id the first comes
/// first.
template <DimensionKind Kind>
constexpr auto makeRows()
{
    std::array<PropertyRow, countOf<Kind>()> rows{};
    std::size_t count = 0;
    for (const FamilyRow& row : kFamily) {
        if (row.cells[static_cast<std::size_t>(Kind)].id == 0)
            continue;
        const PropertyRow added = rowOf(row, Kind);
        std::size_t place = count++;
        for (; place > 0 && placeOf(rows[place - 1]) > placeOf(added); --place)
            rows[place] = rows[place - 1];
        rows[place] = added;
    }
    return rows;
}

template <DimensionKind Kind>
constexpr auto kRows = makeRows<Kind>();

} // namespace

std::span<const PropertyRow> dimensionKindRows(DimensionKind kind)
{
    static constexpr std::span<const PropertyRow> kAll[kDimensionKinds] = {
        kRows<DimensionKind::Rotated>,     kRows<DimensionKind::Aligned>,
        kRows<DimensionKind::Arc>,         kRows<DimensionKind::TwoLine>,
        kRows<DimensionKind::ThreePoint>,  kRows<DimensionKind::Radial>,
        kRows<DimensionKind::RadialLarge>, kRows<DimensionKind::Diametric>,
        kRows<DimensionKind::Ordinate>,
    };
    return kAll[static_cast<std::size_t>(kind)];
}
