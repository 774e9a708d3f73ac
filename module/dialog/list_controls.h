/// The control that lists values of no special kind.
#pragma once

#include <ui/controls.h>
#include <ui/tool_tip.h>

/// The list of a combo. The combo shows its rows by itself, so nothing here has anything to do.
class CQselectComboListBox : public CListBox
{
  public:
    bool PreTranslateMessage(tagMSG*) override { return false; }
    void PreSubclassWindow() override {}
    CWnd* GetParentComboBox() const { return nullptr; }
    void GetTextExtent(const wchar_t*, int&, int&) const {}
    void OnMouseMove(unsigned int, CPoint) override {}

    int row() const { return m_row; }

  private:
    int m_row = -1;
    CToolTipCtrl m_toolTip{nullptr};
};

class CQselectComboBox : public CComboBox
{
  public:
    const CRuntimeClass* GetRuntimeClass() const override;
    HBRUSH OnCtlColor(CDC*, CWnd*, unsigned int) override { return nullptr; }

    const CQselectComboListBox& listBox() const { return m_listBox; }

  private:
    CQselectComboListBox m_listBox;
};
