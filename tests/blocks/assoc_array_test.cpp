#include <database/class_ids.h>
#include <entities/assoc_array.h>
#include <geometry/linear_curves.h>

#include "support.h"

using namespace blocks_test;
using namespace provider_test;
using testing::ElementsAre;

namespace {

class AssocArray : public BlocksTest
{
  protected:
    /// Makes the reference an array of a kind, with quantities that are all different.
    template <class Parameters>
    Parameters* makeArray()
    {
        auto made = std::make_unique<Parameters>();
        Parameters* parameters = made.get();
        parameters->setValueParam(L"Items", KdDbEvalVariant(6));
        parameters->setValueParam(L"ItemSpacing", KdDbEvalVariant(0.5));
        parameters->setValueParam(L"Rows", KdDbEvalVariant(3));
        parameters->setValueParam(L"RowSpacing", KdDbEvalVariant(20.0));
        parameters->setValueParam(L"RowElevation", KdDbEvalVariant(1.25));
        parameters->setValueParam(L"Levels", KdDbEvalVariant(2));
        parameters->setValueParam(L"LevelSpacing", KdDbEvalVariant(30.0));
        parameters->setValueParam(L"AxesAngle", KdDbEvalVariant(1.5));
        parameters->setValueParam(L"Radius", KdDbEvalVariant(12.0));
        parameters->setValueParam(L"FillAngle", KdDbEvalVariant(6.25));
        parameters->setValueParam(L"StartOffset", KdDbEvalVariant(4.5));
        follow<KdDbAssocArrayActionBody>(reference, [&](auto& members) {
            members.array = std::move(made);
            members.sourceBasePoint = {7, 8, 9};
        });
        return parameters;
    }

    std::string only(const wchar_t* key)
    {
        const Answer answer = ask(provider, reference, key);
        EXPECT_EQ(answer.status, 1);
        EXPECT_EQ(answer.chain.size(), 1u);
        return answer.chain.front();
    }

    KdDbBlockReference* reference = addReference(addBlock(L"*U1"));
    KdDbBlockReference_Extension provider;
};

TEST_F(AssocArray, OfTheRectangularKindListsColumns)
{
    makeArray<KdDbAssocArrayRectangularParameters>();
    expectListed(provider, reference,
                 {{L"Geometry:Base X"},
                  {L"Geometry:Base Y"},
                  {L"Geometry:Base Z"},
                  {L"Misc:Columns"},
                  {L"Misc:Columns Spacing"},
                  {L"Misc:Rows"},
                  {L"Misc:Rows Spacing"},
                  {L"Misc:Rows Elevation Increment"},
                  {L"Misc:Levels"},
                  {L"Misc:Level Spacing"},
                  {L"Misc:Included Axis Angle"}});
}

TEST_F(AssocArray, OfThePolarKindListsItsCentreAndItsItems)
{
    makeArray<KdDbAssocArrayPolarParameters>();
    expectListed(provider, reference,
                 {{L"Geometry:Base X"},
                  {L"Geometry:Base Y"},
                  {L"Geometry:Base Z"},
                  {L"Geometry:Center X"},
                  {L"Geometry:Center Y"},
                  {L"Geometry:Center Z"},
                  {L"Geometry:Radius"},
                  {L"Misc:Direction"},
                  {L"Misc:Items"},
                  {L"Misc:Angle Between Items"},
                  {L"Misc:Fill Angle"},
                  {L"Misc:Rows"},
                  {L"Misc:Rows Spacing"},
                  {L"Misc:Rows Elevation Increment"},
                  {L"Misc:Levels"},
                  {L"Misc:Level Spacing"},
                  {L"Misc:Rotate Items"}});
}

TEST_F(AssocArray, OfThePathKindListsItsPath)
{
    makeArray<KdDbAssocArrayPathParameters>();
    expectListed(provider, reference,
                 {{L"Geometry:Base X"},
                  {L"Geometry:Base Y"},
                  {L"Geometry:Base Z"},
                  {L"Geometry:Path Length"},
                  {L"Misc:Method"},
                  {L"Misc:Fill Entire Path"},
                  {L"Misc:Items"},
                  {L"Misc:Item Spacing"},
                  {L"Misc:Start Offset"},
                  {L"Misc:Rows"},
                  {L"Misc:Rows Spacing"},
                  {L"Misc:Rows Elevation Increment"},
                  {L"Misc:Levels"},
                  {L"Misc:Level Spacing"},
                  {L"Misc:Align Items"}});
}

const std::vector<Answered> kQuantities = {
    {L"Geometry:Base X", "5001 7"},
    {L"Geometry:Base Y", "5001 8"},
    {L"Geometry:Base Z", "5001 9"},
    {L"Misc:Columns", "5010 6"},
    {L"Misc:Columns Spacing", "5001 0.5"},
    {L"Geometry:Radius", "5001 12"},
    {L"Misc:Items", "5010 6"},
    {L"Misc:Angle Between Items", "5004 0.5"},
    {L"Misc:Fill Angle", "5004 6.25"},
    {L"Misc:Item Spacing", "5001 0.5"},
    {L"Misc:Start Offset", "5001 4.5"},
    {L"Misc:Rows", "5010 3"},
    {L"Misc:Rows Spacing", "5001 20"},
    {L"Misc:Rows Elevation Increment", "5001 1.25"},
    {L"Misc:Levels", "5010 2"},
    {L"Misc:Level Spacing", "5001 30"},
    {L"Misc:Included Axis Angle", "5004 1.5"},
};

TEST_F(AssocArray, OfAnyKindAnswersAllKeys)
{
    makeArray<KdDbAssocArrayRectangularParameters>();
    expectAnswers(provider, reference, kQuantities);
    reference = addReference(addBlock(L"*U2"));
    makeArray<KdDbAssocArrayPolarParameters>();
    expectAnswers(provider, reference, kQuantities);
    reference = addReference(addBlock(L"*U3"));
    makeArray<KdDbAssocArrayPathParameters>();
    expectAnswers(provider, reference, kQuantities);
}

TEST_F(AssocArray, StillAnswersTheNameThatItDoesNotList)
{
    makeArray<KdDbAssocArrayRectangularParameters>();
    EXPECT_EQ(only(L"Misc:Name"), "5005 *U1");
    EXPECT_EQ(only(L"\tGeneral:Layer"), "8 0");
}

TEST_F(AssocArray, IsKnownByAClassOfItsOwn)
{
    CLSID classId{};
    EXPECT_EQ(reference->getClassID(&classId), eOk);
    EXPECT_EQ(classId, CLSID_KdadEntity);
    makeArray<KdDbAssocArrayPathParameters>();
    EXPECT_EQ(reference->getClassID(&classId), eOk);
    EXPECT_EQ(classId, CLSID_KdadAssocArrayPath);
    EXPECT_EQ(reference->getClassID(nullptr), eInvalidInput);
}

TEST_F(AssocArray, OfNoKindReadsAsNothing)
{
    expectAnswers(
        provider, reference,
        {{L"Geometry:Base X", "5001 0"},
         {L"Geometry:Center Y", "5001 0"},
         {L"Misc:Rows", "5010 0"},
         {L"Misc:Columns", "5010 0"},
         {L"Misc:Fill Angle", "5004 0"},
         {L"Geometry:Path Length", "5001 0"},
         {L"Misc:Rotate Items", "290 true"},
         {L"Misc:Align Items", "290 true"},
         {L"Misc:Fill Entire Path", "290 true"},
         {L"Misc:Direction", "5005 Clockwise", {"5005 Clockwise", "5005 Counter-clockwise"}},
         {L"Misc:Method", "5005 Measure", {"5005 Divide", "5005 Measure"}}});
}

TEST_F(AssocArray, TurnsOneWayOrTheOther)
{
    auto* polar = makeArray<KdDbAssocArrayPolarParameters>();
    const auto answered = [](const char* head) {
        return Answered{L"Misc:Direction", head, {"5005 Clockwise", "5005 Counter-clockwise"}};
    };
    polar->setValueParam(L"Direction", KdDbEvalVariant(0));
    expectAnswers(provider, reference, {answered("5005 Clockwise")});
    polar->setValueParam(L"Direction", KdDbEvalVariant(1));
    expectAnswers(provider, reference, {answered("5005 Counter-clockwise")});
}

TEST_F(AssocArray, WithoutADirectionLeavesTheRecordAlone)
{
    makeArray<KdDbAssocArrayPolarParameters>();
    EXPECT_EQ(only(L"Misc:Direction"), "5000 nothing");
}

TEST_F(AssocArray, DividesOrMeasuresItsPath)
{
    auto* path = makeArray<KdDbAssocArrayPathParameters>();
    const auto answered = [](const char* head) {
        return Answered{L"Misc:Method", head, {"5005 Divide", "5005 Measure"}};
    };
    path->setValueParam(L"Method", KdDbEvalVariant(0));
    expectAnswers(provider, reference, {answered("5005 Divide")});
    path->setValueParam(L"Method", KdDbEvalVariant(1));
    expectAnswers(provider, reference, {answered("5005 Measure")});
}

TEST_F(AssocArray, AlignsItsItemsUnlessTheNumberIsZero)
{
    auto* polar = makeArray<KdDbAssocArrayPolarParameters>();
    polar->setValueParam(L"AlignItems", KdDbEvalVariant(0));
    EXPECT_EQ(only(L"Misc:Rotate Items"), "290 false");
    EXPECT_EQ(only(L"Misc:Align Items"), "290 false");
    polar->setValueParam(L"AlignItems", KdDbEvalVariant(2));
    EXPECT_EQ(only(L"Misc:Rotate Items"), "290 true");
}

TEST_F(AssocArray, FillsThePathUnlessTheNumberIsNextToNothing)
{
    auto* path = makeArray<KdDbAssocArrayPathParameters>();
    const std::pair<double, const char*> rows[] = {{1e-11, "290 false"},
                                                   {-1e-11, "290 false"},
                                                   {0.0, "290 false"},
                                                   {-0.5, "290 true"},
                                                   {1.0, "290 true"}};
    for (const auto& [number, expected] : rows) {
        path->setValueParam(L"FillPath", KdDbEvalVariant(number));
        EXPECT_EQ(only(L"Misc:Fill Entire Path"), expected) << number;
    }
}

TEST_F(AssocArray, HasItsCentreInTheUserCoordinateSystem)
{
    auto* polar = makeArray<KdDbAssocArrayPolarParameters>();
    polar->setGeomParam(L"Origin", std::make_shared<KdDbVertexRef>(KdGePoint3d{10, 20, 30}));
    EXPECT_EQ(only(L"Geometry:Center X"), "5001 10");
    const auto setPoint = [&](const wchar_t* name, const KdGePoint3d& point) {
        ASSERT_TRUE(drawing.header().setValue(KdDbHeaderVariables::indexOf(name), point));
    };
    setPoint(L"UCSORG", {1, 2, 3});
    setPoint(L"UCSXDIR", {0, 1, 0});
    setPoint(L"UCSYDIR", {-1, 0, 0});
    EXPECT_EQ(only(L"Geometry:Center X"), "5001 18");
    EXPECT_EQ(only(L"Geometry:Center Y"), "5001 -9");
    EXPECT_EQ(only(L"Geometry:Center Z"), "5001 27");
    EXPECT_EQ(only(L"Geometry:Base X"), "5001 6");
    EXPECT_EQ(only(L"Geometry:Base Y"), "5001 -6");
    EXPECT_EQ(only(L"Geometry:Base Z"), "5001 6");
}

TEST_F(AssocArray, HasItsCentreAtTheOriginUnlessAVertexGivesIt)
{
    auto* polar = makeArray<KdDbAssocArrayPolarParameters>();
    EXPECT_EQ(only(L"Geometry:Center X"), "5001 0");
    polar->setGeomParam(L"Origin", std::make_shared<KdDbEdgeRef>());
    EXPECT_EQ(only(L"Geometry:Center X"), "5001 0");
    polar->setGeomParam(L"Origin", nullptr);
    EXPECT_EQ(only(L"Geometry:Center X"), "5001 0");
}

TEST_F(AssocArray, MeasuresItsPath)
{
    auto* path = makeArray<KdDbAssocArrayPathParameters>();
    EXPECT_EQ(only(L"Geometry:Path Length"), "5001 0");
    path->setGeomParam(L"Path", std::make_shared<KdDbEdgeRef>());
    EXPECT_EQ(only(L"Geometry:Path Length"), "5001 0");
    path->setGeomParam(L"Path", std::make_shared<KdDbEdgeRef>(std::make_shared<KdGeLineSeg3d>(
                                    KdGePoint3d{1, 2, 3}, KdGePoint3d{4, 6, 15})));
    EXPECT_EQ(only(L"Geometry:Path Length"), "5001 13");
}

TEST_F(AssocArray, OfAnotherKindHasNoPath)
{
    auto* polar = makeArray<KdDbAssocArrayPolarParameters>();
    polar->setGeomParam(L"Path", std::make_shared<KdDbEdgeRef>(std::make_shared<KdGeLineSeg3d>(
                                     KdGePoint3d{1, 2, 3}, KdGePoint3d{4, 6, 15})));
    EXPECT_EQ(only(L"Geometry:Path Length"), "5001 0");
}

TEST_F(AssocArray, ReadsNumbersOfTheOtherKind)
{
    auto* array = makeArray<KdDbAssocArrayRectangularParameters>();
    array->setValueParam(L"Rows", KdDbEvalVariant(4.75));
    array->setValueParam(L"RowSpacing", KdDbEvalVariant(5));
    array->setValueParam(L"Levels", KdDbEvalVariant(KdString(L"two")));
    EXPECT_EQ(only(L"Misc:Rows"), "5010 4");
    EXPECT_EQ(only(L"Misc:Rows Spacing"), "5001 5");
    EXPECT_EQ(only(L"Misc:Levels"), "5010 0");
}

} // namespace
