/// The second half of a run: which candidates pass the filter.
#pragma once

#include <command/gathering.h>
#include <dialog/filter_record.h>
#include <values/host_set.h>

/// What a run over the candidates found.
struct Matches
{
    HostSet resultSet; ///< the matches, and the clip entities of matched viewports
    HostSet keptSet; ///< in a run over a selection: all its entities that are not on frozen layers
    int viewportClipExtras = 0; ///< clip entities added on behalf of viewports
};

/// True if the filter is for entities of all types.
bool isForAllTypes(const DialogParameters& parameters);

/// Tests every candidate. False if an entity has no provider: the run is then to be given up with
/// nothing changed.
/// @param picked  the entities picked in the dialog; used when the filter is for them
bool matchCandidates(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                     const DialogParameters& parameters, Matches& matches);
