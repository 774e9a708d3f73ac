#include "support.h"

#include <entities/block_reference.h>
#include <entities/mesh.h>
#include <entities/proxy_entity.h>
#include <entities/viewport.h>
#include <plugin/entity_pe.h>

#include <command/entry.h>
#include <command/matching.h>
#include <command/selection_run.h>

using namespace command_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Matching : public CommandTest
{
  protected:
    Ids found(MadeFilter& filter, long* ss = nullptr)
    {
        select({});
        EXPECT_NE(run(filter, ss), -1);
        return selection();
    }

    KdDbViewport* addViewport(bool on, KdDbObjectId clip = {})
    {
        auto* viewport = add<KdDbViewport>(model());
        KdDbViewport* opened = nullptr;
        EXPECT_EQ(kddbOpenObject(opened, viewport->objectId(), KdDb::kForWrite), eOk);
        opened->edit().number = 2;
        opened->edit().on = on;
        opened->edit().clipEntity = clip;
        opened->close();
        return viewport;
    }

    template <class Reference = KdDbBlockReference>
    KdDbObjectId insert(KdDbObjectId block)
    {
        auto* reference = add<Reference>(model());
        Reference* opened = nullptr;
        EXPECT_EQ(kddbOpenObject(opened, reference->objectId(), KdDb::kForWrite), eOk);
        opened->edit().block = block;
        opened->close();
        return opened->objectId();
    }
};

TEST_F(Matching, SelectsWhatThePropertyComparesWith)
{
    addOn(L"0");
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    MadeFilter filter;
    filter.layer(L"=", L"PIPES");
    EXPECT_THAT(found(filter), ElementsAre(pipe));
}

TEST_F(Matching, SelectsAllWithoutAnOperator)
{
    const KdDbObjectId line = addOn(L"0")->objectId();
    const KdDbObjectId nameless = addOn<NamelessEntity>(L"PIPES")->objectId();
    MadeFilter filter;
    EXPECT_THAT(found(filter), ElementsAre(line, nameless));
}

TEST_F(Matching, NeverSelectsFromAFrozenLayer)
{
    addOn(L"ICE");
    const KdDbObjectId kept = addOn(L"0")->objectId();
    freeze(L"ICE");
    MadeFilter filter;
    EXPECT_THAT(found(filter), ElementsAre(kept));
}

TEST_F(Matching, SelectsFromALayerThatCannotBeOpened)
{
    KdDbEntity* line = addOn(L"GONE");
    freeze(L"GONE");
    erase(line->layerId());
    MadeFilter filter;
    EXPECT_THAT(found(filter), ElementsAre(line->objectId()));
}

TEST_F(Matching, PassesOverPickedEntitiesThatAreNull)
{
    KdDbEntity* line = add(model());
    MadeFilter filter;
    filter.overPicked({nullptr, line});
    EXPECT_THAT(found(filter), ElementsAre(line->objectId()));
}

TEST_F(Matching, KnowsTheTextForAllTypesInAnyCase)
{
    const KdDbObjectId line = add<KdDbLine>(model())->objectId();
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    MadeFilter filter;
    filter.type(L"mULTIPLE", L"AcDbLine");
    EXPECT_THAT(found(filter), ElementsAre(line, circle));
}

TEST_F(Matching, DoesNotTakeAPartOfTheTextForAllTypesForIt)
{
    add(model());
    for (const wchar_t* name : {L"Multipl", L"Multiples", L""}) {
        MadeFilter filter;
        filter.type(name, L"AcDbCircle");
        EXPECT_THAT(found(filter), IsEmpty());
    }
}

TEST_F(Matching, OfOneTypeAsksForTheExactClass)
{
    add<KdDbLine>(model());
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    MadeFilter filter;
    filter.type(L"Circle", L"AcDbCircle");
    EXPECT_THAT(found(filter), ElementsAre(circle));
}

TEST_F(Matching, OfOneTypeTellsTwoClassesOfOneDisplayNameApart)
{
    add<KdDbSubDMesh>(model());
    const KdDbObjectId proxy = add<KdDbProxyEntity>(model())->objectId();
    MadeFilter filter;
    filter.type(L"Proxy or Mesh", L"AcDbProxyEntity");
    EXPECT_THAT(found(filter), ElementsAre(proxy));
}

TEST_F(Matching, OfOneTypeAsksForTheExactDisplayNameToo)
{
    add<KdDbCircle>(model());
    for (const wchar_t* name : {L"Centre Mark", L"circle"}) {
        MadeFilter filter;
        filter.type(name, L"AcDbCircle");
        EXPECT_THAT(found(filter), IsEmpty());
    }
}

TEST_F(Matching, OfOneTypeDoesNotLookAtADisplayNameThatIsEmpty)
{
    add(model());
    const KdDbObjectId nameless = add<NamelessEntity>(model())->objectId();
    MadeFilter filter;
    filter.type(L"Anything", NamelessEntity::desc()->name());
    EXPECT_THAT(found(filter), ElementsAre(nameless));
}

TEST_F(Matching, ComparesAPropertyThatIsNotAnsweredAsAnEmptyRecord)
{
    add(model());
    MadeFilter filter;
    filter.property(L"Geometry:Flavour", L"=", L"sweet");
    EXPECT_THAT(found(filter), IsEmpty());
}

TEST_F(Matching, OverTheStartWalksTheImpliedSelection)
{
    add(model());
    const KdDbObjectId line = add(model())->objectId();
    select({line});
    MadeFilter filter;
    filter.overStart();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(line));
}

TEST_F(Matching, OverTheStartWalksTheGivenSet)
{
    add(model());
    const KdDbObjectId line = add(model())->objectId();
    GivenSet given({line});
    MadeFilter filter;
    filter.overStart();
    EXPECT_THAT(found(filter, given.name), ElementsAre(line));
}

TEST_F(Matching, WalksThePickedEntitiesForAnyOtherSource)
{
    KdDbEntity* picked = add(model());
    const KdDbObjectId start = add(model())->objectId();
    for (const int source : {0, 1, -2}) {
        GivenSet given({start});
        MadeFilter filter;
        filter.overPicked({picked});
        filter.parameters.selectionSource = source;
        EXPECT_THAT(found(filter, given.name), ElementsAre(picked->objectId()));
    }
}

TEST_F(Matching, KeepsTheCandidatesOfASelectionThatLieOnNoFrozenLayer)
{
    KdDbEntity* other = addOn<KdDbCircle>(L"0");
    KdDbEntity* line = addOn(L"0");
    KdDbEntity* frozen = addOn(L"ICE");
    freeze(L"ICE");
    MadeFilter filter;
    filter.type(L"Line", L"AcDbLine").overPicked({});
    Matches matches;
    EXPECT_TRUE(matchCandidates({}, {other, frozen, line}, filter.parameters, matches));
    EXPECT_EQ(memberCount(matches.keptSet.name()), 2);
    EXPECT_EQ(memberCount(matches.resultSet.name()), 1);
}

TEST_F(Matching, KeepsNothingBesideTheResultInARunOverTheWholeDrawing)
{
    Candidates candidates;
    candidates.allEntities = {add(model())};
    const MadeFilter filter;
    Matches matches;
    EXPECT_TRUE(matchCandidates(candidates, {}, filter.parameters, matches));
    EXPECT_EQ(memberCount(matches.keptSet.name()), 0);
    EXPECT_EQ(memberCount(matches.resultSet.name()), 1);
}

TEST_F(Matching, IsGivenUpWithNothingChangedWhereAnEntityHasNoProvider)
{
    const KdDbObjectId selected = add(model())->objectId();
    add(model());
    QSelectUnInit();
    select({selected});
    MadeFilter filter;
    int matches = 77;
    EXPECT_EQ(runSelection(nullptr, filter, matches), RunEnd::Abandoned);
    EXPECT_EQ(matches, 77);
    EXPECT_THAT(selection(), ElementsAre(selected));
    EXPECT_THAT(printed, IsEmpty());
    QSelectInit();
}

TEST_F(Matching, IsGivenUpWhereWhatIsAttachedIsNoProvider)
{
    class Stranger : public KdRxObject
    {
    } stranger;
    add(model());
    KdRxObject* provider = KdDbLine::desc()->addX(KdDbEntityPE::desc(), &stranger);
    MadeFilter filter;
    int matches = 0;
    EXPECT_EQ(runSelection(nullptr, filter, matches), RunEnd::Abandoned);
    EXPECT_THAT(printed, IsEmpty());
    KdDbLine::desc()->addX(KdDbEntityPE::desc(), provider);
}

TEST_F(Matching, NeedsNoProviderForEntitiesThatAreNotOfTheType)
{
    class Stranger : public KdRxObject
    {
    } stranger;
    add(model());
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    KdRxObject* provider = KdDbLine::desc()->addX(KdDbEntityPE::desc(), &stranger);
    MadeFilter filter;
    filter.type(L"Circle", L"AcDbCircle");
    EXPECT_THAT(found(filter), ElementsAre(circle));
    KdDbLine::desc()->addX(KdDbEntityPE::desc(), provider);
}

TEST_F(Matching, KnowsBlockReferencesByTheNameOfTheirBlock)
{
    const KdDbObjectId valve = addBlock(L"VALVE")->objectId();
    const KdDbObjectId pump = addBlock(L"PUMP")->objectId();
    const KdDbObjectId first = insert(valve);
    insert(pump);
    const KdDbObjectId grid = insert<KdDbMInsertBlock>(valve);
    MadeFilter filter;
    filter.property(L"Misc:Name", L"=", L"VALVE");
    EXPECT_THAT(found(filter), ElementsAre(first, grid));
}

TEST_F(Matching, DoesNotSelectABlockReferenceWhoseNameCannotBeRead)
{
    insert(KdDbObjectId());
    const KdDbObjectId valve = insert(addBlock(L"VALVE")->objectId());
    for (const wchar_t* operatorText : {L"", L"<>"}) {
        MadeFilter filter;
        filter.property(L"Misc:Name", operatorText, L"PUMP");
        EXPECT_THAT(found(filter), ElementsAre(valve));
    }
}

TEST_F(Matching, ReadsOtherPropertiesOfBlockReferencesThroughTheirProvider)
{
    const KdDbObjectId reference = insert(KdDbObjectId());
    MadeFilter filter;
    filter.layer(L"=", L"0");
    EXPECT_THAT(found(filter), ElementsAre(reference));
}

TEST_F(Matching, DoesNotSelectAViewportThatIsOff)
{
    addViewport(false);
    const KdDbObjectId on = addViewport(true)->objectId();
    MadeFilter filter;
    EXPECT_THAT(found(filter), ElementsAre(on));
}

TEST_F(Matching, OfAViewportThatIsOffDoesNotTakeTheClipEntity)
{
    addViewport(false, add<KdDbCircle>(model())->objectId());
    MadeFilter filter;
    filter.type(L"Viewport", L"AcDbViewport");
    EXPECT_EQ(run(filter), 0);
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(Matching, TakesTheClipEntityOfAViewportAlongAndCountsTheTwoAsOne)
{
    const KdDbObjectId clip = add<KdDbCircle>(model())->objectId();
    const KdDbObjectId viewport = addViewport(true, clip)->objectId();
    MadeFilter filter;
    filter.type(L"Viewport", L"AcDbViewport");
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(viewport, clip));
}

TEST_F(Matching, CountsAViewportAndItsClipEntityAsTwoWhenAllTypesWereAskedFor)
{
    const KdDbObjectId clip = add<KdDbCircle>(model())->objectId();
    const KdDbObjectId viewport = addViewport(true, clip)->objectId();
    MadeFilter filter;
    EXPECT_EQ(run(filter), 2);
    EXPECT_THAT(selection(), testing::UnorderedElementsAre(viewport, clip));
}

} // namespace
