#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <entities/section.h>

#include <command/entry.h>
#include <dialog/multi_text.h>
#include <values/globals.h>

using namespace dialog_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const wchar_t* kAllTypes = L"Multiple";

/// The catalog alone, without a window.
class Catalog : public DialogTest
{
  protected:
    Catalog() { catalog.InitData(); }

    const TypeCatalog::Value& valueOf(const wchar_t* shortName)
    {
        const TypeCatalog::Value* value = catalog.GetValue(kToy, shortName);
        EXPECT_TRUE(value) << "nothing is known of the property";
        static const TypeCatalog::Value nothingKnown;
        return value ? *value : nothingKnown;
    }
    void enter(std::vector<ToyProperty> properties)
    {
        catalog.AddNewTypeProperties(kToy, addToy(std::move(properties)));
    }

    TypeCatalog catalog;
};

struct KindRow
{
    const char* name;
    int kind;
    std::vector<Operators> operators;
};

class CatalogOperators : public Catalog, public testing::WithParamInterface<KindRow>
{
};

TEST_P(CatalogOperators, AreThoseOfTheKindInTheirOrder)
{
    EXPECT_EQ(catalog.TypeOperators.at(GetParam().kind), GetParam().operators);
}

using enum Operators;
const std::vector<Operators> kForNames = {Equals, NotEqual, SelectAll};
const std::vector<Operators> kForNumbers = {Equals, NotEqual, GreaterThan, LessThan, SelectAll};
const KindRow kKinds[] = {
    {"none", 5000, kForNames},
    {"layer", 8, kForNames},
    {"linetype", 6, kForNames},
    {"plotStyle", 380, kForNames},
    {"lineweight", 370, kForNames},
    {"color", 5011, kForNumbers},
    {"scale", 48, kForNumbers},
    {"real", 5001, kForNumbers},
    {"angle", 5004, kForNumbers},
    {"int8", 280, kForNumbers},
    {"int16", 5003, kForNumbers},
    {"int32", 5010, kForNumbers},
    {"point2d", 5002, kForNumbers},
    {"point3d", 5009, kForNumbers},
    {"transparency", 441, kForNumbers},
    {"text", 5005, {Equals, NotEqual, SelectAll, WildcardMatch}},
};
INSTANTIATE_TEST_SUITE_P(Kinds, CatalogOperators, testing::ValuesIn(kKinds),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Catalog, HasNoRowOfOperatorsForOtherKinds)
{
    EXPECT_EQ(catalog.TypeOperators.size(), std::size(kKinds));
    EXPECT_FALSE(catalog.TypeOperators.contains(ResBuf::kBool));
}

TEST_F(Catalog, NamesTheOperatorsBothWays)
{
    const std::map<Operators, std::wstring> names = {{Equals, L"= Equals"},
                                                     {NotEqual, L"<> Not Equal"},
                                                     {GreaterThan, L"> Greater Than"},
                                                     {LessThan, L"< Less Than"},
                                                     {SelectAll, L"Select All"},
                                                     {WildcardMatch, L"* Wildcard Match"}};
    EXPECT_EQ(catalog.OperatorNames, names);
    for (const auto& [op, name] : names)
        EXPECT_EQ(catalog.OperatorsByName.at(name), op);
}

TEST_F(Catalog, SharesEightPropertiesAmongAllTypes)
{
    EXPECT_THAT(catalog.TypeProperties.at(kAllTypes),
                ElementsAre(L"Color", L"Layer", L"Linetype", L"Linetype scale", L"Plot style",
                            L"Lineweight", L"Transparency", L"Hyperlink"));
    EXPECT_EQ(catalog.TypeKeys.at(kAllTypes).length(), 8);
    EXPECT_EQ(catalog.TypeKeys.at(kAllTypes)[3], L"\tGeneral:Linetype scale");
    EXPECT_EQ(catalog.PropertyKeys.at(L"Multiple:Hyperlink"), L"\tGeneral:Hyperlink");
}

struct SharedRow
{
    const wchar_t* name;
    bool isList;
    int type;
};

TEST_F(Catalog, KnowsTheKindsOfTheSharedProperties)
{
    const SharedRow rows[] = {{L"Linetype", true, 6},        {L"Linetype scale", false, 48},
                              {L"Lineweight", true, 370},    {L"Hyperlink", false, 5005},
                              {L"Transparency", false, 441}, {L"Layer", true, 8}};
    for (const auto& [name, isList, type] : rows) {
        const TypeCatalog::Value* value = catalog.GetValue(L"whatever", name);
        ASSERT_TRUE(value);
        EXPECT_EQ(value->isList, isList);
        EXPECT_EQ(value->type, type);
        EXPECT_EQ(value->text, L"");
    }
}

TEST_F(Catalog, KnowsNoColorForAllTypes)
{
    EXPECT_EQ(catalog.GetValue(kAllTypes, L"Color"), nullptr);
    EXPECT_EQ(catalog.GetValue(kAllTypes, L"Plot style"), nullptr);
}

TEST_F(Catalog, ListsLayersSortedAndWithoutTheOneOfConstraints)
{
    for (const wchar_t* layer : {L"b", L"*ADSK_CONSTRAINTS", L"A"})
        drawing.findOrAddRecord<KdDbLayerTable>(layer);
    catalog.UpdateLayerPropertyValues();
    EXPECT_THAT(catalog.GetValue(kToy, L"Layer")->strings, ElementsAre(L"0", L"A", L"b"));
}

TEST_F(Catalog, ListsTheLayerNamedZeroWhereThereIsNone)
{
    KdDbDatabase bare(KdDbDatabase::Content::Bare);
    kddbHostApplicationServices()->setWorkingDatabase(&bare);
    catalog.UpdateLayerPropertyValues();
    EXPECT_THAT(catalog.GetValue(kToy, L"Layer")->strings, ElementsAre(L"0"));
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    catalog.UpdateLayerPropertyValues();
    EXPECT_THAT(catalog.GetValue(kToy, L"Layer")->strings, ElementsAre(L"0"));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
}

TEST_F(Catalog, TakesTheNameBehindTheFirstColonAndKeepsTabs)
{
    enter({{L"\tGeometry:\t\tBase: Height", real(1.0)}, {L"Bare", real(2.0)}});
    EXPECT_THAT(catalog.TypeProperties.at(kToy), ElementsAre(L"\t\tBase: Height", L"Bare"));
    EXPECT_EQ(catalog.PropertyKeys.at(L"TOY:\t\tBase: Height"), L"\tGeometry:\t\tBase: Height");
    EXPECT_EQ(catalog.PropertyKeys.at(L"TOY:Bare"), L"Bare");
}

TEST_F(Catalog, LetsTheFirstEntityDecideOnTheProperties)
{
    enter({{L"A:One", real(1.0)}});
    enter({{L"A:One", real(5.0)}, {L"A:Two", real(2.0)}});
    EXPECT_THAT(catalog.TypeProperties.at(kToy), ElementsAre(L"One"));
    EXPECT_EQ(valueOf(L"One").text, L"1.0000");
}

TEST_F(Catalog, KeepsTheRecordOfTheDrawingWhenTheSelectionBringsTheSameType)
{
    ToyEntity* inDrawing = addToy({{L"A:One", real(1.0)}});
    ToyEntity* inSelection = addToy({{L"A:One", real(9.0)}});
    makeDialog({inDrawing}, {inSelection});
    EXPECT_EQ(dialog->GetValue(kToy, L"One")->text, L"1.0000");
}

TEST_F(Catalog, EntersATypeWithoutAProviderWithoutProperties)
{
    QSelectUnInit(); // takes the general provider away
    catalog.AddNewTypeProperties(L"UNPROVIDED", add<Unprovided>());
    EXPECT_THAT(catalog.TypeProperties.at(L"UNPROVIDED"), IsEmpty());
    EXPECT_FALSE(catalog.TypeKeys.contains(L"UNPROVIDED"));
    QSelectInit();
}

TEST_F(Catalog, ShowsRealsAndAnglesInTheUnitsOfTheDrawing)
{
    setShort(L"LUPREC", 2);
    enter({{L"A:Real", real(1.5)}, {L"A:Angle", real(0.7853981633974483, ResBuf::kAngle)}});
    EXPECT_EQ(valueOf(L"Real").text, L"1.50");
    EXPECT_EQ(valueOf(L"Angle").text, L"45");
    EXPECT_EQ(valueOf(L"Angle").type, 5004);
    EXPECT_FALSE(valueOf(L"Real").isList);
}

TEST_F(Catalog, LeavesThePlainTextOfOtherKindsEmpty)
{
    enter({{L"A:Name", text(L"x")}, {L"A:Count", integer(4)}, {L"A:Unanswered", nothing()}});
    EXPECT_EQ(valueOf(L"Name").text, L"");
    EXPECT_EQ(valueOf(L"Count").text, L"");
    EXPECT_EQ(valueOf(L"Unanswered").type, 5000);
}

TEST_F(Catalog, OffersTheRecordsBehindTheHeadThatAreOfItsKind)
{
    enter({{L"A:Style",
            text(L"own"),
            {text(L"one"), integer(3, ResBuf::kInt8), text(L""), text(L"two")}},
           {L"A:Count",
            integer(7, ResBuf::kInt16),
            {integer(1, ResBuf::kInt16), integer(2, ResBuf::kInt16)}},
           {L"A:Tagged", text(L"own"), {integer(2, ResBuf::kInt8)}}});
    EXPECT_THAT(valueOf(L"Style").strings, ElementsAre(L"one", L"two"));
    EXPECT_TRUE(valueOf(L"Style").isList);
    EXPECT_THAT(valueOf(L"Count").strings, ElementsAre(L"1", L"2"));
    EXPECT_THAT(valueOf(L"Tagged").strings, IsEmpty());
    EXPECT_FALSE(valueOf(L"Tagged").isList);
}

TEST_F(Catalog, OffersTheTwoWordsForATruthValue)
{
    enter({{L"A:Closed", truth(true)}});
    EXPECT_THAT(valueOf(L"Closed").strings, ElementsAre(L"true", L"false"));
    EXPECT_TRUE(valueOf(L"Closed").isList);
}

TEST_F(Catalog, KeepsTheColorOfTheEntity)
{
    enter({{L"A:Color of text", color(3)}});
    EXPECT_TRUE(valueOf(L"Color of text").isList);
    ASSERT_EQ(valueOf(L"Color of text").colors.size(), 1u);
    EXPECT_EQ(valueOf(L"Color of text").colors[0].colorIndex(), 3);
}

TEST_F(Catalog, OffersTheMaterialsOfTheDrawing)
{
    auto* materials = new KdDbDictionary;
    auto* material = new KdDbPlaceHolder;
    for (const wchar_t* name : {L"Steel", L"Brass"})
        materials->edit().entries.push_back({name, material->objectId()});
    drawing.addObject(materials, drawing.namedObjectsDictionaryId());
    drawing.addObject(material, materials->objectId());
    KdDbDictionary* root = nullptr;
    ASSERT_EQ(kddbOpenObject(root, drawing.namedObjectsDictionaryId(), KdDb::kForWrite), eOk);
    root->setAt(L"ACAD_MATERIAL", materials->objectId());
    root->close();
    enter({{L"3D Visualization:Material", text(L"Steel")}});
    EXPECT_THAT(valueOf(L"Material").strings, ElementsAre(L"Brass", L"Steel"));
}

TEST_F(Catalog, SplitsAPointIntoItsCoordinates)
{
    enter({{L"Geometry:Start", point(1.0, 2.0, 3.0)}, {L"Geometry:Scale", point(4.0, 5.0)}});
    EXPECT_THAT(catalog.TypeProperties.at(kToy),
                ElementsAre(L"Start X", L"Start Y", L"Start Z", L"Scale X", L"Scale Y"));
    EXPECT_EQ(catalog.TypeKeys.at(kToy)[1], L"Geometry:Start Y");
    EXPECT_EQ(catalog.PropertyKeys.at(L"TOY:Scale Y"), L"Geometry:Scale Y");
    EXPECT_EQ(valueOf(L"Start Z").text, L"3.0000");
    EXPECT_EQ(valueOf(L"Start Z").type, 5009);
    EXPECT_EQ(valueOf(L"Scale X").type, 5002);
    EXPECT_EQ(catalog.GetValue(kToy, L"Start"), nullptr);
}

TEST_F(Catalog, CopesWithAKeyThatIsListedTwice)
{
    const ToyProperty twice{L"Geometry:End", point(1.0, 2.0, 3.0)};
    enter({twice, {L"Geometry:Radius", real(5.0)}, twice});
    EXPECT_EQ(std::ranges::count(catalog.TypeProperties.at(kToy), L"End Y"), 2);
    EXPECT_EQ(catalog.TypeKeys.at(kToy).length(), 7);
    EXPECT_EQ(valueOf(L"End Y").text, L"2.0000");
    EXPECT_EQ(valueOf(L"Radius").text, L"5.0000");
    EXPECT_EQ(catalog.PropertyKeys.at(L"TOY:End Z"), L"Geometry:End Z");
}

TEST_F(Catalog, OffersNoListForPointsThatHaveSeveral)
{
    enter({{L"Geometry:Vertex", point(1.0, 2.0, 3.0), {point(4.0, 5.0, 6.0)}}});
    EXPECT_FALSE(valueOf(L"Vertex").isList);
    EXPECT_THAT(valueOf(L"Vertex").strings, ElementsAre(L"4.0000,5.0000,6.0000"));
    EXPECT_FALSE(valueOf(L"Vertex X").isList);
}

TEST_F(Catalog, OffersNoListForTheWidthsOfSegments)
{
    enter({{L"Geometry:START SEGMENT WIDTH", real(1.0), {real(2.0)}},
           {L"Geometry:End segment width", real(1.0), {real(2.0)}},
           {L"Geometry:Middle width", real(1.0), {real(2.0)}}});
    EXPECT_FALSE(valueOf(L"START SEGMENT WIDTH").isList);
    EXPECT_FALSE(valueOf(L"End segment width").isList);
    EXPECT_TRUE(valueOf(L"Middle width").isList);
}

TEST_F(Catalog, SharesTheFirstListOfPlotStyles)
{
    enter({{L"\tGeneral:Plot style", text(L"own")}});
    EXPECT_EQ(catalog.GetValue(kOtherToy, L"Plot style"), nullptr);
    OtherToy* other = addOtherToy({{L"\tGeneral:Plot style", text(L"own"), {text(L"Bold")}}});
    catalog.AddNewTypeProperties(kOtherToy, other);
    EXPECT_THAT(valueOf(L"Plot style").strings, ElementsAre(L"Bold"));
    EXPECT_EQ(catalog.GetValue(kAllTypes, L"Plot style"), &valueOf(L"Plot style"));
    other->properties.front().behind = {text(L"Thin")};
    catalog.AddNewTypeProperties(L"A third type", other);
    EXPECT_THAT(valueOf(L"Plot style").strings, ElementsAre(L"Bold"));
}

/// Sections name the coordinates of their points by the bare letters.
class SectionProvider : public KdDbEntity_Extension
{
  public:
    int PropertyCount(const KdDbEntity*, KdArray<KdString>& names, KdArray<bool>& flags) override
    {
        names.append(L"Geometry:Vertex");
        flags.append(false);
        return 0;
    }
    int PropertyValueGet(const KdDbEntity*, KdString, ResBuf*& result, bool, bool) override
    {
        point(1.0, 2.0, 3.0)(*result);
        collecting = g_bIsIni3DSolidProp;
        return 1;
    }
    bool collecting = false;
};

TEST_F(Catalog, NamesTheCoordinatesOfSectionsByBareLetters)
{
    SectionProvider provider;
    KdDbSection::desc()->addX(KdDbEntityPE::desc(), &provider);
    catalog.AddNewTypeProperties(L"Section", add<KdDbSection>());
    EXPECT_THAT(catalog.TypeProperties.at(L"Section"), ElementsAre(L"X", L"Y", L"Z"));
    EXPECT_EQ(catalog.TypeKeys.at(L"Section")[0], L"Geometry:Vertex X");
    EXPECT_TRUE(provider.collecting) << "providers are told that values are gathered";
    EXPECT_FALSE(g_bIsIni3DSolidProp);
    KdDbSection::desc()->delX(KdDbEntityPE::desc());
}

TEST_F(Catalog, NamesTypesByTheirDisplayNameOrElseByTheirClass)
{
    EXPECT_EQ(catalog.GetLocalNameOfKdDbEntity(nullptr), L"");
    EXPECT_EQ(catalog.GetLocalNameOfKdDbEntity(add<KdDbLine>()), L"Line");
    EXPECT_EQ(catalog.GetLocalNameOfKdDbEntity(add<ToyEntity>()), kToy);
    ToyEntity inNoDrawing; // the object model has no name for it
    EXPECT_EQ(catalog.GetLocalNameOfKdDbEntity(&inNoDrawing), kToy);
}

TEST_F(Catalog, StartsTheDialogWithTheDefaultsOfTheRecord)
{
    makeDialog({add<KdDbLine>()});
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_TRUE(outcome().include);
    EXPECT_FALSE(outcome().append);
    EXPECT_TRUE(outcome().entireDrawing);
    EXPECT_EQ(outcome().objectTypeName, kAllTypes);
    EXPECT_EQ(outcome().objectClassName, L"");
    ASSERT_TRUE(g_pstrMulti);
    dialog.reset();
    EXPECT_EQ(g_pstrMulti, nullptr);
}

} // namespace
