/// Counts how often each value occurs.
#pragma once

#include <functional>
#include <map>
#include <utility>

#include <common/row_format.h>

class ValueTally
{
  public:
    enum class Order
    {
        ByValue,   ///< by the text
        MostFirst, ///< by the number, the greatest first, and by the text among equals
    };

    void add(Cell value);
    /// Hands over a row for each value: the value and its number.
    void visit(Order order, const std::function<void(const Row&)>& sink) const;

  private:
    std::map<std::string, std::pair<Cell, std::size_t>> m_counts; ///< by the text of the value
};
