#include <values/point_text.h>

#include <cmath>
#include <numbers>

#include <values/ucs_frame.h>

#include "support.h"

namespace {

using PointText = UnitsTest;

TEST_F(PointText, JoinsTheCoordinatesByCommas)
{
    CStdStr<wchar_t> text;
    EXPECT_EQ(RTNORM, point3dToString({1.0, -2.5, 0.0}, -1, -1, text));
    EXPECT_STREQ(L"1.0000,-2.5000,0.0000", text.c_str());
    EXPECT_EQ(RTNORM, point3dToString({66.5, 6.0, 0.25}, 4, 2, text));
    EXPECT_STREQ(L"5'-6 1/2\",6\",1/4\"", text.c_str());
}

TEST_F(PointText, OfABadCoordinateOrUnitLeavesTheTextAlone)
{
    CStdStr<wchar_t> text = L"untouched";
    EXPECT_EQ(RTERROR, point3dToString({1.0, 2.0, 3.0}, 9, 2, text));
    EXPECT_EQ(RTERROR, point3dToString({1.0, std::nan(""), 3.0}, 2, 2, text));
    EXPECT_EQ(RTERROR, point3dToString({1.0, 2.0, INFINITY}, 2, 2, text));
    EXPECT_STREQ(L"untouched", text.c_str());
}

struct Accepted
{
    const char* name;
    const wchar_t* text;
    KdGePoint3d point;
};

class AcceptedPoint : public testing::TestWithParam<Accepted>
{
};

TEST_P(AcceptedPoint, IsReadByCoordinates)
{
    KdGePoint3d point{-9.0, -9.0, -9.0};
    EXPECT_EQ(RTNORM, stringTo3dPoint(KdString(GetParam().text), -1, point));
    EXPECT_EQ(GetParam().point, point);
}

// clang-format off
const Accepted kAccepted[] = {
    {"three", L"1,2,3", {1.0, 2.0, 3.0}},
    {"two", L"1,2", {1.0, 2.0, 0.0}},
    {"emptyThird", L"1,2, ", {1.0, 2.0, 0.0}},
    {"spaceAnywhere", L" \t1 ,\t2.5, -3 \n", {1.0, 2.5, -3.0}},
    {"feet", L"1',6\",1/2", {12.0, 6.0, 0.5}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, AcceptedPoint, testing::ValuesIn(kAccepted), RowName());

TEST(PointReader, LeavesThePointAloneOnFailure)
{
    for (const wchar_t* bad :
         {L"", L"1", L"1,", L",2,3", L"x,2,3", L"1,y,3", L"1,2,z", L"1,2,3,4"}) {
        KdGePoint3d point{-9.0, -8.0, -7.0};
        EXPECT_EQ(RTERROR, stringTo3dPoint(KdString(bad), -1, point));
        EXPECT_EQ((KdGePoint3d{-9.0, -8.0, -7.0}), point);
    }
}

TEST(PointReader, TellsTheFirstStatus)
{
    KdGePoint3d point;
    EXPECT_EQ(RTREJ, stringTo3dPoint(KdString(L"1,1e305,x"), -1, point));
}

using UcsFrame = UnitsTest;

TEST_F(UcsFrame, IsTheWorldOfANewDrawing)
{
    const KdGePoint3d point = UcsToWcsTransform() * KdGePoint3d{1.0, 2.0, 3.0};
    EXPECT_EQ((KdGePoint3d{1.0, 2.0, 3.0}), point);
}

TEST_F(UcsFrame, FollowsOriginAndAxes)
{
    set(L"UCSORG", KdGePoint3d{10.0, 20.0, 30.0});
    set(L"UCSXDIR", KdGePoint3d{0.0, 1.0, 0.0});
    set(L"UCSYDIR", KdGePoint3d{0.0, 0.0, 1.0});
    // x to Y, y to Z, and so z to X.
    EXPECT_EQ((KdGePoint3d{13.0, 21.0, 32.0}), UcsToWcsTransform() * KdGePoint3d({1.0, 2.0, 3.0}));
    EXPECT_EQ((KdGePoint3d{13.0, 21.0, 32.0}), ucsToWcsTransf() * KdGePoint3d({1.0, 2.0, 3.0}));
}

TEST(UcsFrameAlone, IsTheWorldWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ((KdGePoint3d{1.0, 2.0, 3.0}), UcsToWcsTransform() * KdGePoint3d({1.0, 2.0, 3.0}));
}

} // namespace
