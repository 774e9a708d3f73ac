#include <values/angle_text.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <numbers>
#include <string_view>

#include <values/angle_readers.h>
#include <values/degree_mark.h>
#include <values/number_characters.h>
#include <values/system_variable.h>

namespace {

using Reader = bool (*)(std::wstring text, double& angle);

/// By "AUNITS".
constexpr Reader kReaders[] = {readDegrees, readDegreesMinutesSeconds, readGrads, readRadians,
                               readSurveyor};

/// Notations told by a letter anywhere in the text; the first that fits counts.
constexpr struct
{
    std::wstring_view letters;
    Reader reader;
} kByLetter[] = {
    {L"NnSsEeWw", readSurveyor},         {L"Gg", readGrads},   {L"Rr", readRadians},
    {L"\"'", readDegreesMinutesSeconds}, {L"Dd", readDegrees},
};

/// Null if the drawing has an angular unit that does not exist.
Reader readerOfUnits(int units)
{
    constexpr int kCount = static_cast<int>(std::size(kReaders));
    if (units >= 0)
        return kReaders[std::min(units, kCount - 1)];
    const int current = shortVariable(L"AUNITS");
    return current >= 0 && current < kCount ? kReaders[current] : nullptr;
}

Reader readerOf(const std::wstring& text, int units)
{
    for (const auto& notation : kByLetter)
        if (text.find_first_of(notation.letters) != std::wstring::npos)
            return notation.reader;
    return readerOfUnits(units);
}

std::wstring prepared(const wchar_t* text)
{
    std::wstring copy(withoutOuterSpace(text));
    std::replace(copy.begin(), copy.end(), GetDegreesSymbol()[0], L'd');
    if (copy.starts_with(L'_'))
        copy.erase(0, 1);
    return copy;
}

/// The first 16 bits of a variable's value. Of "ANGBASE", which is a real, these are its low bits,
/// as intended: 0 for a base of 0.
double lowInteger(const wchar_t* name)
{
    resbuf variable{};
    kdedGetVar(name, &variable);
    std::int16_t low = 0;
    std::memcpy(&low, &variable.resval, sizeof low);
    return low;
}

double inFrame(double angle, int flags)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const bool clockwise = lowInteger(L"ANGDIR") != 0.0;
    if (!(flags & AngleFlags::KeepFrame)) {
        const double base = lowInteger(L"ANGBASE");
        angle = clockwise ? base - angle : base + angle;
    }
    if (!(flags & AngleFlags::KeepTurns))
        normalizeAngle(&angle, nullptr);
    const bool reverses = (flags & AngleFlags::KeepFrame) && !(flags & AngleFlags::KeepDirection);
    return reverses && clockwise ? kTurn - angle : angle;
}

} // namespace

int ConvertAngleToFloat(int flags, const wchar_t* text, int units, double* result)
{
    constexpr double kLargest = 1.0e10;
    if (!text || !result)
        return RTERROR;
    const std::wstring copy = prepared(text);
    const Reader reader = readerOf(copy, units);
    double angle = 0.0;
    if (!reader || !reader(copy, angle) || !(std::fabs(angle) <= kLargest))
        return RTERROR;
    *result = inFrame(angle, flags);
    return RTNORM;
}

int stringToAngle(int flags, const KdString& text, int units, double& result)
{
    return ConvertAngleToFloat(flags, text.kwszPtr(), units, &result);
}
