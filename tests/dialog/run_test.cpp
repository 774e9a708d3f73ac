#include "support.h"

#include <editor/command_line.h>
#include <entities/circle.h>
#include <entities/line.h>
#include <ui/editor_prompt.h>

using namespace dialog_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Whole runs of the command, from the dialog to the selection.
class Run : public DialogTest
{
  protected:
    Run()
        : m_previousSink(
              kdutSetPrintSink([this](std::wstring_view said) { printed.emplace_back(said); }))
    {
        const double radii[] = {1.0, 2.0, 3.0};
        for (int i = 0; i < 3; ++i) {
            circles[i] = add<KdDbCircle>(i == 2 ? L"PIPES" : L"0");
            change<KdDbCircle>(circles[i],
                               [&](KdDbCircle& each) { each.edit().radius = radii[i]; });
        }
        line = add<KdDbLine>(L"PIPES");
    }
    ~Run() override { kdutSetPrintSink(m_previousSink); }

    static void circlesWithRadius(Person& person, const char* operatorName, const char* value)
    {
        person.chooseType("Circle");
        person.chooseProperty("Radius");
        person.chooseOperator(operatorName);
        person.type(value);
    }
    KdDbObjectId circle(int i) const { return circles[i]->objectId(); }

    KdDbCircle* circles[3];
    KdDbLine* line;
    std::vector<std::wstring> printed;

  private:
    KdutPrintSink m_previousSink;
};

struct RunRow
{
    const char* name;
    const char* operatorName;
    std::vector<int> circles;
};

class RunOfOperator : public Run, public testing::WithParamInterface<RunRow>
{
};

TEST_P(RunOfOperator, SelectsTheCirclesThatPass)
{
    const Ids selected = command([](Person& person) {
        circlesWithRadius(person, GetParam().operatorName, "2");
        person.click("IDOK");
    });
    Ids expected;
    for (const int i : GetParam().circles)
        expected.push_back(circle(i));
    EXPECT_EQ(selected, expected);
    EXPECT_THAT(printed,
                ElementsAre(L"\n" + std::to_wstring(expected.size()) + L" item(s) selected."));
}

const RunRow kRuns[] = {
    {"equals", "= Equals", {1}},
    {"notEqual", "<> Not Equal", {0, 2}},
    {"greater", "> Greater Than", {2}},
    {"less", "< Less Than", {0}},
};
INSTANTIATE_TEST_SUITE_P(Operators, RunOfOperator, testing::ValuesIn(kRuns),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Run, SelectsAllOfAType)
{
    const Ids selected = command([](Person& person) {
        person.chooseType("Circle");
        person.chooseOperator("Select All");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle(0), circle(1), circle(2)));
}

TEST_F(Run, SelectsAcrossTypesByASharedProperty)
{
    const Ids selected = command([](Person& person) {
        person.chooseProperty("Layer");
        person.chooseValue("PIPES");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle(2), line->objectId()));
}

TEST_F(Run, ExcludesTheMatches)
{
    const Ids selected = command([](Person& person) {
        circlesWithRadius(person, "= Equals", "2");
        person.click("IDC_QSELECT_EXCLUDE_BUTTON");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle(0), circle(2), line->objectId()));
}

TEST_F(Run, AppendsToTheSelection)
{
    select({line->objectId()});
    const Ids selected = command([](Person& person) {
        person.click("IDC_QSELECT_APPEND_CHECK_BUTTON");
        circlesWithRadius(person, "= Equals", "2");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(line->objectId(), circle(1)));
}

TEST_F(Run, SearchesTheCurrentSelection)
{
    select({circle(0), line->objectId()});
    const Ids selected = command([](Person& person) {
        circlesWithRadius(person, "< Less Than", "3");
        EXPECT_EQ(person.textOf("IDC_QSELECT_APPLY_TO_COMBO"), "Current selection");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle(0)));
}

TEST_F(Run, SearchesWhatIsPickedInTheDialog)
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
    prompt.answer = {circle(1), circle(2)};
    KdUiEditorPrompt* const before = kduiSetEditorPrompt(&prompt);
    const Ids selected = command([](Person& person) {
        person.click("IDC_QSELECT_SELECT_OBJECTS_BUTTON");
        circlesWithRadius(person, "> Greater Than", "0");
        person.click("IDOK");
    });
    kduiSetEditorPrompt(before);
    EXPECT_THAT(selected, ElementsAre(circle(1), circle(2)));
}

TEST_F(Run, ChangesNothingWhenCancelled)
{
    select({line->objectId()});
    const Ids selected = command([](Person& person) {
        person.choose("IDC_QSELECT_APPLY_TO_COMBO", "Entire drawing");
        circlesWithRadius(person, "= Equals", "2");
        person.click("IDCANCEL");
    });
    EXPECT_THAT(selected, ElementsAre(line->objectId()));
    EXPECT_THAT(printed, IsEmpty());
}

TEST_F(Run, SelectsByOneCoordinate)
{
    change<KdDbCircle>(circles[1], [](KdDbCircle& each) { each.edit().center.x = 7.0; });
    const Ids selected = command([](Person& person) {
        person.chooseType("Circle");
        person.chooseProperty("Center X");
        person.type("7");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle(1)));
}

TEST_F(Run, SelectsByAColorThatItsSelectionBringsAlong)
{
    KdCmColor orange;
    orange.setColorIndex(30);
    change<KdDbCircle>(circles[0], [&](KdDbCircle& each) { each.edit().color = orange.color(); });
    select({circle(0)});
    const Ids selected = command([](Person& person) {
        person.choose("IDC_QSELECT_APPLY_TO_COMBO", "Entire drawing");
        person.chooseType("Circle");
        person.chooseProperty("Color");
        person.chooseValue("30");
        person.click("IDOK");
    });
    EXPECT_THAT(selected, ElementsAre(circle(0)));
}

} // namespace
