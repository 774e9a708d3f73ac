#include <database/open_count.h>

#include "leftovers.h"

namespace {

const LeftoverCount kOpens("opens of objects", [] { return kddbOpensInUse(); });

} // namespace
