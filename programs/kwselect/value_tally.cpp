#include "value_tally.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using Counted = std::pair<Cell, std::size_t>;

/// Numbers by what they are, in front of all that is none.
bool isLower(const Counted* a, const Counted* b)
{
    const bool isNumber = a->first.json.is_number();
    if (isNumber != b->first.json.is_number())
        return isNumber;
    return isNumber && a->first.json.get<double>() < b->first.json.get<double>();
}

bool isMoreFrequent(const Counted* a, const Counted* b)
{
    return a->second > b->second;
}

} // namespace

void ValueTally::add(Cell value)
{
    auto& [first, count] = m_counts[value.text];
    if (count++ == 0)
        first = std::move(value);
}

void ValueTally::visit(Order order, const std::function<void(const Row&)>& sink) const
{
    std::vector<const Counted*> counts;
    for (const auto& [text, count] : m_counts)
        counts.push_back(&count);
    std::stable_sort(counts.begin(), counts.end(),
                     order == Order::MostFirst ? isMoreFrequent : isLower);
    for (const auto* count : counts)
        sink({count->first, numberCell(count->second)});
}
