/// The rows that all dimensions share.
#pragma once

#include <providers/property_row.h>

std::span<const PropertyRow> associativeRows();
/// The long list, without what concerns constraints.
std::span<const PropertyRow> dimensionRows();
/// That row of `dimensionRows` which dynamic constraints have, too.
std::span<const PropertyRow> textRotationRows();
/// Answered for all dimensions, but listed by the providers of those that have arrows.
std::span<const PropertyRow> arrowRows();
