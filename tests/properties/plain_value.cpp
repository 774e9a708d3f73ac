#include "plain_value.h"

#include <cmath>
#include <cwctype>
#include <numbers>

#include <database/color.h>
#include <plugin/entity_pe.h>

#include <values/value_chain.h>

namespace properties_test {
namespace {

constexpr int kNothing = 5000;
constexpr int kReal = 5001;
constexpr int kPoint2d = 5002;
constexpr int kShort = 5003;
constexpr int kAngle = 5004;
constexpr int kPoint3d = 5009;
constexpr int kLong = 5010;
constexpr int kColor = 5011;
constexpr int kScale = 48;
constexpr int kByte = 280;
constexpr int kTruth = 290;
constexpr int kTransparency = 441;

bool isReal(int kind)
{
    return kind == kReal || kind == kAngle || kind == kScale;
}

bool isInteger(int kind)
{
    return kind == kByte || kind == kShort || kind == kLong;
}

PlainValue plain(const ResBuf& record)
{
    PlainValue value;
    value.kind = record.restype();
    if (isReal(value.kind)) {
        value.number = record.getDouble();
    } else if (isInteger(value.kind)) {
        value.integer = record.getInt32();
    } else if (value.kind == kTruth) {
        value.integer = record.getBool();
    } else if (value.kind == kColor) {
        value.integer = record.getColor().color();
    } else if (value.kind == kPoint2d) {
        value.point = {record.getPoint2d().x, record.getPoint2d().y, 0.0};
    } else if (value.kind == kPoint3d) {
        const KdGePoint3d& point = record.getPoint3d();
        value.point = {point.x, point.y, point.z};
    } else if (value.kind != kNothing) {
        value.text = record.getString().view();
    }
    return value;
}

bool holds(double difference, Test test, double tolerance)
{
    switch (test) {
    case Test::Equal:
        return std::fabs(difference) <= tolerance;
    case Test::NotEqual:
        return std::fabs(difference) > tolerance;
    case Test::Greater:
        return difference > tolerance;
    case Test::Less:
        return difference < -tolerance;
    default:
        return false;
    }
}

/// Whether something is equal to zero is asked of the value itself, so a wanted number that is as
/// good as zero counts as zero, though not for greater and less.
bool realHolds(double value, Test test, const Wanted& wanted)
{
    const double number = wanted.value.number;
    const bool asksEquality = test == Test::Equal || test == Test::NotEqual;
    const bool isZero = std::fabs(number) <= wanted.tolerance;
    return holds(asksEquality && isZero ? value : value - number, test, wanted.tolerance);
}

/// An entity may have many points under one key. It satisfies a test if one of them does; it is
/// different if all of them are. Points that are a whole tolerance apart are different, other than
/// reals.
bool pointsHold(const PlainValues& values, Test test, const Wanted& wanted)
{
    const auto axis = static_cast<std::size_t>(wanted.axis - 1);
    bool one = false;
    for (const PlainValue& value : values) {
        const double coordinate = value.kind == wanted.kind ? value.point[axis] : 0.0;
        const double difference = coordinate - wanted.value.point[axis];
        const bool holdsHere = test == Test::Equal || test == Test::NotEqual
                                   ? std::fabs(difference) < wanted.tolerance
                                   : holds(difference, test, wanted.tolerance);
        one = one || holdsHere;
    }
    return test == Test::NotEqual ? !one : one;
}

std::wstring upper(std::wstring text)
{
    for (wchar_t& c : text)
        c = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
    return text;
}

/// A percentage is compared by its number. The words have no order, and no percentage equals one.
bool transparencyHolds(const std::wstring& value, Test test, const std::wstring& wanted)
{
    const auto isWord = [](const std::wstring& text) {
        return upper(text) == L"BYLAYER" || upper(text) == L"BYBLOCK";
    };
    if (!isWord(value) && !isWord(wanted)) {
        const auto number = [](const std::wstring& text) {
            return text.empty() ? 0.0 : std::stod(text);
        };
        return holds(number(value) - number(wanted), test, 0.0);
    }
    const bool same = upper(value) == upper(wanted);
    return test == Test::Equal ? same : test == Test::NotEqual && !same;
}

bool textHolds(const std::wstring& value, Test test, const std::wstring& wanted)
{
    if (test == Test::LikeBegin)
        return value.starts_with(wanted.substr(0, 1));
    const bool same = value == wanted;
    return test == Test::NotEqual ? !same : same;
}

/// Each integer kind is read as itself, but the widest takes them all; truth is a number of its
/// own.
long long integerOf(const PlainValue& value, int kind)
{
    const bool fits = value.kind == kind || (kind == kLong && isInteger(value.kind)) ||
                      (kind == kTruth && value.kind == kShort);
    if (kind == kColor && !fits)
        return KdCmColor().color();
    if (kind == kTruth)
        return fits && value.integer != 0;
    return fits ? value.integer : 0;
}

std::wstring escaped(const std::wstring& text)
{
    std::wstring pattern;
    for (const wchar_t c : text)
        pattern += {L'`', c};
    return pattern;
}

std::wstring digits(double number)
{
    wchar_t buffer[400];
    std::swprintf(buffer, std::size(buffer), L"%.12f", number);
    return buffer;
}

} // namespace

bool isPoint(int kind)
{
    return kind == kPoint2d || kind == kPoint3d;
}

int coordinates(int kind)
{
    return kind == kPoint3d ? 3 : kind == kPoint2d ? 2 : 0;
}

PlainValues readPlainly(const KdDbEntity& entity, const std::wstring& key)
{
    ValueChain chain;
    KdDbEntityPE::of(entity)->PropertyValueGet(&entity, KdString(key), chain.head(), false, false);
    PlainValues values{plain(*chain.head())};
    for (const ResBuf* next = chain.head()->next(); next; next = next->next())
        values.push_back(plain(*next));
    return values;
}

bool satisfies(const PlainValues& values, Test test, const Wanted& wanted)
{
    const PlainValue& head = values.front();
    if (test == Test::All)
        return true;
    if (isPoint(wanted.kind))
        return pointsHold(values, test, wanted);
    if (isReal(wanted.kind))
        return realHolds(head.number, test, wanted);
    if (wanted.kind == kTransparency)
        return transparencyHolds(head.text, test, wanted.value.text);
    if (isInteger(wanted.kind) || wanted.kind == kTruth || wanted.kind == kColor) {
        const long long difference =
            integerOf(head, wanted.kind) - integerOf(wanted.value, wanted.kind);
        return holds(static_cast<double>(difference), test, 0.0);
    }
    return textHolds(head.text, test, wanted.value.text);
}

bool isInOrder(const Wanted& wanted)
{
    if (isReal(wanted.kind)) // near zero some numbers are neither equal nor greater nor less
        return std::fabs(wanted.value.number) > wanted.tolerance || wanted.value.number == 0.0;
    return isInteger(wanted.kind) || wanted.kind == kColor;
}

std::wstring typed(const Wanted& wanted, Test test)
{
    const PlainValue& value = wanted.value;
    if (test == Test::LikeIt)
        return escaped(value.text);
    if (test == Test::LikeBegin)
        return escaped(value.text.substr(0, 1)) + L"*";
    if (isPoint(wanted.kind))
        return digits(value.point[static_cast<std::size_t>(wanted.axis - 1)]);
    if (wanted.kind == kAngle)
        return digits(value.number * 180.0 / std::numbers::pi);
    if (isReal(wanted.kind))
        return digits(value.number);
    if (isInteger(wanted.kind))
        return std::to_wstring(value.integer);
    if (wanted.kind == kTruth)
        return value.integer != 0 ? L"true" : L"false";
    return value.text;
}

} // namespace properties_test
