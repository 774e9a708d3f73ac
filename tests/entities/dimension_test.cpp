#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include <database/associativity.h>
#include <database/database.h>
#include <database/support.h>
#include <entities/all.h>

using database_test::addToModel;
using database_test::OpenForWrite;

namespace {

constexpr double kPi = std::numbers::pi;

double measured(const KdDbDimension& dimension)
{
    double value = -1.0;
    EXPECT_EQ(dimension.measurement(value), eOk);
    return value;
}

TEST(AlignedDimension, MeasuresTheDistanceInSpace)
{
    KdDbAlignedDimension dimension;
    dimension.edit().xLine1Point = {1, 1, 1};
    dimension.edit().xLine2Point = {3, 4, 7};
    EXPECT_DOUBLE_EQ(measured(dimension), 7.0);
}

TEST(RotatedDimension, MeasuresAlongItsDirection)
{
    KdDbRotatedDimension dimension;
    dimension.edit().xLine1Point = {0, 0, 0};
    dimension.edit().xLine2Point = {-3, 4, 0};
    EXPECT_DOUBLE_EQ(measured(dimension), 3.0);
    dimension.edit().rotation = kPi / 2;
    EXPECT_DOUBLE_EQ(measured(dimension), 4.0);
    dimension.edit().rotation = kPi / 4;
    EXPECT_NEAR(measured(dimension), std::sqrt(0.5), 1e-12);
}

TEST(RotatedDimension, CountsItsDirectionInTheFrameOfTheEntity)
{
    KdDbRotatedDimension dimension;
    dimension.edit().extrusion.setDirection({1, 0, 0}); // x along the world's Y, y along its Z
    dimension.edit().xLine2Point = {100, 5, 12};
    EXPECT_DOUBLE_EQ(measured(dimension), 5.0);
    dimension.edit().rotation = kPi / 2;
    EXPECT_DOUBLE_EQ(measured(dimension), 12.0);
}

TEST(OrdinateDimension, MeasuresAlongAnAxisOfTheUser)
{
    KdDbOrdinateDimension dimension;
    dimension.edit().origin = {1, 1, 0};
    dimension.edit().definingPoint = {4, -6, 0};
    EXPECT_DOUBLE_EQ(measured(dimension), 7.0);
    dimension.edit().usesXAxis = true;
    EXPECT_DOUBLE_EQ(measured(dimension), 3.0);
    dimension.edit().horizontalRotation = -kPi / 2; // the user's x axis is the world's Y
    EXPECT_DOUBLE_EQ(measured(dimension), 7.0);
}

TEST(RadialDimension, MeasuresTheRadius)
{
    KdDbRadialDimension radial;
    radial.edit().center = {1, 1, 0};
    radial.edit().chordPoint = {4, 5, 0};
    EXPECT_DOUBLE_EQ(measured(radial), 5.0);
    KdDbRadialDimensionLarge large;
    large.edit().chordPoint = {5, 12, 0};
    large.edit().overrideCenter = {1, 1, 0};
    EXPECT_DOUBLE_EQ(measured(large), 13.0);
}

TEST(DiametricDimension, MeasuresTheDiameter)
{
    KdDbDiametricDimension dimension;
    dimension.edit().chordPoint = {-3, 0, 0};
    dimension.edit().farChordPoint = {3, 8, 0};
    EXPECT_DOUBLE_EQ(measured(dimension), 10.0);
}

struct SectorCase
{
    const char* name;
    KdGePoint3d arcPoint;
    double degrees;
};

class TwoLines : public testing::TestWithParam<SectorCase>
{
};

TEST_P(TwoLines, MeasureTheSectorOfTheArcPoint)
{
    // One line along the x axis, one at 60 degrees; they meet in the origin, outside of both.
    KdDb2LineAngularDimension dimension;
    auto& members = dimension.edit();
    members.xLine1Start = {5, 0, 0};
    members.xLine1End = {2, 0, 0};
    members.xLine2Start = {1, std::sqrt(3.0), 0};
    members.xLine2End = {2, 2 * std::sqrt(3.0), 0};
    members.arcPoint = GetParam().arcPoint;
    EXPECT_NEAR(measured(dimension) * 180 / kPi, GetParam().degrees, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(, TwoLines,
                         testing::Values(SectorCase{"between", {3, 1, 0}, 60},
                                         SectorCase{"left", {-1, 3, 0}, 120},
                                         SectorCase{"across", {-3, -1, 0}, 60},
                                         SectorCase{"below", {1, -3, 0}, 120}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TwoLinesThatDoNotMeet, HaveNoMeasurement)
{
    KdDb2LineAngularDimension dimension;
    dimension.edit().xLine1End = {1, 0, 0};
    dimension.edit().xLine2Start = {0, 1, 0};
    dimension.edit().xLine2End = {1, 1, 0};
    double value = 17.0;
    EXPECT_EQ(dimension.measurement(value), eInvalidInput);
    EXPECT_EQ(value, 17.0);
}

class ThreePoints : public testing::TestWithParam<SectorCase>
{
};

TEST_P(ThreePoints, MeasureTheSideOfTheArcPoint)
{
    KdDb3PointAngularDimension dimension;
    auto& members = dimension.edit();
    members.centerPoint = {1, 1, 0};
    members.xLine1Point = {3, 1, 0};
    members.xLine2Point = {1, 5, 0};
    members.arcPoint = GetParam().arcPoint;
    EXPECT_NEAR(measured(dimension) * 180 / kPi, GetParam().degrees, 1e-9);
    std::swap(members.xLine1Point, members.xLine2Point);
    EXPECT_NEAR(measured(dimension) * 180 / kPi, GetParam().degrees, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(, ThreePoints,
                         testing::Values(SectorCase{"inside", {2, 2, 0}, 90},
                                         SectorCase{"opposite", {0, 0, 0}, 270},
                                         SectorCase{"left", {0, 2, 0}, 270}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ThreePointsOfWhichTwoAreOne, HaveNoMeasurement)
{
    KdDb3PointAngularDimension dimension;
    dimension.edit().xLine1Point = {1, 0, 0};
    double value = 0.0;
    EXPECT_EQ(dimension.measurement(value), eInvalidInput);
}

TEST(ArcDimension, MeasuresTheLengthOfTheArc)
{
    KdDbArcDimension dimension;
    auto& members = dimension.edit();
    members.xLine1Point = {2, 0, 0};
    members.xLine2Point = {0, 2, 0};
    members.arcPoint = {3, 3, 0};
    EXPECT_NEAR(measured(dimension), kPi, 1e-12); // a quarter of a circle of radius 2
    members.arcStartParam = 1.5 * kPi;            // stated angles count before the points
    members.arcEndParam = 0.5 * kPi;
    EXPECT_NEAR(measured(dimension), 2 * kPi, 1e-12);
}

TEST(Measurement, OfALengthIsScaled)
{
    KdDbAlignedDimension length;
    length.edit().xLine2Point = {2, 0, 0};
    length.edit().dimension.overrides.set(KdDbDimVar::dimlfac, 2.5);
    EXPECT_DOUBLE_EQ(measured(length), 5.0);
    KdDb3PointAngularDimension angle;
    angle.edit().xLine1Point = {1, 0, 0};
    angle.edit().xLine2Point = {0, 1, 0};
    angle.edit().arcPoint = {1, 1, 0};
    angle.edit().dimension.overrides.set(KdDbDimVar::dimlfac, 2.5);
    EXPECT_DOUBLE_EQ(measured(angle), kPi / 2);
}

TEST(Measurement, IsScaledByANegativeFactorOnSheetsAlone)
{
    KdDbDatabase drawing;
    const auto fill = [](KdDbAlignedDimension& dimension) {
        dimension.edit().xLine2Point = {2, 0, 0};
        dimension.edit().dimension.overrides.set(KdDbDimVar::dimlfac, -3.0);
    };
    auto* onModel = new KdDbAlignedDimension;
    auto* onSheet = new KdDbAlignedDimension;
    fill(*onModel);
    fill(*onSheet);
    OpenForWrite<KdDbBlockTableRecord>(drawing.modelSpaceId())->appendEntity(onModel);
    OpenForWrite<KdDbBlockTableRecord>(drawing.activeSheetId())->appendEntity(onSheet);
    EXPECT_DOUBLE_EQ(measured(*onModel), 2.0);
    EXPECT_DOUBLE_EQ(measured(*onSheet), 6.0);
}

TEST(Measurement, IsNoneOfPointsThatAreNoNumbers)
{
    KdDbRotatedDimension dimension;
    dimension.edit().xLine1Point.x = std::numeric_limits<double>::infinity();
    double value = 17.0;
    EXPECT_EQ(dimension.measurement(value), eInvalidInput);
    EXPECT_EQ(value, 17.0);
}

TEST(Dimension, HasItsTextInTheWorld)
{
    KdDbRadialDimension dimension;
    dimension.edit().textPosition = {1, 2, 3};
    dimension.edit().extrusion.setDirection({0, 0, -5});
    EXPECT_EQ(dimension.textPosition(), (KdGePoint3d{-1, 2, -3}));
    EXPECT_EQ(dimension.normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_TRUE(dimension.isPlanar());
}

TEST(LargeRadialDimension, HasTheJogAngleThatCounts)
{
    KdDbRadialDimensionLarge dimension;
    EXPECT_DOUBLE_EQ(dimension.jogAngle(), kPi / 4);
    dimension.edit().dimension.overrides.set(KdDbDimVar::dimjogang, 1.25);
    EXPECT_EQ(dimension.jogAngle(), 1.25);
}

// Constraints.

template <class Object>
Object* addObject(KdDbDatabase& drawing, KdDbObjectId owner)
{
    auto* object = new Object;
    EXPECT_EQ(drawing.addObject(object, owner), eOk);
    return object;
}

/// A dimension with a dependency that has a body, in a group of constraints of a network.
class DimensionalConstraint : public testing::Test
{
  protected:
    DimensionalConstraint()
    {
        OpenForWrite<KdDbAssocDependency> dependencyToChange(dependency->objectId());
        dependencyToChange->edit().body = body->objectId();
        dependencyToChange->edit().reads = false;
        dependencyToChange->edit().writes = true;
        const OpenForWrite<KdDbAlignedDimension> dimensionToChange(dimension->objectId());
        dimensionToChange->edit().links.edit().reactors = {dependency->objectId()};
        const OpenForWrite<KdDbAssocVariable> variableToChange(variable->objectId());
        variableToChange->edit().name = L"d1";
        const OpenForWrite<KdDbAssocNetwork> networkToChange(network->objectId());
        networkToChange->edit().actions = {group->objectId(), variable->objectId()};
    }

    KdDbDatabase drawing;
    KdDbAssocNetwork* network = addObject<KdDbAssocNetwork>(drawing, {});
    KdDbAssoc2dConstraintGroup* group =
        addObject<KdDbAssoc2dConstraintGroup>(drawing, network->objectId());
    KdDbAssocVariable* variable = addObject<KdDbAssocVariable>(drawing, network->objectId());
    KdDbAssocDependency* dependency = addObject<KdDbAssocDependency>(drawing, group->objectId());
    KdDbAssocDimDependencyBody* body =
        addObject<KdDbAssocDimDependencyBody>(drawing, dependency->objectId());
    KdDbAlignedDimension* dimension = addToModel<KdDbAlignedDimension>(drawing);
};

TEST_F(DimensionalConstraint, IsADimensionWithADependencyOfThatBody)
{
    EXPECT_TRUE(dimension->isConstraintObject());
    EXPECT_FALSE(dimension->isConstraintDynamic());
    OpenForWrite<KdDbAssocDependency>(dependency->objectId())->edit().body = {};
    EXPECT_FALSE(dimension->isConstraintObject());
    EXPECT_FALSE(KdDbRadialDimension().isConstraintObject());
}

TEST_F(DimensionalConstraint, IsDynamicOnALayerOfItsOwn)
{
    OpenForWrite<KdDbAlignedDimension>(dimension->objectId())
        ->setLayer(drawing.findOrAddRecord<KdDbLayerTable>(L"*ADSK_CONSTRAINTS"));
    EXPECT_TRUE(dimension->isConstraintDynamic());
}

TEST_F(DimensionalConstraint, TellsWhetherItsValueFollowsFromAnExpression)
{
    OpenForWrite<KdDbAssocDimDependencyBody>(body->objectId())->edit().variable =
        variable->objectId();
    bool hasExpression = true;
    bool isReference = true;
    OpenForWrite<KdDbAssocVariable>(variable->objectId())->edit().expression = L"13.0";
    EXPECT_TRUE(dimension->isConstraintObject(hasExpression, isReference));
    EXPECT_FALSE(hasExpression);
    EXPECT_FALSE(isReference);
    OpenForWrite<KdDbAssocVariable>(variable->objectId())->edit().expression = L"d2/2";
    dimension->isConstraintObject(hasExpression, isReference);
    EXPECT_TRUE(hasExpression);
    EXPECT_FALSE(KdDbRadialDimension().isConstraintObject(hasExpression, isReference));
    EXPECT_FALSE(hasExpression);
}

TEST_F(DimensionalConstraint, FindsItsVariableByTheMeasureOfTheGroup)
{
    auto* value = addObject<KdDbAssocValueDependency>(drawing, group->objectId());
    OpenForWrite<KdDbAssocValueDependency>(value->objectId())->edit().dependentOn =
        variable->objectId();
    OpenForWrite<KdDbAssoc2dConstraintGroup>(group->objectId())->edit().measures = {
        {value->objectId(), dependency->objectId()}};
    EXPECT_EQ(body->variable(), variable->objectId());
}

TEST_F(DimensionalConstraint, FindsItsVariableByNameOtherwise)
{
    const auto setText = [this](const wchar_t* text) {
        OpenForWrite<KdDbAssocDimDependencyBody>(body->objectId())->edit().text = text;
    };
    for (const wchar_t* text : {L"d1", L"d1=13", L"D1=2*d2"}) {
        setText(text);
        EXPECT_EQ(body->variable(), variable->objectId());
    }
    setText(L"d2=13");
    EXPECT_TRUE(body->variable().isNull());
    EXPECT_EQ(drawing.openCount(), 0);
}

TEST_F(DimensionalConstraint, HasNoVariableWithoutOwners)
{
    EXPECT_TRUE(KdDbAssocDimDependencyBody().variable().isNull());
}

TEST_F(DimensionalConstraint, IsAmongTheDependenciesThatWrite)
{
    KdArray<KdDbObjectId> ids;
    EXPECT_EQ(KdDbAssocDependency::getDependenciesOnObject(dimension, true, false, ids), eOk);
    EXPECT_TRUE(ids.isEmpty());
    EXPECT_EQ(KdDbAssocDependency::getDependenciesOnObject(dimension, false, true, ids), eOk);
    ASSERT_EQ(ids.length(), 1);
    EXPECT_EQ(ids[0], dependency->objectId());
    EXPECT_EQ(KdDbAssocDependency::getDependenciesOnObject(nullptr, true, true, ids),
              eNullObjectPointer);
}

} // namespace
