#include <entities/ellipse.h>

#include <numbers>

#include "support.h"

namespace {

using namespace entity_test;

constexpr double kPi = std::numbers::pi;

/// About (1, 2, 3), 4 long along Y and 2 wide.
class Ellipse : public testing::Test
{
  protected:
    Ellipse()
    {
        ellipse.edit().center = {1, 2, 3};
        ellipse.edit().majorAxis = {0, 4, 0};
        ellipse.edit().radiusRatio = 0.5;
    }
    void cut(double startParam, double endParam)
    {
        ellipse.edit().startParam = startParam;
        ellipse.edit().endParam = endParam;
    }
    KdGePoint3d start() const
    {
        KdGePoint3d point;
        EXPECT_EQ(ellipse.getStartPoint(point), eOk);
        return point;
    }
    KdGePoint3d end() const
    {
        KdGePoint3d point;
        EXPECT_EQ(ellipse.getEndPoint(point), eOk);
        return point;
    }
    double endParam() const
    {
        double parameter = 0.0;
        EXPECT_EQ(ellipse.getEndParam(parameter), eOk);
        return parameter;
    }
    double area() const
    {
        double value = 0.0;
        EXPECT_EQ(ellipse.getArea(value), eOk);
        return value;
    }

    KdDbEllipse ellipse;
};

TEST_F(Ellipse, HasAMinorAxisAcrossTheMajorOne)
{
    EXPECT_EQ(ellipse.majorAxis(), (KdGeVector3d{0, 4, 0}));
    EXPECT_THAT(ellipse.minorAxis(), IsNear(KdGeVector3d{-2, 0, 0}));
    ellipse.edit().extrusion.setDirection({5, 0, 0});
    EXPECT_THAT(ellipse.normal(), IsNear(KdGeVector3d::kXAxis));
    EXPECT_THAT(ellipse.minorAxis(), IsNear(KdGeVector3d{0, 0, 2}));
}

TEST_F(Ellipse, IsClosedAtFirst)
{
    EXPECT_TRUE(ellipse.isClosed());
    EXPECT_EQ(endParam(), 2 * kPi);
    EXPECT_THAT(start(), IsNear(KdGePoint3d{1, 6, 3}));
    EXPECT_THAT(end(), IsNear(KdGePoint3d{1, 6, 3}));
    EXPECT_EQ(ellipse.startAngle(), 0.0);
    EXPECT_EQ(ellipse.endAngle(), 2 * kPi);
    EXPECT_DOUBLE_EQ(area(), 8 * kPi);
}

TEST_F(Ellipse, RunsFromParameterToParameter)
{
    cut(kPi / 2, kPi);
    double parameter = 0.0;
    EXPECT_EQ(ellipse.getStartParam(parameter), eOk);
    EXPECT_EQ(parameter, kPi / 2);
    EXPECT_EQ(endParam(), kPi);
    EXPECT_FALSE(ellipse.isClosed());
    EXPECT_THAT(start(), IsNear(KdGePoint3d{-1, 2, 3}));
    EXPECT_THAT(end(), IsNear(KdGePoint3d{1, -2, 3}));
    EXPECT_NEAR(area(), 2 * kPi - 4, 1e-12); // a quarter less the triangle
}

TEST_F(Ellipse, HasAnglesThatDifferFromItsParameters)
{
    cut(kPi / 4, 5 * kPi / 4);
    // tan(angle) is half of tan(parameter)
    EXPECT_NEAR(ellipse.startAngle(), 0.46364760900080615, 1e-14);
    EXPECT_NEAR(ellipse.endAngle(), 0.46364760900080615 + kPi, 1e-14);
}

TEST_F(Ellipse, HasAnglesWithinOneTurnAlsoPastTheMajorAxis)
{
    cut(7 * kPi / 4, kPi / 4);
    EXPECT_NEAR(ellipse.startAngle(), 2 * kPi - 0.46364760900080615, 1e-14);
    EXPECT_NEAR(ellipse.endAngle(), 0.46364760900080615, 1e-14);
    EXPECT_DOUBLE_EQ(endParam(), 9 * kPi / 4);
    EXPECT_NEAR(area(), 2 * kPi - 4, 1e-12);
}

TEST_F(Ellipse, RunsClockwiseForANegativeRatio)
{
    ellipse.edit().radiusRatio = -0.5;
    cut(0, kPi / 2);
    EXPECT_THAT(ellipse.minorAxis(), IsNear(KdGeVector3d{2, 0, 0}));
    EXPECT_THAT(end(), IsNear(KdGePoint3d{3, 2, 3}));
    EXPECT_NEAR(ellipse.endAngle(), 3 * kPi / 2, 1e-14);
    EXPECT_NEAR(area(), 2 * kPi - 4, 1e-12);
}

} // namespace
