// Filters by the entities' own values, over all properties that they list: whatever the kind of the
// property, the module must select what a plain comparison of the values selects.
#include "filtered_drawing.h"
#include "random_drawing.h"

using namespace properties_test;

namespace {

constexpr int kGroups = 24; ///< in each of which some of the kinds stand side by side
constexpr std::size_t kFiltersOfEach = 4500; ///< at least; in all groups more than 100,000

class Filters : public command_test::CommandTest
{
  protected:
    ~Filters() override { kddbHostApplicationServices()->setWorkingDatabase(&drawing); }

    /// How many filters were compared.
    std::size_t compare(const ReadDrawing& read, std::size_t wantedOfEach)
    {
        EXPECT_EQ(read.status, eOk);
        kddbHostApplicationServices()->setWorkingDatabase(read.database.get());
        FilteredDrawing filtered(*read.database, wantedOfEach);
        filtered.ask();
        select({});
        EXPECT_EQ(read.database->openCount(), 0);
        kddbHostApplicationServices()->setWorkingDatabase(&drawing);
        return filtered.runs();
    }

    static ReadDrawing readSample(const char* name)
    {
        ReadDrawing read;
        read.status = readDrawing(std::filesystem::path(KW_SOURCE_DIR) / "examples" / name,
                                  read.database, read.report);
        return read;
    }
};

TEST_F(Filters, OfAllBasicKindsSelectWhatAPlainComparisonDoes)
{
    EXPECT_GT(compare(readSample("all_basic_kinds_r2010.dxf"), 1), 2500u);
}

TEST_F(Filters, OfAFloorPlanSelectWhatAPlainComparisonDoes)
{
    EXPECT_GT(compare(readSample("floor_plan.dxf"), 1), 1000u);
}

class FiltersOfRandomDrawings : public Filters, public testing::WithParamInterface<std::size_t>
{
};

TEST_P(FiltersOfRandomDrawings, SelectWhatAPlainComparisonDoes)
{
    const std::vector<const KdRxClass*> all = kindsInDrawings();
    std::vector<const KdRxClass*> kinds;
    for (std::size_t i = GetParam(); i < all.size(); i += kGroups)
        kinds.push_back(all[i]);
    ASSERT_FALSE(kinds.empty());
    std::size_t runs = 0;
    for (std::uint32_t seed = 1; runs < kFiltersOfEach && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomDrawing random(seed * 1000 + static_cast<std::uint32_t>(GetParam()));
        runs += compare(readGroups(random.of(kinds, 3)), 3);
    }
}

INSTANTIATE_TEST_SUITE_P(, FiltersOfRandomDrawings,
                         testing::Range(std::size_t{0}, std::size_t{kGroups}));

TEST(RandomDrawings, AreTheSameForASeedAndDifferOtherwise)
{
    const std::vector<const KdRxClass*> kinds = kindsInDrawings();
    EXPECT_GT(kinds.size(), 50u);
    const Groups made = RandomDrawing(7).of(kinds, 1);
    EXPECT_EQ(RandomDrawing(7).of(kinds, 1), made);
    EXPECT_NE(RandomDrawing(8).of(kinds, 1), made);
}

} // namespace
