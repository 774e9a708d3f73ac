#include <kwdraw/panels/property_panel.h>

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <kwdraw/panels/property_rows.h>
#include <kwdraw/panels/select_similar.h>

#include "support.h"

using namespace panels_test;
using testing::ElementsAre;

namespace {

class Panel : public PanelsTest
{
  protected:
    PropertyPanel& panel()
    {
        if (!m_panel) {
            m_panel = std::make_unique<PropertyPanel>(module);
            m_panel->resize(320, 600);
            m_panel->QWidget::show();
            QObject::connect(m_panel.get(), &PropertyPanel::runRequested,
                             [this](const RunRequest& run) { requests.push_back(run); });
            EXPECT_TRUE(QTest::qWaitForWindowExposed(m_panel.get()));
        }
        return *m_panel;
    }
    void showAll(const Ids& ids)
    {
        panel().show(ids);
        waitFor([this] { return panel().isComplete(); });
    }
    void TearDown() override
    {
        m_menu.reset();  // before its parent
        m_panel.reset(); // before the module
    }

    QTreeView& tree() { return *panel().findChild<QTreeView*>("properties"); }
    QComboBox& types() { return *panel().findChild<QComboBox*>("types"); }
    QLineEdit& filter() { return *panel().findChild<QLineEdit*>("filter"); }
    QStringList typeNames()
    {
        QStringList names;
        for (int i = 0; i < types().count(); ++i)
            names << types().itemText(i);
        return names;
    }
    QStringList names(const QModelIndex& parent = {})
    {
        QStringList texts;
        for (int row = 0; row < tree().model()->rowCount(parent); ++row)
            texts << tree().model()->index(row, 0, parent).data().toString();
        return texts;
    }
    QModelIndex find(const QStringList& path)
    {
        QModelIndex index;
        for (const QString& name : path) {
            const int row = names(index).indexOf(name);
            if (row < 0) {
                ADD_FAILURE() << "no row " << name.toStdString();
                return {};
            }
            index = tree().model()->index(row, 0, index);
        }
        return index;
    }
    QString value(const QStringList& path)
    {
        const QModelIndex index = find(path);
        return index.sibling(index.row(), 1).data().toString();
    }
    QAction* action(const QStringList& path, const QString& text)
    {
        m_menu.reset(panel().menuFor(find(path)));
        for (QAction* each : m_menu->actions()) {
            if (each->text().remove('&') == text)
                return each;
        }
        ADD_FAILURE() << "no action " << text.toStdString();
        return nullptr;
    }

    std::vector<RunRequest> requests;

  private:
    std::unique_ptr<PropertyPanel> m_panel;
    std::unique_ptr<QMenu> m_menu;
};

TEST_F(Panel, ShowsTheValuesOfOneEntityByCategory)
{
    openKinds();
    showAll({ofType(L"Circle").front()});
    EXPECT_EQ(names().first(), "General");
    EXPECT_EQ(names(find({"General"})).mid(0, 3), (QStringList{"Color", "Layer", "Linetype"}));
    EXPECT_EQ(value({"Geometry", "Radius"}), "12.5000"); // four decimals, as the drawing says
    EXPECT_EQ(typeNames(), QStringList{"Circle (1)"});
}

TEST_F(Panel, ShowsTheCoordinatesOfPoints)
{
    openMany(2);
    showAll({ofType(L"Line").front()});
    EXPECT_EQ(names(find({"Geometry", "End"})), (QStringList{"X", "Y", "Z"}));
    EXPECT_EQ(value({"Geometry", "End", "X"}), "2.0000");
    EXPECT_EQ(value({"Geometry", "End"}), "2.0000, 1.0000, 0.0000");
}

TEST_F(Panel, SaysWhereValuesVary)
{
    openMany(40);
    showAll(ofType(L"Line"));
    EXPECT_EQ(value({"General", "Layer"}), "*Varies*");
    EXPECT_EQ(value({"General", "Color"}), "ByLayer");
    EXPECT_EQ(value({"Geometry", "Start"}), "*Varies*");
    EXPECT_EQ(value({"Geometry", "Start", "X"}), "0.0000");
    EXPECT_EQ(value({"Geometry", "Start", "Y"}), "*Varies*");
}

TEST_F(Panel, LetsATypeBeChosen)
{
    openMany(40);
    showAll(everything());
    EXPECT_EQ(typeNames(), (QStringList{"All (40)", "Circle (4)", "Line (36)"}));
    EXPECT_EQ(names(), QStringList{"General"});
    types().setFocus();
    QTest::keyClick(&types(), Qt::Key_Down);
    EXPECT_EQ(types().currentText(), "Circle (4)");
    EXPECT_EQ(value({"Geometry", "Radius"}), "2.5000");
    QTest::keyClick(&types(), Qt::Key_Up);
    EXPECT_EQ(names(), QStringList{"General"});
}

TEST_F(Panel, IsEmptyWithoutASelection)
{
    openMany(4);
    showAll(everything());
    panel().show(Ids{});
    EXPECT_EQ(tree().model()->rowCount(), 0);
    EXPECT_EQ(typeNames(), QStringList{"Nothing selected"});
    EXPECT_FALSE(types().isEnabled());
    EXPECT_FALSE(panel().findChild<QToolButton*>("similar")->isEnabled());
}

TEST_F(Panel, ShowsAColorWithASwatch)
{
    openKinds();
    for (const KdDbObjectId id : everything()) {
        showAll({id});
        const QModelIndex name = find({"General", "Color"});
        const QModelIndex color = name.sibling(name.row(), 1);
        const bool isFixed = !color.data().toString().startsWith("By");
        EXPECT_EQ(color.data(Qt::DecorationRole).isValid(), isFixed);
    }
}

TEST_F(Panel, FiltersByNameAndValue)
{
    openMany(40);
    showAll(ofType(L"Circle"));
    QTest::keyClicks(&filter(), "radi");
    EXPECT_EQ(names(), QStringList{"Geometry"});
    EXPECT_EQ(names(find({"Geometry"})), QStringList{"Radius"});
    EXPECT_TRUE(tree().isExpanded(find({"Geometry"})));
    filter().clear();
    QTest::keyClicks(&filter(), "2.5");
    EXPECT_TRUE(names(find({"Geometry"})).contains("Radius"));
    filter().clear();
    QTest::keyClicks(&filter(), "center");
    EXPECT_EQ(names(find({"Geometry", "Center"})), (QStringList{"X", "Y", "Z"}));
    filter().clear();
    EXPECT_EQ(names().first(), "General");
}

TEST_F(Panel, KeepsACategoryClosed)
{
    openMany(40);
    showAll(ofType(L"Line"));
    EXPECT_TRUE(tree().isExpanded(find({"General"})));
    tree().setCurrentIndex(find({"General"}));
    tree().setFocus();
    QTest::keyClick(&tree(), Qt::Key_Left);
    showAll(ofType(L"Circle"));
    EXPECT_FALSE(tree().isExpanded(find({"General"})));
    EXPECT_TRUE(tree().isExpanded(find({"Geometry"})));
}

TEST_F(Panel, CopiesTheValueByItsKeys)
{
    openMany(2);
    showAll({ofType(L"Circle").front()});
    QApplication::setActiveWindow(&panel());
    tree().setFocus();
    tree().setCurrentIndex(find({"Geometry", "Radius"}));
    QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "2.5000");
}

TEST_F(Panel, CopiesAValueAndARow)
{
    openMany(2);
    showAll({ofType(L"Line").front()});
    action({"Geometry", "End", "X"}, "Copy Value")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "2.0000");
    action({"Geometry", "End", "X"}, "Copy Row")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "End X\t2.0000");
    action({"General", "Layer"}, "Copy Row")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "Layer\tB");
}

TEST_F(Panel, OffersWhatIsSimilarInARow)
{
    openMany(40);
    showAll({ofType(L"Line").front()});
    action({"General", "Layer"}, "Select Similar")->trigger();
    action({"General", "Layer"}, "Select Similar in All Types")->trigger();
    action({"General", "Layer"}, "Exclude These")->trigger();
    action({"Geometry", "Start", "Y"}, "Select Similar")->trigger();
    ASSERT_EQ(requests.size(), 4u);
    std::vector<std::size_t> found;
    std::string problem;
    for (const RunRequest& request : requests) {
        EXPECT_TRUE(carryOut(module, request, problem)) << problem;
        found.push_back(selection().size());
    }
    // The lines of B, all of B, all but the lines of B, the line itself.
    EXPECT_THAT(found, ElementsAre(20u, 20u, 20u, 1u));
    EXPECT_EQ(requests[1].typeName, L"");
}

TEST_F(Panel, OffersNothingSimilarWhereItCantBeFound)
{
    openMany(40);
    showAll(everything());
    EXPECT_FALSE(action({"General", "Layer"}, "Select Similar")->isEnabled());
    EXPECT_TRUE(action({"General", "Color"}, "Select Similar")->isEnabled());
    showAll(ofType(L"Line"));
    EXPECT_FALSE(action({"Geometry", "Start"}, "Select Similar")->isEnabled());
    EXPECT_TRUE(action({"Geometry", "Start", "X"}, "Select Similar")->isEnabled());
    EXPECT_FALSE(action({"Geometry", "Start", "X"}, "Select Similar in All Types")->isVisible());
    EXPECT_EQ(panel().menuFor(find({"General"})), nullptr);
}

TEST_F(Panel, GivesTheFilterAsText)
{
    openMany(40);
    showAll({ofType(L"Circle").front()});
    action({"Geometry", "Radius"}, "Quick Filter as Text")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "Circle: Geometry: Radius = 2.5");
}

TEST_F(Panel, AsksForSimilarOnesByItsButton)
{
    openMany(40);
    std::vector<std::size_t> asked;
    QObject::connect(&panel(), &PropertyPanel::similarRequested,
                     [&](const Ids& ids) { asked.push_back(ids.size()); });
    showAll(ofType(L"Circle"));
    QTest::mouseClick(panel().findChild<QToolButton*>("similar"), Qt::LeftButton);
    EXPECT_THAT(asked, ElementsAre(4u));
}

TEST_F(Panel, OpensItsMenuByAClick)
{
    openMany(2);
    showAll({ofType(L"Circle").front()});
    const QRect row = tree().visualRect(find({"Geometry", "Radius"}));
    ASSERT_FALSE(row.isEmpty());
    emit tree().customContextMenuRequested(row.center());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_FALSE(menu->actions().isEmpty());
    QTest::keyClick(menu, Qt::Key_Escape);
}

TEST_F(Panel, ReadsALargeSelectionWhileTheWindowStaysAwake)
{
    openMany(4000);
    const Ids all = everything();
    auto* hint = panel().findChildren<QLabel*>().last();
    panel().show(all);
    EXPECT_FALSE(panel().isComplete());
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains("of 4,000 objects")) << hint->text().toStdString();
    EXPECT_EQ(names(), QStringList{"General"}) << "what is read so far shows";
    int rounds = 0; // of the event loop, in which the window can do something else
    waitFor([&] { return ++rounds, panel().isComplete(); });
    EXPECT_GT(rounds, 3);
    EXPECT_FALSE(hint->isVisible());
    EXPECT_EQ(typeNames(), (QStringList{"All (4,000)", "Circle (400)", "Line (3,600)"}));
}

TEST_F(Panel, LeavesALargeSelectionForAnother)
{
    openMany(20000);
    panel().show(everything());
    EXPECT_FALSE(panel().isComplete());
    panel().show(Ids{ofType(L"Circle").front()});
    EXPECT_TRUE(panel().isComplete());
    EXPECT_EQ(typeNames(), QStringList{"Circle (1)"});
    QTest::qWait(50);
    EXPECT_EQ(typeNames(), QStringList{"Circle (1)"});
}

TEST(PropertyRows, PutWhatHasNoCategoryUnderANameOfItsOwn)
{
    std::vector<MergedProperty> properties(3);
    properties[0].key = L"Start segment width";
    properties[1].key = L"Geometry:Length";
    properties[2].key = L"End segment width";
    const auto categories = propertyRows(properties);
    ASSERT_EQ(categories.size(), 2u);
    EXPECT_EQ(categories[0]->name, "Other");
    EXPECT_EQ(categories[0]->rows.size(), 2u);
    EXPECT_EQ(categories[1]->name, "Geometry");
}

TEST_F(Panel, CanNotBeEdited)
{
    openMany(2);
    showAll({ofType(L"Circle").front()});
    const QModelIndex radius = find({"Geometry", "Radius"});
    EXPECT_FALSE(radius.flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(radius.sibling(radius.row(), 1).flags().testFlag(Qt::ItemIsEditable));
}

} // namespace
