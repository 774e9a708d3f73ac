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

TEST_F(ListOfCandidates, NotesTheLayer)
{
    KdDbEntity* line = addOn(L"PIPES");
    list.add(*line);
    EXPECT_EQ(list.note(0).layer, line->layerId());
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
