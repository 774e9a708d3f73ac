/// The first half of a run: which entities are there, and which of them are selected to begin with.
#pragma once

#include <vector>

#include <command/candidate_list.h>
#include <values/host_set.h>

/// What gathering found. The pointers come from entities that are closed again; the host keeps them
/// valid, and nothing changes one, for as long as the run lasts.
struct Candidates
{
    CandidateList allEntities;                    ///< of the current space, in its order
    std::vector<KdDbEntity*> drawingTypeEntities; ///< the first of each display name
    CandidateList selectionEntities;              ///< of the starting selection, in its order
    std::vector<KdDbEntity*> selectionTypeEntities;
    const KdDbEntity* firstMember = nullptr; ///< of the starting selection, if it can be opened
    const long* given = nullptr;             ///< the set offered by the caller, if it has members
};

/// The block that the user works in: the active layout while TILEMODE is 0 and CVPORT is 1,
/// otherwise the model. Null id if there is none.
KdDbObjectId currentSpace();

enum class SpaceStatus
{
    Unreadable, ///< no drawing, or its current space can't be read
    Empty,      ///< nothing in it has a display name
    Ready,
};

/// Gathers the entities of the current space. Sheet viewports are never candidates.
SpaceStatus gatherSpace(Candidates& candidates);

/// With true, one space is gathered once until the next call: the caller promises that nothing
/// changes in it. Each call drops what was gathered before.
void holdDrawing(bool hold);

/// Says that the space holds no objects, as a message box, and gives the focus back to the drawing.
void tellNoObjects();

/// Gathers the members of exactly this set.
void gatherMembers(const long* set, Candidates& candidates);

/// Gathers the starting selection: `ss` if it has members, otherwise the host's implied selection.
void gatherSelection(const long* ss, Candidates& candidates);

/// The colour of the starting selection's first member joins the custom colours of the dialog.
void rememberColorOfStart(const Candidates& candidates);
