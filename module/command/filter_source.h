/// Where a run gets its filter from.
#pragma once

#include <vector>

#include <dialog/filter_record.h>

class KdDbEntity;

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

    /// Asks for the filter. The lists hold one entity of each type in the space and in the starting
    /// selection. False: cancelled, and nothing is to happen.
    virtual bool ask(const std::vector<KdDbEntity*>& drawingTypes,
                     const std::vector<KdDbEntity*>& selectionTypes, FilterChoice& choice) = 0;
};
