#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <platform/config.h>

#include <QAbstractButton>

using namespace dialog_test;

namespace {

constexpr char kExclude[] = "IDC_QSELECT_EXCLUDE_BUTTON";
constexpr char kInclude[] = "IDC_QSELECT_INCLUDE_BUTTON";
constexpr char kAppend[] = "IDC_QSELECT_APPEND_CHECK_BUTTON";
constexpr char kSelectObjects[] = "IDC_QSELECT_SELECT_OBJECTS_BUTTON";

class Settings : public DialogTest
{
  protected:
    static KdadVariant stored(const wchar_t* name)
    {
        KdadVariant value;
        const std::wstring key = std::wstring(L"UserInterfaceSettings/KwQSelect/") + name;
        kdadConfig().getValue(KwdrawConfig::kUserInterface, key.c_str(), value);
        return value;
    }
    static int integer(const wchar_t* name) { return stored(name).integerOr(-77); }
    static bool isChecked(Person& person, const char* button)
    {
        return person.find<QAbstractButton>(button).isChecked();
    }

    Entities types = {add<KdDbLine>(), add<KdDbCircle>()};
};

TEST_F(Settings, StartPlainInAnEmptyStore)
{
    makeDialog(types);
    use([&](Person& person) {
        EXPECT_EQ(person.typeName(), "Multiple");
        EXPECT_EQ(person.property(), "Color");
        EXPECT_TRUE(isChecked(person, kInclude));
        EXPECT_FALSE(isChecked(person, kExclude));
        EXPECT_FALSE(isChecked(person, kAppend));
        EXPECT_TRUE(person.isEnabled(kSelectObjects));
    });
}

TEST_F(Settings, AreWrittenWhenTheUserAccepts)
{
    drawing.findOrAddRecord<KdDbLayerTable>(L"WALLS");
    makeDialog(types);
    use([](Person& person) {
        person.chooseType("Circle");
        person.chooseValue("Yellow");
        person.chooseProperty("Lineweight");
        person.chooseValue("0.00 mm");
        person.chooseProperty("Linetype");
        person.chooseValue("Continuous");
        person.chooseProperty("Plot style");
        person.chooseValue("Normal");
        person.chooseProperty("Layer");
        person.chooseValue("WALLS");
        person.chooseOperator("<> Not Equal");
        person.click(kExclude);
        person.click(kAppend);
        person.click("IDOK");
    });
    EXPECT_STREQ(stored(L"Type").text(), L"Circle");
    EXPECT_EQ(stored(L"Type").type(), 5);
    EXPECT_EQ(stored(L"Type").length(), 4 * 7);
    EXPECT_EQ(stored(L"Properties").type(), 1);
    EXPECT_EQ(integer(L"Properties"), 1);
    EXPECT_EQ(integer(L"Operators"), 1);
    EXPECT_EQ(integer(L"Exclude"), 1);
    EXPECT_EQ(integer(L"Accumulate"), 1);
    EXPECT_EQ(integer(L"VarColor"), 3);
    EXPECT_EQ(integer(L"VarLayer"), 1);
    EXPECT_EQ(integer(L"VarLType"), 2);
    EXPECT_EQ(integer(L"VarArrowHead"), 0);
    EXPECT_EQ(integer(L"VarPlotStyle"), 2);
    EXPECT_EQ(integer(L"VarLWeight"), 3);
}

TEST_F(Settings, ComeBackAsTheyWereWritten)
{
    drawing.findOrAddRecord<KdDbLayerTable>(L"WALLS");
    makeDialog(types);
    use([](Person& person) {
        person.chooseType("Circle");
        person.chooseValue("Yellow");
        person.chooseProperty("Layer");
        person.chooseValue("WALLS");
        person.chooseOperator("<> Not Equal");
        person.click(kExclude);
        person.click("IDOK");
    });
    makeDialog(types);
    use([](Person& person) {
        EXPECT_EQ(person.typeName(), "Circle");
        EXPECT_EQ(person.property(), "Layer");
        EXPECT_EQ(person.operatorName(), "<> Not Equal");
        EXPECT_EQ(person.valueCombo()->currentText(), "WALLS");
        EXPECT_TRUE(isChecked(person, kExclude));
        EXPECT_FALSE(isChecked(person, kInclude));
        person.chooseProperty("Color");
        EXPECT_EQ(person.valueCombo()->currentText(), "Yellow");
    });
}

TEST_F(Settings, RememberAllTypesByTheTextThatWasShown)
{
    makeDialog(types);
    use([](Person& person) { person.click("IDOK"); });
    EXPECT_STREQ(stored(L"Type").text(), L"Multiple");
    makeDialog(types);
    use([](Person& person) {
        person.find<QComboBox>("IDC_QSELECT_OBJECT_TYPE_COMBO").setItemText(0, "Mehrere");
        person.click("IDOK");
    });
    EXPECT_STREQ(stored(L"Type").text(), L"Mehrere");
    makeDialog(types);
    use([](Person& person) { EXPECT_EQ(person.typeName(), "Multiple"); });
}

TEST_F(Settings, LeaveTheTypeAloneThatTheDrawingDoesNotHold)
{
    remember(L"Type", L"Kreis");
    makeDialog(types);
    use([](Person& person) { EXPECT_EQ(person.typeName(), "Multiple"); });
    const Entities circles = {types.back()};
    makeDialog(circles);
    use([](Person& person) { EXPECT_EQ(person.typeName(), "Circle"); });
}

TEST_F(Settings, RememberASetOfSamplesByItsRow)
{
    remember(L"Type", L"Circle");
    remember(L"VarLType", 2);
    remember(L"VarLWeight", 5);
    remember(L"VarPlotStyle", 1);
    makeDialog(types);
    use([](Person& person) {
        person.chooseProperty("Linetype");
        EXPECT_EQ(person.valueCombo()->currentText(), "Continuous");
        person.chooseProperty("Lineweight");
        EXPECT_EQ(person.valueCombo()->currentText(), "0.09 mm");
        person.chooseProperty("Plot style");
        EXPECT_EQ(person.valueCombo()->currentText(), "ByBlock");
    });
}

TEST_F(Settings, OfArrowheadsComeBack)
{
    remember(L"VarArrowHead", 7);
    makeDialog({addToy({{L"A:P", text(L"x", 440)}})});
    use([](Person& person) { EXPECT_EQ(person.valueCombo()->currentText(), "Open"); });
}

TEST_F(Settings, StayAsTheyWereAfterACancel)
{
    remember(L"Type", L"Line");
    remember(L"Exclude", 0);
    makeDialog(types);
    use([](Person& person) {
        person.chooseType("Circle");
        person.chooseProperty("Layer");
        person.click(kExclude);
        person.click("IDCANCEL");
    });
    EXPECT_STREQ(stored(L"Type").text(), L"Line");
    EXPECT_EQ(integer(L"Exclude"), 0);
    EXPECT_EQ(stored(L"Properties").type(), KdadVariant::kEmpty);
}

TEST_F(Settings, LeaveTheFirstTypeWhereTheirsIsNotOffered)
{
    remember(L"Type", L"Spline");
    makeDialog(types);
    use([](Person& person) { EXPECT_EQ(person.typeName(), "Multiple"); });
}

TEST_F(Settings, OfAppendingLeaveTheCurrentSelectionInTheList)
{
    remember(L"Accumulate", 1);
    makeDialog(types, {types[1]});
    use([](Person& person) {
        EXPECT_TRUE(isChecked(person, kAppend));
        EXPECT_FALSE(person.isEnabled(kSelectObjects));
        EXPECT_EQ(person.rows("IDC_QSELECT_APPLY_TO_COMBO"),
                  (QStringList{"Entire drawing", "Current selection"}));
    });
}

TEST_F(Settings, BeyondTheListSelectNothing)
{
    remember(L"Type", L"Circle");
    remember(L"Properties", 500);
    makeDialog(types);
    use([](Person& person) {
        EXPECT_EQ(person.property(), QString());
        EXPECT_EQ(person.rows("IDC_QSELECT_OPERATOR_COMBO"), QStringList());
    });
}

TEST_F(Settings, BeyondTheValuesFallBackWhereThatIsFixed)
{
    for (const wchar_t* name :
         {L"VarColor", L"VarLayer", L"VarPlotStyle", L"VarLType", L"VarLWeight"})
        remember(name, 500);
    remember(L"Type", L"Circle");
    makeDialog(types);
    use([](Person& person) {
        EXPECT_EQ(person.valueCombo()->currentText(), "ByLayer");
        person.chooseProperty("Layer");
        EXPECT_EQ(person.valueCombo()->currentText(), "0");
        person.chooseProperty("Plot style");
        EXPECT_EQ(person.valueCombo()->currentText(), "ByLayer");
        for (const char* property : {"Linetype", "Lineweight"}) {
            person.chooseProperty(property);
            EXPECT_EQ(person.valueCombo()->currentIndex(), -1) << property;
        }
    });
}

TEST_F(Settings, OfAnotherKindCountAsMissing)
{
    remember(L"Type", 3);
    remember(L"Properties", L"2");
    remember(L"Exclude", L"1");
    makeDialog(types);
    use([](Person& person) {
        EXPECT_EQ(person.typeName(), "Multiple");
        EXPECT_EQ(person.property(), "Color");
        EXPECT_TRUE(isChecked(person, kInclude));
    });
}

TEST_F(Settings, RememberTheListingOfTextsInItsVariable)
{
    const ToyEntity* toy = addToy({{L"A:Name", text(L"x")}});
    setShort(L"QSELECTLISTVALUES", 1);
    makeDialog({const_cast<ToyEntity*>(toy)});
    use([](Person& person) { person.click("IDOK"); });
    EXPECT_EQ(getShort(L"QSELECTLISTVALUES"), 1);
    setShort(L"QSELECTLISTVALUES", 0);
    makeDialog({const_cast<ToyEntity*>(toy)});
    use([](Person& person) {
        person.type("y");
        person.click("IDOK");
    });
    EXPECT_EQ(getShort(L"QSELECTLISTVALUES"), 0);
}

} // namespace
