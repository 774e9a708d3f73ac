#include <runtime/rx_class.h>

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "toy_classes.h"

using runtime_test::Extension;
using runtime_test::ScopedClass;

namespace runtime_test {
KD_RX_DEFINE_ABSTRACT(Animal, KdRxObject, L"ToyAnimal")
KD_RX_DEFINE(Dog, Animal, L"ToyDog", L"DOG")
} // namespace runtime_test

namespace {

using runtime_test::Animal;
using runtime_test::Dog;

TEST(RxClass, OfThePlatformIsThereBeforeAnyoneAsks)
{
    KdRxClass* found = kdrxFindKdRxClass(L"ToyDog");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found, Dog::desc());
    EXPECT_STREQ(found->name(), L"ToyDog");
    EXPECT_STREQ(found->dxfName(), L"DOG");
    EXPECT_STREQ(found->appName(), L"");
    EXPECT_EQ(found->myParent(), Animal::desc());
}

TEST(RxClass, KnowsItsAncestors)
{
    const KdRxClass* dog = Dog::desc();
    EXPECT_TRUE(dog->isDerivedFrom(dog));
    EXPECT_TRUE(dog->isDerivedFrom(Animal::desc()));
    EXPECT_TRUE(dog->isDerivedFrom(KdRxObject::desc()));
    EXPECT_FALSE(Animal::desc()->isDerivedFrom(dog));
    EXPECT_FALSE(dog->isDerivedFrom(KdRxClass::desc()));
    EXPECT_FALSE(dog->isDerivedFrom(nullptr));
}

TEST(RxClass, HasARootWithoutParent)
{
    EXPECT_EQ(KdRxObject::desc()->myParent(), nullptr);
    EXPECT_STREQ(KdRxObject::desc()->name(), L"KdRxObject");
    EXPECT_EQ(Dog::desc()->isA(), KdRxClass::desc());
}

TEST(RxClass, MakesObjects)
{
    const std::unique_ptr<KdRxObject> made(Dog::desc()->create());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->isA(), Dog::desc());
    EXPECT_EQ(static_cast<const Dog&>(*made).legs, 4);
}

TEST(RxClass, MakesObjectsInGivenStorage)
{
    const KdRxFactory& factory = Dog::desc()->factory();
    ASSERT_EQ(factory.size, sizeof(Dog));
    alignas(Dog) std::byte storage[sizeof(Dog)];
    KdRxObject* made = factory.construct(storage);
    EXPECT_EQ(static_cast<void*>(made), static_cast<void*>(storage));
    EXPECT_EQ(made->isA(), Dog::desc());
    made->~KdRxObject();
}

TEST(RxClass, MakesNoObjectsOfAbstractClasses)
{
    EXPECT_EQ(Animal::desc()->create(), nullptr);
    EXPECT_EQ(Animal::desc()->factory().construct, nullptr);
}

TEST(RxClass, AddedByNameKeepsWhatItWasTold)
{
    KdRxClass* added = newKdRxClass(L"ToyAdded", L"ToyDog", 33, nullptr, L"ADDED", L"ToyApp");
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(L"ToyAdded"), added);
    EXPECT_STREQ(added->name(), L"ToyAdded");
    EXPECT_STREQ(added->dxfName(), L"ADDED");
    EXPECT_STREQ(added->appName(), L"ToyApp");
    EXPECT_EQ(added->proxyFlags(), 33);
    EXPECT_EQ(added->myParent(), Dog::desc());
    deleteKdRxClass(added);
}

TEST(RxClass, AddedWithNullNamesHasEmptyOnes)
{
    const ScopedClass added(L"ToyNameless");
    EXPECT_STREQ(added->dxfName(), L"");
    EXPECT_STREQ(added->appName(), L"");
}

TEST(RxClass, AddedByNameMakesObjectsWithItsPseudoConstructor)
{
    const ScopedClass added(L"ToyMade", L"ToyDog", []() -> KdRxObject* { return new Dog; });
    const std::unique_ptr<KdRxObject> made(added->create());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->isA(), Dog::desc());
}

TEST(RxClass, AddedWithoutPseudoConstructorIsAbstract)
{
    EXPECT_EQ(ScopedClass(L"ToyAbstract", L"ToyDog")->create(), nullptr);
}

TEST(RxClass, AddedTwiceIsTheOneKnownAlready)
{
    const ScopedClass added(L"ToyTwice");
    EXPECT_EQ(newKdRxClass(L"ToyTwice", L"ToyDog", 1, nullptr, L"X", L"Y"), added.get());
    EXPECT_EQ(added->myParent(), KdRxObject::desc());
    EXPECT_EQ(newKdRxClass(L"ToyDog", L"KdRxObject", 0, nullptr, nullptr, nullptr), Dog::desc());
}

TEST(RxClass, NeedsANameAndAKnownParent)
{
    EXPECT_EQ(newKdRxClass(nullptr, L"KdRxObject", 0, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(newKdRxClass(L"", L"KdRxObject", 0, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(newKdRxClass(L"ToyOrphan", nullptr, 0, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(newKdRxClass(L"ToyOrphan", L"ToyNobody", 0, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(newKdRxClass(L"ToyOrphan", L"ToyOrphan", 0, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(L"ToyOrphan"), nullptr);
}

TEST(RxClass, IsFoundByItsExactNameAlone)
{
    EXPECT_EQ(kdrxFindKdRxClass(L"toydog"), nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(L""), nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(nullptr), nullptr);
}

TEST(RxClass, StandsInTheListInTheOrderOfRegistration)
{
    const ScopedClass first(L"ToyFirst");
    const ScopedClass second(L"ToySecond");
    const std::vector<KdRxClass*> all = kdrxAllClasses();
    ASSERT_GE(all.size(), 2u);
    EXPECT_EQ(all[all.size() - 2], first.get());
    EXPECT_EQ(all.back(), second.get());
    EXPECT_EQ(std::ranges::count(all, Dog::desc()), 1);
}

TEST(RxClass, DefinedAgainByItsLibraryStandsInTheListOnce)
{
    const KdRxFactory factory = kdrx::factoryOf<Dog>();
    EXPECT_EQ(kdrx::definePlatformClass({L"ToyDog", L"DOG", Animal::desc(), factory}), Dog::desc());
    const std::vector<KdRxClass*> all = kdrxAllClasses();
    EXPECT_EQ(std::ranges::count(all, Dog::desc()), 1);
}

TEST(RxClass, IsNoLongerFoundAfterDeletion)
{
    ScopedClass deleted(L"ToyDeleted");
    deleted.remove();
    EXPECT_EQ(kdrxFindKdRxClass(L"ToyDeleted"), nullptr);
    EXPECT_THAT(kdrxAllClasses(), testing::Not(testing::Contains(deleted.get())));
    deleteKdRxClass(deleted.get());
    EXPECT_STREQ(deleted->name(), L"ToyDeleted");
}

TEST(RxClass, OfThePlatformCannotBeDeleted)
{
    deleteKdRxClass(Dog::desc());
    deleteKdRxClass(nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(L"ToyDog"), Dog::desc());
}

TEST(RxClass, RegisteredAgainAfterDeletionWorksAnew)
{
    const ScopedClass protocol(L"ToyProtocol1");
    Extension extension;
    ScopedClass first(L"ToyAgain", L"KdRxObject", []() -> KdRxObject* { return new Dog; });
    first->addX(protocol.get(), &extension);
    first.remove();

    const ScopedClass second(L"ToyAgain", L"ToyDog");
    EXPECT_EQ(kdrxFindKdRxClass(L"ToyAgain"), second.get());
    EXPECT_EQ(second->myParent(), Dog::desc());
    EXPECT_EQ(second->create(), nullptr);
    EXPECT_EQ(second->queryX(protocol.get()), nullptr);
    EXPECT_THAT(kdrxAllClasses(), testing::Contains(second.get()));
}

TEST(RxClass, NeverBecomesItsOwnAncestor)
{
    ScopedClass upper(L"ToyUpper");
    const ScopedClass lower(L"ToyLower", L"ToyUpper");
    upper.remove();
    EXPECT_EQ(newKdRxClass(L"ToyUpper", L"ToyLower", 0, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(L"ToyUpper"), nullptr);
    EXPECT_FALSE(lower->isDerivedFrom(Dog::desc()));

    const ScopedClass again(L"ToyUpper");
    EXPECT_TRUE(lower->isDerivedFrom(again.get()));
}

class RxExtensions : public testing::Test
{
  protected:
    ScopedClass m_protocol{L"ToyProtocol"};
    ScopedClass m_base{L"ToyBase"};
    ScopedClass m_derived{L"ToyDerived", L"ToyBase"};
    Extension m_first;
    Extension m_second;
};

TEST_F(RxExtensions, AreInherited)
{
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), nullptr);
    EXPECT_EQ(m_base->addX(m_protocol.get(), &m_first), nullptr);
    EXPECT_EQ(m_base->queryX(m_protocol.get()), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    EXPECT_EQ(m_derived->getX(m_protocol.get()), nullptr);
    EXPECT_EQ(m_base->getX(m_protocol.get()), &m_first);
}

TEST_F(RxExtensions, OfTheNearestClassWin)
{
    m_base->addX(m_protocol.get(), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    m_derived->addX(m_protocol.get(), &m_second);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_second);
    EXPECT_EQ(m_base->queryX(m_protocol.get()), &m_first);
}

TEST_F(RxExtensions, ReplaceWhatStoodThereBefore)
{
    m_base->addX(m_protocol.get(), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    EXPECT_EQ(m_base->addX(m_protocol.get(), &m_second), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_second);
}

TEST_F(RxExtensions, AreGoneAfterRemoval)
{
    m_base->addX(m_protocol.get(), &m_first);
    m_derived->addX(m_protocol.get(), &m_second);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_second);
    EXPECT_EQ(m_derived->delX(m_protocol.get()), &m_second);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    EXPECT_EQ(m_base->delX(m_protocol.get()), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), nullptr);
    EXPECT_EQ(m_base->delX(m_protocol.get()), nullptr);
}

TEST_F(RxExtensions, OfTwoProtocolsStandSideBySide)
{
    const ScopedClass other(L"ToyOtherProtocol");
    m_base->addX(m_protocol.get(), &m_first);
    m_base->addX(other.get(), &m_second);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    EXPECT_EQ(m_derived->queryX(other.get()), &m_second);
    m_base->delX(m_protocol.get());
    EXPECT_EQ(m_derived->queryX(other.get()), &m_second);
}

TEST_F(RxExtensions, EndWithTheirProtocol)
{
    m_base->addX(m_protocol.get(), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    m_protocol.remove();
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), nullptr);
    EXPECT_EQ(m_base->getX(m_protocol.get()), nullptr);
}

TEST_F(RxExtensions, EndWithTheClassTheyStoodOn)
{
    m_base->addX(m_protocol.get(), &m_first);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    m_base.remove();
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), nullptr);
    EXPECT_EQ(m_base->queryX(m_protocol.get()), nullptr);
}

TEST_F(RxExtensions, FollowTheNewParentOfAClassRegisteredAgain)
{
    m_base->addX(m_protocol.get(), &m_first);
    m_derived.remove();
    const ScopedClass elsewhere(L"ToyElsewhere");
    elsewhere->addX(m_protocol.get(), &m_second);
    EXPECT_EQ(m_derived->queryX(m_protocol.get()), &m_first);
    const ScopedClass again(L"ToyDerived", L"ToyElsewhere");
    EXPECT_EQ(again->queryX(m_protocol.get()), &m_second);
}

TEST(RxAbort, EndsTheProcessWithTheMessage)
{
    EXPECT_DEATH(kdrx_abort(L"Class mismatch"), "Class mismatch");
}

TEST(RxAbort, TellsCharactersThatTheLocaleLacks)
{
    EXPECT_DEATH(kdrx_abort(L"Größe 墨 falsch"), "Größe 墨 falsch");
}

TEST(RxAbort, TakesNoMessageAtAll)
{
    EXPECT_DEATH(kdrx_abort(nullptr), "");
}

} // namespace
