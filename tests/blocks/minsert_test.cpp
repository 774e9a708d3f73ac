#include "support.h"

using namespace blocks_test;
using namespace provider_test;

namespace {

class MultipleInsert : public BlocksTest
{
  protected:
    MultipleInsert()
    {
        grid = add<KdDbMInsertBlock>();
        change(grid, [&](MInsertBlockMembers& members) {
            members.block = block->objectId();
            members.columns = 3;
            members.rows = 2;
            members.columnSpacing = 1.5;
            members.rowSpacing = -2.5;
        });
    }

    KdDbBlockTableRecord* block = addBlock(L"LAMP");
    KdDbMInsertBlock* grid = nullptr;
    KdDbMInsertBlock_Extension provider;
};

const std::vector<Listed> kReferenceWithGrid = {
    {L"Geometry:Position"},     {L"Geometry:Scale X"},      {L"Geometry:Scale Y"},
    {L"Geometry:Scale Z"},      {L"Misc:Name", true},       {L"Misc:Rotation"},
    {L"Misc:Annotative", true}, {L"Misc:Block Unit", true}, {L"Misc:Unit factor", true},
    {L"Misc:Columns"},          {L"Misc:Column spacing"},   {L"Misc:Rows"},
    {L"Misc:Row spacing"}};

TEST_F(MultipleInsert, ListsItsGridBehindWhatReferencesList)
{
    expectListed(provider, grid, kReferenceWithGrid);
}

TEST_F(MultipleInsert, ListsTheGridOfSingleReferencesAsWell)
{
    expectListed(provider, addReference(block), kReferenceWithGrid);
}

TEST_F(MultipleInsert, ListsTheGridBehindTheKeysOfCenterMarksAsWell)
{
    auto* reference = addReference(block);
    follow<KdDbCenterMarkActionBody>(reference, [](auto&) {});
    const Listing plain = [&] {
        KdDbBlockReference_Extension base;
        return list(base, reference);
    }();
    const Listing listed = list(provider, reference);
    ASSERT_EQ(listed.keys.size(), plain.keys.size() + 4);
    EXPECT_EQ(plain.keys.back(), L"Misc:Rotation");
    EXPECT_EQ(listed.keys[plain.keys.size()], L"Misc:Columns");
    EXPECT_EQ(listed.keys.back(), L"Misc:Row spacing");
    EXPECT_EQ(listed.flags.size(), listed.keys.size());
}

TEST_F(MultipleInsert, ListsNothingForWhatIsNoReference)
{
    const KdDbLine line;
    for (const KdDbEntity* entity :
         {static_cast<const KdDbEntity*>(nullptr), static_cast<const KdDbEntity*>(&line)}) {
        const Listing listed = list(provider, entity);
        EXPECT_EQ(listed.status, 0);
        EXPECT_TRUE(listed.keys.empty());
        EXPECT_TRUE(listed.flags.empty());
    }
}

TEST_F(MultipleInsert, AnswersItsGridBeforeAnArrayWould)
{
    expectAnswers(provider, grid,
                  {{L"Misc:Columns", "5003 3"},
                   {L"Misc:Column spacing", "5001 1.5"},
                   {L"Misc:Rows", "5003 2"},
                   {L"Misc:Row spacing", "5001 -2.5"}});
}

TEST_F(MultipleInsert, AnswersAsAReferenceOtherwise)
{
    expectAnswers(provider, grid,
                  {{L"Misc:Name", "5005 LAMP", {}, {"5005 LAMP"}}, {L"Misc:Levels", "5010 0"}});
}

TEST_F(MultipleInsert, RefusesSingleReferences)
{
    expectRefusals(provider, grid);
    auto* single = addReference(block);
    EXPECT_EQ(ask(provider, single, L"Misc:Columns").status, 0);
    EXPECT_EQ(ask(provider, single, L"Misc:Name").status, 0);
}

} // namespace
