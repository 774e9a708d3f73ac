/// The nine kinds of dimension, which are told in one table.
#pragma once

#include <span>

#include <providers/property_row.h>

enum class DimensionKind
{
    Rotated,
    Aligned,
    Arc,
    TwoLine,
    ThreePoint,
    Radial,
    RadialLarge,
    Diametric,
    Ordinate,
};
constexpr std::size_t kDimensionKinds = 9;

/// The kind of an entity; of one that is none of them the first.
DimensionKind kindOfDimension(const KdDbEntity& entity);

/// What a kind has beyond all dimensions, in the order in which it is listed.
std::span<const PropertyRow> dimensionKindRows(DimensionKind kind);
