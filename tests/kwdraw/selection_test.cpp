// The history of selections, apart from any window.
#include <kwdraw/document/selection.h>

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <common/entity_set.h>
#include <database/database.h>
#include <entities/line.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SelectionHistory : public testing::Test
{
  protected:
    SelectionHistory()
    {
        kddbHostApplicationServices()->setWorkingDatabase(&drawing);
        KdDbBlockTableRecord* model = nullptr;
        kddbOpenObject(model, drawing.modelSpaceId(), KdDb::kForWrite);
        for (KdDbObjectId* id : {&a, &b, &c}) {
            auto* line = new KdDbLine;
            model->appendEntity(line);
            *id = line->objectId();
        }
        model->close();
    }
    ~SelectionHistory() override { kddbHostApplicationServices()->setWorkingDatabase(nullptr); }

    KdDbDatabase drawing;
    KdDbObjectId a;
    KdDbObjectId b;
    KdDbObjectId c;
    Selection selection;
};

TEST_F(SelectionHistory, IsTheHostsSelection)
{
    selection.set({b, a});
    EXPECT_THAT(pickfirstEntities(), ElementsAre(b, a));
    setPickfirstEntities({c});
    EXPECT_THAT(selection.ids(), ElementsAre(c));
}

TEST_F(SelectionHistory, HoldsEachEntityOnce)
{
    selection.set({a, b, a});
    selection.add({b, c});
    EXPECT_THAT(selection.ids(), ElementsAre(a, b, c));
}

TEST_F(SelectionHistory, TakesAwayWhatIsThereAlone)
{
    selection.set({a, b});
    selection.remove({b, c});
    EXPECT_THAT(selection.ids(), ElementsAre(a));
}

TEST_F(SelectionHistory, InvertsWithinWhatIsOffered)
{
    selection.set({a});
    selection.invert({a, b});
    EXPECT_THAT(selection.ids(), ElementsAre(b));
}

TEST_F(SelectionHistory, TellsOfChangesAlone)
{
    const QSignalSpy changes(&selection, &Selection::changed);
    selection.set({a});
    selection.set({a});
    selection.add({a});
    EXPECT_EQ(changes.count(), 1);
    selection.undo();
    EXPECT_FALSE(selection.canUndo()) << "what changed nothing is no step";
}

TEST_F(SelectionHistory, TakesStepsBackAndForth)
{
    selection.set({a});
    selection.set({a, b});
    selection.undo();
    EXPECT_THAT(selection.ids(), ElementsAre(a));
    selection.undo();
    EXPECT_THAT(selection.ids(), IsEmpty());
    EXPECT_FALSE(selection.canUndo());
    selection.redo();
    selection.redo();
    EXPECT_THAT(selection.ids(), ElementsAre(a, b));
    EXPECT_THAT(pickfirstEntities(), ElementsAre(a, b));
}

TEST_F(SelectionHistory, ForgetsTheWayForthAtANewStep)
{
    selection.set({a});
    selection.undo();
    selection.set({b});
    EXPECT_FALSE(selection.canRedo());
}

TEST_F(SelectionHistory, MakesOneStepOfWhatACommandDoes)
{
    selection.set({a});
    {
        const Selection::OneStep step(selection);
        setPickfirstEntities({});
        setPickfirstEntities({b});
        setPickfirstEntities({b, c});
    }
    selection.undo();
    EXPECT_THAT(selection.ids(), ElementsAre(a));
}

TEST_F(SelectionHistory, MakesNoStepOfACommandThatChangesNothing)
{
    {
        const Selection::OneStep step(selection);
        setPickfirstEntities({a});
        setPickfirstEntities({});
    }
    EXPECT_FALSE(selection.canUndo());
}

TEST_F(SelectionHistory, IsBounded)
{
    for (std::size_t i = 0; i < 2 * Selection::kMostSteps; ++i)
        selection.set(i % 2 == 0 ? Selection::Ids{a} : Selection::Ids{b});
    std::size_t steps = 0;
    for (; selection.canUndo(); ++steps)
        selection.undo();
    EXPECT_EQ(steps, Selection::kMostSteps);
}

TEST_F(SelectionHistory, EndsWithItsDrawing)
{
    selection.set({a});
    selection.set({b});
    selection.undo();
    selection.reset();
    EXPECT_THAT(selection.ids(), IsEmpty());
    EXPECT_THAT(pickfirstEntities(), IsEmpty());
    EXPECT_FALSE(selection.canUndo());
    EXPECT_FALSE(selection.canRedo());
}

} // namespace
