#include <kwbrowse/browse_window.h>

#include <platform/message_box.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <common/module.h>
#include <kwbrowse/remembered_variables.h>

namespace {

class Messages : public MessageBoxHandler
{
  public:
    Messages() : m_previous(setMessageBoxHandler(this)) {}
    ~Messages() override { setMessageBoxHandler(m_previous); }
    int show(const Message& message) override
    {
        shown.emplace_back(message.text);
        return kMessageBoxOk;
    }
    std::vector<std::wstring> shown;

  private:
    MessageBoxHandler* m_previous;
};

class Browse : public testing::Test
{
  protected:
    Browse()
    {
        setenv("XDG_CONFIG_HOME", qPrintable(m_settings.path()), 1);
        setenv("LC_ALL", "C.UTF-8", 1);
        m_application = std::make_unique<QApplication>(m_argumentCount, m_arguments);
        EXPECT_TRUE(m_module.load(modulePath())) << m_module.error();
        window = std::make_unique<BrowseWindow>(m_module);
        window->show();
        QApplication::setActiveWindow(window.get());
    }
    ~Browse() override { window.reset(); }

    void openPlan() { ASSERT_TRUE(window->open(KW_EXAMPLES "/floor_plan.dxf")); }
    QTableView& table() { return *window->findChild<QTableView*>(); }
    QString said() { return window->findChild<QLabel*>("said")->text(); }
    QString cell(int row, int column)
    {
        return table().model()->index(row, column).data().toString();
    }
    int selectedRows() { return table().selectionModel()->selectedRows().size(); }

    /// Presses Ctrl+F and acts on the dialog that comes up.
    void quickSelect(const std::function<void(QWidget& dialog)>& act)
    {
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            act(*dialog);
            if (dialog->isVisible())
                QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    }
    static void chooseType(QWidget& dialog, const char* type)
    {
        dialog.findChild<QComboBox*>("IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText(type);
        dialog.findChild<QComboBox*>("IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("Select All");
    }
    static void accept(QWidget& dialog)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>("IDOK"), Qt::LeftButton);
    }

    std::unique_ptr<BrowseWindow> window;
    Messages messages;

  private:
    QTemporaryDir m_settings;
    int m_argumentCount = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application;
    Module m_module;
};

TEST_F(Browse, ListsHandleTypeAndLayerOfEachObject)
{
    openPlan();
    EXPECT_EQ(said(), QString("%1 objects").arg(table().model()->rowCount()));
    int circles = 0;
    for (int row = 0; row < table().model()->rowCount(); ++row) {
        EXPECT_FALSE(cell(row, 0).isEmpty());
        EXPECT_FALSE(cell(row, 2).isEmpty());
        circles += cell(row, 1) == "Circle" ? 1 : 0;
    }
    EXPECT_EQ(circles, 23); // three of them on a frozen layer
}

TEST_F(Browse, HighlightsTheOutcomeOfQuickSelect)
{
    openPlan();
    quickSelect([](QWidget& dialog) {
        chooseType(dialog, "Circle");
        accept(dialog);
    });
    EXPECT_EQ(selectedRows(), 20);
    for (const QModelIndex& index : table().selectionModel()->selectedRows())
        EXPECT_EQ(cell(index.row(), 1), "Circle");
    EXPECT_EQ(said(), "20 item(s) selected.");
}

TEST_F(Browse, OffersWhatIsSelectedInTheListAsTheCurrentSelection)
{
    openPlan();
    table().selectRow(0);
    quickSelect([this](QWidget& dialog) {
        auto* applyTo = dialog.findChild<QComboBox*>("IDC_QSELECT_APPLY_TO_COMBO");
        EXPECT_EQ(applyTo->currentText(), "Current selection");
        auto* types = dialog.findChild<QComboBox*>("IDC_QSELECT_OBJECT_TYPE_COMBO");
        EXPECT_EQ(types->count(), 1);
        EXPECT_EQ(types->currentText(), cell(0, 1));
    });
    EXPECT_EQ(selectedRows(), 1) << "a cancel leaves the selection";
}

TEST_F(Browse, LetsObjectsBePickedFromTheList)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        QTimer::singleShot(0, [&] {
            EXPECT_FALSE(dialog.isVisible());
            EXPECT_TRUE(window->findChild<QWidget*>("promptBar")->isVisible());
            table().selectRow(2);
            table().selectionModel()->select(table().model()->index(3, 0),
                                             QItemSelectionModel::Select |
                                                 QItemSelectionModel::Rows);
            QTest::keyClick(&table(), Qt::Key_Return);
        });
        QTest::mouseClick(dialog.findChild<QPushButton*>("IDC_QSELECT_SELECT_OBJECTS_BUTTON"),
                          Qt::LeftButton);
        EXPECT_TRUE(dialog.isVisible());
        dialog.findChild<QComboBox*>("IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("Select All");
        accept(dialog);
    });
    EXPECT_FALSE(window->findChild<QWidget*>("promptBar")->isVisible());
    const QModelIndexList rows = table().selectionModel()->selectedRows();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].row() + rows[1].row(), 5);
}

TEST_F(Browse, GivesPickingUpByEscape)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        QTimer::singleShot(0, [&] {
            table().selectRow(2);
            QTest::keyClick(&table(), Qt::Key_Escape);
        });
        QTest::mouseClick(dialog.findChild<QPushButton*>("IDC_QSELECT_SELECT_OBJECTS_BUTTON"),
                          Qt::LeftButton);
        auto* applyTo = dialog.findChild<QComboBox*>("IDC_QSELECT_APPLY_TO_COMBO");
        EXPECT_EQ(applyTo->count(), 1);
    });
    EXPECT_EQ(selectedRows(), 0);
}

TEST_F(Browse, ComesToTheEndOfACommandBeforeItCloses)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        QTimer::singleShot(0, [&] {
            window->close();
            EXPECT_TRUE(window->isVisible());
        });
        QTest::mouseClick(dialog.findChild<QPushButton*>("IDC_QSELECT_SELECT_OBJECTS_BUTTON"),
                          Qt::LeftButton);
        EXPECT_TRUE(dialog.isVisible());
    });
    window->close();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Browse, SaysWhatIsWrongWithADrawing)
{
    EXPECT_FALSE(window->open("/nowhere/plan.dxf"));
    EXPECT_EQ(messages.shown.size(), 1u);
    openPlan();
    EXPECT_FALSE(window->open("/nowhere/plan.dxf"));
    EXPECT_GT(table().model()->rowCount(), 0) << "the drawing that was open stays";
}

TEST_F(Browse, RemembersItsSwitches)
{
    setSwitch(L"QSELECTLISTVALUES", 1);
    setSwitch(L"COLORTHEME", 1);
    storeVariables();
    setSwitch(L"QSELECTLISTVALUES", 0);
    setSwitch(L"COLORTHEME", 0);
    restoreVariables();
    EXPECT_EQ(switchValue(L"QSELECTLISTVALUES"), 1);
    EXPECT_EQ(switchValue(L"COLORTHEME"), 1);
    setSwitch(L"QSELECTLISTVALUES", 0);
    setSwitch(L"COLORTHEME", 0);
}

TEST_F(Browse, ReplacesOneDrawingByAnother)
{
    openPlan();
    table().selectAll();
    EXPECT_TRUE(window->open(KW_EXAMPLES "/minimal_r12.dxf"));
    EXPECT_EQ(selectedRows(), 0);
    EXPECT_EQ(window->windowTitle(), "minimal_r12.dxf");
    quickSelect([](QWidget& dialog) {
        auto* applyTo = dialog.findChild<QComboBox*>("IDC_QSELECT_APPLY_TO_COMBO");
        EXPECT_EQ(applyTo->count(), 1);
    });
}

} // namespace
