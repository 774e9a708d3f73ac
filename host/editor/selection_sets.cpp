#include <editor/selection_sets.h>

#include "selection_source.h"
#include "session.h"

#include <algorithm>
#include <utility>

namespace {

SelectionStore& sets()
{
    return EditorSession::instance().sets;
}

KdDbDatabase* workingDatabase()
{
    return kddbHostApplicationServices()->workingDatabase();
}

int statusOf(bool success)
{
    return success ? RTNORM : RTERROR;
}

/// The entity of that name; the null id for any other name.
KdDbObjectId entityOf(const long* name)
{
    KdDbObjectId id;
    if (!name || kddbGetObjectId(id, name) != eOk)
        return {};
    return id;
}

int addToNewSet(const long* name, long* out)
{
    SelectionSet set;
    if (name && !set.add(entityOf(name)))
        return RTERROR;
    sets().add(std::move(set), out);
    return RTNORM;
}

int addToSet(const long* name, const long* setName, long* out)
{
    SelectionSet* set = sets().find(setName);
    if (!set || !set->add(entityOf(name)))
        return RTERROR;
    std::copy_n(setName, 2, out);
    return RTNORM;
}

/// Null for an empty set, which counts as none.
std::shared_ptr<const SelectionSet> shared(const SelectionSet* set)
{
    return set && set->size() > 0 ? std::make_shared<const SelectionSet>(*set) : nullptr;
}

void tellPickfirst(int flags)
{
    // A copy, so that the program may change its hook inside.
    if (const KdedPickfirstHook hook = EditorSession::instance().pickfirstHook)
        hook(flags);
}

} // namespace

int kdedSSAdd(const kds_name name, const kds_name set, kds_name out)
{
    if (!out)
        return RTERROR;
    return set ? addToSet(name, set, out) : addToNewSet(name, out);
}

int kdedSSDel(const kds_name name, const kds_name set)
{
    SelectionSet* members = sets().find(set);
    return statusOf(members && members->remove(entityOf(name)));
}

int kdedSSName(const kds_name set, long number, kds_name name)
{
    const SelectionSet* members = sets().find(set);
    if (!members || !name || number < 0 || static_cast<std::size_t>(number) >= members->size())
        return RTERROR;
    return statusOf(kddbGetKdsName(name, members->at(static_cast<std::size_t>(number))) == eOk);
}

int kdedSSLength(const kds_name set, long* length)
{
    const SelectionSet* members = sets().find(set);
    if (!members || !length)
        return RTERROR;
    *length = static_cast<long>(members->size());
    return RTNORM;
}

int kdedSSMemb(const kds_name name, const kds_name set)
{
    const SelectionSet* members = sets().find(set);
    return statusOf(members && members->contains(entityOf(name)));
}

int kdedSSFree(const kds_name set)
{
    return statusOf(sets().free(set));
}

int kdedSSGetImpl(const wchar_t* mode, const void* point1, const void* point2, const resbuf* filter,
                  kds_name out, int flags)
{
    KdDbDatabase* database = workingDatabase();
    auto conditions = SelectionFilter::read(filter);
    if (!database || !out || point1 || point2 || !conditions)
        return RTERROR;
    std::vector<KdDbObjectId> candidates;
    const int status = collectCandidates(mode, *database, flags, candidates);
    if (status != RTNORM)
        return status;
    const SelectionRules rules(*database, std::move(*conditions), flags);
    SelectionSet set;
    for (const KdDbObjectId id : candidates)
        if (rules.accept(id))
            set.add(id);
    if (set.size() == 0)
        return RTERROR;
    if (!mode)
        EditorSession::instance().stateOf(*database).previous = shared(&set);
    sets().add(std::move(set), out);
    return RTNORM;
}

int kdedSSGet(const wchar_t* mode, const void* point1, const void* point2, const resbuf* filter,
              kds_name out)
{
    return kdedSSGetImpl(mode, point1, point2, filter, out, 0);
}

int kdedSSSetFirstInternal(const kds_name set, const kds_name unused, int flags)
{
    KdDbDatabase* database = workingDatabase();
    const SelectionSet* members = sets().find(set);
    if (!database || unused || (set && !members))
        return RTERROR;
    if (members && members->size() > 0 && members->database() != database)
        return RTERROR;
    DrawingState& state = EditorSession::instance().stateOf(*database);
    state.pickfirst = shared(members);
    if (state.pickfirst)
        state.previous = state.pickfirst;
    tellPickfirst(flags);
    return RTNORM;
}

int kdedSSSetFirst(const kds_name set, const kds_name unused)
{
    return kdedSSSetFirstInternal(set, unused, 0);
}

int kdedSSGetFirst(kds_name out)
{
    return kdedSSGet(L"I", nullptr, nullptr, nullptr, out);
}

long kdedSelectionSetsInUse()
{
    return static_cast<long>(sets().size());
}

KdedSelectionPrompt kdedSetSelectionPrompt(KdedSelectionPrompt prompt)
{
    return std::exchange(EditorSession::instance().prompt, std::move(prompt));
}

KdedPickfirstHook kdedSetPickfirstHook(KdedPickfirstHook hook)
{
    return std::exchange(EditorSession::instance().pickfirstHook, std::move(hook));
}
