#include <command/selection_run.h>

#include <command/gathering.h>
#include <command/hand_over.h>
#include <command/matching.h>

namespace {

RunEnd endOf(SpaceStatus status)
{
    if (status == SpaceStatus::Empty) {
        tellNoObjects();
        return RunEnd::NoObjects;
    }
    return RunEnd::NoDrawing;
}

} // namespace

RunEnd runSelection(const long* ss, FilterSource& source, int& matchCount)
{
    Candidates candidates;
    const SpaceStatus space = gatherSpace(candidates);
    if (space != SpaceStatus::Ready)
        return endOf(space);
    gatherSelection(ss, candidates);
    rememberColorOfStart(candidates);

    FilterChoice choice;
    if (!source.ask(candidates, choice))
        return RunEnd::Cancelled;

    Matches matches;
    if (!matchCandidates(candidates, choice.pickedEntities, *choice.parameters, matches))
        return RunEnd::Abandoned;
    if (!choice.parameters->include)
        excludeMatches(*choice.parameters, matches);
    matchCount = handOver(candidates.given, *choice.parameters, matches);
    return RunEnd::Done;
}
