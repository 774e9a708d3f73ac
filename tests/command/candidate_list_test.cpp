#include "support.h"

#include <entities/mesh.h>
#include <entities/proxy_entity.h>

#include <command/candidate_list.h>

using namespace command_test;
using testing::ElementsAre;

namespace {

class ListOfCandidates : public CommandTest
{
  protected:
    CandidateList list;
};

TEST_F(ListOfCandidates, KeepsTheOrderOfAdding)
{
    KdDbEntity* line = add(model());
    KdDbEntity* circle = add<KdDbCircle>(model());
    list.add(*circle);
    list.add(*line);
    EXPECT_THAT(list, ElementsAre(circle, line));
    EXPECT_EQ(&list[1], line);
}

TEST_F(ListOfCandidates, NumbersTheLayersAsTheyCome)
{
    KdDbEntity* pipe = addOn(L"PIPES");
    KdDbEntity* wall = addOn(L"WALLS");
    for (KdDbEntity* entity : {pipe, wall, pipe})
        list.add(*entity);
    EXPECT_THAT(list.layers(), ElementsAre(pipe->layerId(), wall->layerId()));
    EXPECT_EQ(list.note(0).layer, 0u);
    EXPECT_EQ(list.note(1).layer, 1u);
    EXPECT_EQ(list.note(2).layer, 0u);
}

TEST_F(ListOfCandidates, HasALayerForEntitiesWithoutOne)
{
    KdDbLine line;
    list.add(line);
    list.add(*addOn(L"PIPES"));
    EXPECT_TRUE(list.layers()[list.note(0).layer].isNull());
    EXPECT_FALSE(list.layers()[list.note(1).layer].isNull());
}

TEST_F(ListOfCandidates, KnowsTheFirstOfEachKindAndTheirNumber)
{
    KdDbEntity* line = add(model());
    KdDbEntity* circle = add<KdDbCircle>(model());
    list.add(*line);
    list.add(*circle);
    list.add(*add(model()));
    ASSERT_EQ(list.kinds().size(), 2u);
    EXPECT_EQ(list.kinds()[0].first, line);
    EXPECT_EQ(list.kinds()[0].count, 2u);
    EXPECT_EQ(list.kinds()[1].first, circle);
    EXPECT_EQ(list.kinds()[1].count, 1u);
}

TEST_F(ListOfCandidates, NumbersTheKindsAsTheyCome)
{
    EXPECT_EQ(list.add(*add<KdDbCircle>(model())), 0u);
    EXPECT_EQ(list.add(*add(model())), 1u);
    EXPECT_EQ(list.add(*add<KdDbCircle>(model())), 0u);
    EXPECT_EQ(list.kindOf(2).rxClass, KdDbCircle::desc());
    EXPECT_EQ(list.kindOf(2).displayName, L"Circle");
    EXPECT_EQ(list.kinds().size(), 2u);
}

TEST_F(ListOfCandidates, TellsClassesOfOneNameApart)
{
    EXPECT_NE(list.add(*add<KdDbSubDMesh>(model())), list.add(*add<KdDbProxyEntity>(model())));
    EXPECT_EQ(list.kindOf(0).displayName, list.kindOf(1).displayName);
}

TEST_F(ListOfCandidates, HasAKindForEntitiesWithoutAName)
{
    list.add(*add<NamelessEntity>(model()));
    list.add(*add<NamelessEntity>(model()));
    EXPECT_EQ(list.kinds().size(), 1u);
    EXPECT_EQ(list.kindOf(1).displayName, L"");
}

TEST_F(ListOfCandidates, IsSharedByItsCopies)
{
    list.add(*add(model()));
    const CandidateList copy = list;
    list = {};
    EXPECT_EQ(copy.size(), 1u);
    EXPECT_TRUE(list.empty());
}

} // namespace
