#include <values/real_text_forms.h>

#include <cmath>

#include <runtime/number_text.h>

namespace {

constexpr double kHalf = 0.499999999995;
constexpr double kSignTolerance = 1.0e-10;

} // namespace

std::wstring fractionalForm(double value, const RealStyle& style)
{
    const double magnitude = std::fabs(value);
    double whole = 0.0;
    const double rest = std::modf(magnitude, &whole);
    int denominator = denominatorOf(style);
    double numeratorWhole = 0.0;
    const double left = std::modf(rest * denominator, &numeratorWhole);
    int numerator = static_cast<int>(numeratorWhole) + (left >= kHalf ? 1 : 0);
    if (numerator == denominator)
        return kdPrintFixed(whole + 1.0, 0); // loses the sign, as intended
    if (numerator == 0 && whole == 0.0)
        return L"0";

    std::wstring text = magnitude - value > kSignTolerance ? L"-" : L"";
    if (whole > 0.0)
        text += kdPrintFixed(whole, 0);
    if (numerator == 0)
        return text;
    while (numerator % 2 == 0) {
        numerator /= 2;
        denominator /= 2;
    }
    if (whole > 0.0)
        text += style.unitMode == 0 ? L" " : L"-";
    return text + std::to_wstring(numerator) + L"/" + std::to_wstring(denominator);
}
