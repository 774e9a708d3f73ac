/// Filters that were written down, carried out.
#pragma once

#include <string>

#include <common/filter_file.h>
#include <common/module.h>

/// Selects in the current space what a filter finds, as kwselect does; the module prints its count
/// line. Whoever follows the selection is told of the outcome alone.
/// @param text     the filter, which may name others
/// @param filters  those that it may name
/// @return         false: `problem` is a sentence, and the selection is as it was
bool runFilter(const Module& module, const std::wstring& text, const FilterFile& filters,
               std::string& problem);
