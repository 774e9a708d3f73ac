#include <providers/viewport_provider.h>

#include <entities/circle.h>
#include <providers/support.h>

namespace {

using namespace provider_test;
using testing::ElementsAre;

constexpr std::size_t kGeneralKeys = 8;
constexpr const wchar_t* kStandardScale = L"Misc:Standard scale";
constexpr const wchar_t* kShadePlot = L"Misc:Shade plot";

struct ExpectedRow
{
    int id;
    const wchar_t* key;
    bool readOnly;
    const char* value;
};

constexpr ExpectedRow kExpected[] = {
    {77549, L"Geometry:Center", false, "5009 1,2,3"},
    {77550, L"Geometry:Height", false, "5001 10"},
    {77551, L"Geometry:Width", false, "5001 20"},
    {77552, L"Misc:On", false, "290 true"},
    {77554, L"Misc:Display locked", false, "290 true"},
    {77556, kStandardScale, false, "5005 1:4"},
    {77557, L"Misc:Custom scale", false, "5001 0.25"},
    {77558, L"Misc:UCS per viewport", true, "290 true"},
    {77561, kShadePlot, true, "5005 Wireframe"},
};

class ViewportProvider : public ProviderTest
{
  protected:
    ViewportProvider()
    {
        ViewportMembers& members = viewport.edit();
        members.center = {1, 2, 3};
        members.height = 10;
        members.width = 20;
        members.viewHeight = 40;
        members.locked = true;
        members.ucsPerViewport = true;
        members.shadePlot = 1;
    }

    std::string shadePlot(std::int16_t kind)
    {
        viewport.edit().shadePlot = kind;
        return ask(provider, &viewport, kShadePlot).chain.at(0);
    }

    KdDbViewport_Extension provider;
    KdDbViewport viewport;
};

TEST_F(ViewportProvider, ListsItsKeysBehindTheGeneralOnes)
{
    for (const KdDbEntity* entity : std::initializer_list<const KdDbEntity*>{&viewport, nullptr}) {
        const Listing listing = list(provider, entity);
        EXPECT_EQ(listing.status, 0);
        ASSERT_EQ(listing.keys.size(), kGeneralKeys + std::size(kExpected));
        ASSERT_EQ(listing.flags.size(), listing.keys.size());
        for (std::size_t i = 0; i < std::size(kExpected); ++i) {
            EXPECT_EQ(KdDbViewport_Extension::rows()[i].key.id, kExpected[i].id);
            EXPECT_EQ(listing.keys[kGeneralKeys + i], kExpected[i].key);
            EXPECT_EQ(listing.flags[kGeneralKeys + i], kExpected[i].readOnly);
        }
    }
}

TEST_F(ViewportProvider, AnswersItsKeysInEachCombinationOfArguments)
{
    for (const ExpectedRow& row : kExpected) {
        SCOPED_TRACE(row.id);
        const bool isScale = row.id == 77556;
        const bool isShadePlot = row.id == 77561;
        for (const bool asDisplayText : {false, true}) {
            const Answer alone = ask(provider, &viewport, row.key, asDisplayText, false);
            EXPECT_EQ(alone.status, 1);
            EXPECT_EQ(alone.chain.size(), isScale ? 34u : 1u);
            EXPECT_EQ(alone.chain.at(0), row.value);
            const Answer more = ask(provider, &viewport, row.key, asDisplayText, true);
            EXPECT_EQ(more.chain.size(), isScale ? 34u : isShadePlot ? 6u : 1u);
            EXPECT_EQ(more.chain.at(0), row.value);
        }
    }
}

TEST_F(ViewportProvider, RefusesOtherEntitiesAndKeys)
{
    const KdDbCircle circle;
    for (const KdDbEntity* entity : std::initializer_list<const KdDbEntity*>{&circle, nullptr}) {
        for (const wchar_t* key : {L"Misc:On", kStandardScale, L"\tGeneral:Layer"}) {
            const Answer answer = ask(provider, entity, key);
            EXPECT_EQ(answer.status, 0);
            EXPECT_THAT(answer.chain, ElementsAre("5000 nothing"));
        }
    }
    EXPECT_EQ(ask(provider, &viewport, L"Misc:Nothing").status, 0);
}

TEST_F(ViewportProvider, HasNoNameForTheFifthAndStillAllNamesBehindIt)
{
    viewport.edit().viewHeight = 50;
    const Answer answer = ask(provider, &viewport, kStandardScale);
    ASSERT_EQ(answer.chain.size(), 34u);
    EXPECT_EQ(answer.chain[0], "5005 ");
}

TEST_F(ViewportProvider, SaysWhenAScaleIsNoStandardOne)
{
    viewport.edit().viewHeight = 51;
    EXPECT_EQ(ask(provider, &viewport, kStandardScale).chain.at(0),
              "5005 Scale is not a standard scale");
    viewport.edit().scaledToFit = true;
    EXPECT_EQ(ask(provider, &viewport, kStandardScale).chain.at(0), "5005 Scaled to Fit");
}

TEST_F(ViewportProvider, NamesTheShadePlotUnlessItIsAVisualStyle)
{
    EXPECT_EQ(shadePlot(0), "5005 As displayed");
    EXPECT_EQ(shadePlot(2), "5005 Geometric Hidden");
    EXPECT_EQ(shadePlot(3), "5005 Shaded");
    EXPECT_EQ(shadePlot(4), "5005 ");
    EXPECT_EQ(shadePlot(5), "5005 Shaded");
    EXPECT_EQ(shadePlot(6), "5005 ");
    EXPECT_EQ(shadePlot(-1), "5005 ");
}

TEST_F(ViewportProvider, OffersAShadePlotThatNoViewportAnswers)
{
    EXPECT_THAT(ask(provider, &viewport, kShadePlot, false, true).chain,
                ElementsAre("5005 Wireframe", "5005 As displayed", "5005 Wireframe",
                            "5005 Geometric Hidden", "5005 Shaded", "5005 Hidden"));
}

} // namespace
