/// The work on one drawing.
#pragma once

#include <functional>
#include <string>

#include "exit_status.h"
#include "plan.h"

struct SearchResult
{
    ExitStatus status = kNothingSelected;
    /// What the filter names and the drawing lacks, as a sentence; empty if it lacks nothing.
    std::string missing;
};

using RowSink = std::function<void(const Row&)>;

/// Opens a drawing, does what the plan says, and hands the rows over. Problems go to standard error
/// but what a drawing lacks, which is for the caller to tell.
SearchResult searchDrawing(const Plan& plan, const std::string& file, const RowSink& sink);
