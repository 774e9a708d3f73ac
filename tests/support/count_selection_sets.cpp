#include <editor/selection_sets.h>

#include "leftovers.h"

namespace {

const LeftoverCount kSets("selection sets", []() -> long long { return kdedSelectionSetsInUse(); });

} // namespace
