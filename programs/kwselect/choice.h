/// The type and the property that the options name, found in the drawing.
#pragma once

#include <optional>

#include "lookup.h"
#include "options.h"

struct Choice
{
    std::optional<TypeEntry> type;          ///< none: all types
    std::vector<PropertyEntry> properties;  ///< what the type offers
    std::optional<ChosenProperty> property; ///< none: the options name none
};

/// False, with one line on standard error, if a name is wrong.
bool choose(const Module& module, const Options& options, Choice& choice);
