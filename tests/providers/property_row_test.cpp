#include <providers/property_row.h>

#include <entities/circle.h>
#include <entities/text.h>

#include <providers/row_readers.h>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr ResourceText kRadius{76629, L"Geometry:Radius"};
constexpr ResourceText kArea{76549, L"Geometry:Area"};
constexpr ResourceText kNormal{76638, L"Geometry:Normal"};
constexpr ResourceText kLayer{76538, L"\tGeneral:Layer"};
constexpr int kNoSuchText = 999999;

bool isLarge(const KdDbCircle& circle)
{
    return circle.radius() > 10.0;
}

bool refusesToRead(const PropertyRequest&, ValueKind)
{
    return false;
}

bool refusesChoices(const PropertyRequest& request)
{
    chainTag(request.head, 9);
    return false;
}

class PropertyRows : public ProviderTest
{
  protected:
    PropertyRows()
    {
        change(circle, [](CircleMembers& members) {
            members.center = {1, 2, 3};
            members.radius = 4;
        });
    }

    struct Read
    {
        int status;
        std::vector<std::string> chain;
    };
    Read answer(const PropertyRow& row, bool asDisplayText = false, bool withChoices = false)
    {
        ValueChain value;
        const int status = answerRow(row, {*circle, *value.head(), asDisplayText, withChoices});
        return {status, inWords(value.head())};
    }
    std::string read(ValueKind kind, bool (*reader)(const PropertyRequest&, ValueKind))
    {
        return answer({kRadius, editable, kind, reader}).chain.front();
    }
    static std::vector<std::wstring> keys(std::span<const PropertyRow> rows,
                                          const KdDbEntity* entity)
    {
        KdArray<KdString> names;
        KdArray<bool> flags;
        listRows(rows, entity, names, flags);
        EXPECT_EQ(names.length(), flags.length());
        std::vector<std::wstring> listed;
        for (int i = 0; i < names.length(); ++i)
            listed.emplace_back(names[i].view());
        return listed;
    }

    KdDbCircle* circle = add<KdDbCircle>();
};

TEST_F(PropertyRows, AreListedInTheirOrderWithTheirFlags)
{
    const PropertyRow rows[] = {{kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>},
                                {kArea, derived, ResBuf::kReal, value<&KdDbCircle::radius>}};
    KdArray<KdString> names;
    KdArray<bool> flags;
    listRows(rows, circle, names, flags);
    EXPECT_EQ(keys(rows, circle),
              (std::vector<std::wstring>{L"Geometry:Radius", L"Geometry:Area"}));
    EXPECT_FALSE(flags[0]);
    EXPECT_TRUE(flags[1]);
}

TEST_F(PropertyRows, AreListedAsOftenAsTheyStandInTheTable)
{
    const PropertyRow row{kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>};
    const PropertyRow rows[] = {row, row};
    EXPECT_THAT(keys(rows, circle), ElementsAre(L"Geometry:Radius", L"Geometry:Radius"));
}

TEST_F(PropertyRows, AreListedWhenTheirConditionHolds)
{
    const PropertyRow rows[] = {{kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>,
                                 noChoices, when<KdDbCircle, isLarge>}};
    EXPECT_THAT(keys(rows, circle), ElementsAre());
    change(circle, [](CircleMembers& members) { members.radius = 11; });
    EXPECT_THAT(keys(rows, circle), ElementsAre(L"Geometry:Radius"));
}

TEST_F(PropertyRows, WithAConditionAreNotListedWithoutAnEntity)
{
    const PropertyRow rows[] = {{kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>,
                                 noChoices, when<KdDbCircle, isLarge>},
                                {kArea, derived, ResBuf::kReal, value<&KdDbCircle::radius>}};
    EXPECT_THAT(keys(rows, nullptr), ElementsAre(L"Geometry:Area"));
}

TEST_F(PropertyRows, ThatAreNeverListedAreStillFound)
{
    const PropertyRow rows[] = {
        {kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>, noChoices, never}};
    EXPECT_THAT(keys(rows, circle), ElementsAre());
    EXPECT_EQ(findRow(rows, L"Geometry:Radius"), &rows[0]);
}

TEST_F(PropertyRows, AreFoundByTheirWholeKeyAlone)
{
    const PropertyRow rows[] = {
        {kLayer, editable, ResBuf::kLayerName, value<&KdDbEntity::layer>},
        {kNormal, derived, ResBuf::kPoint3d, value<&KdDbCircle::normal>},
    };
    EXPECT_EQ(findRow(rows, L"\tGeneral:Layer"), &rows[0]);
    EXPECT_EQ(findRow(rows, L"Geometry:Normal"), &rows[1]);
    for (const wchar_t* key : {L"General:Layer", L"\tGeneral:layer", L"\tGeneral:Laye",
                               L"\tGeneral:Layers", L"Layer", L""})
        EXPECT_EQ(findRow(rows, key), nullptr);
}

TEST_F(PropertyRows, OfOneKeyAreAnsweredByTheFirst)
{
    const PropertyRow row{kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>};
    const PropertyRow rows[] = {row, row};
    EXPECT_EQ(findRow(rows, L"Geometry:Radius"), &rows[0]);
}

TEST_F(PropertyRows, ReadTheirValueAsTheirKind)
{
    const Read given = answer({kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>});
    EXPECT_EQ(given.status, 1);
    EXPECT_THAT(given.chain, ElementsAre("5001 4"));
}

TEST_F(PropertyRows, ThatCannotReadLeaveTheRecord)
{
    const Read given =
        answer({kRadius, editable, ResBuf::kReal, refusesToRead, tag<1>}, true, true);
    EXPECT_EQ(given.status, 0);
    EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
}

TEST_F(PropertyRows, WhoseChoicesFailCountAsNotRecognisedWithTheValueSet)
{
    const Read given =
        answer({kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>, refusesChoices});
    EXPECT_EQ(given.status, 0);
    EXPECT_THAT(given.chain, ElementsAre("5001 4", "280 9"));
}

TEST_F(PropertyRows, ChainTheirTagWhenMoreThanTheValueIsAskedFor)
{
    const PropertyRow row{kRadius, editable, ResBuf::kReal, value<&KdDbCircle::radius>, tag<2>};
    EXPECT_THAT(answer(row, false, false).chain, ElementsAre("5001 4"));
    EXPECT_THAT(answer(row, true, false).chain, ElementsAre("5001 4"));
    EXPECT_THAT(answer(row, false, true).chain, ElementsAre("5001 4", "280 2"));
    EXPECT_THAT(answer(row, true, true).chain, ElementsAre("5001 4", "280 2"));
}

TEST_F(PropertyRows, OfNamesBecomeTextsForDisplay)
{
    const PropertyRow row{kLayer, editable, ResBuf::kLayerName, name<&KdDbEntity::layer>};
    EXPECT_THAT(answer(row, false).chain, ElementsAre("8 0"));
    EXPECT_THAT(answer(row, true).chain, ElementsAre("5005 0"));
}

template <class Value, auto Given>
Value given(const KdDbEntity&)
{
    return Given;
}

enum class Move : short
{
    Both = 2
};

double halfRadian(const KdDbEntity&)
{
    return 0.5;
}

KdGePoint2d flatPoint(const KdDbEntity&)
{
    return {1.5, 2.5};
}

TEST_F(PropertyRows, ReadValuesOfEveryType)
{
    EXPECT_EQ(read(ResBuf::kInt8, value<given<int, -3>>), "280 -3");
    EXPECT_EQ(read(ResBuf::kInt16, value<given<int, 300>>), "5003 300");
    EXPECT_EQ(read(ResBuf::kInt32, value<given<long, 70000>>), "5010 70000");
    EXPECT_EQ(read(ResBuf::kInt16, value<given<Move, Move::Both>>), "5003 2");
    EXPECT_EQ(read(ResBuf::kBool, value<given<bool, true>>), "290 true");
    EXPECT_EQ(read(ResBuf::kAngle, value<halfRadian>), "5004 0.5");
    EXPECT_EQ(read(ResBuf::kPoint3d, value<&KdDbCircle::center>), "5009 1,2,3");
    EXPECT_EQ(read(ResBuf::kPoint3d, value<&KdDbCircle::normal>), "5009 0,0,1");
    EXPECT_EQ(read(ResBuf::kPoint2d, value<flatPoint>), "5002 1.5,2.5");
    EXPECT_EQ(read(ResBuf::kString, value<&KdDbEntity::layer>), "5005 0");
    EXPECT_EQ(read(ResBuf::kColor, value<&KdDbEntity::color>), "5011 color 256");
}

TEST_F(PropertyRows, TakeTheirKeyFromTheLibraryOfTexts)
{
    EXPECT_EQ((ResourceText{76629, L"another default"}.text()), L"Geometry:Radius");
    EXPECT_TRUE((ResourceText{76629, L"another default"}.matches(L"Geometry:Radius")));
    EXPECT_FALSE((ResourceText{76629, L"another default"}.matches(L"another default")));
}

TEST_F(PropertyRows, FallBackToTheirDefaultKeyWithAComplaint)
{
    constexpr ResourceText key{kNoSuchText, L"Misc:Unheard of"};
    EXPECT_EQ(key.text(), L"Misc:Unheard of");
    EXPECT_TRUE(key.matches(L"Misc:Unheard of"));
    EXPECT_FALSE(key.matches(L"Misc:Unheard"));
    EXPECT_EQ(messages.shown.size(), 3u);
    messages.shown.clear();
}

} // namespace
