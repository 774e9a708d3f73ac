/// A growing array with the platform's names over the standard vector.
#pragma once

#include <cassert>
#include <cstddef>
#include <vector>

/// Elements lie one behind the other and are numbered from 0. An index out of range is a mistake of
/// the caller.
template <class T>
class KdArray
{
  public:
    int length() const { return static_cast<int>(m_cells.size()); }
    bool isEmpty() const { return m_cells.empty(); }

    /// Adds a copy at the end and returns its index.
    int append(const T& value)
    {
        m_cells.push_back({value});
        return length() - 1;
    }
    const T& at(int index) const { return m_cells[checked(index)].value; }
    T& at(int index) { return m_cells[checked(index)].value; }
    const T& operator[](int index) const { return at(index); }
    T& operator[](int index) { return at(index); }
    void removeAll() { m_cells.clear(); }

    bool operator==(const KdArray&) const = default;

  private:
    // The cell keeps std::vector<bool> and its packed bits out of the way.
    struct Cell
    {
        T value;
        bool operator==(const Cell&) const = default;
    };

    std::size_t checked(int index) const
    {
        assert(index >= 0 && index < length());
        return static_cast<std::size_t>(index);
    }

    std::vector<Cell> m_cells;
};
