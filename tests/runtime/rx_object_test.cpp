#include <runtime/rx_object.h>

#include <gtest/gtest.h>

#include "toy_classes.h"

using runtime_test::Animal;
using runtime_test::Dog;
using runtime_test::Extension;
using runtime_test::ObjectOf;
using runtime_test::ScopedClass;

namespace {

TEST(RxObject, IsOfItsClassAndAllAbove)
{
    const Dog dog;
    EXPECT_TRUE(dog.isKindOf(Dog::desc()));
    EXPECT_TRUE(dog.isKindOf(Animal::desc()));
    EXPECT_FALSE(Animal().isKindOf(Dog::desc()));
    EXPECT_FALSE(dog.isKindOf(nullptr));
}

TEST(RxObject, EqualsItselfAloneAndHasNoOrder)
{
    const Dog one;
    const Dog two;
    EXPECT_TRUE(one.isEqualTo(&one));
    EXPECT_FALSE(one.isEqualTo(&two));
    EXPECT_EQ(one.comparedTo(&one), KdRx::kEqual);
    EXPECT_EQ(one.comparedTo(&two), KdRx::kNotOrderable);
}

TEST(RxObject, IsNotCopiedUnlessItsClassCan)
{
    Dog dog;
    EXPECT_EQ(dog.clone(), nullptr);
    EXPECT_EQ(dog.copyFrom(&dog), eNotApplicable);
}

TEST(RxObject, AnswersAProtocolThroughItsClass)
{
    const ScopedClass protocol(L"ToyObjectProtocol");
    const ScopedClass base(L"ToyObjectBase");
    const ScopedClass derived(L"ToyObjectDerived", L"ToyObjectBase");
    Extension extension;
    base->addX(protocol.get(), &extension);
    EXPECT_EQ(ObjectOf(derived.get()).x(protocol.get()), &extension);
    EXPECT_EQ(ObjectOf(derived.get()).x(nullptr), nullptr);
    base->delX(protocol.get());
    EXPECT_EQ(ObjectOf(derived.get()).x(protocol.get()), nullptr);
}

TEST(RxObject, WithoutAClassAnswersNothing)
{
    EXPECT_EQ(ObjectOf(nullptr).x(Dog::desc()), nullptr);
    EXPECT_FALSE(ObjectOf(nullptr).isKindOf(Dog::desc()));
}

TEST(RxObject, PrefersAnExtensionOfItsOwn)
{
    class WithOwn : public ObjectOf
    {
      public:
        using ObjectOf::ObjectOf;
        KdRxObject* subQueryX(const KdRxClass*) const override { return &own; }
        mutable Extension own;
    };
    const ScopedClass protocol(L"ToyOwnProtocol");
    const ScopedClass rxClass(L"ToyOwn");
    Extension extension;
    rxClass->addX(protocol.get(), &extension);
    const WithOwn object(rxClass.get());
    EXPECT_EQ(object.x(protocol.get()), &object.own);
}

} // namespace
