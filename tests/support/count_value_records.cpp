#include <plugin/res_buf.h>

#include "leftovers.h"

namespace {

const LeftoverCount kRecords("value records", [] { return ResBuf::recordsInUse(); });

} // namespace
