#include <values/operators.h>

#include <algorithm>
#include <iterator>

#include <plugin/res_buf.h>

namespace {

using enum Operators;

constexpr Operators kForNames[] = {Equals, NotEqual, SelectAll};
constexpr Operators kForNumbers[] = {Equals, NotEqual, GreaterThan, LessThan, SelectAll};
constexpr Operators kForTexts[] = {Equals, NotEqual, SelectAll, WildcardMatch};

constexpr int kNumberKinds[] = {
    ResBuf::kColor,   ResBuf::kLinetypeScale,
    ResBuf::kReal,    ResBuf::kAngle,
    ResBuf::kInt8,    ResBuf::kInt16,
    ResBuf::kInt32,   ResBuf::kPoint2d,
    ResBuf::kPoint3d, ResBuf::kTransparencyText,
};

/// By number.
constexpr const wchar_t* kTexts[] = {L"=", L"<>", L">", L"<", L"", L"*"};

} // namespace

std::span<const Operators> operatorsOf(int restype)
{
    if (restype == ResBuf::kString)
        return kForTexts;
    const bool isNumber = std::find(std::begin(kNumberKinds), std::end(kNumberKinds), restype) !=
                          std::end(kNumberKinds);
    return isNumber ? std::span<const Operators>(kForNumbers) : kForNames;
}

const wchar_t* operatorText(Operators op)
{
    return kTexts[static_cast<int>(op)];
}

std::optional<Operators> operatorOf(std::wstring_view text)
{
    const auto found = std::find(std::begin(kTexts), std::end(kTexts), text);
    if (found == std::end(kTexts))
        return std::nullopt;
    return static_cast<Operators>(found - std::begin(kTexts));
}
