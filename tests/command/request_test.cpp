#include <command/entry.h>

#include "support.h"

using namespace command_test;
using quick_select::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Request : public CommandTest
{
  protected:
    quick_select::Result ask(const quick_select::Request& request, long* ss = nullptr)
    {
        quick_select::Result result{Outcome::Done, 77};
        QSelectRun(request, ss, result);
        return result;
    }

    static quick_select::Request property(const wchar_t* key, int kind, const wchar_t* operatorText,
                                          const wchar_t* value)
    {
        quick_select::Request request{};
        request.propertyKey = key;
        request.kind = kind;
        request.operatorText = operatorText;
        request.valueText = value;
        return request;
    }
    static quick_select::Request onLayer(const wchar_t* name)
    {
        return property(kLayerKey, ResBuf::kLayerName, L"=", name);
    }
};

TEST_F(Request, WithNullTextsSelectsEverything)
{
    const KdDbObjectId line = add(model())->objectId();
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    const auto result = ask({});
    EXPECT_EQ(result.outcome, Outcome::Done);
    EXPECT_EQ(result.matches, 2);
    EXPECT_THAT(selection(), ElementsAre(line, circle));
}

TEST_F(Request, SelectsWhatThePropertyComparesWithAndTellsTheCount)
{
    addOn(L"0");
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    const auto result = ask(onLayer(L"PIPES"));
    EXPECT_EQ(result.outcome, Outcome::Done);
    EXPECT_EQ(result.matches, 1);
    EXPECT_THAT(selection(), ElementsAre(pipe));
    EXPECT_THAT(printed, ElementsAre(L"\n1 item(s) selected."));
}

TEST_F(Request, ComparesWithinTheToleranceThatItGives)
{
    add(model());
    auto request = property(L"\tGeneral:Linetype scale", ResBuf::kLinetypeScale, L"=", L"1.25");
    EXPECT_EQ(ask(request).matches, 0); // the scale is 1
    const double tolerance = 0.5;
    request.tolerance = &tolerance;
    EXPECT_EQ(ask(request).matches, 1);
    request.tolerance = nullptr;
    EXPECT_EQ(ask(request).matches, 0);
    EXPECT_EQ(QSelectTolerance(), 1.0e-4);
}

TEST_F(Request, KnowsTheNamesOfTheDrawingInAnyCase)
{
    const KdDbObjectId pipe = addOn(L"Pipes")->objectId();
    ask(onLayer(L"pIPES"));
    EXPECT_THAT(selection(), ElementsAre(pipe));
}

TEST_F(Request, ThatFindsNothingIsDone)
{
    add(model());
    const auto result = ask(onLayer(L"PIPES"));
    EXPECT_EQ(result.outcome, Outcome::Done);
    EXPECT_EQ(result.matches, 0);
}

TEST_F(Request, ComparesNumbersByTheirSize)
{
    add(model());
    auto* wide = add(model());
    KdDbLine* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, wide->objectId(), KdDb::kForWrite), eOk);
    opened->edit().seldom.edit().linetypeScale = 2.5;
    opened->close();
    ask(property(L"\tGeneral:Linetype scale", ResBuf::kLinetypeScale, L">", L"1.5"));
    EXPECT_THAT(selection(), ElementsAre(wide->objectId()));
}

TEST_F(Request, ComparesColors)
{
    add(model());
    auto* red = add(model());
    KdDbLine* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, red->objectId(), KdDb::kForWrite), eOk);
    KdCmColor color;
    color.setColorIndex(1);
    opened->edit().color = color.color();
    opened->close();
    ask(property(kColorKey, ResBuf::kColor, L"=", L"red"));
    EXPECT_THAT(selection(), ElementsAre(red->objectId()));
}

TEST_F(Request, ForOneTypeSelectsThatTypeAlone)
{
    add<KdDbLine>(model());
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    quick_select::Request request{};
    request.typeName = L"Circle";
    request.className = L"AcDbCircle";
    EXPECT_EQ(ask(request).matches, 1);
    EXPECT_THAT(selection(), ElementsAre(circle));
}

TEST_F(Request, WithoutATypeIgnoresTheClass)
{
    const KdDbObjectId line = add(model())->objectId();
    quick_select::Request request{};
    request.typeName = L"";
    request.className = L"AcDbCircle";
    EXPECT_EQ(ask(request).matches, 1);
    EXPECT_THAT(selection(), ElementsAre(line));
}

TEST_F(Request, ToExcludeSelectsTheOthers)
{
    addOn(L"PIPES");
    const KdDbObjectId line = addOn(L"0")->objectId();
    auto request = onLayer(L"PIPES");
    request.exclude = true;
    EXPECT_EQ(ask(request).matches, 1);
    EXPECT_THAT(selection(), ElementsAre(line));
}

TEST_F(Request, ToAppendAddsToTheSelection)
{
    const KdDbObjectId before = addOn(L"0")->objectId();
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    select({before});
    auto request = onLayer(L"PIPES");
    request.append = true;
    EXPECT_EQ(ask(request).matches, 1);
    EXPECT_THAT(selection(), ElementsAre(before, pipe));
}

TEST_F(Request, FromASelectionGoesOverTheGivenSetOrElseTheImpliedSelection)
{
    const KdDbObjectId first = addOn(L"PIPES")->objectId();
    const KdDbObjectId second = addOn(L"PIPES")->objectId();
    auto request = onLayer(L"PIPES");
    request.fromSelection = true;
    GivenSet given({second});
    ask(request, given.name);
    EXPECT_THAT(selection(), ElementsAre(second));
    select({first});
    ask(request);
    EXPECT_THAT(selection(), ElementsAre(first));
}

struct BadRow
{
    const char* name;
    int kind;
    const wchar_t* operatorText;
    const wchar_t* value;
    Outcome outcome;
};

const BadRow kBad[] = {
    {"orderOfTexts", ResBuf::kString, L">", L"a", Outcome::BadOperator},
    {"wildcardsOfNumbers", ResBuf::kReal, L"*", L"1", Outcome::BadOperator},
    {"wildcardsOfLayers", ResBuf::kLayerName, L"*", L"P*", Outcome::BadOperator},
    {"orderOfSwitches", ResBuf::kBool, L"<", L"true", Outcome::BadOperator},
    {"operatorInTwoSigns", ResBuf::kReal, L"==", L"1", Outcome::BadOperator},
    {"operatorBeforeValue", ResBuf::kReal, L"~", L"one", Outcome::BadOperator},
    {"wordForNumber", ResBuf::kReal, L"=", L"one", Outcome::BadValue},
    {"noNumberAtAll", ResBuf::kReal, L"=", L"", Outcome::BadValue},
    {"nullForNumber", ResBuf::kReal, L"=", nullptr, Outcome::BadValue},
    {"fractionForInteger", ResBuf::kInt32, L"=", L"1.5", Outcome::BadValue},
    {"pointWithoutAxis", ResBuf::kPoint3d, L"=", L"1", Outcome::BadValue},
    {"wordThatIsNoColor", ResBuf::kColor, L"=", L"muddy", Outcome::BadValue},
    {"tooLargeAShareOfRed", ResBuf::kColor, L"=", L"256,0,0", Outcome::BadValue},
    {"kindThatHasNoValues", ResBuf::kNone, L"=", L"1", Outcome::BadValue},
};

class BadRequest : public Request, public testing::WithParamInterface<BadRow>
{
};

TEST_P(BadRequest, IsRefusedWithNothingChanged)
{
    const KdDbObjectId before = add(model())->objectId();
    select({before});
    const auto [name, kind, operatorText, value, outcome] = GetParam();
    const auto result = ask(property(kLayerKey, kind, operatorText, value));
    EXPECT_EQ(result.outcome, outcome);
    EXPECT_EQ(result.matches, 0);
    EXPECT_THAT(selection(), ElementsAre(before));
    EXPECT_THAT(printed, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, BadRequest, testing::ValuesIn(kBad),
                         [](const auto& row) { return row.param.name; });

TEST_F(Request, WithoutADrawingSaysSo)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const auto result = ask({});
    EXPECT_EQ(result.outcome, Outcome::NoDrawing);
    EXPECT_EQ(result.matches, 0);
}

TEST_F(Request, OnAnEmptyDrawingSaysSo)
{
    EXPECT_EQ(ask({}).outcome, Outcome::NoObjects);
    EXPECT_EQ(messages.shown.size(), 1u);
    messages.shown.clear();
}

TEST_F(Request, WithoutProvidersIsGivenUp)
{
    add(model());
    QSelectUnInit();
    const auto result = ask({});
    EXPECT_EQ(result.outcome, Outcome::Abandoned);
    EXPECT_EQ(result.matches, 0);
    EXPECT_THAT(printed, IsEmpty());
    QSelectInit();
}

} // namespace
