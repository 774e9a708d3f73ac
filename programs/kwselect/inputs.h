/// Which arguments are drawings, and which is the filter.
#pragma once

#include <string>
#include <vector>

struct Inputs
{
    std::vector<std::string> drawings;
    std::string filter; ///< empty: none among the arguments
};

/// Sorts the arguments. A drawing is what exists as a file, ends in .dxf or .dwg, or is a pattern
/// of file names that matches some; `@FILE` and `-` are lists of drawings, one a line. Anything
/// else is the filter.
/// @return false: `problem` is a sentence
bool sortArguments(const std::vector<std::string>& arguments, Inputs& inputs, std::string& problem);
