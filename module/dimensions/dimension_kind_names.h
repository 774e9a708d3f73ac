/// Numbers that the kinds of dimensions show as names. Each kind has ids of its own for the same
/// names.
#pragma once

#include <array>

#include <dimensions/dimension_kind.h>
#include <providers/row_readers.h>

/// The names of consecutive numbers.
struct KindNames
{
    int firstValue;
    std::span<const wchar_t* const> texts;
    /// The id of the first name by kind, 0 for a kind that does not have them; the others follow.
    std::array<int, kDimensionKinds> firstIds;
    /// A kind whose second name begins another run of ids, at `secondId`.
    DimensionKind brokenKind = DimensionKind::Rotated;
    int secondId = 0;
};

extern const KindNames kFractions;
extern const KindNames kHorizontalPositions;
extern const KindNames kUnits;
extern const KindNames kAlternateUnits;
extern const KindNames kAngleForms;
extern const KindNames kArcSymbols;
extern const KindNames kCenterMarks;

/// The name of a number; empty for one that has none.
KdString nameOfKind(const KindNames& names, DimensionKind kind, int value);
void chainNamesOfKind(ResBuf& head, const KindNames& names, DimensionKind kind);

/// Reads a number as its name.
template <auto Getter, const auto& Names>
bool kindName(const PropertyRequest& request, ValueKind kind)
{
    const int number = row_readers::get<Getter>(request.entity);
    request.head.setRestype(kind);
    request.head.setString(nameOfKind(Names, kindOfDimension(request.entity), number));
    return true;
}

/// Offers all names.
template <const auto& Names>
bool kindNames(const PropertyRequest& request)
{
    if (request.withChoices)
        chainNamesOfKind(request.head, Names, kindOfDimension(request.entity));
    return true;
}
