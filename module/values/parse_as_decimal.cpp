#include <values/distance_text.h>

#include <cmath>

#include <values/compare.h>
#include <values/digit_runs.h>
#include <values/number_characters.h>

namespace {

constexpr double kSmallestMagnitude = 1.2345678e-304;
constexpr double kLargestMagnitude = 1.2345678e+304;
constexpr double kZeroExponent = 1.0e-11;

bool isExponentMark(wchar_t c)
{
    return c == L'e' || c == L'E';
}

/// Reads the part before the exponent; false if it has a bad form or is followed by anything else.
bool readMantissa(wchar_t*& cursor, double& mantissa)
{
    const DigitRuns runs = readDigitRuns(&cursor);
    if (!runs.hasDigits())
        return false;
    mantissa = runs.value();
    return *cursor == L'\0' || isExponentMark(*cursor);
}

/// Reads from the exponent mark, or the end, on. A mark without digits counts as exponent 0.
int readExponent(wchar_t* cursor, double& exponent)
{
    exponent = 0.0;
    if (*cursor == L'\0')
        return RTNORM;
    ++cursor;
    const bool negative = *cursor == L'-';
    if (negative || *cursor == L'+')
        ++cursor;
    int digits = 0;
    gathervalue(&cursor, &exponent, &digits);
    if (negative)
        exponent = -exponent;
    return *cursor == L'\0' ? RTNORM : RTREJ;
}

double scaled(double mantissa, double exponent)
{
    // Without the test for 0, an exponent of 400 would make 0 times infinity of it.
    if (mantissa == 0.0 || RealEqual(exponent, 0.0, kZeroExponent))
        return mantissa;
    return mantissa * std::pow(10.0, exponent);
}

} // namespace

void gathervalue(wchar_t** cursor, double* value, int* digits)
{
    *value = 0.0;
    *digits = 0;
    for (; isDigit(**cursor); ++*cursor, ++*digits)
        *value = *value * 10.0 + (**cursor - L'0');
}

DigitRuns readDigitRuns(wchar_t** cursor)
{
    DigitRuns runs;
    gathervalue(cursor, &runs.whole, &runs.wholeDigits);
    runs.hasDot = **cursor == L'.';
    if (!runs.hasDot)
        return runs;
    ++*cursor;
    gathervalue(cursor, &runs.decimals, &runs.decimalDigits);
    for (int i = 0; i < runs.decimalDigits; ++i)
        runs.decimals /= 10.0;
    return runs;
}

int parse_as_decimal(wchar_t* text, double* result)
{
    *result = 0.0;
    double mantissa = 0.0;
    if (!readMantissa(text, mantissa))
        return RTERROR;
    double exponent = 0.0;
    const int status = readExponent(text, exponent);
    if (status != RTNORM)
        return status;

    *result = scaled(mantissa, exponent);
    const double magnitude = std::fabs(*result);
    const bool inRange = magnitude >= kSmallestMagnitude && magnitude <= kLargestMagnitude;
    return inRange || *result == 0.0 ? RTNORM : RTREJ;
}
