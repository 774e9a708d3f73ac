#include <editor/units.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <optional>
#include <string>

#include <runtime/number_text.h>

#include "decimal_digits.h"
#include "working_header.h"

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr std::int64_t kDegreesPerTurn = 360;
constexpr int kMostSecondDecimals = 8;

struct AngularStyle
{
    int precision;
    int zeroSuppression;
    bool asTyped; ///< UNITMODE 1: bearings without blanks
};

/// What minutes and seconds a precision shows.
struct Sexagesimal
{
    bool minutes;
    bool seconds;
    int secondDecimals;

    /// How many of the smallest shown parts make a degree.
    std::int64_t partsPerDegree() const
    {
        std::int64_t parts = seconds ? 3600 : minutes ? 60 : 1;
        for (int i = 0; i < secondDecimals; ++i)
            parts *= 10;
        return parts;
    }
};

Sexagesimal sexagesimal(int precision)
{
    return {precision >= 1, precision >= 3, std::clamp(precision - 4, 0, kMostSecondDecimals)};
}

/// The angle, 0 up to a turn, as a rounded count of parts, where a full turn counts as none.
std::int64_t countParts(double angle, std::int64_t partsPerTurn)
{
    const double parts = angle / kTurn * static_cast<double>(partsPerTurn);
    return static_cast<std::int64_t>(std::floor(parts + 0.5)) % partsPerTurn;
}

std::wstring padded(std::int64_t number, int width)
{
    const std::wstring digits = std::to_wstring(number);
    return std::wstring(static_cast<std::size_t>(width) - digits.size(), L'0') + digits;
}

/// Such as `45d30'15"`.
std::wstring degreesAndParts(std::int64_t parts, const Sexagesimal& shown)
{
    const std::int64_t perDegree = shown.partsPerDegree();
    std::wstring text = std::to_wstring(parts / perDegree) + L"d";
    if (!shown.minutes)
        return text;
    const std::int64_t perMinute = perDegree / 60;
    text += std::to_wstring(parts % perDegree / perMinute) + L"'";
    if (!shown.seconds)
        return text;
    const std::int64_t perSecond = perMinute / 60;
    const std::int64_t rest = parts % perMinute;
    text += std::to_wstring(rest / perSecond);
    if (shown.secondDecimals > 0)
        text += L"." + padded(rest % perSecond, shown.secondDecimals);
    return text + L"\"";
}

/// The angle in units that divide the turn evenly; what rounds up to a full turn is 0.
std::wstring evenDivision(double angle, double unitsPerTurn, const AngularStyle& style)
{
    const double units = angle / kTurn * unitsPerTurn;
    const bool isFullTurn = kdReadReal(decimalDigits(units, style.precision, 0)) >= unitsPerTurn;
    return decimalDigits(isFullTurn ? 0.0 : units, style.precision, style.zeroSuppression);
}

std::wstring degrees(double angle, const AngularStyle& style)
{
    return evenDivision(angle, kDegreesPerTurn, style);
}

std::wstring degreesMinutesSeconds(double angle, const AngularStyle& style)
{
    const Sexagesimal shown = sexagesimal(style.precision);
    return degreesAndParts(countParts(angle, kDegreesPerTurn * shown.partsPerDegree()), shown);
}

std::wstring grads(double angle, const AngularStyle& style)
{
    return evenDivision(angle, 400.0, style) + L"g";
}

std::wstring radians(double angle, const AngularStyle& style)
{
    return decimalDigits(angle, style.precision, style.zeroSuppression) + L"r";
}

/// A quarter of the compass: bearings count from `pole` towards `side`.
struct Quarter
{
    const wchar_t* start; ///< name of the direction where the quarter begins, counter-clockwise
    const wchar_t* pole;
    const wchar_t* side;
    bool beginsAtPole;
};

constexpr Quarter kQuarters[] = {
    {L"E", L"N", L"E", false},
    {L"N", L"N", L"W", true},
    {L"W", L"S", L"W", false},
    {L"S", L"S", L"E", true},
};

std::wstring surveyor(double angle, const AngularStyle& style)
{
    Sexagesimal shown = sexagesimal(style.precision);
    shown.secondDecimals = 0;
    const std::int64_t perQuarter = kDegreesPerTurn / 4 * shown.partsPerDegree();
    const std::int64_t parts = countParts(angle, 4 * perQuarter);
    const Quarter& quarter = kQuarters[parts / perQuarter];
    const std::int64_t inside = parts % perQuarter;
    if (inside == 0)
        return quarter.start;

    const std::wstring blank = style.asTyped ? L"" : L" ";
    const std::int64_t fromPole = quarter.beginsAtPole ? inside : perQuarter - inside;
    return quarter.pole + blank + degreesAndParts(fromPole, shown) + blank + quarter.side;
}

using Form = std::wstring (*)(double angle, const AngularStyle& style);
constexpr Form kForms[] = {degrees, degreesMinutesSeconds, grads, radians, surveyor};

/// The angle that the user sees, from 0 up to, but not including, a full turn.
double asSeen(const KdDbHeaderVar& header, double angle)
{
    const double fromBase =
        header.angdir() == 0 ? angle - header.angbase() : header.angbase() - angle;
    const double inTurn = std::fmod(fromBase, kTurn);
    const double positive = inTurn < 0.0 ? inTurn + kTurn : inTurn;
    return positive >= kTurn ? 0.0 : positive; // a tiny negative angle is rounded up to the turn
}

std::optional<std::wstring> angleText(const KdDbHeaderVar& header, double angle, int units,
                                      int precision)
{
    if (units == -1)
        units = header.aunits();
    if (precision == -1)
        precision = header.auprec();
    if (units < 0 || units >= std::ssize(kForms) || !std::isfinite(angle))
        return std::nullopt;
    const AngularStyle style{std::clamp(precision, 0, kMostDecimalDigits), header.dimzin(),
                             header.unitmode() != 0};
    return kForms[units](asSeen(header, angle), style);
}

std::optional<std::wstring> angleText(double angle, int units, int precision)
{
    return withWorkingHeader(
        [&](const KdDbHeaderVar& header) { return angleText(header, angle, units, precision); });
}

} // namespace

int kddbAngToS(double angle, int units, int precision, wchar_t* buffer, unsigned long size)
{
    return copyOrFail(angleText(angle, units, precision), buffer, size);
}

int kddbAngToS(double angle, KdString& text, int units, int precision)
{
    return assignOrFail(angleText(angle, units, precision), text);
}
