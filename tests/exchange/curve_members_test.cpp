#include <numbers>

#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace {

constexpr double kPi = std::numbers::pi;

ReadDrawing readEntity(const Groups& groups)
{
    return readGroups(drawing({section("ENTITIES", groups)}));
}

const Groups kEllipse{{0, "ELLIPSE"}, {8, "0"},    {10, "1"},    {20, "2"},  {30, "3"},
                      {11, "0"},      {21, "4"},   {31, "0"},    {210, "0"}, {220, "0"},
                      {230, "-2"},    {40, "0.5"}, {41, "0.25"}, {42, "1.5"}};

TEST(Ellipse, IsReadInTheWorldAndInRadians)
{
    const ReadDrawing drawn = readEntity(kEllipse);
    const auto* ellipse = drawn.entity<KdDbEllipse>(0);
    EXPECT_EQ(ellipse->center(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(ellipse->majorAxis(), (KdGeVector3d{0, 4, 0}));
    EXPECT_EQ(ellipse->normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_EQ(ellipse->minorAxis(), (KdGeVector3d{2, 0, 0}));
    EXPECT_EQ(ellipse->radiusRatio(), 0.5);
    double parameter = 0.0;
    EXPECT_EQ(ellipse->getStartParam(parameter), eOk);
    EXPECT_EQ(parameter, 0.25);
    EXPECT_EQ(ellipse->getEndParam(parameter), eOk);
    EXPECT_EQ(parameter, 1.5);
}

TEST(Ellipse, IsClosedUnlessTheDrawingSaysOtherwise)
{
    const ReadDrawing drawn = readEntity({{0, "ELLIPSE"}, {8, "0"}, {11, "2"}, {40, "0.5"}});
    const auto* ellipse = drawn.entity<KdDbEllipse>(0);
    EXPECT_TRUE(ellipse->isClosed());
    double area = 0.0;
    EXPECT_EQ(ellipse->getArea(area), eOk);
    EXPECT_DOUBLE_EQ(area, 2 * kPi);
}

TEST(Ray, IsRead)
{
    const ReadDrawing drawn = readEntity(
        {{0, "RAY"}, {8, "0"}, {10, "1"}, {20, "2"}, {30, "3"}, {11, "0"}, {21, "-1"}, {31, "0"}});
    const auto* ray = drawn.entity<KdDbRay>(0);
    EXPECT_EQ(ray->basePoint(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(ray->unitDir(), (KdGeVector3d{0, -1, 0}));
}

TEST(ConstructionLine, IsRead)
{
    const ReadDrawing drawn = readEntity(
        {{0, "XLINE"}, {8, "0"}, {10, "1"}, {20, "2"}, {30, "3"}, {11, "0"}, {21, "0"}, {31, "1"}});
    const auto* line = drawn.entity<KdDbXline>(0);
    EXPECT_EQ(line->basePoint(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(line->unitDir(), (KdGeVector3d{0, 0, 1}));
}

} // namespace
