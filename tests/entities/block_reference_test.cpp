#include "support.h"

#include <cwchar>
#include <iterator>

#include <database/database.h>
#include <entities/block_reference.h>
#include <entities/line.h>

namespace {

using namespace entity_test;

using BlockReferenceFrame = InEachFrame;
INSTANTIATE_TEST_SUITE_P(Directions, BlockReferenceFrame, frames(), frameName());

TEST_P(BlockReferenceFrame, PlacesTheReferenceInTheWorld)
{
    KdDbBlockReference reference;
    reference.edit().position = kPointInFrame;
    reference.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_THAT(reference.position(), IsNear(GetParam().world));
    EXPECT_THAT(reference.normal(), IsNear(GetParam().normal));
}

TEST(BlockReference, BeginsUnscaledWithoutABlock)
{
    const KdDbBlockReference reference;
    EXPECT_TRUE(reference.blockTableRecord().isNull());
    EXPECT_EQ(reference.scaleFactors(), (KdGeScale3d{1, 1, 1}));
    EXPECT_EQ(reference.rotation(), 0.0);
}

TEST(BlockReference, AnswersWhatItsRecordHolds)
{
    const KdDbBlockTableRecord block;
    KdDbBlockReference reference;
    reference.edit().block = block.objectId();
    reference.edit().scale = {2, -3, 4};
    reference.edit().rotation = 0.5;
    EXPECT_EQ(reference.blockTableRecord(), block.objectId());
    EXPECT_EQ(reference.scaleFactors(), (KdGeScale3d{2, -3, 4}));
    EXPECT_EQ(reference.rotation(), 0.5);
}

TEST(MInsertBlock, IsAGridOfOneUnlessToldOtherwise)
{
    KdDbMInsertBlock grid;
    EXPECT_EQ(grid.columns(), 1);
    EXPECT_EQ(grid.rows(), 1);
    MInsertBlockMembers& members = grid.edit();
    members.columns = 3;
    members.rows = 40000;
    members.columnSpacing = 2.5;
    members.rowSpacing = -1.5;
    EXPECT_EQ(grid.columns(), 3);
    EXPECT_EQ(grid.rows(), 40000);
    EXPECT_EQ(grid.columnSpacing(), 2.5);
    EXPECT_EQ(grid.rowSpacing(), -1.5);
}

/// A drawing with a dynamic block "DOOR", an anonymous copy of it, and a reference to the copy.
class DynamicBlock : public testing::Test
{
  protected:
    DynamicBlock()
    {
        auto* block = new KdDbBlockReference;
        block->edit().block = m_copy;
        EXPECT_EQ(m_database.addObject(block, m_database.modelSpaceId()), eOk);
        m_reference = block->objectId();
    }

    KdDbObjectId addBlock(const wchar_t* name)
    {
        return m_database.addRecord<KdDbBlockTable>(name)->objectId();
    }

    static KdString hexadecimal(KdDbHandle handle)
    {
        wchar_t digits[20];
        std::swprintf(digits, std::size(digits), L"%llX", static_cast<unsigned long long>(handle));
        return digits;
    }

    /// Puts the mark of a copy on the anonymous block, naming its original by `handle`.
    void mark(const KdString& handle, const wchar_t* application = L"AcDbBlockRepBTag")
    {
        resbuf* name = kdutNewRb(1001);
        name->resval.rstring = kdutNewString(application);
        name->rbnext = kdutNewRb(1070);
        name->rbnext->resval.rint = 1;
        name->rbnext->rbnext = kdutNewRb(1005);
        name->rbnext->rbnext->resval.rstring = kdutNewString(handle.kwszPtr());

        KdDbBlockTableRecord* record = nullptr;
        ASSERT_EQ(kddbOpenObject(record, m_copy, KdDb::kForWrite), eOk);
        record->edit().extendedData.reset(name);
        record->close();
    }

    KdDbDatabase m_database;
    KdDbObjectId m_original = addBlock(L"DOOR");
    KdDbObjectId m_copy = addBlock(L"*U1");
    KdDbObjectId m_reference;
};

TEST_F(DynamicBlock, IsFoundFromItsAnonymousCopy)
{
    mark(hexadecimal(m_original.handle()));
    EXPECT_EQ(kddbGetEnhancedBlkOriginalBtrId(m_copy), m_original);
}

TEST_F(DynamicBlock, IsFoundFromAReferenceToTheCopy)
{
    mark(hexadecimal(m_original.handle()));
    EXPECT_EQ(kddbGetEnhancedBlkOriginalBtrId(m_reference), m_original);
    const OpenForRead<KdDbBlockReference> reference(m_reference);
    EXPECT_EQ(kddbGetEnhancedBlkOriginalBtrId(*reference), m_original);
}

TEST_F(DynamicBlock, IsFoundByALowerCaseHandleUnderAnUpperCaseName)
{
    mark(hexadecimal(m_original.handle()).makeLower(), L"ACDBBLOCKREPBTAG");
    EXPECT_EQ(kddbGetEnhancedBlkOriginalBtrId(m_copy), m_original);
}

TEST_F(DynamicBlock, IsNoCopyOfAnything)
{
    mark(hexadecimal(m_original.handle()));
    EXPECT_TRUE(kddbGetEnhancedBlkOriginalBtrId(m_original).isNull());
}

TEST_F(DynamicBlock, IsNotFoundThroughTheDataOfAnotherApplication)
{
    mark(hexadecimal(m_original.handle()), L"SOMEONE_ELSE");
    EXPECT_TRUE(kddbGetEnhancedBlkOriginalBtrId(m_copy).isNull());
}

TEST_F(DynamicBlock, IsNotFoundByADamagedHandle)
{
    for (const wchar_t* handle :
         {L"", L"0", L"XYZ", L"-1", L" 1F", L"12345678123456789", L"FFFFFF"}) {
        mark(handle);
        EXPECT_TRUE(kddbGetEnhancedBlkOriginalBtrId(m_copy).isNull());
    }
}

TEST_F(DynamicBlock, IsNotTakenForWhatIsNoBlock)
{
    mark(hexadecimal(m_reference.handle()));
    EXPECT_TRUE(kddbGetEnhancedBlkOriginalBtrId(m_copy).isNull());
}

TEST_F(DynamicBlock, HasNoCopyThatIsNullOrNoBlockAtAll)
{
    EXPECT_TRUE(kddbGetEnhancedBlkOriginalBtrId(KdDbObjectId()).isNull());
    auto* line = new KdDbLine;
    ASSERT_EQ(m_database.addObject(line, m_database.modelSpaceId()), eOk);
    EXPECT_TRUE(kddbGetEnhancedBlkOriginalBtrId(line->objectId()).isNull());
}

TEST_F(DynamicBlock, IsLookedForWithoutLeavingAnythingOpen)
{
    mark(hexadecimal(m_original.handle()));
    const long long before = m_database.openCount();
    kddbGetEnhancedBlkOriginalBtrId(m_copy);
    kddbGetEnhancedBlkOriginalBtrId(m_reference);
    EXPECT_EQ(m_database.openCount(), before);
}

TEST_F(DynamicBlock, IsNoSmartBlock)
{
    mark(hexadecimal(m_original.handle()));
    EXPECT_TRUE(kddbGetSmartBlkOriginalBtrId(m_copy).isNull());
    const OpenForRead<KdDbBlockReference> reference(m_reference);
    EXPECT_TRUE(kddbGetSmartBlkOriginalBtrId(*reference).isNull());
}

} // namespace
