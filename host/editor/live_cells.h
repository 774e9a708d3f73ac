/// Finds the n-th member of a selection set among cells of which some are empty.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Counts the cells in use by blocks, in a tree of partial sums: a cell is added or removed, and
/// the block of the n-th found, in logarithmic time.
class LiveCells
{
  public:
    static constexpr std::size_t kBlock = 64;

    /// A block, and how many members of that block come before the wanted one.
    struct Place
    {
        std::size_t block;
        std::size_t before;
    };

    bool isEmpty() const { return m_cells == 0; }

    void clear()
    {
        m_sums.clear();
        m_cells = 0;
    }

    /// Counts one cell more at the end.
    void append(bool isLive)
    {
        if (m_cells % kBlock == 0)
            appendBlock();
        ++m_cells;
        m_sums.back() += isLive;
    }

    /// The cell at `place` was in use and is so no more.
    void remove(std::size_t place)
    {
        for (std::size_t node = place / kBlock + 1; node <= m_sums.size(); node += lowest(node))
            --m_sums[node - 1];
    }

    /// Where the member of that number is, counted from 0; there must be so many.
    Place find(std::size_t number) const
    {
        std::size_t step = 1;
        while (step * 2 <= m_sums.size())
            step *= 2;
        std::size_t block = 0;
        for (; step > 0; step /= 2) {
            if (block + step <= m_sums.size() && m_sums[block + step - 1] <= number) {
                block += step;
                number -= m_sums[block - 1];
            }
        }
        return {block, number};
    }

  private:
    static std::size_t lowest(std::size_t node) { return node & (~node + 1); }

    void appendBlock()
    {
        const std::size_t node = m_sums.size() + 1;
        std::uint32_t sum = 0;
        for (std::size_t part = 1; part < lowest(node); part *= 2)
            sum += m_sums[node - part - 1];
        m_sums.push_back(sum);
    }

    std::vector<std::uint32_t>
        m_sums; ///< node n, from 1, sums up the lowest(n) blocks that end at n
    std::size_t m_cells = 0;
};
