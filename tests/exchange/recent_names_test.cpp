// The few names that are remembered before a table of all is asked.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "recent_names.h"

namespace {

TEST(RecentNames, KnowNothingAtFirst)
{
    const dxf::RecentNames<int> names;
    EXPECT_EQ(names.find(""), nullptr);
    EXPECT_EQ(names.find("0"), nullptr);
}

TEST(RecentNames, GiveWhatWasNotedLastForAName)
{
    // Some begin and end alike, as do names of more than a word of the processor.
    const std::vector<std::string> all = {
        "", "0", "00", "1", "abc", "abcd", "abcdabcd", "abcdefghi", "PIPE-0001", "PIPE-0002"};
    dxf::RecentNames<std::size_t> names;
    for (std::size_t i = 0; i < all.size(); ++i) {
        names.note(all[i], i);
        for (std::size_t k = 0; k <= i; ++k) {
            const std::size_t* found = names.find(all[k]);
            ASSERT_TRUE(found || k < i) << all[k]; // one may take another's place
            EXPECT_TRUE(!found || *found == k) << all[k];
        }
    }
}

TEST(RecentNames, TellApartLongNamesThatDifferInTheMiddleAlone)
{
    dxf::RecentNames<int> names;
    names.note("beginning-A-the end", 1);
    EXPECT_EQ(names.find("beginning-B-the end"), nullptr);
}

TEST(RecentNames, NeverGiveTheValueOfAnotherNameHoweverManyThereAre)
{
    std::vector<std::string> all;
    for (int i = 0; i < 5000; ++i)
        all.push_back("LAYER-" + std::to_string(i));
    dxf::RecentNames<std::size_t> names;
    std::size_t known = 0;
    for (std::size_t i = 0; i < all.size(); ++i)
        names.note(all[i], i);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (const std::size_t* found = names.find(all[i])) {
            EXPECT_EQ(*found, i);
            ++known;
        }
    }
    EXPECT_GT(known, 100u); // some have taken the place of others
}

TEST(RecentNames, ForgetAllWhenCleared)
{
    dxf::RecentNames<int> names;
    names.note("0", 1);
    names.clear();
    EXPECT_EQ(names.find("0"), nullptr);
}

} // namespace
