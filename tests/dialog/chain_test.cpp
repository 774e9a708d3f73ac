#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>

#include <QLabel>
#include <QTest>

using namespace dialog_test;
using testing::ElementsAre;

namespace {

constexpr char kApplyTo[] = "IDC_QSELECT_APPLY_TO_COMBO";
constexpr char kType[] = "IDC_QSELECT_OBJECT_TYPE_COMBO";
constexpr char kOperator[] = "IDC_QSELECT_OPERATOR_COMBO";
constexpr char kSelectObjects[] = "IDC_QSELECT_SELECT_OBJECTS_BUTTON";
constexpr char kInclude[] = "IDC_QSELECT_INCLUDE_BUTTON";
constexpr char kExclude[] = "IDC_QSELECT_EXCLUDE_BUTTON";
constexpr char kAppend[] = "IDC_QSELECT_APPEND_CHECK_BUTTON";

class Chain : public DialogTest
{
  protected:
    Entities lineAndCircle() { return {add<KdDbLine>(), add<KdDbCircle>()}; }
};

TEST_F(Chain, OffersTheEntireDrawingAloneWithoutASelection)
{
    use(lineAndCircle(), [](Person& person) {
        EXPECT_EQ(person.rows(kApplyTo), QStringList{"Entire drawing"});
        EXPECT_EQ(person.rows(kType), (QStringList{"Multiple", "Line", "Circle"}));
        EXPECT_EQ(person.typeName(), "Multiple");
        EXPECT_EQ(person.property(), "Color");
    });
}

TEST_F(Chain, OffersNoMultipleForOneType)
{
    use({add<KdDbCircle>()}, [](Person& person) {
        EXPECT_EQ(person.rows(kType), QStringList{"Circle"});
        EXPECT_EQ(person.property(), "Color");
        EXPECT_EQ(person.operatorName(), "= Equals");
    });
}

TEST_F(Chain, StartsWithTheCurrentSelectionWhereThereIsOne)
{
    makeDialog(lineAndCircle(), {add<KdDbCircle>()});
    use([](Person& person) {
        EXPECT_EQ(person.rows(kApplyTo), (QStringList{"Entire drawing", "Current selection"}));
        EXPECT_EQ(person.textOf(kApplyTo), "Current selection");
        EXPECT_EQ(person.rows(kType), QStringList{"Circle"});
        person.choose(kApplyTo, "Entire drawing");
        EXPECT_EQ(person.rows(kType), (QStringList{"Multiple", "Line", "Circle"}));
        EXPECT_EQ(person.typeName(), "Circle") << "a type that is still offered stays chosen";
    });
}

TEST_F(Chain, KeepsThePropertyWhenAnotherTypeHasItToo)
{
    use(lineAndCircle(), [](Person& person) {
        person.chooseType("Line");
        person.chooseProperty("Thickness");
        person.chooseType("Circle");
        EXPECT_EQ(person.property(), "Thickness");
        person.chooseProperty("Radius");
        person.chooseType("Line");
        EXPECT_EQ(person.property(), "Color");
    });
}

TEST_F(Chain, ListsThePropertiesOfTheTypeWithoutTabs)
{
    const Entities toys = {addToy({{L"\tA:\t\tTabs", real(1.0)}, {L"A:None", real(2.0)}})};
    use(toys, [](Person& person) {
        EXPECT_EQ(person.properties(), (QStringList{"Tabs", "None"}));
        EXPECT_EQ(person.dialog().findChild<QListWidget*>()->item(0)->text(), "Tabs");
    });
    EXPECT_EQ(dialog->TypeProperties.at(kToy)[0], L"\t\tTabs");
}

TEST_F(Chain, GoesOnFromEitherRowOfAPropertyThatIsListedTwice)
{
    const ToyProperty twice{L"Geometry:End", point(1.0, 2.0, 3.0)};
    const Entities toys = {addToy({twice, {L"Geometry:Radius", real(5.0)}, twice})};
    const QStringList rows{"End X", "End Y", "End Z", "Radius", "End X", "End Y", "End Z"};
    use(toys, [&](Person& person) {
        EXPECT_EQ(person.properties(), rows);
        for (const int row : {1, 5}) {
            person.list().setCurrentRow(row);
            EXPECT_EQ(person.property(), "End Y");
            EXPECT_EQ(person.rows(kOperator).size(), 5);
        }
        person.type("1.5");
        person.click("IDOK");
    });
    EXPECT_EQ(property().propertyKey, L"Geometry:End");
    EXPECT_EQ(property().axis, 2);
}

struct OperatorRow
{
    const char* name;
    Fill value;
    const wchar_t* key;
    QStringList operators;
};

class ChainOperators : public Chain, public testing::WithParamInterface<OperatorRow>
{
};

TEST_P(ChainOperators, AreOfferedByTheKindOfTheProperty)
{
    const Entities toys = {addToy({{GetParam().key, GetParam().value}})};
    use(toys, [](Person& person) { EXPECT_EQ(person.rows(kOperator), GetParam().operators); });
}

const QStringList kForNames = {"= Equals", "<> Not Equal", "Select All"};
const QStringList kForNumbers = {"= Equals", "<> Not Equal", "> Greater Than", "< Less Than",
                                 "Select All"};
const QStringList kForTexts = {"= Equals", "<> Not Equal", "Select All", "* Wildcard Match"};
const OperatorRow kOperatorRows[] = {
    {"unanswered", nothing(), L"A:P", kForNames},
    {"real", real(1.0), L"A:P", kForNumbers},
    {"angle", real(1.0, 5004), L"A:P", kForNumbers},
    {"linetypeScale", real(1.0, 48), L"A:P", kForNumbers},
    {"int8", integer(1, 280), L"A:P", kForNumbers},
    {"int16", integer(1, 5003), L"A:P", kForNumbers},
    {"int32", integer(1, 5010), L"A:P", kForNumbers},
    {"point2d", point(1.0, 2.0), L"A:P", kForNumbers},
    {"point3d", point(1.0, 2.0, 3.0), L"A:P", kForNumbers},
    {"color", color(1), L"A:P", kForNumbers},
    {"transparency", text(L"10", 441), L"A:P", kForNumbers},
    {"text", text(L"x"), L"A:P", kForTexts},
    {"layer", text(L"x", 8), L"A:P", kForNames},
    {"linetype", text(L"x", 6), L"A:P", kForNames},
    {"lineweight", text(L"x", 370), L"A:P", kForNames},
    {"arrow", text(L"x", 440), L"A:P", kForNames},
    {"truth", truth(true), L"A:P", kForNames},
    {"plotStyleInAnyCase", text(L"x"), L"A:PLOT STYLE", kForNames},
    {"mlineStyle", text(L"x"), L"Misc:Mline style", kForNames},
    {"mlineAlignment", text(L"x"), L"Misc:mline ALIGNMENT", kForNames},
};
INSTANTIATE_TEST_SUITE_P(Kinds, ChainOperators, testing::ValuesIn(kOperatorRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Chain, OffersNoOperatorForTheColorOfAllTypes)
{
    use(lineAndCircle(), [](Person& person) {
        EXPECT_EQ(person.property(), "Color");
        EXPECT_EQ(person.rows(kOperator), QStringList());
    });
}

TEST_F(Chain, KeepsTheOperatorWhereThePropertyOffersIt)
{
    const Entities toys = {
        addToy({{L"A:One", real(1.0)}, {L"A:Two", real(2.0)}, {L"A:Name", text(L"x")}})};
    use(toys, [](Person& person) {
        person.chooseOperator("< Less Than");
        person.chooseProperty("Two");
        EXPECT_EQ(person.operatorName(), "< Less Than");
        person.chooseProperty("Name");
        EXPECT_EQ(person.operatorName(), "= Equals");
    });
}

TEST_F(Chain, NeedsNoValueToSelectAll)
{
    const Entities toys = {addToy({{L"A:One", real(1.0)}, {L"A:Closed", truth(true)}})};
    use(toys, [](Person& person) {
        EXPECT_FALSE(person.isEnabled("IDOK")) << "the edit is empty";
        person.chooseOperator("Select All");
        EXPECT_TRUE(person.isEnabled("IDOK"));
        EXPECT_FALSE(person.isEnabled("IDC_QSELECT_PROPERTIES_LIST"));
        EXPECT_FALSE(person.isShown("IDC_QSELECT_VALUE_LABEL"));
        EXPECT_FALSE(person.edit().isVisible());
        EXPECT_EQ(person.valueCombo(), nullptr);
        person.chooseOperator("= Equals");
        EXPECT_TRUE(person.isEnabled("IDC_QSELECT_PROPERTIES_LIST"));
        EXPECT_TRUE(person.isShown("IDC_QSELECT_VALUE_LABEL"));
        person.chooseProperty("Closed");
        person.chooseOperator("Select All");
        EXPECT_EQ(person.valueCombo(), nullptr);
    });
}

TEST_F(Chain, LetsObjectsBePickedForAPlainIncludeAlone)
{
    use(lineAndCircle(), [](Person& person) {
        EXPECT_TRUE(person.isEnabled(kSelectObjects));
        person.click(kExclude);
        EXPECT_FALSE(person.isEnabled(kSelectObjects));
        person.click(kInclude);
        EXPECT_TRUE(person.isEnabled(kSelectObjects));
        person.click(kAppend);
        EXPECT_FALSE(person.isEnabled(kSelectObjects));
        person.click(kAppend);
        EXPECT_TRUE(person.isEnabled(kSelectObjects));
    });
}

TEST_F(Chain, WithdrawsTheCurrentSelectionWhileAppending)
{
    makeDialog(lineAndCircle(), {add<KdDbCircle>()});
    use([](Person& person) {
        EXPECT_EQ(person.typeName(), "Circle");
        person.click(kAppend);
        EXPECT_EQ(person.rows(kApplyTo), QStringList{"Entire drawing"});
        EXPECT_EQ(person.typeName(), "Multiple");
        person.click(kAppend);
        EXPECT_EQ(person.rows(kApplyTo), (QStringList{"Entire drawing", "Current selection"}));
        EXPECT_EQ(person.textOf(kApplyTo), "Entire drawing");
    });
}

TEST_F(Chain, OffersNoCurrentSelectionAfterAppendingWithoutOne)
{
    use(lineAndCircle(), [](Person& person) {
        person.click(kAppend);
        person.click(kAppend);
        EXPECT_EQ(person.rows(kApplyTo), QStringList{"Entire drawing"});
    });
}

TEST_F(Chain, AllowsNoValueThatIsEmpty)
{
    const Entities toys = {addToy({{L"A:Name", text(L"x")}})};
    use(toys, [](Person& person) {
        EXPECT_FALSE(person.isEnabled("IDOK"));
        person.type("7");
        EXPECT_TRUE(person.isEnabled("IDOK"));
        person.type("");
        EXPECT_FALSE(person.isEnabled("IDOK"));
    });
}

TEST_F(Chain, DoesNothingWhereNoPropertyIsChosen)
{
    const Entities toys = {addToy({{L"A:Name", text(L"x")}})};
    use(toys, [](Person& person) {
        QListWidget& list = person.list();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list.visualItemRect(list.item(0)).center());
        EXPECT_EQ(person.property(), QString());
        EXPECT_EQ(person.rows(kOperator), QStringList());
        EXPECT_EQ(person.valueCombo(), nullptr);
        EXPECT_FALSE(person.edit().isVisible());
    });
}

} // namespace
