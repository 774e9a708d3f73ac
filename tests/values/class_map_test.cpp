// What is kept for runtime classes.
#include <vector>

#include <gtest/gtest.h>

#include <runtime/rx_class.h>

#include <values/class_map.h>

namespace {

TEST(ClassMap, BeginsWithTheInitialStateOfEach)
{
    ClassMap<int> map;
    EXPECT_EQ(map.at(KdRxObject::desc()), 0);
}

TEST(ClassMap, KeepsSomethingOfItsOwnForEachClassHoweverManyThereAre)
{
    // Places in memory that no class has, close together as classes of one library are.
    std::vector<char> memory(64 * 1000);
    const auto place = [&](std::size_t i) {
        return reinterpret_cast<const KdRxClass*>(memory.data() + 64 * i);
    };
    ClassMap<std::size_t> map;
    for (std::size_t i = 0; i < 1000; ++i)
        map.at(place(i)) = i + 1;
    for (std::size_t i = 0; i < 1000; ++i)
        EXPECT_EQ(map.at(place(i)), i + 1);
}

TEST(PlaceMap, TakesNullForAKeyAsAnyOther)
{
    PlaceMap<const int*, int> map;
    const int thing = 0;
    map.at(nullptr) = 5;
    EXPECT_EQ(map.at(&thing), 0);
    map.at(&thing) = 6;
    EXPECT_EQ(map.at(nullptr), 5);
    EXPECT_EQ(map.at(&thing), 6);
}

} // namespace
