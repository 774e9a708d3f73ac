// Dimensions and what makes them constraints.
#include <gtest/gtest.h>

#include <numbers>

#include <database/associativity.h>
#include <entities/all.h>

#include "made_drawing.h"

namespace {

constexpr double kPi = std::numbers::pi;

/// Points with coordinates of their own: (code, code + 1, 0).
Groups point(int code)
{
    return {{code, std::to_string(code)}, {code + 10, std::to_string(code + 1)}, {code + 20, "0"}};
}

KdGePoint3d at(int code)
{
    return {double(code), double(code + 1), 0.0};
}

Groups joined(std::initializer_list<Groups> parts)
{
    Groups all;
    for (const Groups& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// A dimension of R12 by its number, or of later versions by its subclasses.
ReadDrawing readDimension(const Groups& head, const Groups& tail, const char* version = "AC1027")
{
    const Groups points =
        joined({point(10), point(11), point(13), point(14), point(15), point(16)});
    return readGroups(
        drawing({header(version), section("ENTITIES", joined({head, points, tail}))}));
}

Groups ofR12(const char* kind)
{
    return {{0, "DIMENSION"}, {8, "0"}, {70, kind}};
}

Groups marked(std::initializer_list<const char*> subclasses)
{
    Groups groups{{0, "DIMENSION"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbDimension"}};
    for (const char* subclass : subclasses)
        groups.push_back({100, subclass});
    return groups;
}

TEST(Dimension, HasWhatAllKindsHave)
{
    const ReadDrawing drawn = readDimension(
        ofR12("33"),
        {{1, "about <>"}, {51, "-90"}, {53, "45"}, {210, "0"}, {220, "0"}, {230, "-1"}});
    const auto* dimension = drawn.entity<KdDbAlignedDimension>(0);
    ASSERT_TRUE(dimension);
    EXPECT_EQ(dimension->dimensionText(), L"about <>");
    EXPECT_NEAR(dimension->textRotation(), kPi / 4, 1e-12);
    EXPECT_NEAR(dimension->horizontalRotation(), -kPi / 2, 1e-12);
    EXPECT_EQ(dimension->textPosition(), (KdGePoint3d{-11, 12, 0})); // in the frame of the entity
    EXPECT_EQ(dimension->xLine1Point(), at(13));                     // in the world
    EXPECT_EQ(dimension->normal(), (KdGeVector3d{0, 0, -1}));
}

TEST(Dimension, KnowsTheBlockThatDrawsIt)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("BLOCKS", {{0, "BLOCK"}, {2, "*D1"}, {0, "ENDBLK"}}),
                            section("ENTITIES", {{0, "DIMENSION"}, {8, "0"}, {2, "*D1"}})}));
    EXPECT_EQ(drawn.entity<KdDbDimension>(0)->dimBlockId(),
              drawn.record<KdDbBlockTable>(L"*D1")->objectId());
}

TEST(RotatedDimension, IsRead)
{
    for (const Groups& head :
         {ofR12("32"), marked({"AcDbAlignedDimension", "AcDbRotatedDimension"})}) {
        const ReadDrawing drawn = readDimension(head, {{50, "90"}, {52, "30"}});
        const auto* dimension = drawn.entity<KdDbRotatedDimension>(0);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->dimLinePoint(), at(10));
        EXPECT_EQ(dimension->xLine1Point(), at(13));
        EXPECT_EQ(dimension->xLine2Point(), at(14));
        EXPECT_NEAR(dimension->rotation(), kPi / 2, 1e-12);
        EXPECT_NEAR(dimension->oblique(), kPi / 6, 1e-12);
    }
}

TEST(AlignedDimension, IsRead)
{
    for (const Groups& head : {ofR12("1"), marked({"AcDbAlignedDimension"})}) {
        const ReadDrawing drawn = readDimension(head, {{52, "30"}});
        const auto* dimension = drawn.entity<KdDbAlignedDimension>(0);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->dimLinePoint(), at(10));
        EXPECT_EQ(dimension->xLine1Point(), at(13));
        EXPECT_EQ(dimension->xLine2Point(), at(14));
        EXPECT_NEAR(dimension->oblique(), kPi / 6, 1e-12);
    }
}

TEST(TwoLineAngularDimension, IsRead)
{
    for (const Groups& head : {ofR12("2"), marked({"AcDb2LineAngularDimension"})}) {
        const ReadDrawing drawn = readDimension(head, {});
        const auto* dimension = drawn.entity<KdDb2LineAngularDimension>(0);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->xLine1Start(), at(13));
        EXPECT_EQ(dimension->xLine1End(), at(14));
        EXPECT_EQ(dimension->xLine2Start(), at(15));
        EXPECT_EQ(dimension->xLine2End(), at(10));
        EXPECT_EQ(dimension->arcPoint(), at(16));
    }
}

TEST(DiametricDimension, IsRead)
{
    for (const Groups& head : {ofR12("3"), marked({"AcDbDiametricDimension"})}) {
        const ReadDrawing drawn = readDimension(head, {{40, "2.5"}});
        const auto* dimension = drawn.entity<KdDbDiametricDimension>(0);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->chordPoint(), at(15));
        EXPECT_EQ(dimension->farChordPoint(), at(10));
        EXPECT_EQ(dimension->leaderLength(), 2.5);
    }
}

TEST(RadialDimension, IsRead)
{
    for (const Groups& head : {ofR12("4"), marked({"AcDbRadialDimension"})}) {
        const ReadDrawing drawn = readDimension(head, {{40, "2.5"}});
        const auto* dimension = drawn.entity<KdDbRadialDimension>(0);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->center(), at(10));
        EXPECT_EQ(dimension->chordPoint(), at(15));
        EXPECT_EQ(dimension->leaderLength(), 2.5);
    }
}

TEST(ThreePointAngularDimension, IsRead)
{
    for (const Groups& head : {ofR12("5"), marked({"AcDb3PointAngularDimension"})}) {
        const ReadDrawing drawn = readDimension(head, {});
        const auto* dimension = drawn.entity<KdDb3PointAngularDimension>(0);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->xLine1Point(), at(13));
        EXPECT_EQ(dimension->xLine2Point(), at(14));
        EXPECT_EQ(dimension->centerPoint(), at(15));
        EXPECT_EQ(dimension->arcPoint(), at(10));
    }
}

TEST(OrdinateDimension, IsRead)
{
    const ReadDrawing drawn = readDimension(ofR12("70"), {});
    const auto* dimension = drawn.entity<KdDbOrdinateDimension>(0);
    ASSERT_TRUE(dimension);
    EXPECT_EQ(dimension->origin(), at(10));
    EXPECT_EQ(dimension->definingPoint(), at(13));
    EXPECT_EQ(dimension->leaderEndPoint(), at(14));
    EXPECT_TRUE(dimension->isUsingXAxis());
    const ReadDrawing other = readDimension(ofR12("6"), {});
    EXPECT_TRUE(other.entity<KdDbOrdinateDimension>(0)->isUsingYAxis());
}

TEST(ArcDimension, HasCodesThatMeanOtherThingsInItsOwnPart)
{
    const ReadDrawing drawn = readGroups(
        drawing({header("AC1027"),
                 section("ENTITIES", joined({{{0, "ARC_DIMENSION"},
                                              {8, "0"},
                                              {100, "AcDbDimension"},
                                              {70, "165"},
                                              {71, "5"},
                                              {41, "1"}},
                                             point(10),
                                             {{100, "AcDbArcDimension"}},
                                             point(13),
                                             point(14),
                                             point(15),
                                             {{70, "1"}, {40, "0.5"}, {41, "1.5"}, {71, "1"}},
                                             point(16),
                                             point(17)}))}));
    const auto* dimension = drawn.entity<KdDbArcDimension>(0);
    ASSERT_TRUE(dimension);
    EXPECT_EQ(dimension->arcPoint(), at(10));
    EXPECT_EQ(dimension->xLine1Point(), at(13));
    EXPECT_EQ(dimension->xLine2Point(), at(14));
    EXPECT_EQ(dimension->centerPoint(), at(15));
    EXPECT_EQ(dimension->leader1Point(), at(16));
    EXPECT_EQ(dimension->leader2Point(), at(17));
    EXPECT_EQ(dimension->arcStartParam(), 0.5); // radians
    EXPECT_EQ(dimension->arcEndParam(), 1.5);
    EXPECT_TRUE(dimension->isPartial());
    EXPECT_TRUE(dimension->hasLeader());
}

TEST(ArcDimension, IsWholeUnlessItsOwnPartSaysOtherwise)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "ARC_DIMENSION"},
                                                                       {8, "0"},
                                                                       {100, "AcDbDimension"},
                                                                       {70, "165"},
                                                                       {71, "5"},
                                                                       {100, "AcDbArcDimension"},
                                                                       {70, "0"},
                                                                       {71, "0"}})}));
    EXPECT_FALSE(drawn.entity<KdDbArcDimension>(0)->isPartial());
    EXPECT_FALSE(drawn.entity<KdDbArcDimension>(0)->hasLeader());
}

TEST(LargeRadialDimension, IsRead)
{
    const ReadDrawing drawn = readDimension({{0, "LARGE_RADIAL_DIMENSION"}, {8, "0"}}, {{40, "0"}});
    const auto* dimension = drawn.entity<KdDbRadialDimensionLarge>(0);
    ASSERT_TRUE(dimension);
    EXPECT_EQ(dimension->center(), at(10));
    EXPECT_EQ(dimension->overrideCenter(), at(13));
    EXPECT_EQ(dimension->jogPoint(), at(14));
    EXPECT_EQ(dimension->chordPoint(), at(15));
}

// Objects behind dimensions.

const Groups kConstraint{{0, "ACDBASSOCNETWORK"},
                         {5, "63"},
                         {330, "0"},
                         {100, "AcDbAssocAction"},
                         {90, "2"},
                         {330, "0"},
                         {360, "0"},
                         {100, "AcDbAssocNetwork"},
                         {90, "0"},
                         {360, "66"},
                         {360, "84"},
                         {330, "89"},
                         {0, "ACDBASSOC2DCONSTRAINTGROUP"},
                         {5, "66"},
                         {330, "63"},
                         {100, "AcDbAssocAction"},
                         {330, "63"},
                         {360, "0"},
                         {360, "85"},
                         {340, "85"},
                         {340, "86"},
                         {0, "ACDBASSOCVARIABLE"},
                         {5, "84"},
                         {330, "63"},
                         {100, "AcDbAssocAction"},
                         {330, "63"},
                         {360, "0"},
                         {100, "AcDbAssocVariable"},
                         {90, "2"},
                         {1, "d1"},
                         {1, "d2*2"},
                         {1, "AcDbCalc:1.0"},
                         {1, "Width"},
                         {40, "13.0"},
                         {290, "0"},
                         {90, "5"},
                         {0, "ACDBASSOCVARIABLE"},
                         {5, "89"},
                         {330, "63"},
                         {100, "AcDbAssocVariable"},
                         {90, "2"},
                         {1, "d9"},
                         {1, "1"},
                         {1, "AcDbCalc:1.0"},
                         {1, ""},
                         {90, "7"},
                         {0, "ACDBASSOCVALUEDEPENDENCY"},
                         {5, "85"},
                         {330, "66"},
                         {100, "AcDbAssocDependency"},
                         {290, "1"},
                         {290, "0"},
                         {330, "84"},
                         {290, "0"},
                         {330, "0"},
                         {360, "0"},
                         {0, "ACDBASSOCDEPENDENCY"},
                         {5, "86"},
                         {330, "66"},
                         {100, "AcDbAssocDependency"},
                         {90, "2"},
                         {290, "0"},
                         {290, "1"},
                         {290, "1"},
                         {330, "7F"},
                         {290, "0"},
                         {330, "0"},
                         {330, "0"},
                         {360, "87"},
                         {90, "10"},
                         {0, "ASSOCDIMDEPENDENCYBODY"},
                         {5, "87"},
                         {330, "86"},
                         {100, "AcDbAssocDependencyBody"},
                         {90, "1"},
                         {100, "AcDbImpAssocDimDependencyBodyBase"},
                         {90, "1"},
                         {1, "other=13"}};

ReadDrawing readConstraint()
{
    return readGroupsWhole(drawing({header("AC1027"),
                                    section("ENTITIES", {{0, "DIMENSION"},
                                                         {5, "7F"},
                                                         {102, "{ACAD_REACTORS"},
                                                         {330, "86"},
                                                         {102, "}"},
                                                         {100, "AcDbEntity"},
                                                         {8, "*ADSK_CONSTRAINTS"},
                                                         {100, "AcDbDimension"},
                                                         {100, "AcDbAlignedDimension"}}),
                                    section("OBJECTS", kConstraint)}));
}

template <class T>
const T* objectOf(const ReadDrawing& drawn, KdDbHandle handle)
{
    return dynamic_cast<const T*>(drawn.object(handle));
}

TEST(DimensionalConstraint, IsRead)
{
    const ReadDrawing drawn = readConstraint();
    const auto* dimension = drawn.entity<KdDbAlignedDimension>(0);
    ASSERT_TRUE(dimension);
    EXPECT_TRUE(dimension->isConstraintObject());
    EXPECT_TRUE(dimension->isConstraintDynamic());
    const auto* dependency = objectOf<KdDbAssocDependency>(drawn, 0x86);
    ASSERT_TRUE(dependency);
    EXPECT_EQ(dependency->dependentOnObject(), dimension->objectId());
    EXPECT_EQ(dependency->dependencyBody().handle(), 0x87u);
    EXPECT_FALSE(dependency->isReadDependency());
    EXPECT_TRUE(dependency->isWriteDependency());
    EXPECT_EQ(drawn.database->openCount(), 0);
}

TEST(DimensionalConstraint, LeadsToItsVariable)
{
    const ReadDrawing drawn = readConstraint();
    const auto* body = objectOf<KdDbAssocDimDependencyBody>(drawn, 0x87);
    ASSERT_TRUE(body);
    EXPECT_EQ(body->entityText(), L"other=13"); // the pair in the group counts, not the name
    EXPECT_EQ(body->variable().handle(), 0x84u);
}

TEST(VariableOfConstraints, IsRead)
{
    const ReadDrawing drawn = readConstraint();
    const auto* variable = objectOf<KdDbAssocVariable>(drawn, 0x84);
    ASSERT_TRUE(variable);
    EXPECT_EQ(variable->name(), L"d1");
    EXPECT_EQ(variable->expression(), L"d2*2");
    EXPECT_EQ(variable->evaluatorId(), L"AcDbCalc:1.0");
    EXPECT_EQ(variable->description(), L"Width");
    EXPECT_EQ(variable->value(), KdDbEvalVariant(13.0));
    EXPECT_EQ(variable->owningNetwork().handle(), 0x63u);
    EXPECT_EQ(objectOf<KdDbAssocVariable>(drawn, 0x89)->value(), KdDbEvalVariant(7));
}

TEST(NetworkOfActions, IsRead)
{
    const ReadDrawing drawn = readConstraint();
    const auto* network = objectOf<KdDbAssocNetwork>(drawn, 0x63);
    ASSERT_TRUE(network);
    ASSERT_EQ(network->actions().size(), 3u);
    EXPECT_EQ(network->actions()[2].handle(), 0x89u);
    const auto* group = objectOf<KdDbAssoc2dConstraintGroup>(drawn, 0x66);
    ASSERT_EQ(group->measures().size(), 1u);
    EXPECT_EQ(group->measures()[0].dimensionDependency.handle(), 0x86u);
}

TEST(AssociativeDimension, HasAnObjectInItsExtensionDictionary)
{
    const ReadDrawing drawn =
        readGroupsWhole(drawing({header("AC1027"),
                                 section("ENTITIES", {{0, "DIMENSION"},
                                                      {5, "10"},
                                                      {102, "{ACAD_XDICTIONARY"},
                                                      {360, "11"},
                                                      {102, "}"},
                                                      {100, "AcDbEntity"},
                                                      {8, "0"},
                                                      {0, "DIMENSION"},
                                                      {5, "13"},
                                                      {8, "0"}}),
                                 section("OBJECTS", {{0, "DICTIONARY"},
                                                     {5, "11"},
                                                     {330, "10"},
                                                     {100, "AcDbDictionary"},
                                                     {3, "ACAD_DIMASSOC"},
                                                     {360, "12"},
                                                     {0, "DIMASSOC"},
                                                     {5, "12"},
                                                     {330, "11"},
                                                     {100, "AcDbDimAssoc"},
                                                     {330, "10"},
                                                     {90, "3"},
                                                     {331, "99"}})}));
    EXPECT_TRUE(kddbIsAssociativeDimension(*drawn.entities()[0]));
    EXPECT_FALSE(kddbIsAssociativeDimension(*drawn.entities()[1]));
    const auto* association = objectOf<KdDbDimAssoc>(drawn, 0x12);
    ASSERT_TRUE(association);
    EXPECT_EQ(association->dimObjId().handle(), 0x10u);
    EXPECT_EQ(association->associativePoints(), 3);
}

} // namespace
