/// Selection sets, and the selection that commands begin and end with. For the main thread.
///
/// A set is named by two longs, as an entity is; entity names come from `kddbGetKdsName`. All
/// members of a set belong to one drawing, each stands in it once, and they keep the order in which
/// they were added. A set lives until `kdedSSFree`, or until its drawing goes. Names are not used
/// again, so the name of a set that is gone is refused everywhere.
///
/// All operations return `RTNORM` (5100) on success and `RTERROR` otherwise, with nothing changed
/// then and nothing written, unless they say more.
#pragma once

#include <functional>
#include <vector>

#include <database/object_id.h>

/// Makes a set or adds to one. With both arguments null, `out` receives a new empty set; with
/// `name` alone, a new set with that entity; with both, the entity is added to `set` in place,
/// whose name `out` receives. A member that is in already stays where it is, and that is success.
/// @param out  may be `set` itself; a new set is the caller's, to free with `kdedSSFree`
KW_EXPORT int kdedSSAdd(const kds_name name, const kds_name set, kds_name out);
/// Takes an entity out of a set. `RTERROR` if it is no member.
KW_EXPORT int kdedSSDel(const kds_name name, const kds_name set);
/// Writes the name of the member of that number, counted from 0 in the order of the set. `RTERROR`
/// if there are not so many.
KW_EXPORT int kdedSSName(const kds_name set, long number, kds_name name);
KW_EXPORT int kdedSSLength(const kds_name set, long* length);
/// `RTNORM` if the entity is a member of the set.
KW_EXPORT int kdedSSMemb(const kds_name name, const kds_name set);
/// Frees a set. An entity's name, which needs no freeing, and the name of a set that is gone are
/// refused without harm.
KW_EXPORT int kdedSSFree(const kds_name set);

/// What `kdedSSGetImpl` leaves out.
/// All entities outside the current space, see `kdedCurrentSpaceId`.
constexpr int kKdedCurrentSpaceOnly = 256;
/// What a person can't pick: the viewport that shows the sheet itself, and what lies on frozen
/// layers.
constexpr int kKdedPickableOnly = 512;

/// Makes a new set from the working drawing, owned by the caller.
/// @param mode    "I": the implied selection, which is the pickfirst set. "P": the selection that
/// was
///                last made, by a prompt or as pickfirst set. "X": all entities of the model and
///                all sheets. "L": the entity that was last added to the current space. Null: what
///                the user picks at the program's prompt.
/// @param point1, point2  null; none of these modes takes points
/// @param filter  null, or a chain of conditions that must all hold, each a text that may have
///                wildcards (see `kdutWcMatch`; here without regard to case): 0 name in DXF, 6
///                linetype, 8 layer. `RTERROR` for a record of another kind.
/// @param flags   0, or a sum of the bits above
/// @return        `RTERROR` if nothing is selected, the mode is not known, no database is working,
/// or
///                the program has no prompt. What the prompt returned, if that was not `RTNORM`.
///                Erased entities are never selected.
KW_EXPORT int kdedSSGetImpl(const wchar_t* mode, const void* point1, const void* point2,
                            const resbuf* filter, kds_name out, int flags);
/// The same with no flags.
KW_EXPORT int kdedSSGet(const wchar_t* mode, const void* point1, const void* point2,
                        const resbuf* filter, kds_name out);

/// Flag of `kdedSSSetFirstInternal`: a command hands over its outcome. The program may then show
/// the members, as it would not while a person picks them one by one.
constexpr int kKdedIsCommandOutcome = 2;

/// Makes a copy of `set` the pickfirst selection of the working drawing, in its order; null or an
/// empty set clears it. The pickfirst hook is told afterwards.
/// @param unused  null
/// @param flags   handed to the hook
/// @return        `RTERROR` if there is no working database or the set is of another drawing
KW_EXPORT int kdedSSSetFirstInternal(const kds_name set, const kds_name unused, int flags);
/// The same with no flags.
KW_EXPORT int kdedSSSetFirst(const kds_name set, const kds_name unused);
/// Makes a new set of the pickfirst selection, owned by the caller. `RTERROR` if nothing is
/// selected.
KW_EXPORT int kdedSSGetFirst(kds_name out);

/// Sets that are not yet freed, for finding leaks.
KW_EXPORT long kdedSelectionSetsInUse();

/// Lets the user pick entities of the working drawing: writes them to `picked` and returns
/// `RTNORM`, or returns `RTCAN` if the user gave up.
using KdedSelectionPrompt = std::function<int(std::vector<KdDbObjectId>& picked)>;
/// Installs the prompt, or takes it away with an empty one; returns the one so far.
KW_EXPORT KdedSelectionPrompt kdedSetSelectionPrompt(KdedSelectionPrompt prompt);

/// Is told that the pickfirst selection of the working drawing was set, with the flags of that
/// call.
using KdedPickfirstHook = std::function<void(int flags)>;
/// Installs the hook, or takes it away with an empty one; returns the one so far.
KW_EXPORT KdedPickfirstHook kdedSetPickfirstHook(KdedPickfirstHook hook);
