#include <database/dimension_variables.h>

#include <bit>
#include <cassert>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace {

KdDbDimValue initialValue(KdDbDimKind, double value)
{
    return value;
}

KdDbDimValue initialValue(KdDbDimKind kind, int value)
{
    return kind == KdDbDimKind::Color ? kddbDimColor(value) : KdDbDimValue(std::int32_t{value});
}

/// Objects have none before there is a drawing; the null id stands for them.
KdDbDimValue initialValue(KdDbDimKind kind, const wchar_t* value)
{
    return kind == KdDbDimKind::Text ? KdDbDimValue(KdString(value)) : KdDbDimValue(KdDbObjectId());
}

} // namespace

std::span<const KdDbDimVariable> kddbDimVariables()
{
#define KD_DIM_ROW(accessor, NAME, code, kind, initial)                                            \
    {L"" #NAME, code, KdDbDimKind::kind, initialValue(KdDbDimKind::kind, initial)},
    static const KdDbDimVariable rows[] = {KD_DIM_VARIABLES(KD_DIM_ROW)};
#undef KD_DIM_ROW
    static_assert(std::size(rows) <= 128, "KdDbDimValues has two words of marks");
    return rows;
}

std::optional<KdDbDimVar> kddbDimVariableOfCode(int code)
{
    static const auto byCode = [] {
        std::unordered_map<int, KdDbDimVar> variables;
        int number = 0;
        for (const KdDbDimVariable& row : kddbDimVariables()) {
            if (row.code != 0)
                variables.emplace(row.code, static_cast<KdDbDimVar>(number));
            ++number;
        }
        return variables;
    }();
    const auto found = byCode.find(code);
    return found == byCode.end() ? std::nullopt : std::optional(found->second);
}

KdDbDimValue kddbDimColor(int number)
{
    const KdCmColor asWord(static_cast<std::uint32_t>(number));
    if (asWord.colorMethod() >= KdCmColor::kByLayer && asWord.colorMethod() <= KdCmColor::kNone)
        return std::int32_t{number};
    KdCmColor color;
    color.setColorIndex(number); // stays by layer for a number out of range
    return static_cast<std::int32_t>(color.color());
}

std::size_t KdDbDimValues::placeOf(std::size_t number) const
{
    const std::uint64_t before = (std::uint64_t{1} << (number % kWordBits)) - 1;
    const int inSecond = number < kWordBits ? 0 : std::popcount(m_present[1] & before);
    const std::uint64_t first = number < kWordBits ? m_present[0] & before : m_present[0];
    return static_cast<std::size_t>(std::popcount(first) + inSecond);
}

const KdDbDimValue* KdDbDimValues::find(KdDbDimVar variable) const
{
    const auto number = static_cast<std::size_t>(variable);
    return isPresent(number) ? &m_values[placeOf(number)] : nullptr;
}

void KdDbDimValues::set(KdDbDimVar variable, KdDbDimValue value)
{
    assert(value.index() == kddbDimVariable(variable).initial.index());
    const auto number = static_cast<std::size_t>(variable);
    const auto place = m_values.begin() + static_cast<std::ptrdiff_t>(placeOf(number));
    if (isPresent(number)) {
        *place = std::move(value);
        return;
    }
    m_values.insert(place, std::move(value));
    m_present[number / kWordBits] |= std::uint64_t{1} << (number % kWordBits);
}
