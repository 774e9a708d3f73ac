#include "working_drawing.h"

#include <gmock/gmock.h>

#include <entities/circle.h>

using namespace editor_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

constexpr int kOfCommands = 768;
static_assert((kKdedCurrentSpaceOnly | kKdedPickableOnly) == kOfCommands);

class SelectionGet : public WorkingDrawing
{
  protected:
    ~SelectionGet() override { kdedSetSelectionPrompt({}); }

    static Ids get(const wchar_t* mode, int flags = 0, const resbuf* filter = nullptr)
    {
        Name set{};
        const int status = kdedSSGetImpl(mode, nullptr, nullptr, filter, set.data(), flags);
        EXPECT_TRUE(status == RTNORM || set == Name{});
        return status == RTNORM ? takeMembersOf(set) : Ids{};
    }

    KdDbObjectId addLineOn(KdDbObjectId layer)
    {
        auto* line = new KdDbLine;
        line->setLayer(layer);
        return addTo(model(), line);
    }

    KdDbObjectId addViewport(std::int16_t number)
    {
        auto* viewport = new KdDbViewport;
        viewport->edit().number = number;
        return addTo(sheet(), viewport);
    }

    KdDbObjectId addLayer(const wchar_t* name, bool frozen)
    {
        auto* layer = drawing.addRecord<KdDbLayerTable>(name);
        KdDbLayerTableRecord* opened = nullptr;
        EXPECT_EQ(kddbOpenObject(opened, layer->objectId(), KdDb::kForWrite), eOk);
        opened->edit().frozen = frozen;
        opened->close();
        return layer->objectId();
    }

    void showSheet() { ASSERT_EQ(setShort(L"TILEMODE", 0), RTNORM); }

    static void select(const Ids& members)
    {
        const Name set = makeSet(members);
        EXPECT_EQ(kdedSSSetFirst(set.data(), nullptr), RTNORM);
        kdedSSFree(set.data());
    }
};

TEST_F(SelectionGet, TakesAllSpacesWithX)
{
    const auto inModel = addLine(model());
    const auto onSheet = addLine(sheet());
    const auto block = drawing.addRecord<KdDbBlockTable>(L"DOOR")->objectId();
    addLine(block);
    EXPECT_THAT(get(L"X"), UnorderedElementsAre(inModel, onSheet));
}

TEST_F(SelectionGet, TakesTheSheetViewportWithPlainX)
{
    const auto viewport = addViewport(1);
    EXPECT_THAT(get(L"X"), ElementsAre(viewport));
}

TEST_F(SelectionGet, TakesTheModelAloneWhileItIsShown)
{
    const auto one = addLine(model());
    const auto two = addLine(model());
    addLine(sheet());
    EXPECT_THAT(get(L"X", kOfCommands), ElementsAre(one, two));
}

TEST_F(SelectionGet, TakesTheSheetAloneWhileItIsShown)
{
    addLine(model());
    const auto onSheet = addLine(sheet());
    showSheet();
    EXPECT_THAT(get(L"X", kOfCommands), ElementsAre(onSheet));
}

TEST_F(SelectionGet, LeavesTheSheetViewportOut)
{
    addViewport(1);
    const auto window = addViewport(2);
    showSheet();
    EXPECT_THAT(get(L"X", kOfCommands), ElementsAre(window));
}

TEST_F(SelectionGet, TakesTheSheetViewportWithTheSpaceBitAlone)
{
    const auto viewport = addViewport(1);
    showSheet();
    EXPECT_THAT(get(L"X", kKdedCurrentSpaceOnly), ElementsAre(viewport));
}

TEST_F(SelectionGet, LeavesFrozenLayersOut)
{
    addLineOn(addLayer(L"ICE", true));
    const auto warm = addLineOn(addLayer(L"WATER", false));
    EXPECT_THAT(get(L"X", kOfCommands), ElementsAre(warm));
}

TEST_F(SelectionGet, TakesFrozenLayersWithTheSpaceBitAlone)
{
    const auto cold = addLineOn(addLayer(L"ICE", true));
    EXPECT_THAT(get(L"X", kKdedCurrentSpaceOnly), ElementsAre(cold));
}

TEST_F(SelectionGet, TakesAllSpacesWithThePickableBitAlone)
{
    addLineOn(addLayer(L"ICE", true));
    const auto onSheet = addLine(sheet());
    EXPECT_THAT(get(L"X", kKdedPickableOnly), ElementsAre(onSheet));
}

TEST_F(SelectionGet, LeavesErasedEntitiesOut)
{
    const auto gone = addLine(model());
    const auto kept = addLine(model());
    erase(gone);
    EXPECT_THAT(get(L"X"), ElementsAre(kept));
}

TEST_F(SelectionGet, FailsWhereNothingIsSelected)
{
    EXPECT_THAT(get(L"X"), IsEmpty());
    EXPECT_THAT(get(L"I"), IsEmpty());
    EXPECT_THAT(get(L"P"), IsEmpty());
    EXPECT_THAT(get(L"L"), IsEmpty());
}

TEST_F(SelectionGet, TakesThePickfirstSetAsImplied)
{
    const auto one = addLine(model());
    const auto two = addLine(model());
    select({two, one});
    EXPECT_THAT(get(L"I"), ElementsAre(two, one));
}

TEST_F(SelectionGet, AppliesTheFlagsToTheImpliedSet)
{
    const auto inModel = addLine(model());
    select({addLine(sheet()), inModel});
    EXPECT_THAT(get(L"I", kKdedCurrentSpaceOnly), ElementsAre(inModel));
}

TEST_F(SelectionGet, RemembersThePreviousSelectionWhenPickfirstIsCleared)
{
    const auto line = addLine(model());
    select({line});
    kdedSSSetFirst(nullptr, nullptr);
    EXPECT_THAT(get(L"I"), IsEmpty());
    EXPECT_THAT(get(L"P"), ElementsAre(line));
}

TEST_F(SelectionGet, TakesTheLastEntityOfTheCurrentSpace)
{
    addLine(model());
    const auto last = addLine(model());
    erase(addLine(model()));
    addLine(sheet());
    EXPECT_THAT(get(L"L"), ElementsAre(last));
}

TEST_F(SelectionGet, AsksTheProgramWithoutAMode)
{
    const auto one = addLine(model());
    const auto two = addLine(model());
    kdedSetSelectionPrompt([&](Ids& picked) {
        picked = {two, one, two};
        return RTNORM;
    });
    EXPECT_THAT(get(nullptr), ElementsAre(two, one));
    EXPECT_THAT(get(L"P"), ElementsAre(two, one));
}

TEST_F(SelectionGet, PassesOnThatTheUserGaveUp)
{
    addLine(model());
    kdedSetSelectionPrompt([&](Ids&) { return RTCAN; });
    Name set{};
    EXPECT_EQ(kdedSSGet(nullptr, nullptr, nullptr, nullptr, set.data()), RTCAN);
    EXPECT_EQ(set, Name{});
}

TEST_F(SelectionGet, FailsWithoutAPrompt)
{
    Name set{};
    EXPECT_EQ(kdedSSGet(nullptr, nullptr, nullptr, nullptr, set.data()), RTERROR);
}

TEST_F(SelectionGet, TakesNothingOfAnotherDrawingFromThePrompt)
{
    KdDbDatabase other;
    const auto line = addLine(model());
    kdedSetSelectionPrompt([&](Ids& picked) {
        picked = {addLine(other.modelSpaceId()), KdDbObjectId(), line};
        return RTNORM;
    });
    EXPECT_THAT(get(nullptr), ElementsAre(line));
}

TEST_F(SelectionGet, TakesNothingButEntitiesFromThePrompt)
{
    const auto line = addLine(model());
    kdedSetSelectionPrompt([&](Ids& picked) {
        picked = {model(), line};
        return RTNORM;
    });
    EXPECT_THAT(get(nullptr), ElementsAre(line));
}

TEST_F(SelectionGet, RefusesWhatItDoesNotKnow)
{
    addLine(model());
    Name set{};
    const double point[3] = {};
    EXPECT_EQ(kdedSSGet(L"x", nullptr, nullptr, nullptr, set.data()), RTERROR);
    EXPECT_EQ(kdedSSGet(L"", nullptr, nullptr, nullptr, set.data()), RTERROR);
    EXPECT_EQ(kdedSSGet(L"X", point, nullptr, nullptr, set.data()), RTERROR);
    EXPECT_EQ(kdedSSGet(L"X", nullptr, point, nullptr, set.data()), RTERROR);
    EXPECT_EQ(kdedSSGet(L"X", nullptr, nullptr, nullptr, nullptr), RTERROR);
}

TEST_F(SelectionGet, NeedsAWorkingDrawing)
{
    addLine(model());
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_THAT(get(L"X"), IsEmpty());
}

ResbufChain condition(short group, const wchar_t* pattern)
{
    ResbufChain record(kdutNewRb(group));
    record->resval.rstring = kdutNewString(pattern);
    return record;
}

TEST_F(SelectionGet, FiltersByTheNameInDxf)
{
    addLine(model());
    const auto circle = addTo(model(), new KdDbCircle);
    EXPECT_THAT(get(L"X", 0, condition(0, L"circle,arc").get()), ElementsAre(circle));
}

TEST_F(SelectionGet, FiltersByLayerWithoutCase)
{
    const auto pipe = addLineOn(addLayer(L"Pipes-1", false));
    addLineOn(addLayer(L"Doors", false));
    EXPECT_THAT(get(L"X", 0, condition(8, L"pipes*").get()), ElementsAre(pipe));
}

TEST_F(SelectionGet, FiltersByLinetype)
{
    addLine(model());
    EXPECT_EQ(get(L"X", 0, condition(6, L"bylayer").get()).size(), 1u);
    EXPECT_THAT(get(L"X", 0, condition(6, L"dashed").get()), IsEmpty());
}

TEST_F(SelectionGet, TakesWhatKeepsAllConditions)
{
    const auto layer = addLayer(L"PIPES", false);
    const auto line = addLineOn(layer);
    auto* circle = new KdDbCircle;
    circle->setLayer(layer);
    addTo(model(), circle);
    addLine(model());
    ResbufChain both = condition(0, L"LINE");
    both->rbnext = condition(8, L"PIPES").release();
    EXPECT_THAT(get(L"X", 0, both.get()), ElementsAre(line));
}

TEST_F(SelectionGet, RefusesAFilterItDoesNotKnow)
{
    addLine(model());
    const ResbufChain colour(kdutNewRb(62));
    const ResbufChain withoutText(kdutNewRb(8));
    EXPECT_THAT(get(L"X", 0, colour.get()), IsEmpty());
    EXPECT_THAT(get(L"X", 0, withoutText.get()), IsEmpty());
}

} // namespace
