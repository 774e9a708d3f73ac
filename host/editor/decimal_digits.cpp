#include "decimal_digits.h"

#include <cmath>
#include <limits>

#include <runtime/number_text.h>
#include <runtime/status.h>

namespace {

/// The next double above, where that does not show in the digits asked for.
double tiesUpwards(double magnitude, int precision)
{
    const int wholeDigits = magnitude < 1.0 ? 0 : static_cast<int>(std::log10(magnitude)) + 1;
    if (magnitude == 0.0 || wholeDigits + precision > std::numeric_limits<double>::digits10)
        return magnitude;
    return std::nextafter(magnitude, std::numeric_limits<double>::infinity());
}

} // namespace

std::wstring decimalDigits(double magnitude, int precision, int zeroSuppression)
{
    std::wstring text = kdPrintFixed(tiesUpwards(magnitude, precision), precision);
    if ((zeroSuppression & kTrailingZeros) && text.find(L'.') != std::wstring::npos) {
        text.erase(text.find_last_not_of(L'0') + 1);
        if (text.ends_with(L'.'))
            text.pop_back();
    }
    if ((zeroSuppression & kLeadingZeros) && text.starts_with(L"0."))
        text.erase(0, 1);
    return text;
}

bool hasValue(const std::wstring& text)
{
    const std::size_t exponent = text.find(L'E');
    return text.find_first_of(L"123456789") < exponent;
}

int copyOrFail(const std::optional<std::wstring>& text, wchar_t* buffer, unsigned long size)
{
    const bool fits =
        kdCopyText(text ? std::wstring_view(*text) : std::wstring_view(), buffer, size);
    return text && fits ? RTNORM : RTERROR;
}

int assignOrFail(const std::optional<std::wstring>& text, KdString& target)
{
    if (!text)
        return RTERROR;
    target = KdString(std::wstring_view(*text));
    return RTNORM;
}
