#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/xrecord.h>
#include <entities/all.h>

#include "made_drawing.h"

namespace {

using testing::ElementsAre;

constexpr KdDbHandle kObject = 0xA1;

/// Reads a drawing of one object, which has the handle A1.
ReadDrawing readObject(const std::string& name, const Groups& content, const Groups& more = {})
{
    Groups objects{{0, "DICTIONARY"}, {5, "C"}, {100, "AcDbDictionary"}, {0, name}, {5, "A1"}};
    objects.insert(objects.end(), content.begin(), content.end());
    objects.insert(objects.end(), more.begin(), more.end());
    return readGroups(drawing({header("AC1032"), section("OBJECTS", objects)}));
}

template <class T>
const T* objectOf(const ReadDrawing& drawn, KdDbHandle handle = kObject)
{
    return dynamic_cast<const T*>(drawn.object(handle));
}

TEST(FreeRecord, KeepsItsGroupsInOrderWhateverTheyMeanElsewhere)
{
    const ReadDrawing drawn = readObject("XRECORD", {{102, "{ACAD_REACTORS"},
                                                     {330, "C"},
                                                     {102, "}"},
                                                     {100, "AcDbXrecord"},
                                                     {280, "2"},
                                                     {102, "{MINE"},
                                                     {10, "1"},
                                                     {20, "2"},
                                                     {30, "3"},
                                                     {1, "text"},
                                                     {70, "-5"},
                                                     {90, "70000"},
                                                     {40, "2.5"},
                                                     {330, "C"},
                                                     {310, "0A0b"},
                                                     {280, "7"},
                                                     {100, "NoPart"},
                                                     {1001, "APP"},
                                                     {1071, "123456"}});
    const auto* record = objectOf<KdDbXrecord>(drawn);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->mergeStyle(), 2);
    EXPECT_EQ(record->reactors().size(), 1u);
    std::vector<short> codes;
    for (const resbuf* group = record->groups(); group; group = group->rbnext)
        codes.push_back(group->restype);
    EXPECT_THAT(codes, ElementsAre(102, 10, 1, 70, 90, 40, 330, 310, 280, 100, 1001, 1071));
    const resbuf* point = record->groups()->rbnext;
    EXPECT_THAT(point->resval.rpoint, ElementsAre(1, 2, 3));
    const resbuf* text = point->rbnext;
    EXPECT_STREQ(text->resval.rstring, L"text");
    EXPECT_EQ(text->rbnext->resval.rint, -5);
    EXPECT_EQ(text->rbnext->rbnext->resval.rlong, 70000);
}

TEST(FreeRecord, MayBeEmpty)
{
    const ReadDrawing drawn = readObject("XRECORD", {{100, "AcDbXrecord"}});
    EXPECT_EQ(objectOf<KdDbXrecord>(drawn)->groups(), nullptr);
}

const Groups kElement{{100, "AcDbEvalExpr"},     {90, "7"},     {98, "33"}, {99, "329"},
                      {100, "AcDbBlockElement"}, {300, "Mine"}, {1071, "0"}};

Groups element(const Groups& content)
{
    Groups groups = kElement;
    groups.insert(groups.end(), content.begin(), content.end());
    return groups;
}

const Groups kTwoPoints{{100, "AcDbBlockParameter"},
                        {280, "0"},
                        {281, "1"},
                        {100, "AcDbBlock2PtParameter"},
                        {1010, "1"},
                        {1020, "2"},
                        {1030, "0"},
                        {1011, "4"},
                        {1021, "6"},
                        {1031, "0"},
                        {170, "4"},
                        {91, "0"},
                        {91, "5"},
                        {91, "0"},
                        {91, "6"},
                        {171, "0"},
                        {177, "1"}};

Groups twoPoints(const Groups& content)
{
    Groups groups = element(kTwoPoints);
    groups.insert(groups.end(), content.begin(), content.end());
    return groups;
}

TEST(PolarParameter, IsReadWithBothSetsOfValues)
{
    const ReadDrawing drawn =
        readObject("BLOCKPOLARPARAMETER", twoPoints({{100, "AcDbBlockPolarParameter"},
                                                     {305, "Reach"},
                                                     {306, "How far"},
                                                     {307, "Direction"},
                                                     {308, "Where to"},
                                                     {140, "2.5"},
                                                     {309, "far"},
                                                     {96, "7"},
                                                     {141, "1"},
                                                     {142, "9"},
                                                     {143, "0.5"},
                                                     {175, "2"},
                                                     {144, "3"},
                                                     {144, "4"},
                                                     {410, "turn"},
                                                     {97, "8"},
                                                     {145, "0"},
                                                     {146, "6.25"},
                                                     {147, "0.25"},
                                                     {176, "1"},
                                                     {148, "1.5"}}));
    const auto* parameter = objectOf<KdDbBlockPolarParameter>(drawn);
    ASSERT_NE(parameter, nullptr);
    EXPECT_EQ(parameter->nodeId(), 7);
    EXPECT_EQ(parameter->elementName(), L"Mine");
    EXPECT_STREQ(parameter->typeName(), L"Polar");
    EXPECT_FALSE(parameter->showProperties());
    EXPECT_TRUE(parameter->chainActions());
    EXPECT_EQ(parameter->numberOfGrips(), 2);
    EXPECT_EQ(parameter->basePosition(), 1);
    EXPECT_DOUBLE_EQ(parameter->distance(), 5);
    EXPECT_EQ(parameter->distanceLabel().name, L"Reach");
    EXPECT_EQ(parameter->angleLabel().description, L"Where to");
    EXPECT_EQ(parameter->labelOffset(), 2.5);
    EXPECT_EQ(parameter->distanceSet().flags, 7);
    EXPECT_EQ(parameter->distanceSet().maximum, 9);
    EXPECT_TRUE(parameter->distanceSet().useIncrement());
    EXPECT_FALSE(parameter->distanceSet().useValueList());
    EXPECT_THAT(parameter->distanceSet().values, ElementsAre(3, 4));
    EXPECT_EQ(parameter->angleSet().description, L"turn");
    EXPECT_EQ(parameter->angleSet().increment, 0.25);
    EXPECT_TRUE(parameter->angleSet().useValueList());
    EXPECT_THAT(parameter->angleSet().values, ElementsAre(1.5));
}

TEST(XYParameter, IsReadWithTheVerticalPartFirst)
{
    const ReadDrawing drawn =
        readObject("BLOCKXYPARAMETER", twoPoints({{100, "AcDbBlockXYParameter"},
                                                  {305, "Up"},
                                                  {306, "Across"},
                                                  {307, "up"},
                                                  {308, "across"},
                                                  {141, "1.5"},
                                                  {140, "2.5"},
                                                  {309, "v"},
                                                  {97, "4"},
                                                  {146, "1"},
                                                  {410, "h"},
                                                  {96, "8"},
                                                  {142, "2"}}));
    const auto* parameter = objectOf<KdDbBlockXYParameter>(drawn);
    EXPECT_EQ(parameter->verticalLabel().name, L"Up");
    EXPECT_EQ(parameter->horizontalLabel().description, L"across");
    EXPECT_EQ(parameter->verticalLabelOffset(), 1.5);
    EXPECT_EQ(parameter->horizontalLabelOffset(), 2.5);
    EXPECT_EQ(parameter->verticalSet().flags, 4);
    EXPECT_EQ(parameter->horizontalSet().flags, 8);
    EXPECT_EQ(parameter->horizontalSet().minimum, 2);
}

TEST(AlignmentParameter, IsRead)
{
    const ReadDrawing drawn = readObject(
        "BLOCKALIGNMENTPARAMETER", twoPoints({{100, "AcDbBlockAlignmentParameter"}, {280, "1"}}));
    const auto* parameter = objectOf<KdDbBlockAlignmentParameter>(drawn);
    EXPECT_TRUE(parameter->isPerpendicular());
    EXPECT_FALSE(parameter->showProperties()); // the same code in another part
}

TEST(ConstraintParameter, IsReadAsOneOfItsKind)
{
    const ReadDrawing drawn = readObject("BLOCKHORIZONTALCONSTRAINTPARAMETER",
                                         twoPoints({{100, "AcDbBlockHorizontalConstraintParameter"},
                                                    {305, "d1"},
                                                    {306, "width"},
                                                    {140, "12.5"},
                                                    {96, "8"}}));
    const auto* parameter = objectOf<KdDbBlockHorizontalConstraintParameter>(drawn);
    ASSERT_NE(parameter, nullptr);
    EXPECT_EQ(parameter->label().name, L"d1");
    EXPECT_EQ(parameter->value(), 12.5);
    EXPECT_TRUE(parameter->valueSet().useValueList());
}

const Groups kAction{{100, "AcDbBlockAction"},
                     {70, "0"},
                     {71, "1"},
                     {330, "C"},
                     {1010, "8"},
                     {1020, "9"},
                     {1030, "0"}};

Groups action(const Groups& content)
{
    Groups groups = element(kAction);
    groups.insert(groups.end(), content.begin(), content.end());
    return groups;
}

TEST(StretchActions, AreReadWithTheirFrames)
{
    const Groups frame{{1011, "1"}, {1021, "2"}, {1011, "3"}, {1021, "4"}};
    Groups stretch{{100, "AcDbBlockStretchAction"}, {92, "11"}, {301, "x"}, {93, "11"}, {72, "2"}};
    stretch.insert(stretch.end(), frame.begin(), frame.end());
    stretch.insert(stretch.end(), {{74, "1"}, {94, "1"}, {140, "2"}, {141, "0.5"}});
    const ReadDrawing first = readObject("BLOCKSTRETCHACTION", action(stretch));
    const auto* straight = objectOf<KdDbBlockStretchAction>(first);
    EXPECT_THAT(straight->frame(), ElementsAre(KdGePoint2d{1, 2}, KdGePoint2d{3, 4}));
    EXPECT_EQ(straight->distanceMultiplier(), 2);
    EXPECT_EQ(straight->angleOffset(), 0.5);
    EXPECT_EQ(straight->position(), (KdGePoint3d{8, 9, 0}));
    EXPECT_EQ(straight->selection().size(), 1u);
    Groups polar{{100, "AcDbBlockPolarStretchAction"}, {92, "11"}};
    polar.insert(polar.end(), frame.begin(), frame.end());
    polar.insert(polar.end(), {{141, "2"}, {140, "0.5"}});
    const ReadDrawing second = readObject("BLOCKPOLARSTRETCHACTION", action(polar));
    const auto* turning = objectOf<KdDbBlockPolarStretchAction>(second);
    EXPECT_THAT(turning->frame(), ElementsAre(KdGePoint2d{1, 2}, KdGePoint2d{3, 4}));
    EXPECT_EQ(turning->distanceMultiplier(), 2); // the codes are swapped
    EXPECT_EQ(turning->angleOffset(), 0.5);
}

TEST(ArrayAction, IsReadWithItsOffsets)
{
    const ReadDrawing drawn = readObject(
        "BLOCKARRAYACTION",
        action({{100, "AcDbBlockArrayAction"}, {92, "4"}, {93, "4"}, {140, "7.5"}, {141, "8.5"}}));
    const auto* array = objectOf<KdDbBlockArrayAction>(drawn);
    EXPECT_EQ(array->rowOffset(), 7.5);
    EXPECT_EQ(array->columnOffset(), 8.5);
    EXPECT_FALSE(array->follows(KdDbBlockParameter::desc())); // it is in no graph
}

TEST(LookupAction, HasTheValuesOfAColumnAndTheOneForNoMatch)
{
    const ReadDrawing drawn =
        readObject("BLOCKLOOKUPACTION", action({{100, "AcDbBlockLookupAction"},
                                                {92, "2"},
                                                {93, "2"},
                                                {301, ""},
                                                {302, "90"},
                                                {302, "Single"},
                                                {302, "120"},
                                                {302, "Double"},
                                                {303, ""},
                                                {94, "1"},
                                                {95, "40"},
                                                {305, "Custom"},
                                                {303, ""},
                                                {94, "5"},
                                                {95, "1"},
                                                {305, "Other"}}));
    const auto* lookup = objectOf<KdDbBlockLookupAction>(drawn);
    EXPECT_THAT(lookup->valuesOf(1), ElementsAre(L"90", L"120", L"Custom"));
    EXPECT_THAT(lookup->valuesOf(5), ElementsAre(L"Single", L"Double", L"Other"));
    EXPECT_TRUE(lookup->valuesOf(6).empty());
}

TEST(LookupAction, SurvivesCountsThatAreWrong)
{
    const ReadDrawing drawn =
        readObject("BLOCKLOOKUPACTION", action({{100, "AcDbBlockLookupAction"},
                                                {92, "2000000000"},
                                                {93, "-1"},
                                                {302, "90"},
                                                {305, "lost"},
                                                {94, "1"}}));
    EXPECT_THAT(objectOf<KdDbBlockLookupAction>(drawn)->valuesOf(1), ElementsAre(L"90"));
}

TEST(EvaluationGraph, KnowsItsElementsByNumberAndTheGripsOfParameters)
{
    Groups more{{0, "BLOCKLINEARPARAMETER"}, {5, "A2"}, {330, "A1"}};
    const Groups parameter = twoPoints({});
    more.insert(more.end(), parameter.begin(), parameter.end());
    more.insert(more.end(), {{0, "BLOCKLINEARGRIP"},
                             {5, "A3"},
                             {330, "A1"},
                             {100, "AcDbEvalExpr"},
                             {90, "5"},
                             {100, "AcDbBlockGrip"},
                             {1010, "4"},
                             {1020, "6"},
                             {280, "1"}});
    const ReadDrawing drawn = readObject(
        "ACAD_EVALUATION_GRAPH",
        {{100, "AcDbEvalGraph"}, {91, "0"}, {360, "A2"}, {91, "1"}, {360, "A3"}, {360, "C"}}, more);
    const auto* graph = objectOf<KdDbEvalGraph>(drawn);
    ASSERT_NE(graph, nullptr);
    EXPECT_EQ(graph->elements().size(), 2u); // the dictionary is no element
    EXPECT_EQ(graph->elementOf(7).handle(), 0xA2u);
    EXPECT_TRUE(graph->elementOf(8).isNull());
    const auto* grip = objectOf<KdDbBlockLinearGrip>(drawn, 0xA3);
    EXPECT_EQ(grip->parameterTypeName(), L"Linear");
    EXPECT_EQ(grip->baseOffset(), (KdGeVector3d{3, 4, 0}));
    EXPECT_TRUE(grip->cycling());
}

TEST(AssociativeArray, IsReadWithItsKindAndItsQuantities)
{
    const Groups objects{{0, "DICTIONARY"},
                         {5, "C"},
                         {100, "AcDbDictionary"},
                         {0, "ACDBASSOCDEPENDENCY"},
                         {5, "A1"},
                         {330, "A2"},
                         {100, "AcDbAssocDependency"},
                         {90, "2"},
                         {330, "B0"},
                         {330, "0"},
                         {0, "ACDBASSOCACTION"},
                         {5, "A2"},
                         {100, "AcDbAssocAction"},
                         {90, "2"},
                         {90, "0"},
                         {330, "0"},
                         {360, "A3"},
                         {90, "1"},
                         {90, "1"},
                         {90, "1"},
                         {360, "A1"},
                         {90, "0"},
                         {90, "0"},
                         {90, "0"},
                         {90, "1"},
                         {90, "0"},
                         {1, "Rows"},
                         {90, "0"},
                         {90, "1"},
                         {90, "3"},
                         {330, "0"},
                         {330, "A1"},
                         {0, "ACDBASSOCARRAYACTIONBODY"},
                         {5, "A3"},
                         {330, "A2"},
                         {100, "AcDbAssocActionBody"},
                         {90, "1"},
                         {100, "AcDbAssocParamBasedActionBody"},
                         {90, "0"},
                         {90, "0"},
                         {90, "1"},
                         {360, "A4"},
                         {90, "0"},
                         {90, "2"},
                         {90, "0"},
                         {1, "Items"},
                         {90, "0"},
                         {90, "1"},
                         {90, "6"},
                         {330, "0"},
                         {90, "0"},
                         {1, "ItemSpacing"},
                         {90, "1"},
                         {90, "1"},
                         {40, "2.5"},
                         {330, "0"},
                         {100, "AcDbAssocArrayActionBody"},
                         {90, "0"},
                         {1, "AcDbAssocArrayPolarParameters"},
                         {40, "1"},
                         {40, "0"},
                         {40, "0"},
                         {40, "7"},
                         {40, "0"},
                         {40, "1"},
                         {40, "0"},
                         {40, "8"},
                         {40, "0"},
                         {40, "0"},
                         {40, "1"},
                         {40, "9"},
                         {40, "0"},
                         {40, "0"},
                         {40, "0"},
                         {40, "1"},
                         {0, "ACDBASSOCVERTEXACTIONPARAM"},
                         {5, "A4"},
                         {330, "A3"},
                         {100, "AcDbAssocActionParam"},
                         {90, "0"},
                         {1, "Origin"},
                         {100, "AcDbAssocVertexActionParam"},
                         {90, "0"},
                         {10, "10"},
                         {20, "20"},
                         {30, "30"}};
    const Groups insert{
        {0, "INSERT"},       {5, "B0"}, {102, "{ACAD_REACTORS"},     {330, "A1"}, {102, "}"},
        {100, "AcDbEntity"}, {8, "0"},  {100, "AcDbBlockReference"}, {2, "*U1"}};
    const ReadDrawing drawn = readGroups(
        drawing({header("AC1032"), section("ENTITIES", insert), section("OBJECTS", objects)}));
    const auto* reference = drawn.entity<KdDbBlockReference>(0);
    const KdDbAssocArrayParameters* array = kddbGetAssocArrayParametersConst(reference);
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(array->isA(), KdDbAssocArrayPolarParameters::desc());
    const auto number = [&](const wchar_t* name) {
        KdDbEvalVariant value;
        KdString expression;
        KdString evaluator;
        int unit = 0;
        double found = -1.0;
        EXPECT_EQ(array->getValueParam(name, value, expression, evaluator, unit), eOk);
        EXPECT_EQ(value.getValue(found), eOk);
        return found;
    };
    EXPECT_EQ(number(L"Items"), 6);
    EXPECT_EQ(number(L"ItemSpacing"), 2.5);
    EXPECT_EQ(number(L"Rows"), 3);
    const KdDbGeomRef* origin = nullptr;
    KdDbObjectId id;
    ASSERT_EQ(array->getGeomParam(L"Origin", origin, id), eOk);
    EXPECT_EQ(static_cast<const KdDbVertexRef*>(origin)->point(), (KdGePoint3d{10, 20, 30}));
    EXPECT_EQ(id.handle(), 0xA4u);
    const auto* body = objectOf<KdDbAssocArrayActionBody>(drawn, 0xA3);
    KdDbVertexRef vertex;
    KdGePoint3d base;
    EXPECT_EQ(body->getSourceBasePoint(vertex, base), eOk);
    EXPECT_EQ(base, (KdGePoint3d{7, 8, 9}));
}

TEST(CentreMark, IsKnownByTheBodyOfItsAction)
{
    const Groups objects{{0, "DICTIONARY"},
                         {5, "C"},
                         {100, "AcDbDictionary"},
                         {0, "ACDBASSOCDEPENDENCY"},
                         {5, "A1"},
                         {330, "A2"},
                         {100, "AcDbAssocDependency"},
                         {330, "B0"},
                         {0, "ACDBASSOCACTION"},
                         {5, "A2"},
                         {100, "AcDbAssocAction"},
                         {330, "0"},
                         {360, "A3"},
                         {360, "A1"},
                         {0, "ACDBCENTERMARKACTIONBODY"},
                         {5, "A3"},
                         {330, "A2"},
                         {100, "AcDbAssocActionBody"}};
    const Groups insert{{0, "INSERT"}, {5, "B0"},  {102, "{ACAD_REACTORS"},
                        {330, "A1"},   {102, "}"}, {8, "0"},
                        {2, "*U1"},    {50, "90"}};
    const ReadDrawing drawn = readGroups(
        drawing({header("AC1032"), section("ENTITIES", insert), section("OBJECTS", objects)}));
    const KdDbObjectId id = drawn.entity<KdDbBlockReference>(0)->objectId();
    EXPECT_EQ(KdDbSmartCenterObjectWrapper::getCenterType(id),
              KdDbSmartCenterObjectWrapper::kCenterMark);
    EXPECT_NEAR(KdDbCenterMarkObjectWrapper(id).rotation(), 1.5707963, 1e-6);
    EXPECT_FALSE(KdDbCenterMarkObjectWrapper(id).isFullyAssociative());
}

TEST(BlockHead, TellsWhatIsKnownOfAnExternalReference)
{
    const ReadDrawing drawn =
        readGroups(drawing({header("AC1032"), section("BLOCKS", {{0, "BLOCK"},
                                                                 {2, "SITE"},
                                                                 {70, "44"},
                                                                 {10, "1"},
                                                                 {20, "2"},
                                                                 {30, "3"},
                                                                 {1, "site.dxf"},
                                                                 {4, "the site"},
                                                                 {0, "ATTDEF"},
                                                                 {0, "ENDBLK"},
                                                                 {0, "BLOCK"},
                                                                 {2, "PLAIN"},
                                                                 {0, "LINE"},
                                                                 {0, "ENDBLK"}})}));
    const auto* site = drawn.record<KdDbBlockTable>(L"SITE");
    EXPECT_TRUE(site->isFromExternalReference());
    EXPECT_TRUE(site->isFromOverlayReference());
    EXPECT_TRUE(site->isResolved());
    EXPECT_EQ(site->pathName(), L"site.dxf");
    EXPECT_TRUE(site->hasAttributeDefinitions());
    EXPECT_FALSE(drawn.record<KdDbBlockTable>(L"PLAIN")->hasAttributeDefinitions());
}

} // namespace
