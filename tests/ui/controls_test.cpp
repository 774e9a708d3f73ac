#include "window_test.h"

#include <ui/controls.h>
#include <ui/widgets.h>

#include <QCheckBox>
#include <QSignalSpy>
#include <QTest>

namespace {

class Controls : public WindowTest
{
};

TEST_F(Controls, DoNothingWithoutAWidget)
{
    CComboBox combo;
    CListBox list;
    CEdit edit;
    CButton button;
    combo.SetCurSel(1);
    list.SetCurSel(1);
    edit.SetWindowText(L"x");
    button.SetCheck(1);
    button.ShowWindow(SW_SHOW);
    EXPECT_EQ(combo.AddString(L"x"), -1);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetItemDataPtr(0), nullptr);
    EXPECT_FALSE(combo.Create(3, {}, nullptr, 0));
    EXPECT_EQ(list.AddString(L"x"), -1);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(edit.GetWindowText(), L"");
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    EXPECT_FALSE(button.IsWindowVisible());
}

TEST_F(Controls, ForgetAWidgetThatHasGone)
{
    CEdit edit;
    {
        KdUiLineEdit widget;
        edit.setWidget(&widget);
        edit.SetWindowText(L"text");
        EXPECT_EQ(edit.GetWindowText(), L"text");
    }
    EXPECT_EQ(edit.GetWindowText(), L"");
}

TEST_F(Controls, CutTheTextOfAnEditToTheRoomForIt)
{
    KdUiLineEdit widget;
    CEdit edit;
    edit.setWidget(&widget);
    edit.SetWindowText(L"abcdef");
    wchar_t buffer[4] = {};
    EXPECT_EQ(edit.GetWindowText(buffer, 4), 3);
    EXPECT_STREQ(buffer, L"abc");
}

TEST_F(Controls, TellTheEditsText)
{
    KdUiLineEdit widget;
    QSignalSpy spy(&widget, SIGNAL(valueChanged(const QString&)));
    QTest::keyClicks(&widget, "ab");
    EXPECT_EQ(spy.count(), 2);
    EXPECT_EQ(spy.last().first().toString(), "ab");
}

class Combo : public Controls
{
  protected:
    Combo()
    {
        m_combo.setWidget(&m_widget);
        for (const wchar_t* text : {L"one", L"two", L"Two"})
            m_combo.AddString(text);
    }
    KdUiComboBox m_widget;
    CComboBox m_combo;
};

TEST_F(Combo, IsFilledWithoutChoosingARow)
{
    QSignalSpy spy(&m_widget, SIGNAL(currentIndexChanged(int)));
    EXPECT_EQ(m_combo.GetCurSel(), -1);
    EXPECT_EQ(m_combo.AddString(L"four"), 3);
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(Combo, TellsWhenARowIsChosen)
{
    QSignalSpy spy(&m_widget, SIGNAL(currentIndexChanged(int)));
    m_combo.SetCurSel(1);
    EXPECT_EQ(m_combo.GetCurrentText(), L"two");
    m_combo.SetCurSel(17);
    EXPECT_EQ(m_combo.GetCurSel(), -1);
    EXPECT_EQ(m_combo.GetCurrentText(), L"");
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(Combo, FindsExactTextsBehindARow)
{
    EXPECT_EQ(m_combo.FindStringExact(-1, L"Two"), 2);
    EXPECT_EQ(m_combo.FindStringExact(0, L"one"), -1);
    EXPECT_EQ(m_combo.FindStringExact(-1, L"tw"), -1);
    EXPECT_EQ(m_combo.FindStringExact(-1, nullptr), -1);
}

TEST_F(Combo, LosesARow)
{
    EXPECT_EQ(m_combo.DeleteString(3), -1);
    EXPECT_EQ(m_combo.DeleteString(1), 2);
    EXPECT_EQ(m_combo.GetLBText(1), L"Two");
}

TEST_F(Combo, CarriesAPointerOnARow)
{
    int something = 0;
    m_combo.SetItemDataPtr(1, &something);
    EXPECT_EQ(m_combo.GetItemDataPtr(1), &something);
    EXPECT_EQ(m_combo.GetItemDataPtr(0), nullptr);
    EXPECT_EQ(m_combo.GetItemDataPtr(-1), nullptr);
}

TEST_F(Combo, TakesTextsOfItsOwnWhereItsStyleSaysSo)
{
    EXPECT_TRUE(m_combo.Create(CBS_DROPDOWN, {}, nullptr, 0));
    EXPECT_TRUE(m_widget.isEditable());
    EXPECT_TRUE(m_combo.Create(CBS_DROPDOWNLIST | 0x210, {}, nullptr, 0));
    EXPECT_FALSE(m_widget.isEditable());
}

TEST_F(Combo, StopsBeforeTheRowForSomethingElseWhileItsListIsClosed)
{
    m_widget.addOtherRow("Other...");
    EXPECT_EQ(m_widget.otherRow(), 3);
    m_widget.setCurrentIndex(2);
    QTest::keyClick(&m_widget, Qt::Key_Down);
    QTest::keyClick(&m_widget, Qt::Key_End);
    EXPECT_EQ(m_widget.currentIndex(), 2);
}

class List : public Controls
{
  protected:
    List()
    {
        m_list.setWidget(&m_widget);
        m_list.AddString(L"\t\tBase");
        m_list.AddString(L"Height");
    }
    KdUiListBox m_widget;
    CListBox m_list;
};

TEST_F(List, KeepsTabsThatItDoesNotShow)
{
    EXPECT_EQ(m_list.GetText(0), L"\t\tBase");
    EXPECT_EQ(m_widget.item(0)->text(), "Base");
    EXPECT_EQ(m_list.FindStringExact(-1, L"\t\tBase"), 0);
    EXPECT_EQ(m_list.FindStringExact(-1, L"Base"), -1);
}

TEST_F(List, SelectsOneRowOrNone)
{
    EXPECT_EQ(m_list.GetCurSel(), -1);
    m_list.SetCurSel(1);
    EXPECT_EQ(m_list.GetCurrentText(), L"Height");
    m_list.SetCurSel(2);
    EXPECT_EQ(m_list.GetCurSel(), -1);
    m_list.SetCurSel(0);
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCurSel(), -1);
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(Controls, KnowWhereTheyStand)
{
    QWidget window;
    window.setGeometry(100, 50, 200, 100);
    QCheckBox box(&window);
    box.setGeometry(10, 20, 80, 16);
    CWnd outer;
    CButton inner;
    outer.setWidget(&window);
    inner.setWidget(&box);
    tagRECT rect;
    inner.GetWindowRect(&rect);
    EXPECT_EQ(rect.right - rect.left, 80);
    EXPECT_EQ(rect.bottom - rect.top, 16);
    outer.ScreenToClient(&rect);
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_TRUE(inner.IsWindowVisible()) << "a window that is not shown yet hides nothing";
    inner.ShowWindow(SW_HIDE);
    EXPECT_FALSE(inner.IsWindowVisible());
}

} // namespace
