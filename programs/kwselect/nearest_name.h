/// Finds what a person may have meant by a misspelled name.
#pragma once

#include <string>
#include <vector>

/// The name that takes the fewest changes to come from `wanted`, without regard to case and tabs;
/// null if more than half of its letters would have to change, or nothing is known.
const std::wstring* nearestName(const std::wstring& wanted, const std::vector<std::wstring>& known);
