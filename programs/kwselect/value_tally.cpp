#include "value_tally.h"

#include <algorithm>
#include <vector>

void ValueTally::add(Cell value)
{
    auto& [first, count] = m_counts[value.text];
    if (count++ == 0)
        first = std::move(value);
}

void ValueTally::visit(Order order, const std::function<void(const Row&)>& sink) const
{
    std::vector<const std::pair<Cell, std::size_t>*> counts;
    for (const auto& [text, count] : m_counts)
        counts.push_back(&count);
    if (order == Order::MostFirst)
        std::stable_sort(counts.begin(), counts.end(),
                         [](const auto* a, const auto* b) { return a->second > b->second; });
    for (const auto* count : counts)
        sink({count->first, numberCell(count->second)});
}
