#include <plugin/entity_pe.h>

#include <entities/line.h>

#include <providers/plain_providers.h>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

class EntityPE : public ProviderTest
{
  protected:
    std::vector<std::wstring> lineweights()
    {
        CArray<KdDbEntityPE::lwUnit, const KdDbEntityPE::lwUnit&> list;
        KdDbEntityPE::FillLineWeightList(list);
        std::vector<std::wstring> names;
        for (int i = 0; i < list.GetSize(); ++i) {
            values.push_back(list.GetAt(i).value);
            names.emplace_back(list.GetAt(i).name.view());
        }
        return names;
    }
    ~EntityPE() override { setVariable(L"LWUNITS", 1); }

    KdDbLine line;
    KdDbEntityPE provider;
    KdDbEntity_Extension root;
    std::vector<int> values;
};

TEST_F(EntityPE, IsRegisteredUnderItsNameBelowObjects)
{
    EXPECT_EQ(KdDbEntityPE::desc(), kdrxFindKdRxClass(L"KdDbEntityPE"));
    EXPECT_EQ(KdDbEntityPE::desc()->myParent(), KdRxObject::desc());
    EXPECT_EQ(KdDbEntity_Extension::desc(), kdrxFindKdRxClass(L"KdDbEntity_Extension"));
    EXPECT_EQ(KdDbEntity_Extension::desc()->myParent(), KdDbEntityPE::desc());
}

TEST_F(EntityPE, BringsAbstractClasses)
{
    EXPECT_EQ(KdDbEntityPE::desc()->create(), nullptr);
    EXPECT_EQ(KdDbEntity_Extension::desc()->create(), nullptr);
    EXPECT_EQ(KdDbEntityPE::desc()->proxyFlags(), 0);
}

TEST_F(EntityPE, AnswersWithTheClassOfTheRootForAllProviders)
{
    const KdDbSurface_Extension plain;
    EXPECT_EQ(provider.isA(), KdDbEntityPE::desc());
    EXPECT_EQ(root.isA(), KdDbEntity_Extension::desc());
    EXPECT_EQ(plain.isA(), KdDbEntity_Extension::desc());
}

TEST_F(EntityPE, KeepsItsDescriptorWhenRegisteredAgain)
{
    KdRxClass* const before = KdDbEntityPE::gpDesc;
    const std::size_t classes = kdrxAllClasses().size();
    KdDbEntityPE::rxInit();
    KdDbEntity_Extension::rxInit();
    EXPECT_EQ(KdDbEntityPE::gpDesc, before);
    EXPECT_EQ(kdrxAllClasses().size(), classes);
}

TEST_F(EntityPE, FindsItsDescriptorByNameWhenItHasNone)
{
    KdRxClass* const registered = KdDbEntityPE::gpDesc;
    KdDbEntityPE::gpDesc = nullptr;
    EXPECT_EQ(KdDbEntityPE::desc(), registered);
    EXPECT_EQ(KdDbEntityPE::gpDesc, registered);
}

TEST_F(EntityPE, TakesUpTheRegisteredClassWhenItHasNoDescriptor)
{
    KdRxClass* const registered = KdDbEntity_Extension::gpDesc;
    KdDbEntity_Extension::gpDesc = nullptr;
    KdDbEntity_Extension::rxInit();
    EXPECT_EQ(KdDbEntity_Extension::gpDesc, registered);
}

TEST_F(EntityPE, ComesBackAfterItsClassesWereDeleted)
{
    deleteKdRxClass(KdDbEntity_Extension::desc());
    deleteKdRxClass(KdDbEntityPE::desc());
    ASSERT_EQ(kdrxFindKdRxClass(L"KdDbEntityPE"), nullptr);
    KdDbEntityPE::rxInit();
    KdDbEntity_Extension::rxInit();
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntityPE"), KdDbEntityPE::gpDesc);
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntity_Extension"), KdDbEntity_Extension::gpDesc);
}

using EntityPEDeathTest = EntityPE;

TEST_F(EntityPEDeathTest, EndsTheProcessWhereAnotherClassHasItsName)
{
    EXPECT_DEATH(
        {
            KdDbEntityPE::gpDesc = KdDbLine::desc();
            KdDbEntityPE::rxInit();
        },
        "Class mismatch");
    EXPECT_DEATH(
        {
            KdDbEntity_Extension::gpDesc = KdDbLine::desc();
            KdDbEntity_Extension::rxInit();
        },
        "Class mismatch");
}

TEST_F(EntityPE, IsFoundForAnEntityThroughItsClassOrAnAncestor)
{
    KdDbEntity::desc()->addX(KdDbEntityPE::desc(), &root);
    EXPECT_EQ(KdDbEntityPE::of(line), &root);
    KdDbLine::desc()->addX(KdDbEntityPE::desc(), &provider);
    EXPECT_EQ(KdDbEntityPE::of(line), &provider);
    KdDbLine::desc()->delX(KdDbEntityPE::desc());
    KdDbEntity::desc()->delX(KdDbEntityPE::desc());
}

TEST_F(EntityPE, IsNotFoundWhereAnotherKindOfObjectIsAttached)
{
    class Stranger : public KdRxObject
    {
    } stranger;
    KdDbLine::desc()->addX(KdDbEntityPE::desc(), &stranger);
    EXPECT_EQ(KdDbEntityPE::of(line), nullptr);
    KdDbLine::desc()->delX(KdDbEntityPE::desc());
    EXPECT_EQ(KdDbEntityPE::of(line), nullptr);
}

TEST_F(EntityPE, HasNeitherLengthNorAreaOfItsOwn)
{
    double number = 7.0;
    EXPECT_EQ(root.getEntityTotalLength(&line, number), 1);
    EXPECT_EQ(root.getEntityTotalArea(&line, number), 1);
    EXPECT_EQ(number, 7.0);
}

TEST_F(EntityPE, GivesTheLayerAsALayerNameOrAsAText)
{
    const KdDbLine* inDrawing = add<KdDbLine>();
    ValueChain value;
    root.GetLayer(inDrawing, value.head(), false);
    EXPECT_EQ(inWords(*value.head()), "8 0");
    root.GetLayer(inDrawing, value.head(), true);
    EXPECT_EQ(inWords(*value.head()), "5005 0");
}

TEST_F(EntityPE, LeavesTheRecordWithoutAnEntityToAskForItsLayer)
{
    ValueChain value;
    root.GetLayer(nullptr, value.head(), true);
    EXPECT_EQ(inWords(*value.head()), "5000 nothing");
}

TEST_F(EntityPE, FillsTheListOfLineweightsInMillimetres)
{
    setVariable(L"LWUNITS", 1);
    EXPECT_THAT(lineweights(),
                ElementsAre(L"0.00 mm", L"0.05 mm", L"0.09 mm", L"0.13 mm", L"0.15 mm", L"0.18 mm",
                            L"0.20 mm", L"0.25 mm", L"0.30 mm", L"0.35 mm", L"0.40 mm", L"0.50 mm",
                            L"0.53 mm", L"0.60 mm", L"0.70 mm", L"0.80 mm", L"0.90 mm", L"1.00 mm",
                            L"1.06 mm", L"1.20 mm", L"1.40 mm", L"1.58 mm", L"2.00 mm", L"2.11 mm",
                            L"ByLayer", L"ByBlock", L"Default"));
    EXPECT_THAT(values, ElementsAre(0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90,
                                    100, 106, 120, 140, 158, 200, 211, -1, -2, -3));
}

TEST_F(EntityPE, FillsTheListOfLineweightsInInches)
{
    setVariable(L"LWUNITS", 0);
    EXPECT_THAT(lineweights(),
                ElementsAre(L"0.000\"", L"0.002\"", L"0.004\"", L"0.005\"", L"0.006\"", L"0.007\"",
                            L"0.008\"", L"0.010\"", L"0.012\"", L"0.014\"", L"0.016\"", L"0.020\"",
                            L"0.021\"", L"0.024\"", L"0.028\"", L"0.031\"", L"0.035\"", L"0.039\"",
                            L"0.042\"", L"0.047\"", L"0.055\"", L"0.062\"", L"0.079\"", L"0.083\"",
                            L"ByLayer", L"ByBlock", L"Default"));
}

TEST_F(EntityPE, AddsLineweightsBehindWhatTheListHoldsAlready)
{
    CArray<KdDbEntityPE::lwUnit, const KdDbEntityPE::lwUnit&> list;
    list.Add({77, L"mine"});
    KdDbEntityPE::FillLineWeightList(list);
    EXPECT_EQ(list.GetSize(), 28);
    EXPECT_EQ(list.GetAt(0).value, 77);
}

} // namespace
