#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <platform/main_app_service.h>
#include <ui/color_dialog.h>

#include <QTest>

#include <stdexcept>

#include <values/globals.h>

using namespace dialog_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Outcome : public DialogTest
{
  protected:
    /// Accepts a dialog over one property with what the person does before.
    int accept(const ToyProperty& toyProperty, const Act& act)
    {
        makeDialog({addToy({toyProperty})});
        return use([&](Person& person) {
            act(person);
            person.click("IDOK");
        });
    }
    int acceptTyped(const ToyProperty& toyProperty, const char* typed)
    {
        return accept(toyProperty, [&](Person& person) { person.type(typed); });
    }
    const ResBuf& filter() const
    {
        if (!outcome().filter)
            throw std::runtime_error("there is no filter");
        return *outcome().filter;
    }
};

TEST_F(Outcome, HoldsTheFlagsAndTheTypeOfTheControls)
{
    const Entities types = {add<KdDbLine>(), add<KdDbCircle>()};
    use(types, [](Person& person) {
        person.chooseType("Circle");
        person.chooseProperty("Radius");
        person.type("2");
        person.click("IDC_QSELECT_EXCLUDE_BUTTON");
        person.click("IDC_QSELECT_APPEND_CHECK_BUTTON");
        person.click("IDOK");
    });
    EXPECT_FALSE(outcome().include);
    EXPECT_TRUE(outcome().append);
    EXPECT_TRUE(outcome().entireDrawing);
    EXPECT_EQ(outcome().objectTypeName, L"Circle");
    EXPECT_EQ(outcome().objectClassName, L"AcDbCircle");
    EXPECT_EQ(outcome().selectionSource, -1);
    EXPECT_EQ(property().propertyKey, L"Geometry:Radius");
}

TEST_F(Outcome, NamesThePlainWordBehindAllTypes)
{
    use({add<KdDbLine>(), add<KdDbCircle>()}, [](Person& person) {
        person.chooseProperty("Layer");
        person.click("IDOK");
    });
    EXPECT_EQ(outcome().objectTypeName, L"Multiple");
    EXPECT_EQ(outcome().objectClassName, L"Multiple");
    EXPECT_EQ(property().propertyKey, L"\tGeneral:Layer");
}

TEST_F(Outcome, SaysWhenTheSelectionIsSearched)
{
    makeDialog({add<KdDbLine>()}, {add<KdDbCircle>()});
    use([](Person& person) { person.click("IDOK"); });
    EXPECT_FALSE(outcome().entireDrawing);
}

struct OperatorRow
{
    const char* name;
    const char* label;
    const wchar_t* text;
    Fill value;
};

class OutcomeOperator : public Outcome, public testing::WithParamInterface<OperatorRow>
{
};

TEST_P(OutcomeOperator, IsKeptAsItsSign)
{
    accept({L"A:P", GetParam().value}, [](Person& person) {
        person.chooseOperator(GetParam().label);
        person.type("2");
    });
    EXPECT_EQ(property().operatorText, GetParam().text);
    EXPECT_TRUE(outcome().filter);
}

const OperatorRow kOperators[] = {
    {"equals", "= Equals", L"=", real(1.0)},
    {"notEqual", "<> Not Equal", L"<>", real(1.0)},
    {"greater", "> Greater Than", L">", real(1.0)},
    {"less", "< Less Than", L"<", real(1.0)},
    {"wildcard", "* Wildcard Match", L"*", text(L"x")},
};
INSTANTIATE_TEST_SUITE_P(Signs, OutcomeOperator, testing::ValuesIn(kOperators),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Outcome, HasNoFilterToSelectAll)
{
    const int end =
        accept({L"A:P", real(1.0)}, [](Person& person) { person.chooseOperator("Select All"); });
    EXPECT_EQ(end, IDOK);
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_EQ(property().operatorText, L"");
    EXPECT_EQ(property().propertyKey, L"A:P");
}

struct TypedRow
{
    const char* name;
    Fill value;
    const char* typed;
    int restype;
    int valueType;
    double number;
};

class TypedNumber : public Outcome, public testing::WithParamInterface<TypedRow>
{
};

TEST_P(TypedNumber, BecomesARecord)
{
    EXPECT_EQ(acceptTyped({L"A:P", GetParam().value}, GetParam().typed), IDOK);
    EXPECT_EQ(filter().restype(), GetParam().restype);
    EXPECT_EQ(property().valueType, GetParam().valueType);
    const bool isReal = GetParam().valueType == 5001;
    EXPECT_DOUBLE_EQ(isReal ? filter().getDouble() : filter().getInt32(), GetParam().number);
    EXPECT_THAT(messages.shown, IsEmpty());
}

const TypedRow kTyped[] = {
    {"real", real(1.0), "2.5", 5001, 5001, 2.5},
    {"feet", real(1.0), "1'-6\"", 5001, 5001, 18.0},
    {"unreadableReal", real(1.0), "many", 5001, 5001, 1.0},
    {"scale", real(1.0, 48), "0.5", 48, 5001, 0.5},
    {"angle", real(1.0, 5004), "180", 5004, 5001, 3.14159265358979323846},
    {"unreadableAngle", real(1.0, 5004), "steep", 5004, 5001, 1.0},
    {"int8", integer(1, 280), "7", 280, 280, 7},
    {"int8Cut", integer(1, 280), "257", 280, 280, 1},
    {"int16", integer(1, 5003), "-12", 5003, 5003, -12},
    {"int32", integer(1, 5010), "100000", 5010, 5010, 100000},
};
INSTANTIATE_TEST_SUITE_P(Kinds, TypedNumber, testing::ValuesIn(kTyped),
                         [](const auto& row) { return std::string(row.param.name); });

struct TextRow
{
    const char* name;
    Fill value;
    const char* typed;
    int restype;
    int valueType;
    const wchar_t* text;
};

class TypedText : public Outcome, public testing::WithParamInterface<TextRow>
{
};

TEST_P(TypedText, BecomesARecord)
{
    EXPECT_EQ(acceptTyped({L"A:P", GetParam().value}, GetParam().typed), IDOK);
    EXPECT_EQ(filter().restype(), GetParam().restype);
    EXPECT_EQ(property().valueType, GetParam().valueType);
    EXPECT_EQ(filter().getString(), GetParam().text);
}

const TextRow kTexts[] = {
    {"text", text(L"x"), "Pump*", 5005, 5005, L"Pump*"},
    {"byLayer", text(L"10", 441), "bylayer", 441, 441, L"BYLAYER"},
    {"byBlock", text(L"10", 441), "ByBlock", 441, 441, L"BYBLOCK"},
    {"transparency", text(L"10", 441), "40", 441, 441, L"40"},
    {"otherWord", text(L"10", 441), "glass", 441, 441, L"GLASS"},
};
INSTANTIATE_TEST_SUITE_P(Kinds, TypedText, testing::ValuesIn(kTexts),
                         [](const auto& row) { return std::string(row.param.name); });

struct ChosenRow
{
    const char* name;
    ToyProperty property;
    const char* chosen;
    int restype;
    int valueType;
    const wchar_t* text;
};

class ChosenValue : public Outcome, public testing::WithParamInterface<ChosenRow>
{
};

TEST_P(ChosenValue, BecomesARecord)
{
    const int end =
        accept(GetParam().property, [](Person& person) { person.chooseValue(GetParam().chosen); });
    EXPECT_EQ(end, IDOK);
    EXPECT_EQ(filter().restype(), GetParam().restype);
    EXPECT_EQ(property().valueType, GetParam().valueType);
    EXPECT_EQ(filter().getString(), GetParam().text);
}

const ChosenRow kChosen[] = {
    {"text", {L"A:P", text(L"x"), {text(L"a"), text(L"b")}}, "b", 5005, 5005, L"b"},
    {"layer", {L"A:L", text(L"0", 8), {text(L"0", 8), text(L"W", 8)}}, "W", 8, 5005, L"W"},
    {"linetype", {L"A:P", text(L"x", 6)}, "Continuous", 6, 5005, L"Continuous"},
    {"arrowhead", {L"A:P", text(L"x", 440)}, "Closed filled", 440, 5005, L"Closed filled"},
    {"lineweight", {L"A:P", text(L"x", 370)}, "0.25 mm", 370, 5005, L"0.25 mm"},
    {"weightByLayer", {L"A:P", text(L"x", 370)}, "ByLayer", 370, 5005, L"ByLayer"},
    {"weightByBlock", {L"A:P", text(L"x", 370)}, "ByBlock", 370, 5005, L"ByBlock"},
    {"weightDefault", {L"A:P", text(L"x", 370)}, "Default", 370, 5005, L"Default"},
    {"plotStyle", {L"A:Plot style", text(L"x"), {text(L"Fine")}}, "Fine", 5005, 5005, L"Fine"},
};
INSTANTIATE_TEST_SUITE_P(Kinds, ChosenValue, testing::ValuesIn(kChosen),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Outcome, TakesTheReservedNameOfALineweightAndNotTheTextOfItsRow)
{
    accept({L"A:P", text(L"x", 370)}, [](Person& person) {
        person.chooseValue("ByLayer");
        QComboBox& weights = *person.valueCombo();
        weights.setItemText(weights.currentIndex(), "as the layer has it");
    });
    EXPECT_EQ(filter().getString(), L"ByLayer");
}

TEST_F(Outcome, HoldsChosenTruth)
{
    accept({L"A:P", truth(false)}, [](Person& person) { person.chooseValue("true"); });
    EXPECT_EQ(filter().restype(), 290);
    EXPECT_TRUE(filter().getBool());
    accept({L"A:P", truth(false)}, [](Person& person) { person.chooseValue("false"); });
    EXPECT_FALSE(filter().getBool());
    EXPECT_EQ(property().valueType, 290);
}

TEST_F(Outcome, HoldsTheChosenColor)
{
    accept({L"A:P", color(1)}, [](Person& person) { person.chooseValue("Cyan"); });
    EXPECT_EQ(filter().restype(), 5011);
    EXPECT_EQ(filter().getColor().colorIndex(), 4);
    EXPECT_EQ(property().valueType, 5011);
}

struct AxisRow
{
    const char* name;
    const char* shown;
    int axis;
};

class OutcomeAxis : public Outcome, public testing::WithParamInterface<AxisRow>
{
};

TEST_P(OutcomeAxis, SetsOneCoordinateOfAPoint)
{
    accept({L"Geometry:Start", point(9, 9, 9)}, [](Person& person) {
        person.chooseProperty(GetParam().shown);
        person.type("5");
    });
    const int axis = GetParam().axis;
    EXPECT_EQ(property().propertyKey, L"Geometry:Start");
    EXPECT_EQ(property().axis, axis);
    EXPECT_EQ(filter().restype(), 5009);
    const KdGePoint3d& point = filter().getPoint3d();
    EXPECT_EQ(point.x, axis == 1 ? 5.0 : 0.0);
    EXPECT_EQ(point.y, axis == 2 ? 5.0 : 0.0);
    EXPECT_EQ(point.z, axis == 3 ? 5.0 : 0.0);
}

const AxisRow kAxes[] = {{"x", "Start X", 1}, {"y", "Start Y", 2}, {"z", "Start Z", 3}};
INSTANTIATE_TEST_SUITE_P(Axes, OutcomeAxis, testing::ValuesIn(kAxes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Outcome, SetsOneCoordinateOfAPlanePoint)
{
    accept({L"Geometry:Corner", point(9, 9)}, [](Person& person) {
        person.chooseProperty("Corner Y");
        person.type("5");
    });
    EXPECT_EQ(property().axis, 2);
    EXPECT_EQ(property().valueType, 5002);
    EXPECT_EQ(filter().getPoint2d().x, 0.0);
    EXPECT_EQ(filter().getPoint2d().y, 5.0);
}

TEST_F(Outcome, LeavesTheKeysOfScalesWhole)
{
    for (const wchar_t* key : {L"Geometry:Scale X", L"Geometry:Scale Y", L"Geometry:Scale Z"}) {
        acceptTyped({key, real(1.0)}, "2");
        EXPECT_EQ(property().propertyKey, key);
        EXPECT_EQ(property().axis, 0);
    }
}

TEST_F(Outcome, CutsTheLetterOfAnAxisAlsoOffAPlainReal)
{
    acceptTyped({L"Geometry:Base X", real(1.0)}, "2");
    EXPECT_EQ(property().propertyKey, L"Geometry:Base");
    EXPECT_EQ(property().axis, 1);
    EXPECT_EQ(property().valueType, 5001);
}

TEST_F(Outcome, ForgetsTheOperatorAndTheAxisOfAnEarlierAttempt)
{
    makeDialog({addToy({{L"A:Count", integer(1)}, {L"G:Start", point(1, 2, 3)}})});
    use([](Person& person) {
        person.chooseProperty("Start X");
        person.type("5");
        person.chooseProperty("Count");
        person.chooseOperator("> Greater Than");
        person.type("12a");
        person.click("IDOK"); // refused
        EXPECT_TRUE(person.dialog().isVisible());
        person.chooseOperator("Select All");
        person.click("IDOK");
    });
    EXPECT_EQ(property().operatorText, L"");
    EXPECT_EQ(property().axis, 0);
    EXPECT_EQ(outcome().filter, nullptr);
}

struct RefusedRow
{
    const char* name;
    int kind;
};

class RefusedInteger : public Outcome, public testing::WithParamInterface<RefusedRow>
{
};

TEST_P(RefusedInteger, KeepsTheDialogOpen)
{
    makeDialog({addToy({{L"A:P", integer(1, GetParam().kind)}})});
    const int end = use([](Person& person) {
        person.type("12a");
        person.click("IDOK");
        EXPECT_TRUE(person.dialog().isVisible());
        person.type("12");
        person.click("IDOK");
        EXPECT_FALSE(person.dialog().isVisible());
    });
    EXPECT_EQ(end, IDOK);
    EXPECT_THAT(messages.shown, ElementsAre(L"Not a numeric value"));
    EXPECT_EQ(messages.last.caption, GetOemProductName());
    EXPECT_EQ(filter().getInt32(), 12);
    EXPECT_EQ(filter().next(), nullptr) << "the second press builds one filter alone";
}

const RefusedRow kIntegers[] = {{"int8", 280}, {"int16", 5003}, {"int32", 5010}};
INSTANTIATE_TEST_SUITE_P(Kinds, RefusedInteger, testing::ValuesIn(kIntegers),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Outcome, HoldsOneFilterWhenADialogIsAcceptedTwice)
{
    makeDialog({addToy({{L"A:P", integer(1)}})});
    for (const char* typed : {"12", "34"}) {
        use([&](Person& person) {
            person.type(typed);
            person.click("IDOK");
        });
    }
    EXPECT_EQ(filter().getInt32(), 34);
    EXPECT_EQ(filter().next(), nullptr);
}

TEST_F(Outcome, RefusesAComboWithoutARow)
{
    const std::pair<Fill, const char*> rows[] = {{text(L"x", 370), "weight"},
                                                 {text(L"x", 440), "arrow"},
                                                 {text(L"x", 6), "linetype"},
                                                 {truth(true), "truth"}};
    for (const auto& [value, name] : rows) {
        messages.shown.clear();
        makeDialog({addToy({{L"A:P", value}})});
        const int end = use([](Person& person) {
            person.valueCombo()->setCurrentIndex(-1);
            person.click("IDOK");
            EXPECT_TRUE(person.dialog().isVisible());
        });
        EXPECT_EQ(end, IDCANCEL) << name;
        EXPECT_THAT(messages.shown, ElementsAre(L"Invalid value")) << name;
    }
}

TEST_F(Outcome, HasNoFilterForTheColorOfAllTypes)
{
    const int end = use({add<KdDbLine>(), add<KdDbCircle>()}, [](Person& person) {
        EXPECT_EQ(person.property(), "Color");
        person.find<QWidget>("IDOK").setEnabled(true);
        person.click("IDOK");
    });
    EXPECT_EQ(end, IDOK);
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_EQ(property().operatorText, L"");
    EXPECT_EQ(property().propertyKey, L"\tGeneral:Color");
}

TEST_F(Outcome, HasNeitherKeyNorFilterWithoutAProperty)
{
    const int end = accept({L"A:P", truth(true)}, [](Person& person) {
        QListWidget& list = person.list();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list.visualItemRect(list.item(0)).center());
    });
    EXPECT_EQ(end, IDOK);
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_EQ(property().propertyKey, L"");
}

TEST_F(Outcome, HasNoFilterForAKindWithoutValues)
{
    EXPECT_EQ(acceptTyped({L"A:P", nothing()}, "x"), IDOK);
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_EQ(property().operatorText, L"=");
}

/// Notes when the drawing gets the focus back.
class Focus : public MainAppService
{
  public:
    Focus() : m_previous(setMainAppService(this)) {}
    ~Focus() override { setMainAppService(m_previous); }
    void focusDrawing() override { ++count; }
    int count = 0;

  private:
    MainAppService* m_previous;
};

TEST_F(Outcome, OfACancelIsTheRecordAsItWas)
{
    Focus focus;
    makeDialog({addToy({{L"A:P", real(1.0)}})});
    EXPECT_EQ(use([](Person& person) {
                  person.type("5");
                  person.click("IDC_QSELECT_EXCLUDE_BUTTON");
                  person.click("IDCANCEL");
              }),
              IDCANCEL);
    EXPECT_EQ(focus.count, 1);
    EXPECT_TRUE(outcome().include);
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_EQ(property().propertyKey, L"");
}

TEST_F(Outcome, FollowsTheKeysOfADialog)
{
    const ToyProperty toyProperty = {L"A:P", real(1.0)};
    makeDialog({addToy({toyProperty})});
    EXPECT_EQ(use([](Person& person) { QTest::keyClick(&person.edit(), Qt::Key_Escape); }),
              IDCANCEL);
    EXPECT_EQ(use([](Person& person) {
                  person.type("5");
                  QTest::keyClick(&person.edit(), Qt::Key_Return);
              }),
              IDOK);
    EXPECT_DOUBLE_EQ(filter().getDouble(), 5.0);
}

KdCmColor indexed(int index)
{
    KdCmColor made;
    made.setColorIndex(index);
    return made;
}

class CustomColors : public Outcome
{
  protected:
    CustomColors() { gComboValues = {indexed(30), indexed(40)}; }
};

TEST_F(CustomColors, FollowTheStandardRowsAndKeepTheirOrder)
{
    for (const char* end : {"IDOK", "IDCANCEL"}) {
        makeDialog({addToy({{L"A:P", color(1)}})});
        use([&](Person& person) {
            EXPECT_EQ(Person::rowsOf(*person.valueCombo()).mid(8),
                      (QStringList{"White", "40", "30", "Other..."}));
            person.click(end);
        });
        EXPECT_THAT(gComboValues, ElementsAre(indexed(30), indexed(40))) << end;
    }
}

TEST_F(CustomColors, CanBeChosen)
{
    accept({L"A:P", color(1)}, [](Person& person) { person.chooseValue("30"); });
    EXPECT_EQ(filter().getColor().colorIndex(), 30);
}

TEST_F(CustomColors, AreLostWhenARefusedTextIsNotFollowedByAnEnd)
{
    makeDialog({addToy({{L"A:P", integer(1)}})});
    use([](Person& person) {
        person.type("x");
        person.click("IDOK");
        EXPECT_THAT(gComboValues, IsEmpty());
        person.click("IDCANCEL");
    });
    EXPECT_THAT(gComboValues, ElementsAre(indexed(30), indexed(40)));
}

TEST_F(CustomColors, GrowByAnotherColor)
{
    makeDialog({addToy({{L"A:P", color(1)}})});
    use([](Person& person) {
        onNextWindow([](QWidget& window) {
            auto* colors = qobject_cast<KdUiColorDialog*>(&window);
            ASSERT_TRUE(colors);
            QWidget* palette = colors->findChild<QWidget*>("palette");
            ASSERT_TRUE(palette);
            QTest::keyClick(palette, Qt::Key_Up); // from red into the darkest of its shades
            QTest::keyClick(palette, Qt::Key_Return);
        });
        person.chooseValue("Red");
        person.chooseValue("Other...");
        EXPECT_EQ(person.valueCombo()->currentIndex(), 9);
        EXPECT_EQ(person.valueCombo()->currentText(), "19");
        person.click("IDOK");
    });
    EXPECT_EQ(filter().getColor().colorIndex(), 19);
    EXPECT_THAT(gComboValues, ElementsAre(indexed(30), indexed(40), indexed(19)));
}

TEST_F(CustomColors, StayAsTheyAreWhenNoOtherColorIsChosen)
{
    makeDialog({addToy({{L"A:P", color(1)}})});
    use([](Person& person) {
        person.chooseValue("Green");
        onNextWindow([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
        person.chooseValue("Other...");
        EXPECT_EQ(person.valueCombo()->currentText(), "Green");
    });
    EXPECT_THAT(gComboValues, ElementsAre(indexed(30), indexed(40)));
}

} // namespace
