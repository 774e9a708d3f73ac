#include "numbers.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
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

constexpr unsigned kAtOnce = 8; ///< digits that are read in one piece
constexpr std::uint64_t kZeros = 0x3030303030303030u;
constexpr std::uint64_t kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

/// Eight characters of a text as digits, each in a byte, that of the first one lowest.
std::uint64_t digitsFrom(const char* place)
{
    std::uint64_t characters;
    std::memcpy(&characters, place, sizeof characters);
    return characters ^ kZeros;
}

/// The first `count` of them, at least one, behind so many zeros that they are eight again.
std::uint64_t firstOf(std::uint64_t digits, unsigned count)
{
    return digits << (64 - 8 * count);
}

/// Has the upper bit set for the first one that is no digit, and none before it.
std::uint64_t findNoDigit(std::uint64_t digits)
{
    return ((digits + 0x7676767676767676u) | digits) & 0x8080808080808080u;
}

/// The number that eight digits make.
std::uint64_t numberOf(std::uint64_t digits)
{
    return fast_float::parse_eight_digits_unrolled(digits + kZeros);
}

/// Appends so many decimals, from 1 to 8, to a number of at most seven digits.
bool appendFewDecimals(const char* decimals, unsigned count, std::uint64_t whole, double& value)
{
    constexpr double kRealPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
    const std::uint64_t digits = firstOf(digitsFrom(decimals), count);
    if (findNoDigit(digits) != 0)
        return false;
    // Both parts of the division are exact, and so it rounds as it should.
    value = static_cast<double>(whole * kPowers[count] + numberOf(digits)) / kRealPowers[count];
    return true;
}

/// The same for 9 to 16 decimals, with which there must be no more than 19 digits.
bool appendManyDecimals(const char* decimals, unsigned count, std::uint64_t whole, double& value)
{
    const std::uint64_t first = digitsFrom(decimals);
    const std::uint64_t rest = firstOf(digitsFrom(decimals + kAtOnce), count - kAtOnce);
    if ((findNoDigit(first) | findNoDigit(rest)) != 0)
        return false;
    const std::uint64_t digits =
        (whole * kPowers[kAtOnce] + numberOf(first)) * kPowers[count - kAtOnce] + numberOf(rest);
    using Format = fast_float::binary_format<double>;
    const auto exponent = -static_cast<std::int64_t>(count); // so small that no digit is lost
    fast_float::to_float(false, fast_float::compute_float<Format>(exponent, digits), value);
    return true;
}

/// Reads a number of one to seven digits, a point, and decimals, as nearly all numbers are written,
/// with a minus or without. It takes the text in pieces of a fixed size, for which it need not be
/// looked for the end. False for all other texts, `value` untouched.
bool readPlainReal(std::string_view text, double& value)
{
    constexpr std::size_t kMostDigits = 19;
    if (text.empty())
        return false;
    const bool isNegative = text.front() == '-';
    text.remove_prefix(isNegative ? 1 : 0);
    const std::uint64_t digits = digitsFrom(text.data());
    const auto count = static_cast<unsigned>(std::countr_zero(findNoDigit(digits))) / 8;
    if (count == 0 || count == kAtOnce || text.size() < count + 2 || text[count] != '.')
        return false;
    const std::uint64_t whole = numberOf(firstOf(digits, count));
    text.remove_prefix(count + 1);
    if (text.size() > 2 * kAtOnce || count + text.size() > kMostDigits)
        return false;
    const auto decimals = static_cast<unsigned>(text.size());
    if (!(decimals <= kAtOnce ? appendFewDecimals(text.data(), decimals, whole, value)
                              : appendManyDecimals(text.data(), decimals, whole, value)))
        return false;
    value = isNegative ? -value : value;
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
