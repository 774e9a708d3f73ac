#include <values/real_text.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <database/database.h>
#include <runtime/number_text.h>
#include <values/real_text_forms.h>

namespace {

constexpr int kMostDecimals = 15;
constexpr int kMostPlainUnits = 5;
constexpr int kMostUnits = 8;

/// Zero suppression that stands for a variable of the header.
enum ZerosFromHeader
{
    kDimzin = -1,
    kDimaltz = -2,
    kDimalttz = -3,
    kDimtzin = -4,
};

int resolveZeros(const KdDbHeaderVar& header, int zeroSuppression, int units)
{
    if (units < 1 || units > kMostUnits)
        return 0;
    switch (zeroSuppression) {
    case kDimzin:
        return header.dimzin();
    case kDimaltz:
        return header.dimaltz();
    case kDimalttz:
        return header.dimalttz();
    case kDimtzin:
        return header.dimtzin();
    default:
        return zeroSuppression;
    }
}

int resolveUnits(const KdDbHeaderVar& header, int units, int kind)
{
    if (units <= 0)
        units = header.lunits();
    return kind == RealKind::Dimension ? units : std::min(units, kMostPlainUnits);
}

/// A negative zero loses its sign. The exponent comes with two digits unless it needs three.
std::wstring scientificText(double value, int precision)
{
    return kdPrintScientific(value == 0.0 ? 0.0 : value, precision);
}

using Form = std::wstring (*)(double value, const RealStyle& style);

// clang-format off
constexpr Form kForms[kMostUnits] = {
    scientificForm, decimalForm, engineeringForm, architecturalForm, fractionalForm,
    architecturalForm, fractionalForm, decimalForm, // of dimensions only
};
// clang-format on

std::wstring realText(double value, const RealStyle& style)
{
    if (style.units < 1 || style.units > kMostUnits)
        return {};
    const Form form = std::isfinite(value) ? kForms[style.units - 1] : scientificForm;
    return form(value, style);
}

} // namespace

std::wstring scientificForm(double value, const RealStyle& style)
{
    return scientificText(value, std::min(style.precision, kMostDecimals));
}

void subConvert(wchar_t* buffer, unsigned long size, int& precision, double value, int limit)
{
    precision = std::min(precision, limit - 1);
    kdCopyText(scientificText(value, precision), buffer, size);
}

int KdadConvertRealToStringInternal(const KdDbHeaderVar& header, double value, int units,
                                    int precision, wchar_t* buffer, unsigned long size, int kind,
                                    int zeroSuppression, int decimalSeparator)
{
    if (!buffer)
        return RTERROR;
    RealStyle style{};
    style.units = resolveUnits(header, units, kind);
    style.precision = precision < 0 ? header.luprec() : precision;
    style.kind = kind;
    style.zeroSuppression = resolveZeros(header, zeroSuppression, style.units);
    style.unitMode = header.unitmode();
    style.decimalSeparator = decimalSeparator;
    style.isTolerance = zeroSuppression == kDimalttz || zeroSuppression == kDimtzin;
    return kdCopyText(realText(value, style), buffer, size) ? RTNORM : RTERROR;
}

int KdadConvertRealToString_Area(const KdDbHeaderVar& header, double value, int units,
                                 int precision, wchar_t* buffer, unsigned long size,
                                 int zeroSuppression)
{
    return KdadConvertRealToStringInternal(header, value, units, precision, buffer, size,
                                           RealKind::Area, zeroSuppression, 0);
}

int realAreaToString(double value, int units, int precision, CStdStr<wchar_t>& out)
{
    const KdDbDatabase* database = kddbHostApplicationServices()->workingDatabase();
    if (!database)
        return RTERROR;
    std::array<wchar_t, 2049> buffer;
    const int status =
        KdadConvertRealToString_Area(KdDbHeaderVar(database->header()), value, units, precision,
                                     buffer.data(), buffer.size(), kDimzin);
    if (status == RTNORM)
        out = buffer.data();
    return status;
}
