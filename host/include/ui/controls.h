/// The controls of a dialog.
///
/// As with every `CWnd`, a control without a widget of its kind does nothing and answers 0, -1,
/// false or an empty text.
#pragma once

#include <runtime/std_str.h>
#include <ui/wnd.h>

/// Check states of buttons.
constexpr int BST_UNCHECKED = 0;
constexpr int BST_CHECKED = 1;

class KW_EXPORT CButton : public CWnd
{
  public:
    int GetCheck() const;
    /// Emits no click.
    void SetCheck(int state);
};

class KW_EXPORT CEdit : public CWnd
{
  public:
    CStdStr<wchar_t> GetWindowText() const;
    /// Copies at most `size` - 1 characters and a terminator; returns the number of characters.
    int GetWindowText(wchar_t* buffer, int size) const;
    void SetWindowText(const wchar_t* text);
};

/// Styles of `CComboBox::Create`, the lowest two bits.
constexpr unsigned int CBS_DROPDOWN = 2;     ///< with a field to type in
constexpr unsigned int CBS_DROPDOWNLIST = 3; ///< one of the rows alone

/// A combo over a `QComboBox`. Filling and clearing it emits no signal and selects no row;
/// `SetCurSel` emits the widget's signals.
class KW_EXPORT CComboBox : public CWnd
{
  public:
    const CRuntimeClass* GetRuntimeClass() const override;

    /// Takes the widget that was set into use. `rect` is where it stands on the screen.
    virtual bool Create(unsigned int style, const tagRECT& rect, CWnd* parent, unsigned int id);

    /// Adds a row at the end and returns its number, -1 on failure.
    int AddString(const wchar_t* text);
    /// Takes a row away and returns how many are left; -1 if there is no such row.
    int DeleteString(int row);
    void ResetContent();
    virtual int GetCount() const;
    int GetCurSel() const;
    /// Selects a row; one that is not there takes the selection away.
    void SetCurSel(int row);
    CStdStr<wchar_t> GetLBText(int row) const;
    /// The text of the current row, empty without one.
    CStdStr<wchar_t> GetCurrentText() const { return GetLBText(GetCurSel()); }
    /// The first row behind `after` with exactly that text, also in case; -1 if there is none.
    int FindStringExact(int after, const wchar_t* text) const;
    /// A pointer that belongs to a row. The row does not own what it points to.
    void SetItemDataPtr(int row, void* data);
    void* GetItemDataPtr(int row) const;
};

/// A list over a `KdUiListBox`. Filling and clearing it emits no signal.
class KW_EXPORT CListBox : public CWnd
{
  public:
    const CRuntimeClass* GetRuntimeClass() const override;

    int AddString(const wchar_t* text);
    void ResetContent();
    int GetCount() const;
    /// The selected row, or -1.
    int GetCurSel() const;
    /// Selects a row; one that is not there takes the selection away.
    void SetCurSel(int row);
    /// The text as it was added, with what the list does not show.
    CStdStr<wchar_t> GetText(int row) const;
    CStdStr<wchar_t> GetCurrentText() const { return GetText(GetCurSel()); }
    int FindStringExact(int after, const wchar_t* text) const;
};
