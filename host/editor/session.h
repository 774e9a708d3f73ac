/// What the editor remembers between two calls.
#pragma once

#include "selection_store.h"

#include <editor/selection_sets.h>

#include <database/database.h>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

/// What the editor remembers of one drawing, as long as the drawing is in memory.
struct DrawingState
{
    /// The selection that a command begins with; null for none. Both sets are never changed, only
    /// replaced, so one copy serves both.
    std::shared_ptr<const SelectionSet> pickfirst;
    std::shared_ptr<const SelectionSet> previous;

    /// The viewport that the user made current, and the space where that was; 0 for none.
    short viewport = 0;
    KdDbObjectId viewportSpace;

    /// The block that stands open in the place of a sheet, and what was shown before.
    struct OpenBlock
    {
        KdDbObjectId block;
        KdDbObjectId sheetBefore;
        bool modelBefore = true;
    };
    std::optional<OpenBlock> openBlock;
    /// What shows the elements of blocks that were open; erased while their block is not.
    std::unordered_map<KdDbObjectId, std::vector<KdDbObjectId>> elementEntities;
};

/// The editor's one state. It learns of dying databases by itself and forgets them.
class EditorSession
{
  public:
    static EditorSession& instance();

    SelectionStore sets;
    KdedSelectionPrompt prompt;
    KdedPickfirstHook pickfirstHook;

    DrawingState& stateOf(const KdDbDatabase& database) { return m_drawings[&database]; }

  private:
    EditorSession();

    std::unordered_map<const KdDbDatabase*, DrawingState> m_drawings;
};
