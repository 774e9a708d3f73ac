// Filters in steps, as programs without the dialog take them, against the same clicks in it.
#include "support.h"

#include <QCheckBox>

#include <common/selection_steps.h>
#include <entities/circle.h>
#include <entities/line.h>

#include <command/entry.h>

using namespace dialog_test;

namespace {

/// One visit to the dialog, and the step that means the same.
struct Visit
{
    const wchar_t* filter;
    SelectionStep::Over over;
    bool exclude;
    const char* type;
    const char* property;
    const char* operatorName;
    const char* value;
};

using Over = SelectionStep::Over;

struct Scenario
{
    const char* name;
    std::vector<Visit> visits;
};

class Steps : public DialogTest, public testing::WithParamInterface<Scenario>
{
  protected:
    Steps()
    {
        for (const double radius : {1.0, 2.0, 3.0, 4.0}) {
            auto* circle = add<KdDbCircle>(radius > 2.5 ? L"PIPES" : L"0");
            change<KdDbCircle>(circle, [&](KdDbCircle& each) { each.edit().radius = radius; });
        }
        add<KdDbLine>(L"PIPES");
        add<KdDbLine>(L"0");
        m_module.run = QSelectRun;
        m_module.listTypes = QSelectListTypes;
        m_module.listEntities = QSelectListEntities;
        m_module.listProperties = QSelectListProperties;
        m_module.listOperators = QSelectListOperators;
    }

    Ids click(const Visit& visit, bool isFirst)
    {
        return command([&](Person& person) {
            // Both are remembered from the visit before, and changing them fills the controls anew.
            person.click(visit.exclude ? "IDC_QSELECT_EXCLUDE_BUTTON"
                                       : "IDC_QSELECT_INCLUDE_BUTTON");
            auto& append = person.find<QCheckBox>("IDC_QSELECT_APPEND_CHECK_BUTTON");
            if (append.isChecked() != (visit.over == Over::Append))
                person.click("IDC_QSELECT_APPEND_CHECK_BUTTON");
            if (!isFirst)
                person.choose("IDC_QSELECT_APPLY_TO_COMBO", visit.over == Over::Selection
                                                                ? "Current selection"
                                                                : "Entire drawing");
            person.chooseType(visit.type);
            person.chooseProperty(visit.property);
            person.chooseOperator(visit.operatorName);
            if (person.edit().isVisible())
                person.type(visit.value);
            else
                person.chooseValue(visit.value);
            person.click("IDOK");
        });
    }

    Module m_module;
};

TEST_P(Steps, SelectWhatTheSameClicksSelect)
{
    std::vector<Ids> clicked;
    for (const Visit& visit : GetParam().visits)
        clicked.push_back(click(visit, clicked.empty()));
    select({});

    Catalog catalog(m_module);
    Selecting selecting(catalog);
    for (std::size_t i = 0; i < clicked.size(); ++i) {
        const Visit& visit = GetParam().visits[i];
        SelectionStep step;
        step.over = visit.over;
        step.exclude = visit.exclude;
        step.expression = std::get<Expression>(readExpression(visit.filter));
        ASSERT_TRUE(selecting.carryOut(step)) << selecting.problem().sentence;
        EXPECT_EQ(selecting.selection(), clicked[i]) << "after step " << i;
        EXPECT_FALSE(clicked[i].empty());
    }
}

constexpr Visit kBigCircles = {L"Circle: Radius > 1", Over::Space, false, "Circle", "Radius",
                               "> Greater Than",      "1"};
constexpr Visit kOnPipes = {L"Layer = PIPES", Over::Selection, false,  "Multiple",
                            "Layer",          "= Equals",      "PIPES"};

const Scenario kScenarios[] = {
    {"oneAfterTheOther",
     {{L"Layer = PIPES", Over::Space, false, "Multiple", "Layer", "= Equals", "PIPES"},
      {L"Circle: Radius > 3", Over::Selection, false, "Circle", "Radius", "> Greater Than", "3"}}},
    {"theRest",
     {{L"Circle: Radius > 1", Over::Space, true, "Circle", "Radius", "> Greater Than", "1"},
      kOnPipes}},
    {"theRestOfTheSelection",
     {{L"Layer = PIPES", Over::Space, false, "Multiple", "Layer", "= Equals", "PIPES"},
      {L"Circle: Radius > 3", Over::Selection, true, "Circle", "Radius", "> Greater Than", "3"}}},
    {"byWhatTheSelectedHaveInCommon",
     {{L"Circle: Layer = PIPES", Over::Space, false, "Circle", "Layer", "= Equals", "PIPES"},
      {L"Radius > 3", Over::Selection, false, "Circle", "Radius", "> Greater Than", "3"}}},
    {"joined",
     {kBigCircles,
      {L"Line: Layer = PIPES", Over::Append, false, "Line", "Layer", "= Equals", "PIPES"}}},
    {"joinedByWhatIsThereAlready",
     {kBigCircles,
      {L"Layer = PIPES", Over::Append, false, "Multiple", "Layer", "= Equals", "PIPES"}}},
    {"joinedByTheRest",
     {kBigCircles,
      {L"Circle: Radius < 3", Over::Append, true, "Circle", "Radius", "< Less Than", "3"}}},
};

INSTANTIATE_TEST_SUITE_P(Clicks, Steps, testing::ValuesIn(kScenarios),
                         [](const auto& row) { return row.param.name; });

} // namespace
