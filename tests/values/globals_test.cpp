#include <values/globals.h>

#include <gtest/gtest.h>

#include <values/init_order.h>

namespace {

TEST(Globals, BeginWithoutCustomColors)
{
    EXPECT_TRUE(gComboValues.empty());
}

TEST(Globals, NameTheLayerOfConstraints)
{
    EXPECT_EQ(ConstraintsLayerName, L"*ADSK_CONSTRAINTS");
}

TEST(InitOrder, IsThatOfTheModulesLoading)
{
    const int order[] = {kInitComboValues,    kInitProfilePath,      kInitProviders,
                         kInitModuleRecord,   kInitConstraintsLayer, kInitArrowNames,
                         kInitValueFactories, kInitMultiText};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]);
}

} // namespace
