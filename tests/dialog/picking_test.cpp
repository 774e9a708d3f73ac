#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <ui/editor_prompt.h>

#include <QTest>

using namespace dialog_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kSelectObjects[] = "IDC_QSELECT_SELECT_OBJECTS_BUTTON";

/// Answers for the user's picking in the drawing.
class Prompt : public KdUiEditorPrompt
{
  public:
    Prompt() : m_previous(kduiSetEditorPrompt(this)) {}
    ~Prompt() override { kduiSetEditorPrompt(m_previous); }

    void beginEditorCommand() override { steps.emplace_back("begin"); }
    int pickObjects(std::vector<KdDbObjectId>& picked) override
    {
        steps.emplace_back(dialog && dialog->isVisible() ? "pick before the dialog" : "pick");
        picked = answer;
        return picked.empty() ? RTCAN : RTNORM;
    }
    void completeEditorCommand() override { steps.emplace_back("complete"); }

    Ids answer;
    QDialog* dialog = nullptr;
    std::vector<std::string> steps;

  private:
    KdUiEditorPrompt* m_previous;
};

class Picking : public DialogTest
{
  protected:
    Prompt prompt;
    KdDbLine* line = add<KdDbLine>();
    KdDbCircle* circle = add<KdDbCircle>();
    KdDbCircle* secondCircle = add<KdDbCircle>();
};

TEST_F(Picking, HidesTheDialogAndBringsItBackWithWhatWasPicked)
{
    prompt.answer = {circle->objectId(), secondCircle->objectId()};
    makeDialog({line, circle});
    prompt.dialog = dialog.get();
    const int end = use([](Person& person) {
        person.click(kSelectObjects);
        EXPECT_TRUE(person.dialog().isVisible());
        EXPECT_EQ(person.textOf("IDC_QSELECT_APPLY_TO_COMBO"), "Current selection");
        EXPECT_EQ(person.rows("IDC_QSELECT_OBJECT_TYPE_COMBO"), QStringList{"Circle"});
        person.click("IDOK");
    });
    EXPECT_EQ(end, IDOK);
    EXPECT_THAT(prompt.steps, ElementsAre("begin", "pick", "complete"));
    EXPECT_EQ(outcome().selectionSource, 0);
    EXPECT_FALSE(outcome().entireDrawing);
    EXPECT_THAT(dialog->pickedEntities(), ElementsAre(circle, secondCircle));
}

TEST_F(Picking, ReplacesTheStartingSelection)
{
    prompt.answer = {circle->objectId()};
    makeDialog({line, circle}, {line});
    use([](Person& person) {
        EXPECT_EQ(person.rows("IDC_QSELECT_OBJECT_TYPE_COMBO"), QStringList{"Line"});
        person.click(kSelectObjects);
        EXPECT_EQ(person.rows("IDC_QSELECT_OBJECT_TYPE_COMBO"), QStringList{"Circle"});
    });
}

TEST_F(Picking, BringsTypesThatTheDialogHasNotMet)
{
    prompt.answer = {circle->objectId(), line->objectId()};
    makeDialog({line});
    use([](Person& person) {
        person.click(kSelectObjects);
        EXPECT_EQ(person.rows("IDC_QSELECT_OBJECT_TYPE_COMBO"),
                  (QStringList{"Multiple", "Circle", "Line"}));
        person.chooseType("Circle");
        person.chooseProperty("Radius");
    });
}

TEST_F(Picking, KeepsWhatItHadWhenNothingIsPicked)
{
    select({line->objectId()});
    makeDialog({line, circle}, {line});
    use([](Person& person) {
        person.click(kSelectObjects);
        EXPECT_TRUE(person.dialog().isVisible());
        EXPECT_EQ(person.rows("IDC_QSELECT_OBJECT_TYPE_COMBO"), QStringList{"Line"});
        person.click("IDOK");
    });
    EXPECT_THAT(dialog->pickedEntities(), ElementsAre(line));
    EXPECT_EQ(outcome().selectionSource, 0);
    EXPECT_THAT(selection(), IsEmpty()) << "the selection stays cleared";
}

TEST_F(Picking, AnswersToItsKey)
{
    prompt.answer = {circle->objectId()};
    makeDialog({line, circle});
    use([](Person& person) {
        QTest::keyClick(&person.dialog(), Qt::Key_S, Qt::AltModifier);
        // A button that is pressed by its key stays down for a moment first.
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return person.textOf("IDC_QSELECT_APPLY_TO_COMBO") == "Current selection"; }));
    });
    EXPECT_THAT(prompt.steps, ElementsAre("begin", "pick", "complete"));
}

TEST_F(Picking, ForgetsItsSourceAtTheNextStart)
{
    prompt.answer = {circle->objectId()};
    makeDialog({line, circle});
    use([](Person& person) { person.click(kSelectObjects); });
    EXPECT_EQ(outcome().selectionSource, 0);
    use([](Person& person) { person.click("IDCANCEL"); });
    EXPECT_EQ(outcome().selectionSource, -1);
}

TEST_F(Picking, DoesNothingInAProgramThatCannot)
{
    kduiSetEditorPrompt(nullptr);
    makeDialog({line, circle});
    use([](Person& person) {
        person.click(kSelectObjects);
        EXPECT_TRUE(person.dialog().isVisible());
        EXPECT_EQ(person.rows("IDC_QSELECT_APPLY_TO_COMBO"), QStringList{"Entire drawing"});
    });
    kduiSetEditorPrompt(&prompt);
}

} // namespace
