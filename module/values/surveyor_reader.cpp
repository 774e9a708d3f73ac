#include <values/angle_readers.h>

#include <algorithm>
#include <numbers>
#include <string_view>
#include <utility>

#include <values/angle_text.h>
#include <values/number_characters.h>

namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2.0;
constexpr double kThreeQuarters = 4.71238898038469;
constexpr std::wstring_view kNorthMarks = L"0123456789Dd\"'";
// Bearings from the south may have a decimal angle, those from the north not, as intended.
constexpr std::wstring_view kSouthMarks = L"0123456789Dd\"'.";

void skipBlank(std::wstring_view& text)
{
    if (text.starts_with(L' '))
        text.remove_prefix(1);
}

/// Reads the angle between the two letters of a bearing.
bool readFromPole(std::wstring_view& text, bool north, double& fromPole)
{
    if (text.empty() || !isDigit(text.front()))
        return false;
    const std::size_t length =
        std::min(text.find_first_not_of(north ? kNorthMarks : kSouthMarks), text.size());
    if (!readDegreesMinutesSeconds(std::wstring(text.substr(0, length)), fromPole))
        return false;
    text.remove_prefix(length);
    return fromPole >= 0.0 && fromPole <= kQuarterTurn;
}

/// Reads what follows N or S.
bool readBearing(std::wstring_view text, bool north, double& angle)
{
    skipBlank(text);
    double fromPole = 0.0;
    if (!readFromPole(text, north, fromPole))
        return false;
    skipBlank(text);
    if (text.size() != 1 || !isOneOf(text.front(), L"EeWw"))
        return false;
    const bool east = isOneOf(text.front(), L"Ee");
    const double pole = north ? kQuarterTurn : kThreeQuarters;
    angle = north == east ? pole - fromPole : pole + fromPole;
    return true;
}

} // namespace

bool readSurveyor(std::wstring text, double& angle)
{
    const wchar_t first = text.empty() ? L'\0' : text.front();
    const bool north = isOneOf(first, L"Nn");
    if (north || isOneOf(first, L"Ss")) {
        if (text.size() > 1)
            return readBearing(std::wstring_view(text).substr(1), north, angle);
        angle = north ? kQuarterTurn : kThreeQuarters;
        return true;
    }
    if (isOneOf(first, L"EeWw")) {
        angle = isOneOf(first, L"Ee") ? 0.0 : std::numbers::pi;
        return true;
    }
    return readDegrees(std::move(text), angle);
}
