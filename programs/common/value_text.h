/// Property values as text and as JSON.
#pragma once

#include <string>

#include <common/catalog.h>
#include <nlohmann/json.hpp>

/// A value as it can be typed again: numbers in their shortest form, angles in the units of the
/// drawing, coordinates between commas.
std::string valueText(const CatalogValue& value);

/// A value as it is read: lengths, reals and angles in the units and with the precision of the
/// drawing.
std::string shownText(const CatalogValue& value);

/// The shortest text that reads back as the same number.
std::string numberText(double number);

/// Numbers as numbers, angles in radians, points as arrays, colours as they are typed, all else as
/// text.
nlohmann::ordered_json valueJson(const CatalogValue& value);
/// One value as itself, several as an array, none as null.
nlohmann::ordered_json valuesJson(const std::vector<CatalogValue>& values);
