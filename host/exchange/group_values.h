// The values of groups, in whichever form they stand.
#pragma once

#include <string>

#include "group.h"
#include "numbers.h"

namespace dxf {

/// The value as a number; see `parseReal` and `parseInteger`.
NumberState realOf(const Group& group, double& value);
NumberState integerOf(const Group& group, std::int64_t& value);
/// The value as a plain integer where a malformed one does no harm.
std::int64_t looseIntegerOf(const Group& group);
/// The value as a handle, 0 if it is none.
std::uint64_t looseHandleOf(const Group& group);
/// The bytes of a chunk; in the text form those before the first pair of digits that is none.
std::string chunkOf(const Group& group);

} // namespace dxf
