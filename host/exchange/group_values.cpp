#include "group_values.h"

#include <cmath>

namespace dxf {

NumberState realOf(const Group& group, double& value)
{
    switch (group.form) {
    case Group::Form::Real:
        value = std::isfinite(group.real) ? group.real : 0.0;
        return std::isfinite(group.real) ? NumberState::Good : NumberState::Malformed;
    case Group::Form::Integer:
        value = static_cast<double>(group.integer);
        return NumberState::Good;
    default:
        return parseReal(group.text, value);
    }
}

NumberState integerOf(const Group& group, std::int64_t& value)
{
    constexpr double kLimit = 9.0e18;
    if (group.form == Group::Form::Integer) {
        value = group.integer;
        return NumberState::Good;
    }
    if (group.form != Group::Form::Real)
        return parseInteger(group.text, value);
    const bool fits = std::abs(group.real) < kLimit; // false for what is no number, too
    value = fits ? static_cast<std::int64_t>(group.real) : 0;
    return fits ? NumberState::Good : NumberState::Malformed;
}

std::int64_t looseIntegerOf(const Group& group)
{
    std::int64_t value = 0;
    integerOf(group, value);
    return value;
}

std::uint64_t looseHandleOf(const Group& group)
{
    std::uint64_t handle = 0;
    parseHandle(group.text, handle);
    return handle;
}

} // namespace dxf
