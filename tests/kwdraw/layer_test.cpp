#include "support.h"

#include <QLineEdit>
#include <QTableView>
#include <QToolButton>

using namespace kwdraw_test;
using testing::UnorderedElementsAre;

namespace {

class Layers : public WindowTest
{
  protected:
    QTableView& list() { return *window->findChild<QTableView*>("layers"); }
    int rowOf(const QString& name)
    {
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            if (list().model()->index(row, LayerModel::kName).data().toString() == name)
                return row;
        }
        return -1;
    }
    QPoint placeOf(const QString& name, int column)
    {
        return list().visualRect(list().model()->index(rowOf(name), column)).center();
    }
    void clickSwitch(const QString& name, int column)
    {
        // The box stands at the left of its cell.
        const QRect cell = list().visualRect(list().model()->index(rowOf(name), column));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 9, cell.center().y()));
    }
    LayerState stateOf(const QString& name)
    {
        const auto& all = layers().layers();
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (all[i].name == name)
                return layers().states()[i];
        }
        ADD_FAILURE() << "no layer " << name.toStdString();
        return {};
    }
    std::vector<KdDbHandle> everything()
    {
        press(Qt::Key_A, Qt::ControlModifier);
        return selectedHandles();
    }
    void pressButton(const char* name)
    {
        QTest::mouseClick(window->findChild<QToolButton*>(name), Qt::LeftButton);
    }
};

TEST_F(Layers, AreListedByNameWithTheDrawingsSwitches)
{
    openPlan();
    EXPECT_EQ(list().model()->rowCount(), 4);
    EXPECT_LT(rowOf("HIDDEN"), rowOf("PIPES"));
    EXPECT_TRUE(stateOf("HIDDEN").frozen);
    EXPECT_TRUE(stateOf("PIPES").on);
    EXPECT_FALSE(stateOf("PIPES").frozen);
}

TEST_F(Layers, AreSwitchedForTheView)
{
    openPlan();
    const QImage before = view().renderedPicture();
    clickSwitch("PIPES", LayerModel::kOn);
    EXPECT_FALSE(stateOf("PIPES").on);
    EXPECT_NE(view().renderedPicture(), before);
    EXPECT_THAT(everything(), UnorderedElementsAre(0xA3, 0xA4, 0xA5));
}

TEST_F(Layers, AreFrozenAndThawedForTheView)
{
    openPlan();
    clickSwitch("HIDDEN", LayerModel::kFrozen);
    clickSwitch("WALLS", LayerModel::kFrozen);
    EXPECT_THAT(everything(), UnorderedElementsAre(0xA1, 0xA2, 0xA5, 0xA6));
}

TEST_F(Layers, CanBeFiltered)
{
    openPlan();
    QTest::keyClicks(window->findChild<QLineEdit*>("layerFilter"), "pip");
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_EQ(rowOf("PIPES"), 0);
}

TEST_F(Layers, AreAllTurnedOnAndOff)
{
    openPlan();
    pressButton("allLayersOff");
    EXPECT_TRUE(everything().empty());
    pressButton("allLayersOn");
    EXPECT_EQ(everything().size(), 5u);
}

TEST_F(Layers, AreIsolatedByADoubleClick)
{
    openPlan();
    const QPoint place = placeOf("WALLS", LayerModel::kName);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
    EXPECT_THAT(everything(), UnorderedElementsAre(0xA3, 0xA4));
}

TEST_F(Layers, AreIsolatedTogetherByTheButton)
{
    openPlan();
    for (const char* name : {"WALLS", "HIDDEN"})
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          placeOf(name, LayerModel::kName));
    pressButton("isolateLayers");
    EXPECT_THAT(everything(), UnorderedElementsAre(0xA3, 0xA4, 0xA6)) << "thawed as well";
    pressButton("restoreLayers");
    EXPECT_THAT(everything(), UnorderedElementsAre(0xA1, 0xA2, 0xA3, 0xA4, 0xA5));
}

TEST_F(Layers, KeepTheirSwitchesFromSpaceToSpace)
{
    openPlan();
    clickSwitch("PIPES", LayerModel::kOn);
    window->document().showSpace(1);
    window->document().showSpace(0);
    EXPECT_FALSE(stateOf("PIPES").on);
}

TEST_F(Layers, AreAsDrawnInTheNextDrawing)
{
    openPlan();
    clickSwitch("PIPES", LayerModel::kOn);
    openPlan();
    EXPECT_TRUE(stateOf("PIPES").on);
}

TEST_F(Layers, AreFoundFromTheCommandLine)
{
    openPlan();
    typeCommand("layer");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return window->focusWidget()->objectName() == "layerFilter"; }));
}

} // namespace
