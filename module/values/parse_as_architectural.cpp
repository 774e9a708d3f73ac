#include <values/distance_text.h>

#include <values/compare.h>
#include <values/digit_runs.h>
#include <values/number_characters.h>

namespace {

constexpr double kInchesPerFoot = 12.0;
constexpr double kZeroDenominator = 1.0e-11;

bool isSeparator(wchar_t c)
{
    return c == L'-' || c == L' ';
}

/// Walks one text: feet up to their mark, then inches, whose forms are a whole, a decimal number, a
/// fraction, or a whole with a fraction.
class ArchitecturalReader
{
  public:
    explicit ArchitecturalReader(wchar_t* text) : m_cursor(text) {}

    bool read(double& inches)
    {
        const DigitRuns first = readDigitRuns(&m_cursor);
        if (*m_cursor != L'\'')
            return readInches(first, DecimalMark::Required, inches);
        ++m_cursor;
        if (first.hasDot) {
            inches = first.value() * kInchesPerFoot;
            return first.decimalDigits > 0 && isAtEnd();
        }
        return readBehindFeet(first.whole * kInchesPerFoot, inches);
    }

  private:
    /// Decimal inches alone must carry their mark, behind feet they need not.
    enum class DecimalMark
    {
        Required,
        Optional,
    };

    bool readBehindFeet(double feetAsInches, double& inches)
    {
        inches = feetAsInches;
        if (isAtEnd())
            return true;
        if (isSeparator(*m_cursor)) {
            ++m_cursor;
            if (!isDigit(*m_cursor))
                return false;
        }
        double rest = 0.0;
        if (!readInches(readDigitRuns(&m_cursor), DecimalMark::Optional, rest))
            return false;
        inches = feetAsInches + rest;
        return true;
    }

    /// Reads on behind the first number of the inches, up to the end of the text.
    bool readInches(const DigitRuns& first, DecimalMark decimalMark, double& inches)
    {
        if (!first.hasDigits())
            return false;
        inches = first.value();
        if (first.hasDot)
            return (decimalMark == DecimalMark::Optional || *m_cursor == L'"') && close();
        if (*m_cursor == L'/')
            return readDenominator(first.whole, inches) && close();
        if (!isSeparator(*m_cursor))
            return close();

        ++m_cursor;
        double fraction = 0.0;
        const DigitRuns numerator = readDigitRuns(&m_cursor);
        if (numerator.hasDot || !numerator.hasDigits() || *m_cursor != L'/')
            return false;
        if (!readDenominator(numerator.whole, fraction))
            return false;
        inches = first.whole + fraction;
        return close();
    }

    bool readDenominator(double numerator, double& fraction)
    {
        ++m_cursor;
        double denominator = 0.0;
        int digits = 0;
        gathervalue(&m_cursor, &denominator, &digits);
        if (RealEqual(denominator, 0.0, kZeroDenominator))
            return false;
        fraction = numerator / denominator;
        return true;
    }

    bool close()
    {
        if (*m_cursor == L'"')
            ++m_cursor;
        return isAtEnd();
    }

    bool isAtEnd() const { return *m_cursor == L'\0'; }

    wchar_t* m_cursor;
};

} // namespace

int parse_as_architectural(wchar_t* text, double* result)
{
    *result = 0.0;
    if (!isDigit(*text) && *text != L'.')
        return RTERROR;
    double inches = 0.0;
    if (!ArchitecturalReader(text).read(inches))
        return RTERROR;
    *result = inches;
    return RTNORM;
}
