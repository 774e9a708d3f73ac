#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/spline.h>

#include "made_drawing.h"

namespace {

using testing::ElementsAre;

void add(Groups& groups, const Groups& more)
{
    groups.insert(groups.end(), more.begin(), more.end());
}

/// A point in three groups.
void addPoint(Groups& groups, int code, const char* x, const char* y, const char* z)
{
    add(groups, {{code, x}, {code + 10, y}, {code + 20, z}});
}

void addReals(Groups& groups, int code, const std::vector<const char*>& values)
{
    for (const char* value : values)
        groups.emplace_back(code, value);
}

Groups begin(const char* name, const char* flags)
{
    return {{0, name}, {5, "A1"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbSpline"}, {70, flags}};
}

ReadDrawing readEntity(const Groups& groups)
{
    return readGroups(drawing({section("ENTITIES", groups)}));
}

Groups rationalSpline()
{
    Groups groups = begin("SPLINE", "1036"); // rational and planar, and a bit that means nothing
    addPoint(groups, 210, "0", "0", "-2");
    add(groups, {{71, "2"}, {72, "6"}, {73, "3"}, {74, "2"}});
    add(groups, {{42, "0.001"}, {43, "0.002"}, {44, "0.003"}});
    addPoint(groups, 12, "0", "1", "0");
    addPoint(groups, 13, "1", "0", "0");
    addReals(groups, 40, {"0", "0", "0", "1", "1", "1"});
    addReals(groups, 41, {"1", "0.5", "1"});
    addPoint(groups, 10, "1", "0", "3");
    addPoint(groups, 10, "1", "1", "3");
    addPoint(groups, 10, "0", "1", "3");
    addPoint(groups, 11, "1", "0", "3");
    addPoint(groups, 11, "0", "1", "3");
    return groups;
}

TEST(Spline, IsReadWithAllItsLists)
{
    const ReadDrawing drawn = readEntity(rationalSpline());
    const auto* spline = drawn.entity<KdDbSpline>(0);
    ASSERT_TRUE(spline);
    const KdDbNurbsData data = spline->getNurbsData();
    EXPECT_EQ(data.degree, 2);
    EXPECT_TRUE(data.rational);
    EXPECT_THAT(data.knots, ElementsAre(0, 0, 0, 1, 1, 1));
    EXPECT_THAT(data.weights, ElementsAre(1, 0.5, 1));
    EXPECT_THAT(data.controlPoints,
                ElementsAre(KdGePoint3d{1, 0, 3}, KdGePoint3d{1, 1, 3}, KdGePoint3d{0, 1, 3}));
    EXPECT_EQ(data.knotTolerance, 0.001);
    EXPECT_EQ(data.controlPointTolerance, 0.002);
    EXPECT_EQ(spline->fitTolerance(), 0.003);
    EXPECT_EQ(spline->normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_TRUE(spline->isPlanar());
    EXPECT_FALSE(spline->isClosed());
}

TEST(Spline, IsReadWithItsFitData)
{
    const ReadDrawing drawn = readEntity(rationalSpline());
    const auto* spline = drawn.entity<KdDbSpline>(0);
    ASSERT_TRUE(spline);
    ASSERT_EQ(spline->numFitPoints(), 2);
    KdGePoint3d point;
    EXPECT_EQ(spline->getFitPointAt(1, point), eOk);
    EXPECT_EQ(point, (KdGePoint3d{0, 1, 3}));
    KdGeVector3d start;
    KdGeVector3d end;
    EXPECT_EQ(spline->getFitTangents(start, end), eOk);
    EXPECT_EQ(start, KdGeVector3d::kYAxis);
    EXPECT_EQ(end, KdGeVector3d::kXAxis);
}

TEST(Spline, IsClosedByEitherFlag)
{
    for (const char* flags : {"1", "2", "11"})
        EXPECT_TRUE(readEntity(begin("SPLINE", flags)).entity<KdDbSpline>(0)->isClosed()) << flags;
    EXPECT_FALSE(readEntity(begin("SPLINE", "28")).entity<KdDbSpline>(0)->isClosed());
}

TEST(Spline, GetsItsCurveFromItsFitPointsIfTheDrawingGivesNone)
{
    Groups groups = begin("SPLINE", "8");
    add(groups, {{71, "3"}, {74, "3"}});
    addPoint(groups, 11, "0", "0", "0");
    addPoint(groups, 11, "3", "4", "0");
    addPoint(groups, 11, "6", "0", "0");
    const ReadDrawing drawn = readEntity(groups);
    const auto* spline = drawn.entity<KdDbSpline>(0);
    ASSERT_TRUE(spline);
    EXPECT_EQ(spline->numControlPoints(), 5);
    KdGePoint3d point;
    EXPECT_EQ(spline->getPointAtParam(5, point), eOk);
    EXPECT_NEAR(point.distanceTo({3, 4, 0}), 0, 1e-12);
}

TEST(Spline, WithCountsThatLieHasWhatIsThere)
{
    Groups groups = begin("SPLINE", "8");
    add(groups, {{71, "3"}, {72, "2147483647"}, {73, "2147483647"}, {74, "-5"}});
    addPoint(groups, 10, "1", "0", "3");
    const ReadDrawing drawn = readEntity(groups);
    const auto* spline = drawn.entity<KdDbSpline>(0);
    ASSERT_TRUE(spline);
    EXPECT_EQ(spline->numControlPoints(), 1);
    double length = 7.0;
    EXPECT_EQ(spline->getDistAtParam(0, length), eNotApplicable);
    EXPECT_EQ(length, 7.0);
}

Groups helix(const char* constraint)
{
    Groups groups = begin("HELIX", "0");
    add(groups, {{71, "1"}});
    addReals(groups, 40, {"0", "0", "1", "1"});
    addPoint(groups, 10, "0", "0", "0");
    addPoint(groups, 10, "3", "4", "0");
    add(groups, {{100, "AcDbHelix"}, {90, "31"}, {91, "105"}});
    addPoint(groups, 10, "1", "2", "3");
    addPoint(groups, 11, "1", "7", "3");
    addPoint(groups, 12, "0", "0", "1");
    add(groups, {{40, "2"}, {41, "1.5"}, {42, "8"}, {290, "0"}, {280, constraint}});
    return groups;
}

TEST(Helix, IsReadWithItsRuleAndItsSpline)
{
    const ReadDrawing drawn = readEntity(helix("1"));
    const auto* entity = drawn.entity<KdDbHelix>(0);
    ASSERT_TRUE(entity);
    EXPECT_EQ(entity->degree(), 1);
    EXPECT_EQ(entity->numControlPoints(), 2);
    double length = 0.0;
    EXPECT_EQ(entity->getDistAtParam(1, length), eOk);
    EXPECT_NEAR(length, 5.0, 1e-12);
    EXPECT_EQ(entity->position(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(entity->axisVector(), KdGeVector3d::kZAxis);
    EXPECT_EQ(entity->baseRadius(), 5.0);
    EXPECT_EQ(entity->topRadius(), 2.0);
    EXPECT_EQ(entity->turns(), 1.5);
    EXPECT_EQ(entity->turnHeight(), 8.0);
    EXPECT_EQ(entity->height(), 12.0);
    EXPECT_FALSE(entity->twist());
}

struct ConstraintCase
{
    const char* name;
    const char* written;
    int meaning;
};

class ConstraintOfHelix : public testing::TestWithParam<ConstraintCase>
{
};

TEST_P(ConstraintOfHelix, IsReadByItsMeaning)
{
    const ReadDrawing drawn = readEntity(helix(GetParam().written));
    EXPECT_EQ(drawn.entity<KdDbHelix>(0)->constrain(), GetParam().meaning);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ConstraintOfHelix,
                         testing::Values(ConstraintCase{"turnHeight", "0", KdDb::kHelixTurnHeight},
                                         ConstraintCase{"turns", "1", KdDb::kHelixTurns},
                                         ConstraintCase{"height", "2", KdDb::kHelixHeight},
                                         ConstraintCase{"none", "9", 9}),
                         [](const auto& row) { return row.param.name; });

} // namespace
