/// Where a run gets its filter from.
#pragma once

#include <vector>

#include <command/gathering.h>
#include <dialog/filter_record.h>

/// What a run asks for between gathering and matching.
struct FilterChoice
{
    const DialogParameters* parameters; ///< lives at least as long as the source
    std::vector<KdDbEntity*> pickedEntities;
};

class FilterSource
{
  public:
    virtual ~FilterSource() = default;

    /// Asks for a filter for these candidates. False: cancelled, and nothing is to happen.
    virtual bool ask(const Candidates& candidates, FilterChoice& choice) = 0;
};
