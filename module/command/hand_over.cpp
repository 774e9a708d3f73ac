#include <command/hand_over.h>

#include <database/entity.h>
#include <editor/command_line.h>
#include <editor/display.h>
#include <editor/selection_sets.h>

#include <values/resource_string.h>

namespace {

/// Of the implied selection, read anew: what can't be opened, and what is of the chosen class. The
/// display name plays no part here.
HostSet baseOfImplied(const DialogParameters& parameters)
{
    HostSet base;
    const HostSet implied = HostSet::implied();
    if (implied.status() != RTNORM)
        return base;
    const bool allTypes = isForAllTypes(parameters);
    forEachMember(implied.name(), [&](KdDbObjectId id, const kds_name member) {
        const OpenForRead<KdDbEntity> entity(id);
        if (!entity || allTypes || parameters.objectClassName == entity->isA()->name())
            base.addMember(member);
    });
    return base;
}

HostSet baseOfExclusion(const DialogParameters& parameters, Matches& matches)
{
    if (parameters.entireDrawing)
        return HostSet::currentSpace();
    if (parameters.selectionSource != -1)
        return std::move(matches.keptSet);
    return baseOfImplied(parameters);
}

HostSet mergeWithStart(const long* given, const HostSet& result)
{
    HostSet merged = given ? HostSet() : HostSet::implied();
    if (merged.status() != RTNORM)
        merged = HostSet();
    if (given)
        merged.addMembersOf(given);
    merged.addMembersOf(result.name());
    return merged;
}

void setSelection(const HostSet& set)
{
    kdedUpdateDisplay();
    kdedSSSetFirstInternal(set.name(), nullptr, kKdedIsCommandOutcome);
}

void setEmptySelection(const HostSet& set)
{
    kdedUpdateDisplay();
    kdedSSSetFirst(set.name(), nullptr);
}

} // namespace

void excludeMatches(const DialogParameters& parameters, Matches& matches)
{
    HostSet base = baseOfExclusion(parameters, matches);
    base.removeMembersOf(matches.resultSet);
    matches.resultSet = std::move(base);
}

int handOver(const long* given, const DialogParameters& parameters, Matches& matches)
{
    const long count = memberCount(matches.resultSet.name());
    if (count <= 0)
        setEmptySelection(matches.resultSet);
    else if (parameters.append)
        setSelection(mergeWithStart(given, matches.resultSet));
    else
        setSelection(matches.resultSet);

    int told = static_cast<int>(count > 0 ? count : 0);
    // A clip entity is part of its viewport, unless everything was asked for. Also in an exclusion,
    // where neither is in the set any more.
    if (matches.viewportClipExtras != 0 && !isForAllTypes(parameters))
        told -= matches.viewportClipExtras;
    kdutPrintf(__ResourceString(33646, L"\n%d item(s) selected."), told);
    return told;
}
