/// Finds what a person may have meant by a misspelled name.
#pragma once

#include <string>
#include <vector>

/// The name that takes the fewest changes to come from `wanted`, without regard to case and tabs;
/// null if more than half of its letters would have to change, or nothing is known.
const std::wstring* nearestName(const std::wstring& wanted, const std::vector<std::wstring>& known);

/// The sentence `no WHAT "NAME"; did you mean "NEAREST"? There are: ...`.
/// @param noneKnown  what follows the name where nothing is known
std::string notFound(const std::string& what, const std::string& name,
                     const std::vector<std::wstring>& known, const std::string& noneKnown);

/// The names with a comma between them.
std::string commaList(const std::vector<std::wstring>& names);

/// A name between double quotes.
std::string inQuotes(const std::wstring& name);
