/// The eight properties that every entity has.
#pragma once

#include <span>

#include <providers/property_row.h>

std::span<const PropertyRow> generalRows();

/// True if all entities of a layer have the same value.
bool followsFromLayer(const PropertyRow& row);
