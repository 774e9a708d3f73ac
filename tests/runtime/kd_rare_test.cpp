#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <runtime/kd_rare.h>

namespace {

struct Toy
{
    int number = 7;
    std::string name = "default";
};

TEST(RareValue, HasItsDefaultAndTakesNoMemoryForIt)
{
    const KdRare<Toy> first;
    const KdRare<Toy> second;
    EXPECT_EQ(first->number, 7);
    EXPECT_EQ((*first).name, "default");
    EXPECT_EQ(&*first, &*second);
    EXPECT_EQ(sizeof first, sizeof(void*));
}

TEST(RareValue, ChangesForItsOwnerAlone)
{
    KdRare<Toy> changed;
    const KdRare<Toy> other;
    changed.edit().number = 8;
    changed.edit().name = "own";
    EXPECT_EQ(changed->number, 8);
    EXPECT_EQ(changed->name, "own");
    EXPECT_EQ(other->number, 7);
}

TEST(RareValue, StaysSharedWhileAPartIsSetToWhatItIs)
{
    KdRare<Toy> value;
    const KdRare<Toy> other;
    value.set(&Toy::number, 7);
    value.set(&Toy::name, std::string("default"));
    EXPECT_EQ(&*value, &*other);
    value.set(&Toy::number, 8);
    EXPECT_EQ(value->number, 8);
    value.set(&Toy::number, 7);
    EXPECT_EQ(value->number, 7);
}

TEST(RareValue, IsCopiedAsAValue)
{
    KdRare<Toy> value;
    value.edit().number = 8;
    KdRare<Toy> copy = value;
    copy.edit().number = 9;
    EXPECT_EQ(value->number, 8);
    EXPECT_EQ(copy->number, 9);
    copy = KdRare<Toy>();
    EXPECT_EQ(copy->number, 7);
    const KdRare<Toy> moved = std::move(value);
    EXPECT_EQ(moved->number, 8);
}

} // namespace
