#include <gtest/gtest.h>

#include <entities/circle.h>
#include <entities/proxy_entity.h>
#include <entities/viewport.h>

namespace {

TEST(Viewport, BeginsSwitchedOnRectangularAndWithoutANumber)
{
    const KdDbViewport viewport;
    EXPECT_TRUE(viewport.isOn());
    EXPECT_TRUE(viewport.nonRectClipEntityId().isNull());
    EXPECT_EQ(viewport.number(), 0);
}

TEST(Viewport, AnswersWhatItsRecordHolds)
{
    const KdDbCircle boundary;
    KdDbViewport viewport;
    ViewportMembers& members = viewport.edit();
    members.center = {100, 50, 0};
    members.width = 40;
    members.height = 30;
    members.clipEntity = boundary.objectId();
    members.number = 2;
    members.on = false;
    EXPECT_EQ(viewport.centerPoint(), (KdGePoint3d{100, 50, 0}));
    EXPECT_EQ(viewport.width(), 40);
    EXPECT_EQ(viewport.height(), 30);
    EXPECT_EQ(viewport.nonRectClipEntityId(), boundary.objectId());
    EXPECT_EQ(viewport.number(), 2);
    EXPECT_FALSE(viewport.isOn());
}

TEST(ProxyEntity, KnowsTheNameThatItsKindHasInDrawings)
{
    KdDbProxyEntity proxy;
    EXPECT_TRUE(proxy.originalDxfName().isEmpty());
    proxy.edit().originalDxfName = L"AEC_WALL";
    EXPECT_EQ(proxy.originalDxfName(), L"AEC_WALL");
}

} // namespace
