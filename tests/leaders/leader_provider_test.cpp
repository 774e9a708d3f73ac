#include "support.h"

using namespace provider_test;

namespace {

class LeaderProvider : public ProviderTest
{
  protected:
    LeaderProvider()
    {
        setVariable(L"LWUNITS", 1);
        auto* style = drawing.addRecord<KdDbDimStyleTable>(L"SITE");
        LeaderMembers& members = leader.edit();
        members.vertices = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
        members.normal = {0, 0, -2};
        members.splined = true;
        members.dimension.style = style->objectId();
        KdDbDimValues& own = members.dimension.overrides;
        own.set(KdDbDimVar::dimasz, 2.5);
        own.set(KdDbDimVar::dimlwd, 35);
        own.set(KdDbDimVar::dimclrd, kddbDimColor(3));
        own.set(KdDbDimVar::dimscale, 2.0);
        own.set(KdDbDimVar::dimgap, 0.625);
        own.set(KdDbDimVar::dimtad, 1);
        own.set(KdDbDimVar::dimldrblk, drawing.addRecord<KdDbBlockTable>(L"_DOT")->objectId());
    }

    std::string value(const wchar_t* key) { return ask(provider, &leader, key).chain.at(0); }

    std::vector<ExpectedRow> rows = {
        {77110, L"\tGeneral:Associative", true, "5005 No"},
        {77111, L"Geometry:Vertex", false, ""}, // see below
        {76638, L"Geometry:Normal", true, "5009 0,0,-1"},
        {77112, L"Misc:Dim style", false, "5005 SITE", texts({"Standard", "SITE"})},
        {77113, L"Misc:Type", false, "5005 Spline with Arrow",
         texts({"Polyline with Arrow", "Polyline only", "Spline with Arrow", "Spline only"})},
        {77114, L"Misc:Annotative", true, "290 false"},
        {77610, L"Lines & Arrows:Arrow", false, "440 Dot", {}, "5005 Dot"},
        {77611, L"Lines & Arrows:Arrow size", false, "5001 2.5"},
        {77115, L"Lines & Arrows:Dim line lineweight", false, "5005 0.35 mm", kLineweights},
        {77116, L"Lines & Arrows:Dim line color", false, "5011 color 3"},
        {77117, L"Fit:Dim scale overall", false, "5001 2"},
        {77118, L"Text:Text offset", false, "5001 0.625"},
        {77119, L"Text:Text pos vert", false, "5005 Above",
         texts({"Center", "Above", "Outside", "JIS"})},
    };
    KdDbLeader leader;
    KdDbLeader_Extension provider;
};

TEST_F(LeaderProvider, ListsEveryKeyForEveryEntity)
{
    const KdDbLine foreign;
    expectListing<KdDbLeader_Extension>(&leader, rows);
    expectListing<KdDbLeader_Extension>(&foreign, rows);
    expectListing<KdDbLeader_Extension>(nullptr, rows);
}

TEST_F(LeaderProvider, AnswersEveryKeyOfItsTable)
{
    const auto table = KdDbLeader_Extension::rows();
    ASSERT_EQ(table.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(table[i].key.id, rows[i].id);
        EXPECT_STREQ(table[i].key.defaultText, rows[i].key);
        if (!rows[i].value.empty())
            expectValue(provider, leader, rows[i]);
    }
}

TEST_F(LeaderProvider, ChainsAllVerticesWhateverIsAskedFor)
{
    for (const bool asDisplayText : {false, true}) {
        for (const bool withChoices : {false, true}) {
            const Answer answer =
                ask(provider, &leader, L"Geometry:Vertex", asDisplayText, withChoices);
            EXPECT_EQ(answer.status, 1);
            EXPECT_THAT(answer.chain,
                        testing::ElementsAre("5009 1,2,3", "5009 4,5,6", "5009 7,8,9"));
        }
    }
    leader.edit().vertices.clear();
    EXPECT_THAT(ask(provider, &leader, L"Geometry:Vertex").chain,
                testing::ElementsAre("5009 0,0,0"));
}

TEST_F(LeaderProvider, AnswersNothingForOthers)
{
    const KdDbLine foreign;
    expectRefusals<KdDbLeader_Extension>(leader, foreign, L"Misc:Type");
}

TEST_F(LeaderProvider, NamesTheFourTypes)
{
    const auto type = [this](bool splined, bool arrow) {
        leader.edit().splined = splined;
        leader.edit().arrowHead = arrow;
        return value(L"Misc:Type");
    };
    EXPECT_EQ(type(false, true), "5005 Polyline with Arrow");
    EXPECT_EQ(type(false, false), "5005 Polyline only");
    EXPECT_EQ(type(true, true), "5005 Spline with Arrow");
    EXPECT_EQ(type(true, false), "5005 Spline only");
}

TEST_F(LeaderProvider, KnowsOneVerticalPositionFewerThanDimensionsDo)
{
    const auto position = [this](int number) {
        leader.edit().dimension.overrides.set(KdDbDimVar::dimtad, number);
        return value(L"Text:Text pos vert");
    };
    EXPECT_EQ(position(0), "5005 Center");
    EXPECT_EQ(position(2), "5005 Outside");
    EXPECT_EQ(position(3), "5005 JIS");
    EXPECT_EQ(position(4), "5005 ");
}

TEST_F(LeaderProvider, TakesFromTheStyleWhatTheLeaderDoesNotSet)
{
    leader.edit().dimension.overrides = {};
    EXPECT_EQ(value(L"Lines & Arrows:Arrow size"), "5001 0.18");
    EXPECT_EQ(value(L"Lines & Arrows:Arrow"), "440 Closed filled");
    EXPECT_EQ(value(L"Lines & Arrows:Dim line lineweight"), "5005 ByBlock");
}

TEST_F(LeaderProvider, DoesNotAnswerForTheStyleOfALeaderWithoutOne)
{
    leader.edit().dimension.style = {};
    const Answer answer = ask(provider, &leader, L"Misc:Dim style", false, true);
    EXPECT_EQ(answer.status, 0);
    EXPECT_THAT(answer.chain, testing::ElementsAre("5005 ", "5005 Standard", "5005 SITE"));
}

TEST_F(LeaderProvider, IsAssociativeByTheEntryOfItsDictionary)
{
    auto* const tied = add<KdDbLeader>();
    auto* const extension = new KdDbDictionary;
    ASSERT_EQ(drawing.addObject(extension, tied->objectId()), eOk);
    KdDbDictionary* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, extension->objectId(), KdDb::kForWrite), eOk);
    opened->setAt(L"ACAD_DIMASSOC", tied->objectId());
    opened->close();
    change(tied, [&](LeaderMembers& members) {
        members.links.edit().extensionDictionary = extension->objectId();
    });
    EXPECT_EQ(ask(provider, tied, L"\tGeneral:Associative").chain.at(0), "5005 Yes");
}

TEST_F(LeaderProvider, OffersAllArrowheadsBehindTheOneOfAKey)
{
    const auto arrows = [this](const wchar_t* key) {
        ValueChain chain;
        provider.setBLKArray(chain.head(), key);
        return inWords(chain.head());
    };
    const auto dot = arrows(L"DOT");
    ASSERT_EQ(dot.size(), 21u);
    EXPECT_EQ(dot[0], "5005 Dot");
    EXPECT_EQ(dot[1], arrows(L"")[0]) << "the first one stands for an empty key";
    EXPECT_EQ(dot[3], "5005 Dot");
    EXPECT_EQ(arrows(L"dot")[0], "5005 ");
    EXPECT_EQ(arrows(L"SMALL")[0], dot[20]);
}

} // namespace
