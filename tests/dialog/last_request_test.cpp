#include "support.h"

#include <optional>

#include <command/entry.h>
#include <entities/circle.h>
#include <entities/line.h>
#include <plugin/quick_select.h>
#include <ui/editor_prompt.h>

using namespace dialog_test;
using testing::ElementsAre;

namespace {

/// Texts and flags of a request beyond the visit.
struct Told
{
    std::wstring type, className, key, op, value;
    int axis = 0;
    int kind = 0;
    bool exclude = false, append = false, fromSelection = false, overPicked = false;
};

void keep(void* context, const quick_select::PastRequest* past)
{
    auto& told = *static_cast<std::optional<Told>*>(context);
    told.reset();
    if (!past)
        return;
    const quick_select::Request& from = past->request;
    told = Told{from.typeName,  from.className,     from.propertyKey, from.operatorText,
                from.valueText, from.axis,          from.kind,        from.exclude,
                from.append,    from.fromSelection, past->overPicked};
}

void runAgain(void* context, const quick_select::PastRequest* past)
{
    if (past)
        QSelectRun(past->request, nullptr, *static_cast<quick_select::Result*>(context));
}

/// Runs with a dialog whose request is then run without one.
class PastRequest : public DialogTest
{
  protected:
    static std::optional<Told> told()
    {
        std::optional<Told> request;
        QSelectLastRequest(keep, &request);
        return request;
    }
    /// What the request selects, begun with the same selection.
    static Ids again(const Ids& start = {})
    {
        select(start);
        quick_select::Result result{quick_select::Outcome::NoDrawing, 0};
        QSelectLastRequest(runAgain, &result);
        EXPECT_EQ(result.outcome, quick_select::Outcome::Done);
        return selection();
    }
};

struct KindRow
{
    const char* name;
    ToyProperty searched; ///< of the entity that is to be found
    ToyProperty other;    ///< of the one that is not
    const char* listName;
    const char* operatorName;
    const char* typed; ///< null: chosen from the list
    const char* chosen;
    const wchar_t* value; ///< as it is told
};

class PastRequestOfKind : public PastRequest, public testing::WithParamInterface<KindRow>
{
};

TEST_P(PastRequestOfKind, SelectsTheSameAgain)
{
    const KindRow& row = GetParam();
    const KdDbObjectId found = addToy({row.searched})->objectId();
    addToy({row.other});
    addOtherToy({row.searched});
    const Ids selected = command([&](Person& person) {
        person.chooseType("TOY");
        person.chooseProperty(row.listName);
        person.chooseOperator(row.operatorName);
        if (row.typed)
            person.type(row.typed);
        else
            person.chooseValue(row.chosen);
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(found));
    ASSERT_TRUE(told());
    EXPECT_EQ(told()->value, row.value);
    EXPECT_EQ(told()->type, kToy);
    EXPECT_EQ(told()->className, L"ToyThing");
    EXPECT_EQ(told()->key, row.searched.key);
    EXPECT_EQ(again(), selected);
    EXPECT_EQ(told()->value, row.value) << "told of the second run as of the first";
}

constexpr const char* kEquals = "= Equals";
constexpr const char* kGreater = "> Greater Than";

// clang-format off
const KindRow kKinds[] = {
    {"real", {L"A:P", real(2.5)}, {L"A:P", real(1.0)}, "P", kEquals, "2.5", nullptr, L"2.5"},
    {"feet", {L"A:P", real(18.0)}, {L"A:P", real(1.0)}, "P", kEquals, "1'-6\"", nullptr, L"1'-6\""},
    {"unreadableReal", {L"A:P", real(1.0)}, {L"A:P", real(2.0)}, "P", kEquals, "many", nullptr, L"1"},
    {"greater", {L"A:P", real(2.5)}, {L"A:P", real(1.0)}, "P", kGreater, "2", nullptr, L"2"},
    {"scale", {L"A:P", real(0.5, 48)}, {L"A:P", real(1.0, 48)}, "P", kEquals, "0.5", nullptr, L"0.5"},
    {"angle", {L"A:P", real(0.785398163397448, 5004)}, {L"A:P", real(1.0, 5004)}, "P", kEquals, "45d", nullptr, L"45d"},
    {"unreadableAngle", {L"A:P", real(1.0, 5004)}, {L"A:P", real(2.0, 5004)}, "P", kEquals, "steep", nullptr, L"1r"},
    {"int8", {L"A:P", integer(7, 280)}, {L"A:P", integer(1, 280)}, "P", kEquals, "7", nullptr, L"7"},
    {"int16", {L"A:P", integer(-12, 5003)}, {L"A:P", integer(1, 5003)}, "P", kEquals, "-12", nullptr, L"-12"},
    {"int32", {L"A:P", integer(100000)}, {L"A:P", integer(1)}, "P", kEquals, "100000", nullptr, L"100000"},
    {"truth", {L"A:P", truth(true)}, {L"A:P", truth(false)}, "P", kEquals, nullptr, "true", L"true"},
    {"point", {L"A:Start", point(9, 5, 9)}, {L"A:Start", point(5, 9, 5)}, "Start Y", kEquals, "5", nullptr, L"5"},
    {"planePoint", {L"A:Corner", point(5, 9)}, {L"A:Corner", point(9, 5)}, "Corner X", kEquals, "5", nullptr, L"5"},
    {"text", {L"A:P", text(L"Pump")}, {L"A:P", text(L"Fan")}, "P", kEquals, "Pump", nullptr, L"Pump"},
    {"wildcards", {L"A:P", text(L"Pump 1")}, {L"A:P", text(L"Fan")}, "P", "* Wildcard Match", "P*", nullptr, L"P*"},
    {"layer", {L"A:P", text(L"W", 8), {text(L"0", 8), text(L"W", 8)}}, {L"A:P", text(L"0", 8), {text(L"0", 8), text(L"W", 8)}}, "P", kEquals, nullptr, "W", L"W"},
    {"linetype", {L"A:P", text(L"Continuous", 6)}, {L"A:P", text(L"x", 6)}, "P", kEquals, nullptr, "Continuous", L"Continuous"},
    {"arrowhead", {L"A:P", text(L"Closed filled", 440)}, {L"A:P", text(L"x", 440)}, "P", kEquals, nullptr, "Closed filled", L"Closed filled"},
    {"lineweight", {L"A:P", text(L"0.25 mm", 370)}, {L"A:P", text(L"x", 370)}, "P", kEquals, nullptr, "0.25 mm", L"0.25 mm"},
    {"weightByLayer", {L"A:P", text(L"ByLayer", 370)}, {L"A:P", text(L"x", 370)}, "P", kEquals, nullptr, "ByLayer", L"ByLayer"},
    {"transparency", {L"A:P", text(L"40", 441)}, {L"A:P", text(L"10", 441)}, "P", kEquals, "40", nullptr, L"40"},
    {"color", {L"A:P", color(4)}, {L"A:P", color(1)}, "P", kEquals, nullptr, "Cyan", L"4"},
    {"colorByLayer", {L"A:P", color(256)}, {L"A:P", color(1)}, "P", kEquals, nullptr, "ByLayer", L"ByLayer"},
    {"colorByBlock", {L"A:P", color(0)}, {L"A:P", color(1)}, "P", kEquals, nullptr, "ByBlock", L"ByBlock"},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Kinds, PastRequestOfKind, testing::ValuesIn(kKinds),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PastRequest, SelectsATrueColorAgain)
{
    KdCmColor orange;
    orange.setRGB(255, 128, 0);
    auto* circle = add<KdDbCircle>();
    change<KdDbCircle>(circle, [&](KdDbCircle& each) { each.edit().color = orange.color(); });
    add<KdDbCircle>();
    select({circle->objectId()}); // which brings its colour to the list
    const Ids selected = command([](Person& person) {
        person.choose("IDC_QSELECT_APPLY_TO_COMBO", "Entire drawing");
        person.chooseType("Circle");
        person.chooseProperty("Color");
        person.chooseValue("255,128,0");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle->objectId()));
    ASSERT_TRUE(told());
    EXPECT_EQ(told()->value, L"255,128,0");
    EXPECT_EQ(again(), selected);
}

TEST_F(PastRequest, OfAllOfATypeHasNoOperator)
{
    add<KdDbLine>();
    add<KdDbCircle>();
    const Ids selected = command([](Person& person) {
        person.chooseType("Circle");
        person.chooseOperator("Select All");
        person.click("IDOK");
    });
    ASSERT_TRUE(told());
    EXPECT_EQ(told()->op, L"");
    EXPECT_EQ(again(), selected);
}

TEST_F(PastRequest, OverAllTypesNamesNone)
{
    add<KdDbLine>(L"PIPES");
    add<KdDbCircle>();
    const Ids selected = command([](Person& person) {
        person.chooseProperty("Layer");
        person.chooseValue("PIPES");
        person.click("IDOK");
    });
    ASSERT_TRUE(told());
    EXPECT_EQ(told()->type, L"");
    EXPECT_EQ(told()->className, L"");
    EXPECT_EQ(again(), selected);
    EXPECT_EQ(selected.size(), 1u);
}

TEST_F(PastRequest, KeepsWhatIsToBecomeOfTheMatches)
{
    const KdDbObjectId pipe = add<KdDbLine>(L"PIPES")->objectId();
    const KdDbObjectId wall = add<KdDbLine>(L"WALLS")->objectId();
    add<KdDbLine>(L"0");
    const auto onPipes = [](Person& person) {
        person.chooseProperty("Layer");
        person.chooseValue("PIPES");
        person.click("IDOK");
    };
    EXPECT_EQ(command([&](Person& person) {
                  person.click("IDC_QSELECT_EXCLUDE_BUTTON");
                  onPipes(person);
              }).size(),
              2u);
    EXPECT_TRUE(told()->exclude);
    EXPECT_EQ(again().size(), 2u);

    select({wall});
    const Ids joined = command([&](Person& person) {
        person.click("IDC_QSELECT_INCLUDE_BUTTON");
        person.click("IDC_QSELECT_APPEND_CHECK_BUTTON");
        onPipes(person);
    });
    EXPECT_TRUE(told()->append);
    EXPECT_EQ(again({wall}), joined);
    EXPECT_EQ(joined, (Ids{wall, pipe}));
}

TEST_F(PastRequest, OverTheSelectionSaysSo)
{
    const KdDbObjectId pipe = add<KdDbLine>(L"PIPES")->objectId();
    const KdDbObjectId wall = add<KdDbLine>(L"WALLS")->objectId();
    add<KdDbLine>(L"PIPES");
    select({pipe, wall});
    const Ids selected = command([](Person& person) {
        person.chooseProperty("Layer");
        person.chooseValue("PIPES");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(pipe));
    EXPECT_TRUE(told()->fromSelection);
    EXPECT_FALSE(told()->overPicked);
    EXPECT_EQ(again({pipe, wall}), selected);
}

TEST_F(PastRequest, OverWhatWasPickedSaysSo)
{
    class Prompt : public KdUiEditorPrompt
    {
      public:
        int pickObjects(std::vector<KdDbObjectId>& picked) override
        {
            picked = answer;
            return RTNORM;
        }
        Ids answer;
    } prompt;
    prompt.answer = {add<KdDbLine>()->objectId()};
    add<KdDbLine>();
    KdUiEditorPrompt* const before = kduiSetEditorPrompt(&prompt);
    command([](Person& person) {
        person.click("IDC_QSELECT_SELECT_OBJECTS_BUTTON");
        person.chooseOperator("Select All");
        person.click("IDOK");
    });
    kduiSetEditorPrompt(before);
    ASSERT_TRUE(told());
    EXPECT_TRUE(told()->overPicked);
    EXPECT_TRUE(told()->fromSelection);
}

TEST_F(PastRequest, StaysWhenADialogIsCancelled)
{
    add<KdDbLine>(L"PIPES");
    command([](Person& person) {
        person.chooseProperty("Layer");
        person.chooseValue("PIPES");
        person.click("IDOK");
    });
    command([](Person& person) {
        person.chooseOperator("Select All");
        person.click("IDCANCEL");
    });
    ASSERT_TRUE(told());
    EXPECT_EQ(told()->value, L"PIPES");
}

struct UntoldRow
{
    const char* name;
    ToyProperty property;
    const char* typed;
};

class UntoldRequest : public PastRequest, public testing::WithParamInterface<UntoldRow>
{
};

/// The dialog goes on with these; no text that could be typed into a request does the same.
TEST_P(UntoldRequest, IsNone)
{
    addToy({GetParam().property});
    command([](Person& person) {
        person.chooseOperator("Select All");
        person.click("IDOK");
    });
    ASSERT_TRUE(told());
    command([](Person& person) {
        person.chooseOperator("= Equals");
        person.type(GetParam().typed);
        person.click("IDOK");
    });
    EXPECT_FALSE(told());
}

const UntoldRow kUntold[] = {
    {"wordForTransparency", {L"A:P", text(L"10", 441)}, "glass"},
    {"kindWithoutValues", {L"A:P", nothing()}, "x"},
};
INSTANTIATE_TEST_SUITE_P(Rows, UntoldRequest, testing::ValuesIn(kUntold),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
