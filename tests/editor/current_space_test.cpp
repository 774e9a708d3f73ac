#include "working_drawing.h"

#include <editor/current_space.h>

using namespace editor_test;

namespace {

class CurrentSpace : public WorkingDrawing
{
};

TEST_F(CurrentSpace, IsTheModelAtFirst)
{
    EXPECT_EQ(kdedCurrentSpaceId(), model());
}

TEST_F(CurrentSpace, IsTheSheetWhileItIsShown)
{
    setShort(L"TILEMODE", 0);
    EXPECT_EQ(kdedCurrentSpaceId(), sheet());
    EXPECT_EQ(kdedCurrentSpaceId(),
              kddbHostApplicationServices()->layoutManager()->getActiveLayoutBTRId());
}

TEST_F(CurrentSpace, IsTheModelInAViewportOfTheSheet)
{
    setShort(L"TILEMODE", 0);
    setShort(L"CVPORT", 2);
    EXPECT_EQ(kdedCurrentSpaceId(), model());
}

TEST_F(CurrentSpace, IsTheSheetAgainWhenItsViewportIsLeft)
{
    setShort(L"TILEMODE", 0);
    setShort(L"CVPORT", 2);
    setShort(L"CVPORT", 1);
    EXPECT_EQ(kdedCurrentSpaceId(), sheet());
}

TEST_F(CurrentSpace, FollowsTheLayoutManager)
{
    KdDbLayoutManager* layouts = kddbHostApplicationServices()->layoutManager();
    const auto name = [&](KdDbObjectId block) {
        const OpenForRead<KdDbBlockTableRecord> record(block);
        const OpenForRead<KdDbLayout> layout(record->getLayoutId());
        return layout->getLayoutName();
    };
    ASSERT_EQ(layouts->setCurrentLayout(name(sheet()).kwszPtr()), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), sheet());
    ASSERT_EQ(layouts->setCurrentLayout(name(model()).kwszPtr()), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), model());
}

TEST_F(CurrentSpace, IsNoneWithoutAWorkingDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_TRUE(kdedCurrentSpaceId().isNull());
}

TEST_F(CurrentSpace, IsNoSheetInAProgramWithoutLayouts)
{
    setShort(L"TILEMODE", 0);
    kddbHostApplicationServices()->setHasLayoutManager(false);
    EXPECT_TRUE(kdedCurrentSpaceId().isNull());
    setShort(L"TILEMODE", 1);
    EXPECT_EQ(kdedCurrentSpaceId(), model());
    kddbHostApplicationServices()->setHasLayoutManager(true);
}

} // namespace
