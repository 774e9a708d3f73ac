/// Several drawings, each in a process of its own: one that can't be read, or worse, leaves the
/// rest alone, and what it took of memory is given back.
#pragma once

#include "plan.h"
#include "search.h"

struct ManyResult
{
    ExitStatus status = kNothingSelected;
    std::size_t read = 0;
    std::size_t failed = 0;
    std::string missing; ///< what the filter names and no drawing has; empty if one has it
};

/// Searches the drawings of the plan, as many at a time as it says. The rows come in the order of
/// the drawings.
ManyResult searchDrawings(const Plan& plan, const RowSink& sink);
