// The dialog in another language than English.
#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <platform/resources.h>

#include <QPushButton>

#include <command/entry.h>

using namespace dialog_test;

namespace {

class German : public DialogTest
{
  protected:
    German() { setResourceLanguage("de"); }
};

TEST_F(German, NamesTypesPropertiesAndOperators)
{
    add<KdDbLine>();
    add<KdDbCircle>();
    command([](Person& person) {
        EXPECT_EQ(person.dialog().windowTitle(), "Schnellauswahl");
        EXPECT_EQ(person.rows("IDC_QSELECT_OBJECT_TYPE_COMBO"),
                  (QStringList{"Mehrere", "Linie", "Kreis"}));
        EXPECT_EQ(person.property(), "Farbe");
        person.chooseType("Kreis");
        EXPECT_EQ(person.operatorName(), "= Gleich");
        EXPECT_TRUE(person.properties().contains("Kreisumfang"));
        EXPECT_TRUE(person.properties().contains("Mitte X"));
        EXPECT_EQ(person.find<QPushButton>("IDCANCEL").text(), "Abbrechen");
    });
}

TEST_F(German, SelectsAsInEnglish)
{
    for (const double radius : {1.0, 2.0, 3.0})
        change<KdDbCircle>(add<KdDbCircle>(),
                           [&](KdDbCircle& each) { each.edit().radius = radius; });
    add<KdDbLine>();
    const Ids selected = command([](Person& person) {
        person.chooseType("Kreis");
        person.chooseProperty("Radius");
        person.chooseOperator("> Größer als");
        person.type("1.5");
        person.click("IDOK");
    });
    EXPECT_EQ(selected.size(), 2u);
}

TEST_F(German, SelectsByTheReservedNamesOfColors)
{
    add<KdDbLine>();
    change<KdDbCircle>(add<KdDbCircle>(),
                       [](KdDbCircle& circle) { circle.edit().color = 0xC3000001; });
    const Ids byLayer = command([](Person& person) {
        person.chooseType("Linie");
        person.chooseProperty("Farbe");
        person.chooseValue("VonLayer");
        person.click("IDOK");
    });
    EXPECT_EQ(byLayer.size(), 1u);
    select({});
    const Ids red = command([](Person& person) {
        person.chooseType("Kreis");
        person.chooseProperty("Farbe");
        person.chooseValue("Rot");
        person.click("IDOK");
    });
    EXPECT_EQ(red.size(), 1u);
}

} // namespace
