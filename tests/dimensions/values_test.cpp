// What the providers of dimensions answer.
#include "support.h"

using namespace dimension_test;
using testing::ElementsAre;

namespace {

class ValuesOfDimensions : public DimensionTest
{
  protected:
    ValuesOfDimensions() { setVariable(L"LWUNITS", 1); }
};

TEST_F(ValuesOfDimensions, NameTheStyleAndOfferAllStyles)
{
    for (const bool asDisplayText : {false, true}) {
        expectOfAll(L"Misc:Dim style", {"5005 Test"}, asDisplayText);
        expectOfAll(L"Misc:Dim style", {"5005 Test", "5005 Standard", "5005 Test"}, asDisplayText,
                    true);
    }
}

TEST_F(ValuesOfDimensions, OfferStylesWithoutHavingOne)
{
    changeAs<KdDbAlignedDimension>(DimensionKind::Aligned,
                                   [](auto& members) { members.dimension.style = {}; });
    const Answer given = answerOfAll(L"Misc:Dim style", false, true);
    EXPECT_EQ(given.status, 0);
    EXPECT_THAT(given.chain, ElementsAre("5005 ", "5005 Standard", "5005 Test"));
}

TEST_F(ValuesOfDimensions, LeaveTheStyleEmptyThatCannotBeOpened)
{
    eraseStyle();
    const Answer given = answerOfAll(L"Misc:Dim style", false, true);
    EXPECT_EQ(given.status, 1);
    EXPECT_THAT(given.chain, ElementsAre("5005 ", "5005 Standard"));
}

TEST_F(ValuesOfDimensions, OfferNoStylesWithoutAWorkingDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const Answer given = answerOfAll(L"Misc:Dim style", false, true);
    EXPECT_EQ(given.status, 1);
    EXPECT_THAT(given.chain, ElementsAre("5005 Test"));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
}

TEST_F(ValuesOfDimensions, NameTheTextStyleAndOfferAllWithChoicesAlone)
{
    const KdDbObjectId notes = drawing.findOrAddRecord<KdDbTextStyleTable>(L"NOTES");
    set(KdDbDimVar::dimtxsty, notes);
    expectOfAll(L"Text:Text style", {"5005 NOTES"});
    expectOfAll(L"Text:Text style", {"5005 NOTES", "5005 Standard", "5005 NOTES"}, false, true);
    expectOfAll(L"Text:Text style", {"5005 NOTES", "5005 Standard", "5005 NOTES"}, true, true);
}

TEST_F(ValuesOfDimensions, UseTheStandardTextStyleWhereTheStyleNamesNone)
{
    expectOfAll(L"Text:Text style", {"5005 Standard"});
}

TEST_F(ValuesOfDimensions, OfferLineweightsForDisplayAlone)
{
    set(KdDbDimVar::dimlwd, 200);
    const Answer given = answerOfAll(L"Lines & Arrows:Dim line lineweight", true, true);
    ASSERT_EQ(given.chain.size(), 28u);
    EXPECT_EQ(given.chain[0], "5005 2.00 mm");
    EXPECT_EQ(given.chain[1], "5005 0.00 mm");
    EXPECT_EQ(given.chain[23], "5005 2.0 mm");
    EXPECT_EQ(given.chain[27], "5005 Default");
    expectOfAll(L"Lines & Arrows:Dim line lineweight", {"370 2.00 mm"}, false, true);
    EXPECT_EQ(answerOfAll(L"Lines & Arrows:Ext line lineweight", true, true).chain.size(), 28u);
    EXPECT_EQ(answerOfAll(L"Lines & Arrows:Ext line lineweight", false, true).chain.size(), 1u);
}

struct LinetypeCase
{
    const wchar_t* key;
    KdDbDimVar variable;
};

TEST_F(ValuesOfDimensions, NameLinetypesAndOfferThemForDisplayAlone)
{
    const KdDbObjectId dashed = drawing.findOrAddRecord<KdDbLinetypeTable>(L"DASHED");
    const LinetypeCase rows[] = {
        {L"Lines & Arrows:Dim line linetype", KdDbDimVar::dimltype},
        {L"Lines & Arrows:Ext 1 linetype", KdDbDimVar::dimltex1},
        {L"Lines & Arrows:Ext 2 linetype", KdDbDimVar::dimltex2},
        {L"Lines & Arrows:Ext line 1 linetype", KdDbDimVar::dimltex1},
        {L"Lines & Arrows:Ext line 2 linetype", KdDbDimVar::dimltex2},
        {L"Lines & Arrows:Ext line type", KdDbDimVar::dimltex1},
    };
    for (const LinetypeCase& row : rows) {
        set(row.variable, KdDbObjectId());
        expectOfAll(row.key, {"6 ByBlock"}); // the first of the drawing
        set(row.variable, dashed);
        expectOfAll(row.key, {"6 DASHED"});
        expectOfAll(row.key, {"6 DASHED"}, false, true);
        expectOfAll(row.key, {"5005 DASHED"}, true);
        expectOfAll(
            row.key,
            {"5005 DASHED", "5005 ByBlock", "5005 ByLayer", "5005 Continuous", "5005 DASHED"}, true,
            true);
        set(row.variable, block(L"NoLinetype"));
        expectOfAll(row.key, {"6 "});
    }
}

TEST_F(ValuesOfDimensions, GiveGeometryOfAllKinds)
{
    for (const Kind& kind : kKinds)
        change(&dimension(kind.number), [](DimensionMembers& members) {
            members.extrusion.setDirection({0, 0, -2});
            members.textPosition = {1, 2, 3};
            members.textRotation = 0.25;
            members.text = L"about <>";
        });
    expectOfAll(L"Geometry:Normal", {"5009 0,0,-1"});
    expectOfAll(L"Text:Text position", {"5009 -1,2,-3"});
    expectOfAll(L"Text:Text rotation", {"5004 0.25"});
    expectOfAll(L"Text:Text override", {"5005 about <>"});
    expectOfAll(L"Text:Text override", {"5005 about <>", "280 0"}, false, true);
}

TEST_F(ValuesOfDimensions, TellTheDecimalSeparatorWithATag)
{
    set(KdDbDimVar::dimdsep, ',');
    expectOfAll(L"Primary units:Decimal separator", {"5005 ,"});
    expectOfAll(L"Primary units:Decimal separator", {"5005 ,", "280 0"}, false, true);
}

TEST_F(ValuesOfDimensions, TellThatADimensionIsAnnotative)
{
    expectOfAll(L"Misc:Annotative", {"290 false"});
    const auto record = [](short restype, short value) {
        resbuf* made = kdutNewRb(restype);
        made->resval.rint = value;
        return made;
    };
    changeAs<KdDbAlignedDimension>(DimensionKind::Aligned, [&](auto& members) {
        resbuf* head = kdutNewRb(1001);
        head->resval.rstring = kdutNewString(L"AcadAnnotative");
        head->rbnext = record(1070, 1);
        head->rbnext->rbnext = record(1070, 1);
        members.extendedData.reset(head);
    });
    EXPECT_THAT(answerOfAll(L"Misc:Annotative").chain, ElementsAre("290 true"));
}

TEST_F(ValuesOfDimensions, AreAssociativeByTheirExtensionDictionary)
{
    expectOfAll(L"\tGeneral:Associative", {"5005 No"});
    auto* dictionary = new KdDbDictionary;
    auto* association = new KdDbDimAssoc;
    drawing.addObject(dictionary, dimension(DimensionKind::Aligned).objectId());
    drawing.addObject(association, dictionary->objectId());
    change(&dimension(DimensionKind::Aligned), [&](DimensionMembers& members) {
        members.links.edit().extensionDictionary = dictionary->objectId();
    });
    EXPECT_THAT(answerOfAll(L"\tGeneral:Associative").chain, ElementsAre("5005 No"));
    change(dictionary, [&](DictionaryMembers& members) {
        members.entries.push_back({L"ACAD_DIMASSOC", association->objectId()});
    });
    for (const bool asDisplayText : {false, true}) {
        const Answer given = answerOfAll(L"\tGeneral:Associative", asDisplayText, true);
        EXPECT_EQ(given.status, 1);
        EXPECT_THAT(given.chain, ElementsAre("5005 Yes"));
    }
}

struct TemplateCase
{
    const char* name;
    const wchar_t* text;
    const char* prefix;
    const char* suffix;
};

class TemplateOfDimension : public ValuesOfDimensions,
                            public testing::WithParamInterface<TemplateCase>
{
};

TEST_P(TemplateOfDimension, HasAPrefixAndASuffix)
{
    const Words prefix{std::string("5005 ") + GetParam().prefix};
    const Words suffix{std::string("5005 ") + GetParam().suffix};
    const auto tagged = [](Words words) {
        words.push_back("280 0");
        return words;
    };
    set(KdDbDimVar::dimpost, KdString(GetParam().text));
    set(KdDbDimVar::dimapost, KdString(GetParam().text));
    for (const bool asDisplayText : {false, true}) {
        expectOfAll(L"Primary units:Dim prefix", prefix, asDisplayText);
        expectOfAll(L"Primary units:Dim suffix", suffix, asDisplayText);
        expectOfAll(L"Primary units:Dim prefix", tagged(prefix), asDisplayText, true);
        expectOfAll(L"Primary units:Dim suffix", tagged(suffix), asDisplayText, true);
        for (const bool withChoices : {false, true}) { // tagged in every call
            expectOfAll(L"Alternate units:Alt prefix", tagged(prefix), asDisplayText, withChoices);
            expectOfAll(L"Alternate units:Alt suffix", tagged(suffix), asDisplayText, withChoices);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, TemplateOfDimension,
                         testing::Values(TemplateCase{"withoutPlace", L"mm", "", "mm"},
                                         TemplateCase{"both", L"a<>b", "a", "b"},
                                         TemplateCase{"placeAlone", L"<>", "", ""},
                                         TemplateCase{"empty", L"", "", ""},
                                         TemplateCase{"twoPlaces", L"x<>y<>z", "x", "y<>z"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ValuesOfDimensions, TagSubUnitsSuffixesAsTheirUnitsDo)
{
    set(KdDbDimVar::dimmzs, KdString(L"cm"));
    set(KdDbDimVar::dimaltmzs, KdString(L"in"));
    for (const bool asDisplayText : {false, true}) {
        expectOfAll(L"Primary units:Sub-units suffix", {"5005 cm", "280 0"}, asDisplayText);
        expectOfAll(L"Primary units:Sub-units suffix", {"5005 cm", "280 0"}, asDisplayText, true);
        expectOfAll(L"Alternate units:Alt sub-units suffix", {"5005 in"}, asDisplayText);
        expectOfAll(L"Alternate units:Alt sub-units suffix", {"5005 in", "280 0"}, asDisplayText,
                    true);
    }
}

TEST_F(ValuesOfDimensions, TellAlternateUnitsByTheStyleAlone)
{
    set(KdDbDimVar::dimalt, 1);
    expectOfAll(L"Alternate units:Alt enabled", {"290 false"});
    setInStyle(KdDbDimVar::dimalt, std::int32_t{1});
    set(KdDbDimVar::dimalt, 0);
    expectOfAll(L"Alternate units:Alt enabled", {"290 true"});
    eraseStyle();
    expectOfAll(L"Alternate units:Alt enabled", {"290 false"});
}

TEST_F(ValuesOfDimensions, ComeFromTheStyleUnlessTheDimensionSetsThem)
{
    setInStyle(KdDbDimVar::dimasz, 4.0);
    expectOfAll(L"Lines & Arrows:Arrow size", {"5001 4"});
    set(KdDbDimVar::dimasz, 5.0);
    expectOfAll(L"Lines & Arrows:Arrow size", {"5001 5"});
}

TEST_F(ValuesOfDimensions, TellTheColorBehindTheText)
{
    const auto color = [this](int fill) {
        set(KdDbDimVar::dimtfill, fill);
        ValueChain chain;
        EXPECT_EQ(provider(DimensionKind::Aligned)
                      .PropertyValueGet(&dimension(DimensionKind::Aligned), L"Text:Fill color",
                                        chain.head(), false, false),
                  1);
        EXPECT_EQ(chain.head()->restype(), ResBuf::kColor);
        EXPECT_EQ(chain.head()->next(), nullptr);
        return chain.head()->getColor();
    };
    set(KdDbDimVar::dimtfillclr, kddbDimColor(6));
    EXPECT_EQ(color(0).colorMethod(), KdCmColor::kNone);
    EXPECT_EQ(color(1).colorMethod(), KdCmColor::kByACI);
    EXPECT_EQ(color(1).colorIndex(), 0);
    EXPECT_EQ(color(1).colorName(), L"Background");
    EXPECT_TRUE(color(1).bookName().isEmpty());
    EXPECT_EQ(color(2).colorIndex(), 6);
    EXPECT_EQ(color(3), KdCmColor());
}

TEST_F(ValuesOfDimensions, OfferNoColorTheBackgroundAndTheStandardColors)
{
    ValueChain chain;
    provider(DimensionKind::Aligned)
        .PropertyValueGet(&dimension(DimensionKind::Aligned), L"Text:Fill color", chain.head(),
                          false, true);
    const ResBuf* none = chain.head()->next();
    ASSERT_TRUE(none && none->next());
    EXPECT_EQ(none->getColor().colorMethod(), KdCmColor::kNone);
    EXPECT_TRUE(none->getColor().colorName().isEmpty());
    const KdCmColor& background = none->next()->getColor();
    EXPECT_EQ(background.colorMethod(), KdCmColor::kByACI);
    EXPECT_EQ(background.colorIndex(), 0);
    EXPECT_EQ(background.colorName(), L"Background");
    EXPECT_THAT(provider_test::inWords(none->next()->next()),
                ElementsAre("5011 color 1", "5011 color 2", "5011 color 3", "5011 color 4",
                            "5011 color 5", "5011 color 6", "5011 color 7"));
}

TEST_F(ValuesOfDimensions, ShowDeviationsBeforeFramesAndFramesBeforeLimits)
{
    const auto display = [this](bool tolerances, double gap, bool limits) {
        set(KdDbDimVar::dimtol, tolerances);
        set(KdDbDimVar::dimgap, gap);
        set(KdDbDimVar::dimlim, limits);
        return answerOfAll(L"Tolerances:Tolerance display").chain.at(0);
    };
    EXPECT_EQ(display(true, -1.0, true), "5005 Deviation");
    EXPECT_EQ(display(true, 1.0, false), "5005 Deviation");
    EXPECT_EQ(display(false, -1.0, true), "5005 Basic");
    EXPECT_EQ(display(false, 1.0, true), "5005 Limits");
    EXPECT_EQ(display(false, 0.0, false), "5005 None");
    expectOfAll(L"Tolerances:Tolerance display",
                {"5005 None", "5005 None", "5005 Deviation", "5005 Limits", "5005 Basic"}, false,
                true);
}

// Arrows.

TEST_F(ValuesOfDimensions, NameTheCommonArrowUnlessArrowsAreSeparate)
{
    set(KdDbDimVar::dimblk, block(L"_Dot"));
    set(KdDbDimVar::dimblk1, block(L"_Oblique"));
    set(KdDbDimVar::dimblk2, block(L"MyArrow"));
    for (const wchar_t* key :
         {L"Lines & Arrows:Arrow 1", L"Lines & Arrows:Arrow 2", L"Lines & Arrows:Arrow"}) {
        expectOfAll(key, {"440 Dot"});
        expectOfAll(key, {"440 Dot"}, false, true);
        expectOfAll(key, {"5005 Dot"}, true);
        expectOfAll(key, {"5005 Dot"}, true, true);
    }
    set(KdDbDimVar::dimsah, 1);
    expectOfAll(L"Lines & Arrows:Arrow 1", {"440 Oblique"});
    expectOfAll(L"Lines & Arrows:Arrow 2", {"440 MyArrow"});
}

TEST_F(ValuesOfDimensions, TakeTheSecondArrowOfRadialsAndTheFirstOfLargeOnes)
{
    set(KdDbDimVar::dimblk1, block(L"_Oblique"));
    set(KdDbDimVar::dimblk2, block(L"_Dot"));
    set(KdDbDimVar::dimsah, 1);
    const wchar_t* key = L"Lines & Arrows:Arrow";
    EXPECT_THAT(answer(DimensionKind::Radial, key).chain, ElementsAre("440 Dot"));
    EXPECT_THAT(answer(DimensionKind::RadialLarge, key).chain, ElementsAre("440 Oblique"));
}

TEST_F(ValuesOfDimensions, FallBackToTheCommonArrow)
{
    set(KdDbDimVar::dimblk, block(L"_None"));
    set(KdDbDimVar::dimsah, 1);
    for (const wchar_t* key :
         {L"Lines & Arrows:Arrow 1", L"Lines & Arrows:Arrow 2", L"Lines & Arrows:Arrow"})
        expectOfAll(key, {"440 None"});
    const KdDbObjectId erased = block(L"_Dot");
    set(KdDbDimVar::dimblk1, erased);
    KdDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, erased, KdDb::kForWrite), eOk);
    record->erase();
    record->close();
    expectOfAll(L"Lines & Arrows:Arrow 1", {"440 None"});
}

TEST_F(ValuesOfDimensions, HaveAFilledClosedArrowWithoutABlock)
{
    expectOfAll(L"Lines & Arrows:Arrow 1", {"440 Closed filled"});
}

TEST_F(ValuesOfDimensions, AnswerArrowsThatTheBaseDoesNotList)
{
    KdDbDimension_Extension base;
    const auto& ordinate = dimension(DimensionKind::Ordinate);
    EXPECT_THAT(provider_test::ask(base, &ordinate, L"Lines & Arrows:Arrow 1").chain,
                ElementsAre("440 Closed filled"));
    EXPECT_THAT(answer(DimensionKind::Ordinate, L"Lines & Arrows:Arrow 2", true).chain,
                ElementsAre("5005 Closed filled"));
}

TEST_F(ValuesOfDimensions, AnswerAThreePointArrowSizeUnderAnIdOfItsOwn)
{
    const auto rows = dimensionKindRows(DimensionKind::ThreePoint);
    const PropertyRow* row = findRow(rows, L"Lines & Arrows:Arrow size");
    ASSERT_TRUE(row);
    EXPECT_EQ(row->key.id, 77121);
    EXPECT_FALSE(row->listed(&dimension(DimensionKind::ThreePoint)));
}

} // namespace
