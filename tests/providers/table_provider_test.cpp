#include <providers/table_provider.h>

#include <entities/circle.h>
#include <entities/line.h>

#include <providers/plain_providers.h>
#include <providers/row_readers.h>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr const wchar_t* kRadiusKey = L"Geometry:Radius";
constexpr const wchar_t* kLayerKey = L"\tGeneral:Layer";

double diameter(const KdDbCircle& circle)
{
    return 2.0 * circle.radius();
}

constexpr PropertyRow kCircleRows[] = {
    {{76629, kRadiusKey}, editable, ResBuf::kReal, value<&KdDbCircle::radius>, tag<4>},
    {{76549, L"Geometry:Area"}, derived, ResBuf::kReal, value<diameter>},
};

class CircleToy : public TableProvider<CircleToy, KdDbEntity_Extension, KdDbCircle>
{
  public:
    static std::span<const PropertyRow> rows() { return kCircleRows; }
};

/// Answers the radius otherwise than its base.
constexpr PropertyRow kWheelRows[] = {
    {{76638, L"Geometry:Normal"}, derived, ResBuf::kPoint3d, value<&KdDbCircle::normal>},
    {{76629, kRadiusKey}, editable, ResBuf::kReal, value<diameter>},
};

class Wheel : public KdDbCircle
{
};

class WheelToy : public TableProvider<WheelToy, CircleToy, KdDbCircle>
{
  public:
    static std::span<const PropertyRow> rows() { return kWheelRows; }
};

class Grudging : public KdDbEntity_Extension
{
  public:
    int PropertyCount(const KdDbEntity*, KdArray<KdString>&, KdArray<bool>&) override { return 3; }
    int PropertyValueGet(const KdDbEntity*, KdString name, ResBuf*& result, bool asDisplayText,
                         bool withChoices) override
    {
        result->setRestype(ResBuf::kString);
        result->setString(name + (asDisplayText ? L", text" : L", typed") +
                          (withChoices ? L", choices" : L", alone"));
        return 5;
    }
};

class OverGrudging : public TableProvider<OverGrudging, Grudging, KdDbCircle>
{
  public:
    static std::span<const PropertyRow> rows() { return kCircleRows; }
};

/// Answers by itself, whatever its base says of rows.
class Stubborn : public CircleToy
{
  public:
    int PropertyValueGet(const KdDbEntity*, KdString, ResBuf*&, bool, bool) override { return 0; }
};

KW_CLASS_CHECKED_PROVIDER(CheckedToy, KdDbEntity_Extension, KdDbCircle)
KW_PLAIN_PROVIDER(PlainToy, KdDbEntity_Extension)

const std::vector<std::wstring> kGeneral = {L"\tGeneral:Color",        L"\tGeneral:Layer",
                                            L"\tGeneral:Linetype",     L"\tGeneral:Linetype scale",
                                            L"\tGeneral:Plot style",   L"\tGeneral:Lineweight",
                                            L"\tGeneral:Transparency", L"\tGeneral:Hyperlink"};

std::vector<std::wstring> behindGeneral(std::initializer_list<std::wstring> keys)
{
    std::vector<std::wstring> all = kGeneral;
    all.insert(all.end(), keys);
    return all;
}

class Table : public ProviderTest
{
  protected:
    Table()
    {
        change(circle, [](CircleMembers& members) { members.radius = 4; });
    }

    static void expectRefused(const Answer& given)
    {
        EXPECT_EQ(given.status, 0);
        EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
    }

    KdDbCircle* circle = add<KdDbCircle>();
    KdDbLine* line = add<KdDbLine>();
    CircleToy toy;
};

TEST_F(Table, ListsThePropertiesOfTheBaseFirst)
{
    const Listing listing = list(toy, circle);
    EXPECT_EQ(listing.keys, behindGeneral({kRadiusKey, L"Geometry:Area"}));
    EXPECT_EQ(listing.flags.size(), 10u);
    EXPECT_FALSE(listing.flags[8]);
    EXPECT_TRUE(listing.flags[9]);
}

TEST_F(Table, KeepsTheStatusOfTheBase)
{
    OverGrudging over;
    const Listing listing = list(over, circle);
    EXPECT_EQ(listing.status, 3);
    EXPECT_THAT(listing.keys, ElementsAre(kRadiusKey, L"Geometry:Area"));
}

TEST_F(Table, AnswersItsOwnKeys)
{
    EXPECT_THAT(ask(toy, circle, kRadiusKey).chain, ElementsAre("5001 4"));
    EXPECT_THAT(ask(toy, circle, L"Geometry:Area").chain, ElementsAre("5001 8"));
    EXPECT_EQ(ask(toy, circle, kRadiusKey).status, 1);
}

TEST_F(Table, GivesWhatAccompaniesItsOwnValues)
{
    EXPECT_THAT(ask(toy, circle, kRadiusKey, false, true).chain, ElementsAre("5001 4", "280 4"));
}

TEST_F(Table, AsksTheBaseForOtherKeys)
{
    EXPECT_EQ(ask(toy, circle, kLayerKey).status, 1);
    EXPECT_THAT(ask(toy, circle, kLayerKey).chain, ElementsAre("8 0"));
}

TEST_F(Table, HandsTheWholeRequestToTheBaseAndItsAnswerBack)
{
    OverGrudging over;
    EXPECT_THAT(ask(over, circle, L"key", false, true).chain,
                ElementsAre("5005 key, typed, choices"));
    EXPECT_THAT(ask(over, circle, L"key", true, false).chain, ElementsAre("5005 key, text, alone"));
    EXPECT_EQ(ask(over, circle, L"key").status, 5);
}

TEST_F(Table, AnswersItsOwnKeyBeforeTheBase)
{
    WheelToy wheel;
    EXPECT_THAT(ask(wheel, circle, kRadiusKey).chain, ElementsAre("5001 8"));
    EXPECT_EQ(list(wheel, circle).keys,
              behindGeneral({kRadiusKey, L"Geometry:Area", L"Geometry:Normal", kRadiusKey}));
}

TEST_F(Table, AnswersForClassesBelowItsHost)
{
    const Wheel wheel;
    EXPECT_EQ(ask(toy, &wheel, kRadiusKey).status, 1);
}

TEST_F(Table, RefusesKeysThatNothingKnows)
{
    expectRefused(ask(toy, circle, L"Geometry:Flavour"));
    expectRefused(ask(toy, circle, L""));
}

TEST_F(Table, RefusesEntitiesOfOtherClassesAlsoForTheGeneralProperties)
{
    expectRefused(ask(toy, line, kRadiusKey));
    expectRefused(ask(toy, line, kLayerKey));
}

TEST_F(Table, RefusesEntitiesWithoutAClass)
{
    class Homeless : public KdDbCircle
    {
      public:
        KdRxClass* isA() const override { return nullptr; }
    } const homeless;
    expectRefused(ask(toy, &homeless, kLayerKey));
}

TEST_F(Table, RefusesANullEntity)
{
    expectRefused(ask(toy, nullptr, kRadiusKey));
    expectRefused(ask(toy, nullptr, kLayerKey));
}

TEST_F(Table, WithoutRowsStillRefusesEntitiesOfOtherClasses)
{
    CheckedToy checked;
    EXPECT_EQ(list(checked, circle).keys, kGeneral);
    EXPECT_EQ(ask(checked, circle, kLayerKey).status, 1);
    expectRefused(ask(checked, line, kLayerKey));
}

TEST_F(Table, IsNotNeededByProvidersThatAnswerTheGeneralPropertiesOfEveryEntity)
{
    PlainToy plain;
    EXPECT_EQ(list(plain, line).keys, kGeneral);
    EXPECT_EQ(ask(plain, line, kLayerKey).status, 1);
    EXPECT_EQ(ask(plain, circle, kLayerKey).status, 1);
}

template <class Provider>
LastingRow lastingRowFor(const wchar_t* key, const KdRxClass* rxClass = KdDbCircle::desc())
{
    Provider provider;
    return lastingRowOf(provider, *rxClass, key);
}

TEST_F(Table, TellsByWhichOfItsRowsItAnswers)
{
    EXPECT_EQ(lastingRowFor<CircleToy>(kRadiusKey), &kCircleRows[0]);
    EXPECT_EQ(lastingRowFor<WheelToy>(kRadiusKey), &kWheelRows[1]);
    EXPECT_EQ(lastingRowFor<WheelToy>(L"Geometry:Area"), &kCircleRows[1]);
}

TEST_F(Table, TellsByWhichRowOfItsBaseItAnswers)
{
    for (const LastingRow row :
         {lastingRowFor<CircleToy>(kLayerKey), lastingRowFor<CheckedToy>(kLayerKey),
          lastingRowFor<PlainToy>(kLayerKey)}) {
        ASSERT_TRUE(row && *row);
        EXPECT_TRUE((*row)->key.matches(kLayerKey));
        EXPECT_TRUE(followsFromLayer(**row));
    }
}

TEST_F(Table, TellsThatNoRowAnswers)
{
    EXPECT_EQ(lastingRowFor<CircleToy>(L"Geometry:Flavour"), nullptr);
    EXPECT_EQ(lastingRowFor<CircleToy>(L""), nullptr);
    EXPECT_EQ(lastingRowFor<CircleToy>(kLayerKey, KdDbLine::desc()), nullptr);
}

TEST_F(Table, TellsNothingWhereABaseAnswersByItself)
{
    EXPECT_EQ(lastingRowFor<OverGrudging>(kRadiusKey), &kCircleRows[0]);
    EXPECT_EQ(lastingRowFor<OverGrudging>(kLayerKey), std::nullopt);
}

TEST_F(Table, TellsNothingOfAProviderThatAnswersByItself)
{
    EXPECT_EQ(lastingRowFor<Grudging>(kLayerKey), std::nullopt);
    EXPECT_EQ(lastingRowFor<Stubborn>(kRadiusKey), std::nullopt);
}

template <class Provider>
class PlainProvider : public ProviderTest
{
};
using PlainProviders =
    testing::Types<KdDbAttribute_Extension, KdDbBody_Extension, KdDbDgnReference_Extension,
                   KdDbDwfReference_Extension, KdDbExtrudedSurface_Extension,
                   KdDbFaceRecord_Extension, KdDbFrame_Extension, KdDbImage_Extension,
                   KdDbLoftedSurface_Extension, KdDbMPolygon_Extension, KdDbPlaneSurface_Extension,
                   KdDbSurface_Extension, KdDbSweptSurface_Extension, KdDbTable_Extension,
                   KdDbUnderlayReference_Extension, KdDbVertex_Extension>;
TYPED_TEST_SUITE(PlainProvider, PlainProviders, );

TYPED_TEST(PlainProvider, HasExactlyTheGeneralProperties)
{
    TypeParam provider;
    const KdDbLine* line = this->template add<KdDbLine>();
    EXPECT_EQ(list(provider, line).keys, kGeneral);
    for (const std::wstring& key : kGeneral)
        EXPECT_EQ(ask(provider, line, key.c_str()).status, 1);
    EXPECT_EQ(ask(provider, line, L"Geometry:Length").status, 0);
}

} // namespace
