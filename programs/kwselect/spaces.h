/// The spaces of a drawing that a search goes through.
#pragma once

#include <string>
#include <vector>

#include <database/object_id.h>

struct SearchSpace
{
    std::wstring layout; ///< the layout's name; "Model" for the model; empty for a block
    KdDbObjectId block;
    std::string label; ///< "model", "paper:NAME" or "block:NAME", as the option spells it
};

/// The spaces that the option names. False: the drawing lacks it, and `problem` is a sentence.
bool findSpaces(KdDbDatabase& drawing, const std::string& option, std::vector<SearchSpace>& spaces,
                std::string& problem);

/// Makes a space the current one of the drawing.
void enterSpace(KdDbDatabase& drawing, const SearchSpace& space);
