/// What a run of kwselect is to do, checked as far as can be without a drawing.
#pragma once

#include <string>
#include <vector>

#include <common/selection_steps.h>

#include "options.h"

struct Plan
{
    Options options;
    std::vector<std::string> drawings;
    std::vector<SelectionStep> steps; ///< none: everything is selected
    RowFormat format = RowFormat::Handles;
    std::vector<std::string> columns; ///< the names of what the rows hold

    bool hasSeveralDrawings() const { return drawings.size() > 1; }
    bool hasSeveralSpaces() const { return options.space == "all"; }
};

/// Makes the plan. False: `problem` is a sentence, with the place where a filter is wrong.
bool makePlan(const Options& options, Plan& plan, std::string& problem);
