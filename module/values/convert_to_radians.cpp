#include <values/angle_text.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include <runtime/number_text.h>
#include <values/number_characters.h>

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

double radiansOf(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

/// Sums up the runs of digits that end at marks.
class DegreeSum
{
  public:
    /// Takes the run that ended at `mark`; false if the mark is unknown or out of order.
    bool add(wchar_t mark, double run)
    {
        const Part part = partOf(mark);
        if (part <= m_last)
            return false;
        const double divisor = part == Seconds ? 3600.0 : part == Minutes ? 60.0 : 1.0;
        m_degrees += run / divisor;
        m_last = part;
        return true;
    }

    bool hasMarks() const { return m_last != None; }
    double degrees() const { return m_degrees; }

  private:
    // In the order in which they may follow each other.
    enum Part
    {
        None,
        Degrees,
        Minutes,
        Seconds,
    };

    static Part partOf(wchar_t mark)
    {
        switch (mark) {
        case L'D':
        case L'd':
            return Degrees;
        case L'\'':
            return Minutes;
        case L'"':
            return Seconds;
        default:
            return None;
        }
    }

    Part m_last = None;
    double m_degrees = 0.0;
};

/// The run of digits and dots at the start of `text`, which is moved behind it.
std::wstring_view takeRun(std::wstring_view& text)
{
    if (text.starts_with(L'-'))
        text.remove_prefix(1);
    const std::size_t length = std::min(text.find_first_not_of(L"0123456789."), text.size());
    const std::wstring_view run = text.substr(0, length);
    text.remove_prefix(length);
    return run;
}

double withinHalfTurn(double angle)
{
    const double inTurn = std::fmod(angle, kTurn);
    if (inTurn < -std::numbers::pi)
        return inTurn + kTurn;
    return inTurn > std::numbers::pi ? inTurn - kTurn : inTurn;
}

/// Refuses what so many digits made of it that no double can hold it.
int store(double angle, double* result)
{
    if (!std::isfinite(angle))
        return RTERROR;
    *result = angle;
    return RTNORM;
}

} // namespace

int ConvertToRadians(wchar_t* text, double* result)
{
    if (!text || !result)
        return RTERROR;
    std::wstring_view rest = text;
    const double sign = rest.starts_with(L'-') ? -1.0 : 1.0;
    if (sign < 0.0)
        rest.remove_prefix(1);

    DegreeSum sum;
    while (!rest.empty()) {
        const std::wstring_view run = takeRun(rest);
        if (rest.empty()) {
            if (sum.hasMarks())
                return RTERROR; // a number behind the last mark
            return store(radiansOf(sign * kdReadReal(run)), result);
        }
        if (!sum.add(rest.front(), kdReadReal(run)))
            return RTERROR;
        rest.remove_prefix(1);
    }
    return store(withinHalfTurn(radiansOf(sign * sum.degrees())), result);
}
