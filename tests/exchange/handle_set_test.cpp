#include <cstdint>

#include <gtest/gtest.h>

#include "handle_set.h"

TEST(HandleSet, TakesEachHandleOnce)
{
    dxf::HandleSet handles;
    for (std::uint64_t handle = 1; handle < 100000; handle += 3)
        EXPECT_TRUE(handles.insert(handle));
    for (std::uint64_t handle = 1; handle < 100000; handle += 3)
        EXPECT_FALSE(handles.insert(handle));
    EXPECT_TRUE(handles.insert(2));
}

TEST(HandleSet, TakesHandlesFarApart)
{
    dxf::HandleSet handles;
    for (std::uint64_t bit = 0; bit < 64; ++bit)
        EXPECT_TRUE(handles.insert(std::uint64_t{1} << bit));
    for (std::uint64_t bit = 0; bit < 64; ++bit)
        EXPECT_FALSE(handles.insert(std::uint64_t{1} << bit));
}
