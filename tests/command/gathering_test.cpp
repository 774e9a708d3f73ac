#include "support.h"

#include <entities/viewport.h>

#include <command/gathering.h>
#include <command/selection_run.h>
#include <values/globals.h>

using namespace command_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Notes that the focus went back to the drawing.
class FocusNote : public MainAppService
{
  public:
    FocusNote() : m_previous(setMainAppService(this)) {}
    ~FocusNote() override { setMainAppService(m_previous); }
    void focusDrawing() override { ++times; }

    int times = 0;

  private:
    MainAppService* m_previous;
};

class Gathering : public CommandTest
{
  protected:
    KdDbViewport* addViewport(KdDbObjectId block, std::int16_t number)
    {
        auto* viewport = new KdDbViewport;
        viewport->edit().number = number;
        KdDbBlockTableRecord* record = nullptr;
        EXPECT_EQ(kddbOpenObject(record, block, KdDb::kForWrite), eOk);
        EXPECT_EQ(record->appendEntity(viewport), eOk);
        record->close();
        return viewport;
    }

    void setColor(KdDbEntity* entity, int index)
    {
        KdDbEntity* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, entity->objectId(), KdDb::kForWrite), eOk);
        opened->edit().color = color(index).color();
        opened->close();
    }

    static KdCmColor color(int index)
    {
        KdCmColor made;
        EXPECT_EQ(made.setColorIndex(index), eOk);
        return made;
    }

    SpaceStatus gather() { return gatherSpace(candidates); }
    void gatherStart(const long* ss)
    {
        gatherSelection(ss, candidates);
        rememberColorOfStart(candidates);
    }

    Candidates candidates;
};

TEST_F(Gathering, OfTheModelTakesItsEntitiesInTheirOrder)
{
    KdDbEntity* first = add<KdDbLine>(model());
    KdDbEntity* second = add<KdDbCircle>(model());
    add(sheet());
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(first, second));
}

TEST_F(Gathering, OfAHeldDrawingHappensOnceForEachSpace)
{
    KdDbEntity* first = add<KdDbLine>(model());
    holdDrawing(true);
    gather();
    KdDbEntity* second = add<KdDbCircle>(model());
    candidates = {};
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(first));
    EXPECT_THAT(candidates.drawingTypeEntities, ElementsAre(first));

    KdDbEntity* onSheet = add<KdDbCircle>(sheet());
    showSheet(1);
    candidates = {};
    gather();
    EXPECT_THAT(candidates.allEntities, ElementsAre(onSheet));

    ASSERT_EQ(setShort(L"TILEMODE", 1), RTNORM);
    holdDrawing(true); // anew
    candidates = {};
    gather();
    EXPECT_THAT(candidates.allEntities, ElementsAre(first, second));
    holdDrawing(false);
}

TEST_F(Gathering, OfADrawingThatIsHeldNoMoreSeesWhatChanged)
{
    KdDbEntity* first = add<KdDbLine>(model());
    holdDrawing(true);
    gather();
    holdDrawing(false);
    KdDbEntity* second = add<KdDbCircle>(model());
    candidates = {};
    gather();
    EXPECT_THAT(candidates.allEntities, ElementsAre(first, second));
}

TEST_F(Gathering, OnTheSheetItselfTakesTheActiveLayout)
{
    add(model());
    KdDbEntity* onSheet = add<KdDbCircle>(sheet());
    showSheet(1);
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(onSheet));
}

TEST_F(Gathering, OnASheetLeavesOutTheViewportOfTheSheetItselfAlone)
{
    addViewport(sheet(), 1);
    KdDbEntity* window = addViewport(sheet(), 2);
    showSheet(1);
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(window));
}

TEST_F(Gathering, InAViewportOfASheetTakesTheModel)
{
    KdDbEntity* inModel = add(model());
    add<KdDbCircle>(sheet());
    showSheet(2);
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(inModel));
}

TEST_F(Gathering, WhileTheModelIsShownTakesTheModel)
{
    KdDbEntity* inModel = add(model());
    add<KdDbCircle>(sheet());
    ASSERT_EQ(setShort(L"TILEMODE", 1), RTNORM);
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(inModel));
}

TEST_F(Gathering, LeavesErasedEntitiesOut)
{
    erase(add(model())->objectId());
    KdDbEntity* kept = add(model());
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(kept));
}

TEST_F(Gathering, TakesTheFirstEntityOfEachDisplayNameAsItsType)
{
    KdDbEntity* line = add<KdDbLine>(model());
    KdDbEntity* circle = add<KdDbCircle>(model());
    add<KdDbLine>(model());
    gather();
    EXPECT_THAT(candidates.drawingTypeEntities, ElementsAre(line, circle));
    EXPECT_EQ(candidates.allEntities.size(), 3u);
}

TEST_F(Gathering, KeepsAnEntityWithoutADisplayNameButNoTypeForIt)
{
    KdDbEntity* line = add<KdDbLine>(model());
    KdDbEntity* nameless = add<NamelessEntity>(model());
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(line, nameless));
    EXPECT_THAT(candidates.drawingTypeEntities, ElementsAre(line));
}

TEST_F(Gathering, CallsASpaceEmptyThatHoldsOnlyEntitiesWithoutADisplayName)
{
    add<NamelessEntity>(model());
    EXPECT_EQ(gather(), SpaceStatus::Empty);
}

TEST_F(Gathering, StepsOverAnEntityThatIsOpenForWrite)
{
    KdDbEntity* kept = add(model());
    KdDbEntity* busy = nullptr;
    ASSERT_EQ(kddbOpenObject(busy, add(model())->objectId(), KdDb::kForWrite), eOk);
    EXPECT_EQ(gather(), SpaceStatus::Ready);
    EXPECT_THAT(candidates.allEntities, ElementsAre(kept));
    busy->close();
}

TEST_F(Gathering, IsImpossibleWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(gather(), SpaceStatus::Unreadable);
}

TEST_F(Gathering, IsImpossibleWhileTheBlockTableIsOpenForWrite)
{
    add(model());
    KdDbBlockTable* blocks = nullptr;
    ASSERT_EQ(drawing.getSymbolTable(blocks, KdDb::kForWrite), eOk);
    EXPECT_EQ(gather(), SpaceStatus::Unreadable);
    blocks->close();
}

TEST_F(Gathering, IsImpossibleWhereTheModelIsMissing)
{
    add(model());
    erase(model());
    EXPECT_EQ(gather(), SpaceStatus::Unreadable);
}

TEST_F(Gathering, IsImpossibleOnASheetWhereTheProgramHasNoLayouts)
{
    add<KdDbCircle>(sheet());
    showSheet(1);
    kddbHostApplicationServices()->setHasLayoutManager(false);
    EXPECT_EQ(gather(), SpaceStatus::Unreadable);
    kddbHostApplicationServices()->setHasLayoutManager(true);
}

TEST_F(Gathering, SaysThatAnEmptyDrawingHasNoObjectsAndPrintsNothing)
{
    const FocusNote focus;
    MadeFilter filter;
    int matches = 77;
    EXPECT_EQ(runSelection(nullptr, filter, matches), RunEnd::NoObjects);

    ASSERT_EQ(messages.shown.size(), 1u);
    const Messages::Box box = messages.last;
    messages.shown.clear();
    EXPECT_EQ(box.text, L"There are no objects in the current drawing.");
    EXPECT_EQ(box.caption, GetOemProductName());
    EXPECT_EQ(box.style, 0u);
    EXPECT_EQ(box.owner, kdsw_kdadMainWnd());
    EXPECT_EQ(focus.times, 1);
    EXPECT_EQ(filter.asked, 0);
    EXPECT_EQ(matches, 77);
    EXPECT_THAT(printed, IsEmpty());
}

TEST_F(Gathering, SaysNothingWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const FocusNote focus;
    MadeFilter filter;
    int matches = 77;
    EXPECT_EQ(runSelection(nullptr, filter, matches), RunEnd::NoDrawing);
    EXPECT_EQ(focus.times, 0);
    EXPECT_EQ(filter.asked, 0);
    EXPECT_THAT(printed, IsEmpty());
}

TEST_F(Gathering, OfTheStartTakesTheGivenSetInItsOrder)
{
    KdDbEntity* line = add<KdDbLine>(model());
    KdDbEntity* circle = add<KdDbCircle>(model());
    KdDbEntity* other = add<KdDbLine>(model());
    select({other->objectId()});
    const GivenSet given({circle->objectId(), line->objectId()});
    gatherSelection(given.name, candidates);
    EXPECT_THAT(candidates.selectionEntities, ElementsAre(circle, line));
    EXPECT_EQ(candidates.given, given.name);
}

TEST_F(Gathering, OfTheStartTakesTheImpliedSelectionWhenNoSetIsGiven)
{
    KdDbEntity* line = add<KdDbLine>(model());
    KdDbEntity* circle = add<KdDbCircle>(model());
    select({circle->objectId(), line->objectId()});
    gatherSelection(nullptr, candidates);
    EXPECT_THAT(candidates.selectionEntities, ElementsAre(circle, line));
    EXPECT_EQ(candidates.given, nullptr);
}

TEST_F(Gathering, OfTheStartTakesTheImpliedSelectionWhenTheGivenSetIsEmpty)
{
    KdDbEntity* line = add<KdDbLine>(model());
    select({line->objectId()});
    const GivenSet given;
    gatherSelection(given.name, candidates);
    EXPECT_THAT(candidates.selectionEntities, ElementsAre(line));
    EXPECT_EQ(candidates.given, nullptr);
}

TEST_F(Gathering, OfTheStartTakesTheImpliedSelectionWhenTheGivenNameIsNoSet)
{
    KdDbEntity* line = add<KdDbLine>(model());
    select({line->objectId()});
    const kds_name unknown = {12345, 54321};
    gatherSelection(unknown, candidates);
    EXPECT_THAT(candidates.selectionEntities, ElementsAre(line));
}

TEST_F(Gathering, OfTheStartFindsNothingWithoutAnySelection)
{
    add(model());
    gatherStart(nullptr);
    EXPECT_THAT(candidates.selectionEntities, IsEmpty());
    EXPECT_THAT(candidates.selectionTypeEntities, IsEmpty());
    EXPECT_THAT(gComboValues, IsEmpty());
}

TEST_F(Gathering, OfTheStartCountsTypesApartFromThoseOfTheDrawing)
{
    KdDbEntity* first = add<KdDbLine>(model());
    KdDbEntity* second = add<KdDbLine>(model());
    gather();
    const GivenSet given({second->objectId()});
    gatherSelection(given.name, candidates);
    EXPECT_THAT(candidates.drawingTypeEntities, ElementsAre(first));
    EXPECT_THAT(candidates.selectionTypeEntities, ElementsAre(second));
}

TEST_F(Gathering, OfTheStartKeepsAnEntityWithoutADisplayNameButNoTypeForIt)
{
    KdDbEntity* nameless = add<NamelessEntity>(model());
    const GivenSet given({nameless->objectId()});
    gatherSelection(given.name, candidates);
    EXPECT_THAT(candidates.selectionEntities, ElementsAre(nameless));
    EXPECT_THAT(candidates.selectionTypeEntities, IsEmpty());
}

TEST_F(Gathering, OfTheStartStepsOverMembersThatAreErased)
{
    KdDbEntity* gone = add(model());
    KdDbEntity* kept = add(model());
    const GivenSet given({gone->objectId(), kept->objectId()});
    erase(gone->objectId());
    gatherSelection(given.name, candidates);
    EXPECT_THAT(candidates.selectionEntities, ElementsAre(kept));
}

TEST_F(Gathering, OfTheStartTakesACustomColorFromItsFirstMemberAlone)
{
    KdDbEntity* first = add(model());
    KdDbEntity* second = add(model());
    setColor(first, 30);
    setColor(second, 40);
    const GivenSet given({first->objectId(), second->objectId()});
    gatherStart(given.name);
    EXPECT_THAT(gComboValues, ElementsAre(color(30)));
}

TEST_F(Gathering, OfTheStartTakesNoCustomColorWhenItsFirstMemberCannotBeOpened)
{
    KdDbEntity* gone = add(model());
    KdDbEntity* kept = add(model());
    const GivenSet given({gone->objectId(), kept->objectId()});
    erase(gone->objectId());
    gatherStart(given.name);
    EXPECT_THAT(gComboValues, IsEmpty());
}

TEST_F(Gathering, OfTheStartTakesACustomColorOnce)
{
    KdDbEntity* line = add(model());
    setColor(line, 30);
    gComboValues = {color(20), color(30)};
    const GivenSet given({line->objectId()});
    gatherStart(given.name);
    EXPECT_THAT(gComboValues, ElementsAre(color(20), color(30)));
}

TEST_F(Gathering, OfTheStartAddsANewCustomColorBehindTheOthers)
{
    KdDbEntity* line = add(model());
    setColor(line, 30);
    gComboValues = {color(20)};
    const GivenSet given({line->objectId()});
    gatherStart(given.name);
    EXPECT_THAT(gComboValues, ElementsAre(color(20), color(30)));
}

TEST_F(Gathering, OfARunTakesACustomColorFromTheImpliedSelection)
{
    KdDbEntity* line = add(model());
    setColor(line, 30);
    select({line->objectId()});
    MadeFilter filter;
    filter.cancelling();
    run(filter);
    EXPECT_THAT(gComboValues, ElementsAre(color(30)));
}

TEST_F(Gathering, HandsOneEntityOfEachTypeToTheFilterSource)
{
    KdDbEntity* line = add<KdDbLine>(model());
    KdDbEntity* circle = add<KdDbCircle>(model());
    add<KdDbCircle>(model());
    select({circle->objectId()});
    MadeFilter filter;
    filter.cancelling();
    run(filter);
    EXPECT_THAT(filter.drawingTypes, ElementsAre(line, circle));
    EXPECT_THAT(filter.selectionTypes, ElementsAre(circle));
}

} // namespace
