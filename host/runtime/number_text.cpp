#include <runtime/number_text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include <fast_float/fast_float.h>

namespace {

constexpr int kDefaultDecimals = 6;
constexpr int kMostDecimals = 1074;
constexpr std::wstring_view kWhiteSpace = L" \t\n\v\f\r";

int usableDecimals(int precision)
{
    return precision < 0 ? kDefaultDecimals : std::min(precision, kMostDecimals);
}

std::wstring nameOfNonFinite(double value, std::wstring_view infinity, std::wstring_view notANumber)
{
    std::wstring name(std::isnan(value) ? notANumber : infinity);
    return std::signbit(value) && std::isinf(value) ? L"-" + name : name;
}

std::wstring printFinite(double value, std::chars_format format, int precision)
{
    constexpr std::size_t kSignAndDot = 2;
    std::array<char, std::numeric_limits<double>::max_exponent10 + 1 + kMostDecimals + kSignAndDot>
        digits;
    const std::to_chars_result result = std::to_chars(digits.data(), digits.data() + digits.size(),
                                                      value, format, usableDecimals(precision));
    return {digits.data(), result.ptr};
}

/// The sign, digits, dot and exponent that `text` begins with, as far as they can be part of a
/// number.
std::string numberCharacters(std::wstring_view text)
{
    const std::size_t length = std::min(text.find_first_not_of(L"0123456789.eE+-"), text.size());
    std::string characters(length, '\0');
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length),
                   characters.begin(), [](wchar_t c) { return static_cast<char>(c); });
    return characters;
}

} // namespace

std::wstring kdPrintFixed(double value, int precision)
{
    if (!std::isfinite(value))
        return nameOfNonFinite(value, L"inf", L"nan");
    return printFinite(value, std::chars_format::fixed, precision);
}

std::wstring kdPrintScientific(double value, int precision)
{
    if (!std::isfinite(value))
        return nameOfNonFinite(value, L"INF", L"NAN");
    std::wstring text = printFinite(value, std::chars_format::scientific, precision);
    std::replace(text.begin(), text.end(), L'e', L'E');
    return text;
}

double kdReadReal(std::wstring_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    const bool negative = text.starts_with(L'-');
    if (negative || text.starts_with(L'+'))
        text.remove_prefix(1);
    if (text.starts_with(L'-'))
        return 0.0; // the reader below takes a sign of its own

    const std::string characters = numberCharacters(text);
    double value = 0.0;
    fast_float::from_chars(characters.data(), characters.data() + characters.size(), value);
    return negative ? -value : value;
}

bool kdCopyText(std::wstring_view text, wchar_t* buffer, unsigned long size)
{
    if (!buffer || size == 0)
        return false;
    const bool fits = text.size() < size;
    const std::size_t length = fits ? text.copy(buffer, text.size()) : 0;
    buffer[length] = L'\0';
    return fits;
}
