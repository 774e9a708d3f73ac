#include <dimensions/dimension_kind_names.h>

#include <values/value_lists.h>

namespace {

// clang-format off
constexpr const wchar_t* kFractionTexts[] = {
    L"Horizontal Stacked", L"Diagonal Stacked", L"Not Stacked",
};
constexpr const wchar_t* kPositionTexts[] = {
    L"Centered above the dimension line",
    L"By the first extension line",
    L"By the second extension line",
    L"Above the dimension line, parallel to the first extension line",
    L"Above the dimension line, parallel to the second extension line",
};
constexpr const wchar_t* kUnitTexts[] = {
    L"Scientific", L"Decimal", L"Engineering", L"Architectural (stacked)", L"Fractional (stacked)",
    L"Microsoft Windows Desktop",
};
constexpr const wchar_t* kAlternateUnitTexts[] = {
    L"Scientific", L"Decimal", L"Engineering", L"Architectural (stacked)", L"Fractional (stacked)",
    L"Architectural", L"Fractional", L"Microsoft Windows Desktop",
};
constexpr const wchar_t* kAngleTexts[] = {
    L"Decimal Degrees", L"Degrees-Minutes-Seconds", L"Gradians", L"Radians", L"Surveyor's Units",
};
constexpr const wchar_t* kArcSymbolTexts[] = {
    L"Before the dimension text", L"Above the dimension text", L"Not displayed",
};
constexpr const wchar_t* kCenterMarkTexts[] = {L"Line", L"None", L"Mark"};

} // namespace

//                               first number, texts                 Rotated  Aligned    Arc  TwoLine ThreePt Radial  Large  Diametric Ordinate
constexpr KindNames kFractions          {0, kFractionTexts,      {77912, 77747, 77769,     0,     0, 77875, 77895, 77812, 77855}};
constexpr KindNames kHorizontalPositions{0, kPositionTexts,      {77915, 77750, 77772, 77938, 77737,     0,     0,     0,     0},
                                         DimensionKind::TwoLine, 77718}; // as intended
constexpr KindNames kUnits              {1, kUnitTexts,          {77920, 77755, 77780,     0,     0, 77878, 77898, 77815, 77858}};
constexpr KindNames kAlternateUnits     {1, kAlternateUnitTexts, {77926, 77761, 77786,     0,     0, 77884, 77904, 77821, 77864}};
constexpr KindNames kAngleForms         {0, kAngleTexts,         {    0,     0,     0, 77722, 77742,     0,     0,     0,     0}};
constexpr KindNames kArcSymbols         {0, kArcSymbolTexts,     {    0,     0, 77777,     0,     0,     0,     0,     0,     0}};
constexpr KindNames kCenterMarks       {-1, kCenterMarkTexts,    {    0,     0,     0,     0,     0, 77872, 77892, 77809,     0}};
// clang-format on

namespace {

KdString textAt(const KindNames& names, DimensionKind kind, std::size_t place)
{
    const bool isBroken = names.secondId != 0 && kind == names.brokenKind && place > 0;
    const int first = names.firstIds[static_cast<std::size_t>(kind)];
    const int offset = static_cast<int>(place);
    const int id = isBroken ? names.secondId + offset - 1 : first + offset;
    return ResourceText{id, names.texts[place]}.text();
}

} // namespace

KdString nameOfKind(const KindNames& names, DimensionKind kind, int value)
{
    const std::int64_t place = std::int64_t{value} - names.firstValue;
    if (place < 0 || place >= std::ssize(names.texts))
        return {};
    return textAt(names, kind, static_cast<std::size_t>(place));
}

void chainNamesOfKind(ResBuf& head, const KindNames& names, DimensionKind kind)
{
    ResBuf* tail = &head;
    for (std::size_t place = 0; place < names.texts.size(); ++place)
        tail = PropListUtil::addElementToArray(tail, textAt(names, kind, place));
}
