#include "numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include <fast_float/fast_float.h>

#include "group.h"

namespace dxf {
namespace {

std::string_view withoutPlus(std::string_view text)
{
    text = trimmed(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    return text;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Reads a decimal number without exponent, if it has few digits, as by far the most numbers have:
/// then digits and power of ten are exact, and one division rounds as it should. False for all
/// other texts, `value` untouched.
bool readPlainReal(std::string_view text, double& value)
{
    constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t kMostDigits = 15;
    constexpr std::size_t kSignAndPoint = 2;
    if (text.size() > kMostDigits + kSignAndPoint) // full precision is frequent, too
        return false;
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative ? 1 : 0);
    std::int64_t digits = 0;
    std::size_t point = text.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned digit = static_cast<unsigned>(text[i] - '0');
        if (digit < 10)
            digits = digits * 10 + digit;
        else if (text[i] == '.' && point == text.size())
            point = i;
        else
            return false;
        if (i > kMostDigits)
            return false;
    }
    const std::size_t count = text.size() - (point < text.size() ? 1 : 0);
    if (count == 0 || count > kMostDigits)
        return false;
    const std::size_t decimals = point < text.size() ? text.size() - point - 1 : 0;
    const double magnitude = static_cast<double>(digits) / kPowers[decimals];
    value = isNegative ? -magnitude : magnitude;
    return true;
}

/// How much of `text` was read as a number.
std::size_t readReal(std::string_view text, double& value)
{
    const auto result = fast_float::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || !std::isfinite(value)) {
        value = 0.0;
        return 0;
    }
    return static_cast<std::size_t>(result.ptr - text.data());
}

/// Whether what follows a number that was read up to `used` makes it one with a decimal comma.
bool hasDecimalComma(std::string_view text, std::size_t used)
{
    return used > 0 && used + 1 < text.size() && text[used] == ',' && isDigit(text[used + 1]);
}

constexpr std::uint8_t kNoDigit = 0x80;

constexpr auto kHexDigits = [] {
    std::array<std::uint8_t, 256> digits{};
    digits.fill(kNoDigit);
    for (std::uint8_t i = 0; i < 10; ++i)
        digits[static_cast<std::size_t>('0') + i] = i;
    for (std::uint8_t i = 0; i < 6; ++i) {
        digits[static_cast<std::size_t>('A') + i] = static_cast<std::uint8_t>(i + 10);
        digits[static_cast<std::size_t>('a') + i] = static_cast<std::uint8_t>(i + 10);
    }
    return digits;
}();

} // namespace

NumberState parseReal(std::string_view text, double& value)
{
    if (readPlainReal(text, value))
        return NumberState::Good;
    constexpr std::size_t kLongestNumber = 64;
    text = withoutPlus(text);
    std::size_t used = readReal(text, value);
    if (used == text.size() && used > 0)
        return NumberState::Good;
    if (!hasDecimalComma(text, used))
        return NumberState::Malformed;
    std::string withPoint(text.substr(0, kLongestNumber));
    if (used >= withPoint.size())
        return NumberState::Malformed;
    withPoint[used] = '.';
    used = readReal(withPoint, value);
    return used == text.size() ? NumberState::Comma : NumberState::Malformed;
}

NumberState parseInteger(std::string_view text, std::int64_t& value)
{
    value = 0;
    text = withoutPlus(text);
    const char* const end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc() && at == end)
        return NumberState::Good;
    double real = 0.0;
    const NumberState state = parseReal(text, real);
    constexpr double kLimit = 9.0e18;
    if (std::abs(real) > kLimit)
        return NumberState::Malformed;
    value = static_cast<std::int64_t>(real);
    return state;
}

bool parseHandle(std::string_view text, std::uint64_t& handle)
{
    constexpr std::size_t kMostDigits = 16;
    handle = 0;
    text = trimmed(text);
    if (text.empty() || text.size() > kMostDigits)
        return false;
    // By hand, since some are read for every object.
    std::uint64_t value = 0;
    unsigned all = 0;
    for (const char c : text) {
        const unsigned digit = kHexDigits[static_cast<unsigned char>(c)];
        all |= digit;
        value = value << 4 | (digit & 15u);
    }
    if (all & kNoDigit)
        return false;
    handle = value;
    return true;
}

} // namespace dxf
