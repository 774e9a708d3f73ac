#include <gtest/gtest.h>

#include "live_cells.h"

#include <random>
#include <vector>

namespace {

/// The same by counting.
LiveCells::Place counted(const std::vector<bool>& cells, std::size_t number)
{
    std::size_t place = 0;
    std::size_t before = 0;
    std::size_t left = number;
    for (; !cells[place] || left > 0; ++place) {
        left -= cells[place];
        before = (place + 1) % LiveCells::kBlock == 0 ? 0 : before + cells[place];
    }
    return {place / LiveCells::kBlock, before};
}

void expectAsCounted(const LiveCells& live, const std::vector<bool>& cells)
{
    std::size_t members = 0;
    for (const bool isLive : cells)
        members += isLive;
    for (std::size_t number = 0; number < members; ++number) {
        const auto found = live.find(number);
        const auto expected = counted(cells, number);
        ASSERT_EQ(found.block, expected.block) << number;
        ASSERT_EQ(found.before, expected.before) << number;
    }
}

TEST(LiveCells, FindsMembersAmongEmptyCells)
{
    LiveCells live;
    std::vector<bool> cells;
    for (std::size_t place = 0; place < 1000; ++place) {
        cells.push_back(place % 3 == 0);
        live.append(cells.back());
    }
    expectAsCounted(live, cells);
}

TEST(LiveCells, FollowsRemovalsAndAdditions)
{
    LiveCells live;
    std::vector<bool> cells;
    std::mt19937 random(7);
    for (int round = 0; round < 1500; ++round) {
        cells.push_back(true);
        live.append(true);
        const std::size_t place = random() % cells.size();
        if (cells[place] && round % 2) {
            cells[place] = false;
            live.remove(place);
        }
    }
    expectAsCounted(live, cells);
}

TEST(LiveCells, PassesOverWholeEmptyBlocks)
{
    LiveCells live;
    for (std::size_t place = 0; place < 5 * LiveCells::kBlock; ++place)
        live.append(place == 0 || place == 4 * LiveCells::kBlock + 1);
    EXPECT_EQ(live.find(1).block, 4u);
    EXPECT_EQ(live.find(1).before, 0u);
}

} // namespace
