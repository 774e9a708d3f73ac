#include <values/compare.h>

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <string_view>
#include <utility>

#include <database/color.h>
#include <editor/system_variables.h>
#include <editor/wildcard.h>
#include <values/operators.h>
#include <values/text_utilities.h>

namespace {

/// In place of the tolerance that follows from the drawing; see `ScopedTolerance`.
std::optional<double> givenTolerance;

/// Callers offer each kind its own operators only, so a user never comes here.
bool refuseOperator()
{
    assert(false && "the kind of value does not offer this operator");
    return false;
}

/// Nor here: whoever asks for a point asks for one of its coordinates.
bool refuseAxis()
{
    assert(false && "a point is compared along an axis");
    return false;
}

bool compareReals(const ResBuf& value, const ResBuf& filter, Operators how)
{
    const double tolerance = CompareDynamicEpsilon(kDefaultTolerance);
    const double v = value.getDouble();
    const double f = filter.getDouble();
    switch (how) {
    case Operators::Equals:
        return RealEqual(v, f, tolerance);
    case Operators::NotEqual:
        return !RealEqual(v, f, tolerance);
    case Operators::GreaterThan:
        return v - f > tolerance;
    case Operators::LessThan:
        return v - f < -tolerance;
    default:
        return refuseOperator();
    }
}

template <class Number>
bool compareNumbers(Number v, Number f, Operators how)
{
    switch (how) {
    case Operators::Equals:
        return v == f;
    case Operators::NotEqual:
        return v != f;
    case Operators::GreaterThan:
        return v > f;
    case Operators::LessThan:
        return v < f;
    default:
        return refuseOperator();
    }
}

template <auto Getter>
bool compareIntegers(const ResBuf& value, const ResBuf& filter, Operators how)
{
    return compareNumbers((value.*Getter)(), (filter.*Getter)(), how);
}

bool compareBools(const ResBuf& value, const ResBuf& filter, Operators how)
{
    if (how != Operators::Equals && how != Operators::NotEqual)
        return refuseOperator();
    return (value.getBool() == filter.getBool()) == (how == Operators::Equals);
}

/// The order of colours has no meaning beyond being one.
bool compareColors(const ResBuf& value, const ResBuf& filter, Operators how)
{
    return compareNumbers(value.getColor().color(), filter.getColor().color(), how);
}

bool compareTexts(const ResBuf& value, const ResBuf& filter, Operators how)
{
    const KdString& v = value.text();
    const KdString& f = filter.text();
    switch (how) {
    case Operators::Equals:
        return v.compare(f) == 0;
    case Operators::NotEqual:
        return v.compare(f) != 0;
    case Operators::WildcardMatch:
        return kdutWcMatch(v.kwszPtr(), f.kwszPtr()) == RTNORM;
    default:
        return refuseOperator();
    }
}

std::int32_t leadingNumber(const KdString& text)
{
    return static_cast<std::int32_t>(std::wcstol(text.kwszPtr(), nullptr, 10));
}

/// Only the value is upper-cased before its text is looked at: a filter other than in capitals is
/// taken as a number, except where the two texts are compared as such.
bool compareTransparencies(const ResBuf& value, const ResBuf& filter, Operators how)
{
    const KdString v = value.getString().makeUpper();
    const KdString& f = filter.text();
    const bool byLayer[] = {v == L"BYLAYER", f == L"BYLAYER"};
    const bool byBlock[] = {v == L"BYBLOCK", f == L"BYBLOCK"};

    if (how == Operators::WildcardMatch)
        return true;
    if (how == Operators::SelectAll)
        return false;
    if (!byLayer[0] && !byLayer[1] && !byBlock[0] && !byBlock[1])
        return compareNumbers(leadingNumber(v), leadingNumber(f), how);
    if (how == Operators::Equals)
        return equalLowered(v, f);
    const bool sameWord = (byLayer[0] && byLayer[1]) || (byBlock[0] && byBlock[1]);
    return how == Operators::NotEqual && !sameWord;
}

using Comparison = bool (*)(const ResBuf& value, const ResBuf& filter, Operators how);

struct ComparisonRow
{
    int valueType;
    Comparison compare;
};

// clang-format off
constexpr ComparisonRow kComparisons[] = {
    {ResBuf::kReal,             compareReals},
    {ResBuf::kString,           compareTexts},
    {ResBuf::kInt16,            compareIntegers<&ResBuf::getInt16>},
    {ResBuf::kInt32,            compareIntegers<&ResBuf::getInt32>},
    {ResBuf::kInt8,             compareIntegers<&ResBuf::getInt8>},
    {ResBuf::kColor,            compareColors},
    {ResBuf::kBool,             compareBools},
    {ResBuf::kTransparencyText, compareTransparencies},
    {ResBuf::kAngle,            compareReals},
    {ResBuf::kLinetypeName,     compareTexts},
    {ResBuf::kLineweightName,   compareTexts},
    {ResBuf::kPlotStyleName,    compareTexts},
    {61,                        compareTexts}, // no record holds a text under this code
};
// clang-format on

/// The coordinate of a point record along one axis.
using Coordinate = double (*)(const ResBuf& record);

template <auto Getter, auto Member>
double coordinate(const ResBuf& record)
{
    return (record.*Getter)().*Member;
}

constexpr Coordinate kCoordinates2d[] = {coordinate<&ResBuf::getPoint2d, &KdGePoint2d::x>,
                                         coordinate<&ResBuf::getPoint2d, &KdGePoint2d::y>};
constexpr Coordinate kCoordinates3d[] = {coordinate<&ResBuf::getPoint3d, &KdGePoint3d::x>,
                                         coordinate<&ResBuf::getPoint3d, &KdGePoint3d::y>,
                                         coordinate<&ResBuf::getPoint3d, &KdGePoint3d::z>};

/// Null without a valid axis.
Coordinate coordinateOf(int valueType, int axis)
{
    const bool flat = valueType == ResBuf::kPoint2d;
    const int count = flat ? 2 : 3;
    if (axis < 1 || axis > count)
        return nullptr;
    return flat ? kCoordinates2d[axis - 1] : kCoordinates3d[axis - 1];
}

/// True if the point settles the outcome of its whole chain. Points are equal by less than the
/// tolerance, both ways alike, other than reals.
bool pointSettles(double v, double f, Operators how)
{
    const double tolerance = CompareDynamicEpsilon(kDefaultTolerance);
    switch (how) {
    case Operators::Equals:
    case Operators::NotEqual:
        return std::fabs(v - f) < tolerance;
    case Operators::GreaterThan:
        return v - f > tolerance;
    case Operators::LessThan:
        return f - v > tolerance;
    default:
        return false;
    }
}

/// One point that satisfies the test is enough, but "not equal" asks it of every point.
bool comparePoints(const ResBuf& value, const ResBuf& filter, Operators how, Coordinate coordinate)
{
    if (!coordinate)
        return refuseAxis();
    for (const ResBuf* point = &value; point; point = point->next())
        if (pointSettles(coordinate(*point), coordinate(filter), how))
            return how != Operators::NotEqual;
    return how == Operators::NotEqual;
}

} // namespace

PropertyComparison::PropertyComparison(const PropertyParameters& parameters)
    : m_selectsAll(parameters.operatorText.isEmpty()),
      m_isPoint(parameters.valueType == ResBuf::kPoint2d ||
                parameters.valueType == ResBuf::kPoint3d),
      m_how(operatorOf(parameters.operatorText).value_or(Operators::SelectAll))
{
    if (m_isPoint)
        m_coordinate = coordinateOf(parameters.valueType, parameters.axis);
    for (const ComparisonRow& row : kComparisons) {
        if (row.valueType == parameters.valueType) {
            m_compare = row.compare;
            break;
        }
    }
}

bool PropertyComparison::satisfies(const ResBuf* value, const ResBuf* filter) const
{
    if (m_selectsAll)
        return true;
    if (!value || !filter)
        return false;
    if (m_isPoint)
        return comparePoints(*value, *filter, m_how, m_coordinate);
    return m_compare && m_compare(*value, *filter, m_how);
}

bool CompareProp(ResBuf* value, ResBuf* filter, PropertyParameters parameters)
{
    return PropertyComparison(parameters).satisfies(value, filter);
}

double CompareDynamicEpsilon(double fallback)
{
    if (givenTolerance)
        return *givenTolerance;
    resbuf precision{};
    if (kdedGetVar(L"LUPREC", &precision) != RTNORM || precision.resval.rint == -1)
        return fallback;
    return 1.0 / std::pow(10.0, precision.resval.rint);
}

ScopedTolerance::ScopedTolerance(double tolerance)
    : m_before(std::exchange(givenTolerance, tolerance))
{
    assert(tolerance >= 0.0);
}

ScopedTolerance::~ScopedTolerance()
{
    givenTolerance = m_before;
}

bool RealEqual(double a, double b, double tolerance)
{
    // Both steps are worded so that a NaN difference passes as equal.
    if (!(std::fabs(b) <= tolerance))
        return !(a - b > tolerance) && !(a - b < -tolerance);
    return std::fabs(a) <= tolerance;
}

bool kdadRealEqual(double a, double b, double tolerance)
{
    if (std::fabs(b) <= tolerance)
        return std::fabs(a) <= tolerance;
    return std::fabs(a / b - 1.0) <= tolerance;
}

bool kdadIsZero(double value, double tolerance)
{
    return value >= -tolerance && value <= tolerance;
}

bool validateDouble(double value)
{
    return value == 0.0 || std::isnormal(value);
}
