#include "group_values.h"

#include <cmath>

namespace dxf {
namespace {

int digitOf(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

/// The bytes that pairs of hexadecimal digits stand for, up to the first fault.
std::string bytesOfHex(std::string_view digits)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        const int high = digitOf(digits[i]);
        const int low = digitOf(digits[i + 1]);
        if (high < 0 || low < 0)
            break;
        bytes.push_back(static_cast<char>(high * 16 + low));
    }
    return bytes;
}

} // namespace

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

std::string chunkOf(const Group& group)
{
    return group.form == Group::Form::Chunk ? std::string(group.text)
                                            : bytesOfHex(trimmed(group.text));
}

} // namespace dxf
