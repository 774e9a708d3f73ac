#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <ui/widgets.h>

#include <QAbstractButton>
#include <QLabel>

#include <editor/system_variables.h>

using namespace dialog_test;

namespace {

class ValueControl : public DialogTest
{
};

struct EditRow
{
    const char* name;
    Fill value;
};

class EditedValue : public ValueControl, public testing::WithParamInterface<EditRow>
{
};

TEST_P(EditedValue, IsTyped)
{
    const Entities toys = {addToy({{L"A:P", GetParam().value}})};
    use(toys, [](Person& person) {
        EXPECT_TRUE(person.edit().isVisible());
        EXPECT_EQ(person.valueCombo(), nullptr);
    });
}

const EditRow kEdited[] = {
    {"real", real(1.0)},         {"angle", real(1.0, 5004)},
    {"scale", real(1.0, 48)},    {"int8", integer(1, 280)},
    {"int16", integer(1, 5003)}, {"int32", integer(1, 5010)},
    {"point2d", point(1, 2)},    {"point3d", point(1, 2, 3)},
    {"text", text(L"x")},        {"transparency", text(L"10", 441)},
    {"unanswered", nothing()},
};
INSTANTIATE_TEST_SUITE_P(Kinds, EditedValue, testing::ValuesIn(kEdited),
                         [](const auto& row) { return std::string(row.param.name); });

struct ListRow
{
    const char* name;
    ToyProperty property;
    QStringList values;
};

class ListedValue : public ValueControl, public testing::WithParamInterface<ListRow>
{
};

TEST_P(ListedValue, IsChosen)
{
    const Entities toys = {addToy({GetParam().property})};
    use(toys, [](Person& person) {
        EXPECT_FALSE(person.edit().isVisible());
        ASSERT_TRUE(person.valueCombo());
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()), GetParam().values);
        EXPECT_TRUE(person.isEnabled("IDOK"));
    });
}

const ListRow kListed[] = {
    {"truth", {L"A:P", truth(true)}, {"true", "false"}},
    {"text", {L"A:P", text(L"x"), {text(L"one"), text(L"two")}}, {"one", "two"}},
    {"real", {L"A:P", real(1.0), {real(2.0), real(3.5)}}, {"2.0000", "3.5000"}},
    {"integer", {L"A:P", integer(1), {integer(2), integer(-3)}}, {"2", "-3"}},
    {"int8", {L"A:P", integer(1, 280), {integer(2, 280)}}, {"2"}},
    {"layer", {L"A:Other layer", text(L"0", 8), {text(L"0", 8), text(L"W", 8)}}, {"0", "W"}},
    {"color",
     {L"A:P", color(1)},
     {"ByLayer", "ByBlock", "Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White",
      "Other..."}},
    {"linetype", {L"A:P", text(L"Continuous", 6)}, {"ByBlock", "ByLayer", "Continuous"}},
    {"arrowhead",
     {L"A:P", text(L"x", 440)},
     {"None",
      "Closed",
      "Dot",
      "Closed filled",
      "Closed blank",
      "Oblique",
      "Architectural tick",
      "Open",
      "Origin indicator",
      "Origin indicator 2",
      "Right angle",
      "Open 30",
      "Dot blank",
      "Dot small",
      "Box filled",
      "Box",
      "Datum triangle filled",
      "Datum triangle",
      "Integral",
      "Dot small blank"}},
    {"lineweight",
     {L"A:P", text(L"x", 370)},
     {"ByLayer", "ByBlock", "Default", "0.00 mm", "0.05 mm", "0.09 mm", "0.13 mm",
      "0.15 mm", "0.18 mm", "0.20 mm", "0.25 mm", "0.30 mm", "0.35 mm", "0.40 mm",
      "0.50 mm", "0.53 mm", "0.60 mm", "0.70 mm", "0.80 mm", "0.90 mm", "1.00 mm",
      "1.06 mm", "1.20 mm", "1.40 mm", "1.58 mm", "2.00 mm", "2.11 mm"}},
};
INSTANTIATE_TEST_SUITE_P(Kinds, ListedValue, testing::ValuesIn(kListed),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ValueControl, ListsLineweightsInInchesWhereTheUnitsSaySo)
{
    setShort(L"LWUNITS", 0);
    const Entities toys = {addToy({{L"A:P", text(L"x", 370)}})};
    use(toys, [](Person& person) {
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()).mid(10, 2),
                  (QStringList{"0.010\"", "0.012\""}));
    });
}

TEST_F(ValueControl, IsTheEditForPatternsAlsoOfListedTexts)
{
    const Entities toys = {addToy({{L"A:P", text(L"x"), {text(L"one")}}})};
    use(toys, [](Person& person) {
        EXPECT_TRUE(person.valueCombo());
        person.chooseOperator("* Wildcard Match");
        EXPECT_EQ(person.valueCombo(), nullptr);
        EXPECT_TRUE(person.edit().isVisible());
        EXPECT_FALSE(person.isEnabled("IDOK"));
        person.chooseOperator("= Equals");
        EXPECT_TRUE(person.valueCombo());
        EXPECT_TRUE(person.isEnabled("IDOK"));
    });
}

TEST_F(ValueControl, ReachesOneAtATimeOnOneRectangle)
{
    const Entities toys = {addToy({{L"A:Color", color(1)},
                                   {L"A:Type", text(L"x", 6)},
                                   {L"A:Weight", text(L"x", 370)},
                                   {L"A:Arrow", text(L"x", 440)},
                                   {L"A:Closed", truth(true)},
                                   {L"A:Real", real(1.0)}})};
    use(toys, [](Person& person) {
        QWidget* combos[5] = {};
        int count = 0;
        for (const char* name : {"Color", "Type", "Weight", "Arrow", "Closed"}) {
            person.chooseProperty(name);
            ASSERT_TRUE(person.valueCombo()) << name;
            EXPECT_EQ(person.valueCombo()->geometry(), person.edit().geometry()) << name;
            EXPECT_EQ(person.valueCombo()->accessibleName(), "Value");
            EXPECT_EQ(person.find<QLabel>("IDC_QSELECT_VALUE_LABEL").buddy(), person.valueCombo());
            combos[count++] = person.valueCombo();
            int shown = person.edit().isVisible() ? 1 : 0;
            for (const QWidget* combo : combos)
                shown += combo && combo->isVisible() ? 1 : 0;
            EXPECT_EQ(shown, 1) << name;
        }
        person.chooseProperty("Real");
        EXPECT_TRUE(person.edit().isVisible());
        for (const QWidget* combo : combos)
            EXPECT_FALSE(combo->isVisible());
    });
}

TEST_F(ValueControl, KeepsTheRowsOfLayersAndPlotStylesWhileThePropertyChanges)
{
    drawing.findOrAddRecord<KdDbLayerTable>(L"WALLS");
    const Entities toys = {addToy({{L"General:Layer", text(L"0", 8)},
                                   {L"General:Plot style", text(L"x"), {text(L"A"), text(L"B")}},
                                   {L"A:Real", real(1.0)}})};
    use(toys, [](Person& person) {
        person.chooseValue("WALLS");
        person.chooseProperty("Plot style");
        person.chooseValue("B");
        person.chooseProperty("Real");
        person.chooseProperty("Layer");
        EXPECT_EQ(person.valueCombo()->currentText(), "WALLS");
        person.chooseProperty("Plot style");
        EXPECT_EQ(person.valueCombo()->currentText(), "B");
    });
}

TEST_F(ValueControl, KeepsTheColorWhileThePropertyChanges)
{
    const Entities toys = {addToy({{L"A:Color", color(1)}, {L"A:Real", real(1.0)}})};
    use(toys, [](Person& person) {
        EXPECT_EQ(person.valueCombo()->currentText(), "ByLayer");
        person.chooseValue("Green");
        person.chooseProperty("Real");
        person.chooseProperty("Color");
        EXPECT_EQ(person.valueCombo()->currentText(), "Green");
    });
}

class ListedTexts : public ValueControl
{
  protected:
    ListedTexts() { setShort(L"QSELECTLISTVALUES", 1); }
};

TEST_F(ListedTexts, OfOneTypeComeFromItsEntitiesSortedAndOnce)
{
    const Entities types = {addToy({{L"A:Name", text(L"pump")}}),
                            addOtherToy({{L"A:Name", text(L"other")}})};
    addToy({{L"A:Name", text(L"valve")}});
    addToy({{L"A:Name", text(L"pump")}});
    addToy({{L"A:Name", text(L"Duct")}});
    addToy({{L"A:Name", real(1.0)}});
    use(types, [](Person& person) {
        person.chooseType("TOY");
        ASSERT_TRUE(person.valueCombo());
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()), (QStringList{"Duct", "pump", "valve"}));
        EXPECT_EQ(person.valueCombo()->currentText(), "Duct");
        person.chooseOperator("* Wildcard Match");
        EXPECT_TRUE(person.edit().isVisible());
    });
}

TEST_F(ListedTexts, OfAllTypesComeFromAllEntities)
{
    const Entities types = {addToy({{L"\tGeneral:Hyperlink", text(L"b")}}),
                            addOtherToy({{L"\tGeneral:Hyperlink", text(L"a")}})};
    use(types, [](Person& person) {
        EXPECT_EQ(person.typeName(), "Multiple");
        person.chooseProperty("Hyperlink");
        ASSERT_TRUE(person.valueCombo());
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()), (QStringList{"a", "b"}));
    });
}

TEST_F(ListedTexts, ComeFromTheSheetWhileThatIsTheCurrentSpace)
{
    const Entities types = {addToy({{L"A:Name", text(L"in the model")}})};
    setShort(L"TILEMODE", 0);
    setShort(L"CVPORT", 1);
    use(types, [](Person& person) {
        ASSERT_TRUE(person.valueCombo());
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()), QStringList());
    });
}

TEST_F(ListedTexts, ShowNothingWhereTheSpaceCannotBeRead)
{
    const Entities types = {addToy({{L"A:Name", text(L"x")}})};
    setShort(L"TILEMODE", 0);
    setShort(L"CVPORT", 1);
    kddbHostApplicationServices()->setHasLayoutManager(false);
    use(types, [](Person& person) {
        EXPECT_EQ(person.valueCombo(), nullptr);
        EXPECT_FALSE(person.edit().isVisible());
    });
    kddbHostApplicationServices()->setHasLayoutManager(true);
}

TEST_F(ListedTexts, AreTheListOfThePropertyWhereItHasOne)
{
    const Entities types = {addToy({{L"A:Name", text(L"x"), {text(L"offered")}}})};
    use(types, [](Person& person) {
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()), QStringList{"offered"});
    });
}

TEST_F(ValueControl, HidesTheBoxThatCarriesTheListingOfTexts)
{
    setShort(L"QSELECTLISTVALUES", 1);
    use({add<KdDbLine>()}, [](Person& person) {
        EXPECT_FALSE(person.isShown("IDC_QSELECT_SHOWLISTVALUES_CHECK_BUTTON"));
        EXPECT_TRUE(
            person.find<QAbstractButton>("IDC_QSELECT_SHOWLISTVALUES_CHECK_BUTTON").isChecked());
    });
}

TEST_F(ValueControl, TakesANewListingOfTextsOverAtTheNextFill)
{
    const Entities types = {addToy({{L"A:Name", text(L"x")}, {L"A:Other", text(L"y")}})};
    use(types, [](Person& person) {
        EXPECT_TRUE(person.edit().isVisible());
        auto& box = person.find<QAbstractButton>("IDC_QSELECT_SHOWLISTVALUES_CHECK_BUTTON");
        box.click(); // hidden as it is, by code alone
        EXPECT_TRUE(person.edit().isVisible()) << "nothing is refilled by the box";
        person.chooseProperty("Other");
        ASSERT_TRUE(person.valueCombo());
        EXPECT_EQ(Person::rowsOf(*person.valueCombo()), QStringList{"y"});
        person.click("IDOK");
    });
    EXPECT_EQ(getShort(L"QSELECTLISTVALUES"), 1);
}

} // namespace
