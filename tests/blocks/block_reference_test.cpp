#include <numbers>

#include "support.h"

using namespace blocks_test;
using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr const wchar_t* kName = L"Misc:Name";
constexpr const wchar_t* kUnit = L"Misc:Block Unit";
constexpr const wchar_t* kFactor = L"Misc:Unit factor";

class BlockReference : public BlocksTest
{
  protected:
    BlockReference()
    {
        change(reference, [](auto& members) {
            members.position = {1, 2, 3};
            members.scale = {2, -3, 4};
            members.rotation = std::numbers::pi / 2;
        });
    }

    std::string only(const wchar_t* key)
    {
        const Answer answer = ask(provider, reference, key);
        EXPECT_EQ(answer.status, 1);
        return answer.chain.front();
    }
    void setUnits(short ofBlock, int ofDrawing)
    {
        change(door, [=](auto& members) { members.insertUnits = ofBlock; });
        setHeader(L"INSUNITS", ofDrawing);
    }

    KdDbBlockTableRecord* door = addBlock(L"DOOR");
    KdDbBlockReference* reference = addReference(door);
    KdDbBlockReference_Extension provider;
};

TEST_F(BlockReference, ListsItsPlaceItsBlockAndItsUnits)
{
    expectListed(provider, reference,
                 {{L"Geometry:Position"},
                  {L"Geometry:Scale X"},
                  {L"Geometry:Scale Y"},
                  {L"Geometry:Scale Z"},
                  {kName, true},
                  {L"Misc:Rotation"},
                  {L"Misc:Annotative", true},
                  {kUnit, true},
                  {kFactor, true}});
}

TEST_F(BlockReference, ListsNothingForWhatIsNone)
{
    const KdDbLine line;
    EXPECT_TRUE(list(provider, nullptr).keys.empty());
    EXPECT_TRUE(list(provider, &line).keys.empty());
    EXPECT_TRUE(list(provider, &line).flags.empty());
}

TEST_F(BlockReference, AnswersWhatItLists)
{
    setUnits(6, 4);
    expectAnswers(provider, reference,
                  {{L"Geometry:Position", "5009 1,2,3"},
                   {L"Geometry:Scale X", "5001 2"},
                   {L"Geometry:Scale Y", "5001 -3"},
                   {L"Geometry:Scale Z", "5001 4"},
                   {kName, "5005 DOOR", {}, {"5005 DOOR"}},
                   {L"Misc:Rotation", "5004 1.5708"},
                   {L"Misc:Annotative", "290 false"},
                   {kUnit, "5005 Meters"},
                   {kFactor, "5001 1000"}});
}

TEST_F(BlockReference, StillAnswersTheGeneralKeys)
{
    EXPECT_EQ(only(L"\tGeneral:Layer"), "8 0");
}

TEST_F(BlockReference, RefusesWhatIsNotItsOwn)
{
    expectRefusals(provider, reference);
    EXPECT_EQ(ask(provider, reference, L"").status, 0);
}

TEST_F(BlockReference, IsAnnotativeIfItsDataSaysSo)
{
    change(reference, [](auto& members) {
        resbuf* head = kdutNewRb(1001);
        head->resval.rstring = kdutNewString(L"AcadAnnotative");
        head->rbnext = kdutNewRb(1070);
        head->rbnext->resval.rint = 1;
        head->rbnext->rbnext = kdutNewRb(1070);
        head->rbnext->rbnext->resval.rint = 1;
        members.extendedData.reset(head);
    });
    EXPECT_EQ(only(L"Misc:Annotative"), "290 true");
}

TEST_F(BlockReference, GoesByTheNameOfTheBlockThatItsCopyWasMadeFrom)
{
    auto* copy = addBlock(L"*U7");
    auto* kept = addObject<KdDbBlockRepresentationData>(
        {}, [&](auto& members) { members.block = door->objectId(); });
    change(reference, [&](auto& members) { members.block = copy->objectId(); });
    enter(subDictionary(extensionOf(reference), L"AcDbBlockRepresentation"), L"AcDbRepData", kept);
    EXPECT_EQ(only(kName), "5005 DOOR");
}

TEST_F(BlockReference, HasAnEmptyNameAndNoUnitWithoutItsBlock)
{
    change(reference, [](auto& members) { members.block = {}; });
    setHeader(L"INSUNITS", 1);
    EXPECT_EQ(only(kName), "5005 ");
    const Answer unit = ask(provider, reference, kUnit);
    EXPECT_EQ(unit.status, 0);
    EXPECT_THAT(unit.chain, ElementsAre("5000 nothing"));
    EXPECT_EQ(only(kFactor), "5001 39.3701"); // no unit counts as a metre
}

TEST_F(BlockReference, OffersTheBlocksInUseOnceEachAndSorted)
{
    addReference(addBlock(L"WINDOW"));
    addReference(addBlock(L"CHAIR"));
    addReference(door);
    addBlock(L"UNUSED");
    EXPECT_THAT(ask(provider, reference, kName, false, true).chain,
                ElementsAre("5005 DOOR", "5005 CHAIR", "5005 DOOR", "5005 WINDOW"));
}

TEST_F(BlockReference, OffersExternalReferencesToExternalReferencesAlone)
{
    auto* site = addBlock(L"SITE");
    change(site, [](auto& members) { members.externalReference = true; });
    auto* external = addReference(site);
    EXPECT_THAT(ask(provider, external, kName, false, true).chain,
                ElementsAre("5005 SITE", "5005 SITE"));
    EXPECT_THAT(ask(provider, reference, kName, false, true).chain,
                ElementsAre("5005 DOOR", "5005 DOOR"));
}

TEST_F(BlockReference, OffersTheBlocksOfTheSheetWhileTheSheetIsShown)
{
    setHeader(L"TILEMODE", 0);
    EXPECT_THAT(ask(provider, reference, kName, false, true).chain, ElementsAre("5005 DOOR"));
    setVariable(L"CVPORT", 2);
    EXPECT_THAT(ask(provider, reference, kName, false, true).chain,
                ElementsAre("5005 DOOR", "5005 DOOR"));
}

TEST_F(BlockReference, OffersNothingOutsideOfADrawing)
{
    KdDbBlockReference loose;
    loose.edit().block = door->objectId();
    EXPECT_THAT(ask(provider, &loose, kName, false, true).chain, ElementsAre("5005 DOOR"));
}

struct UnitRow
{
    short block;
    int drawing;
    const char* name;
    const char* factor;
};

class BlockUnits : public BlockReference, public testing::WithParamInterface<UnitRow>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Numbers, BlockUnits,
    testing::Values(UnitRow{0, 0, "5005 Undefined", "5001 1"},
                    UnitRow{1, 6, "5005 Inches", "5001 0.0254"},
                    UnitRow{2, 6, "5005 Feet", "5001 0.3048"},
                    UnitRow{3, 6, "5005 Miles", "5001 1609.34"},
                    UnitRow{4, 6, "5005 Millimeters", "5001 0.001"},
                    UnitRow{5, 6, "5005 Centimeters", "5001 0.01"},
                    UnitRow{6, 4, "5005 Meters", "5001 1000"},
                    UnitRow{7, 6, "5005 Kilometers", "5001 1000"},
                    UnitRow{8, 6, "5005 Microinches", "5001 2.54e-08"},
                    UnitRow{9, 6, "5005 Mils", "5001 2.54e-05"},
                    UnitRow{10, 6, "5005 Yards", "5001 0.9144"},
                    UnitRow{11, 6, "5005 Angstroms", "5001 1e-10"},
                    UnitRow{12, 6, "5005 Nanometers", "5001 1e-09"},
                    UnitRow{13, 6, "5005 Microns", "5001 1e-06"},
                    UnitRow{14, 6, "5005 Decimeters", "5001 0.1"},
                    UnitRow{15, 6, "5005 Dekameters", "5001 10"},
                    UnitRow{16, 6, "5005 Hectometers", "5001 100"},
                    UnitRow{17, 6, "5005 Gigameters", "5001 1e+09"},
                    UnitRow{18, 6, "5005 Astronomical", "5001 1.49598e+11"},
                    UnitRow{19, 6, "5005 LightYears", "5001 9.46053e+15"},
                    UnitRow{20, 6, "5005 Parsecs", "5001 3.08568e+16"},
                    UnitRow{21, 6, "5005 ", "5001 3.08568e+16"}, // a factor, but no name
                    UnitRow{22, 6, "5005 ", "5001 1"},
                    UnitRow{-1, 6, "5005 ", "5001 1"},
                    UnitRow{6, 30, "5005 Meters", "5001 1"}),    // an unknown unit of the drawing
    [](const auto& row) {
        const std::string block = row.param.block < 0 ? "Negative" : std::to_string(row.param.block);
        return "Block" + block + "Drawing" + std::to_string(row.param.drawing);
    });
// clang-format on

TEST_P(BlockUnits, HaveANameAndAFactor)
{
    setUnits(GetParam().block, GetParam().drawing);
    EXPECT_EQ(only(kUnit), GetParam().name);
    EXPECT_EQ(only(kFactor), GetParam().factor);
}

} // namespace
