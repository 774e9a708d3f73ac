#include "window_test.h"

#include <ui/color_dialog.h>
#include <ui/dialog.h>
#include <ui/editor_prompt.h>
#include <ui/help.h>
#include <ui/theme.h>
#include <ui/tool_tip.h>

#include <editor/selection_sets.h>
#include <editor/system_variables.h>
#include <platform/resources.h>
#include <support/messages.h>

#include <QColorDialog>
#include <QEvent>
#include <QLabel>
#include <QPalette>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolTip>

namespace {

class Dialogs : public WindowTest
{
  protected:
    Dialogs() { setResourceLanguage("en"); }

    static bool generate(KdUiBaseDialog& dialog, const wchar_t* path, const wchar_t* name,
                         int type = 1)
    {
        return dialog.generateUICtrls(path, name, type);
    }
};

TEST_F(Dialogs, AreBuiltFromALayoutOfALibrary)
{
    KdUiBaseDialog dialog(nullptr);
    EXPECT_TRUE(generate(dialog, L"KwQselectUtilRes/KrxQselectRes", L"IDD_QSELECT_DIALOG"));
    EXPECT_EQ(dialog.windowTitle(), "Quick Select");
    EXPECT_TRUE(dialog.control<CComboBox>("IDC_QSELECT_OPERATOR_COMBO"));
    EXPECT_FALSE(dialog.control<CEdit>("IDC_QSELECT_OPERATOR_COMBO"));
    EXPECT_FALSE(dialog.GetDlgItem("IDC_OTHER"));
    EXPECT_EQ(dialog.IsDlgButtonChecked("IDC_QSELECT_INCLUDE_BUTTON"), BST_CHECKED);
    dialog.CheckDlgButton("IDC_QSELECT_EXCLUDE_BUTTON", BST_CHECKED);
    EXPECT_EQ(dialog.IsDlgButtonChecked("IDC_QSELECT_INCLUDE_BUTTON"), BST_UNCHECKED);
}

TEST_F(Dialogs, StayEmptyWithoutALayout)
{
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"KwQselectUtilRes/KrxQselectRes", L"IDD_OTHER"},
        {L"KwQselectUtilRes/Other", L"IDD_QSELECT_DIALOG"},
        {L"Other/KrxQselectRes", L"IDD_QSELECT_DIALOG"},
        {L"KwQselectUtilRes", L"IDD_QSELECT_DIALOG"},
        {nullptr, L"IDD_QSELECT_DIALOG"},
    };
    for (const auto& [path, name] : rows) {
        CKdUiDialog dialog(nullptr);
        EXPECT_FALSE(generate(dialog, path, name));
        EXPECT_FALSE(dialog.isGenerated());
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
    CKdUiDialog dialog(nullptr);
    EXPECT_FALSE(generate(dialog, L"KwQselectUtilRes/KrxQselectRes", L"IDD_QSELECT_DIALOG", 2));
}

TEST_F(Dialogs, StayInTheirLoopWhileTheyAreHiddenForThePrompt)
{
    CKdUiDialog dialog(nullptr);
    ASSERT_TRUE(generate(dialog, L"KwQselectUtilRes/KrxQselectRes", L"IDD_QSELECT_DIALOG"));
    QTimer::singleShot(0, [&] {
        dialog.BeginEditorCommand();
        EXPECT_FALSE(dialog.isVisible());
        QTest::qWait(20);
        dialog.CompleteEditorCommand(1);
        EXPECT_TRUE(dialog.isVisible());
        dialog.accept();
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(Dialogs, EndWithCancelWhenTheirWindowIsClosed)
{
    CKdUiDialog dialog(nullptr);
    ASSERT_TRUE(generate(dialog, L"KwQselectUtilRes/KrxQselectRes", L"IDD_QSELECT_DIALOG"));
    QTimer::singleShot(0, [&] { dialog.close(); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(Dialogs, StandBeforeTheMainWindow)
{
    QWidget window;
    setMainWindow(&window);
    const KdUiBaseDialog dialog(nullptr);
    EXPECT_EQ(dialog.parentWidget(), &window);
    setMainWindow(nullptr);
}

struct ThemeRow
{
    short value;
    bool isLight;
};

TEST_F(Dialogs, FollowTheThemeWithColorsThatCanBeRead)
{
    for (const auto& [value, isLight] : {ThemeRow{1, true}, ThemeRow{0, false}}) {
        resbuf theme{};
        theme.restype = RTSHORT;
        theme.resval.rint = value;
        kdedSetVar(L"COLORTHEME", &theme);
        kduiApplyColorTheme();
        const QPalette palette = QApplication::palette();
        for (const auto& [ground, ink] : {std::pair{QPalette::Window, QPalette::WindowText},
                                          {QPalette::Base, QPalette::Text},
                                          {QPalette::Button, QPalette::ButtonText},
                                          {QPalette::ToolTipBase, QPalette::ToolTipText}}) {
            const int difference =
                palette.color(ground).lightness() - palette.color(ink).lightness();
            EXPECT_GT(isLight ? difference : -difference, 100);
        }
    }
}

TEST_F(Dialogs, TellThatThereIsNoHelp)
{
    const Messages messages;
    KWCMDHELP::KdadHelp(L"TOPIC");
    EXPECT_EQ(messages.last.text, L"There is no help in this program.");
    std::wstring topic;
    kduiSetHelpViewer([&](const wchar_t* wanted) { topic = wanted; });
    KWCMDHELP::KdadHelp(L"TOPIC");
    EXPECT_EQ(topic, L"TOPIC");
    kduiSetHelpViewer({});
}

class Hints : public WindowTest
{
  protected:
    Hints()
    {
        m_outer.setWidget(&m_window);
        m_tool.setWidget(&m_label);
        m_hints.Create(&m_outer);
        m_hints.SetDelayTime(TTDT_INITIAL, 1);
        m_hints.Activate(1);
        m_hints.AddTool(&m_tool, L"one two three four five six seven");
        m_window.show();
    }
    void send(QEvent::Type type)
    {
        QEvent event(type);
        tagMSG message{&m_label, &event};
        m_hints.RelayEvent(&message);
    }

    QWidget m_window;
    QLabel m_label{"tool", &m_window};
    CWnd m_outer;
    CWnd m_tool;
    CToolTipCtrl m_hints;
};

TEST_F(Hints, AreBrokenIntoLinesWhereTheyAreTooWide)
{
    m_hints.SetMaxTipWidth(60);
    send(QEvent::Enter);
    ASSERT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }));
    EXPECT_TRUE(QToolTip::text().contains('\n'));
    EXPECT_EQ(QToolTip::text().simplified(), "one two three four five six seven");
    send(QEvent::Leave);
}

TEST_F(Hints, StayAwayWhenTheMouseLeavesOrTheyAreSwitchedOff)
{
    m_hints.SetDelayTime(TTDT_INITIAL, 30);
    send(QEvent::Enter);
    send(QEvent::Leave);
    QTest::qWait(60);
    EXPECT_FALSE(QToolTip::isVisible());
    m_hints.Activate(0);
    send(QEvent::Enter);
    QTest::qWait(60);
    EXPECT_FALSE(QToolTip::isVisible());
}

class Colors : public Dialogs
{
  protected:
    static KdCmColor indexed(int index)
    {
        KdCmColor color;
        color.setColorIndex(index);
        return color;
    }
    static QWidget* palette(KdUiColorDialog& dialog)
    {
        return dialog.findChild<QWidget*>("palette");
    }
};

TEST_F(Colors, StartAsTheyWere)
{
    EXPECT_EQ(KdUiColorDialog(indexed(30)).color(), indexed(30));
    KdCmColor mixed;
    mixed.setRGB(12, 34, 56);
    EXPECT_EQ(KdUiColorDialog(mixed).color(), mixed);
    EXPECT_EQ(KdUiColorDialog(indexed(256)).color(), indexed(7)) << "by layer is no color";
}

struct KeyRow
{
    int from;
    Qt::Key key;
    int to;
};

TEST_F(Colors, AreReachedByKeys)
{
    const KeyRow rows[] = {
        {30, Qt::Key_Right, 40},   {30, Qt::Key_Left, 20},   {30, Qt::Key_Up, 32},
        {30, Qt::Key_Down, 31},    {18, Qt::Key_Up, 18},     {1, Qt::Key_Left, 1},
        {1, Qt::Key_Right, 2},     {1, Qt::Key_Up, 19},      {19, Qt::Key_Down, 1},
        {255, Qt::Key_Right, 255}, {255, Qt::Key_Left, 254}, {255, Qt::Key_Up, 249},
    };
    for (const auto& [from, key, to] : rows) {
        KdUiColorDialog dialog(indexed(from));
        QTest::keyClick(palette(dialog), key);
        EXPECT_EQ(dialog.color().colorIndex(), to) << from;
    }
}

TEST_F(Colors, AreMixedOnTheSecondPage)
{
    KdUiColorDialog dialog(indexed(1));
    dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
    dialog.findChild<QColorDialog*>()->setCurrentColor(QColor(1, 2, 3));
    KdCmColor mixed;
    mixed.setRGB(1, 2, 3);
    EXPECT_EQ(dialog.color(), mixed);
}

TEST_F(Colors, AreTakenByTwoClicks)
{
    KdUiColorDialog dialog(indexed(1));
    dialog.show();
    QTest::mouseClick(palette(dialog), Qt::LeftButton, {}, QPoint(30, 5));
    EXPECT_EQ(dialog.color().colorIndex(), 28);
    QTest::mouseDClick(palette(dialog), Qt::LeftButton, {}, QPoint(30, 5));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace
