// Numbers as they stand in drawing files.
#pragma once

#include <cstdint>
#include <string_view>

namespace dxf {

/// How well a number was written.
enum class NumberState : std::uint8_t
{
    Good,
    Malformed, ///< something else stands there or behind it, or it is out of range
    Comma,     ///< read with a decimal comma
};

/// Reads a real. Blanks around it and a plus sign are allowed. `value` receives what can be read,
/// at the least 0; it is always finite. What stands behind `text` is looked at, so that must be
/// readable as it is in a file; see `kReadablePastEnd`.
NumberState parseReal(std::string_view text, double& value);

/// The same for an integer, which must stand in such a place, too; one that is written as a real is
/// cut.
NumberState parseInteger(std::string_view text, std::int64_t& value);

/// Reads a handle, in hexadecimal; false, with `handle` 0, if it is none.
bool parseHandle(std::string_view text, std::uint64_t& handle);

} // namespace dxf
