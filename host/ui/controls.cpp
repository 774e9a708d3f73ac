#include <ui/controls.h>

#include <ui/widgets.h>

#include "texts.h"

#include <platform/safe_text.h>

#include <QAbstractButton>
#include <QSignalBlocker>

namespace {

constexpr CRuntimeClass kWndClass = {"CWnd", nullptr};
constexpr CRuntimeClass kComboClass = {"CComboBox", &kWndClass};
constexpr CRuntimeClass kListClass = {"CListBox", &kWndClass};

template <class Widget>
Widget* as(const CWnd& window)
{
    return qobject_cast<Widget*>(window.widget());
}

bool isRow(int row, int count)
{
    return row >= 0 && row < count;
}

} // namespace

int CButton::GetCheck() const
{
    const auto* button = as<QAbstractButton>(*this);
    return button && button->isChecked() ? BST_CHECKED : BST_UNCHECKED;
}

void CButton::SetCheck(int state)
{
    if (auto* button = as<QAbstractButton>(*this))
        button->setChecked(state != BST_UNCHECKED);
}

CStdStr<wchar_t> CEdit::GetWindowText() const
{
    const auto* edit = as<QLineEdit>(*this);
    return edit ? CStdStr<wchar_t>(toWide(edit->text())) : CStdStr<wchar_t>();
}

int CEdit::GetWindowText(wchar_t* buffer, int size) const
{
    const CStdStr<wchar_t> text = GetWindowText();
    wcsncpy_s(buffer, size, text.c_str(), text.size());
    const auto room = static_cast<std::size_t>(size > 0 ? size - 1 : 0);
    return static_cast<int>(text.size() < room ? text.size() : room);
}

void CEdit::SetWindowText(const wchar_t* text)
{
    if (auto* edit = as<QLineEdit>(*this))
        edit->setText(toQString(text ? text : L""));
}

const CRuntimeClass* CComboBox::GetRuntimeClass() const
{
    return &kComboClass;
}

bool CComboBox::Create(unsigned int style, const tagRECT&, CWnd*, unsigned int)
{
    constexpr unsigned int kKindOfList = 3;
    auto* combo = as<QComboBox>(*this);
    if (!combo)
        return false;
    combo->setEditable((style & kKindOfList) != CBS_DROPDOWNLIST);
    return true;
}

int CComboBox::AddString(const wchar_t* text)
{
    auto* combo = as<QComboBox>(*this);
    if (!combo)
        return -1;
    // A Qt combo selects its first row by itself; here the row is the caller's business.
    const QSignalBlocker quiet(combo);
    const int current = combo->currentIndex();
    combo->addItem(toQString(text ? text : L""));
    combo->setCurrentIndex(current);
    return combo->count() - 1;
}

int CComboBox::DeleteString(int row)
{
    auto* combo = as<QComboBox>(*this);
    if (!combo || !isRow(row, combo->count()))
        return -1;
    combo->removeItem(row);
    return combo->count();
}

void CComboBox::ResetContent()
{
    auto* combo = as<QComboBox>(*this);
    if (!combo)
        return;
    const QSignalBlocker quiet(combo);
    combo->clear();
}

int CComboBox::GetCount() const
{
    const auto* combo = as<QComboBox>(*this);
    return combo ? combo->count() : 0;
}

int CComboBox::GetCurSel() const
{
    const auto* combo = as<QComboBox>(*this);
    return combo ? combo->currentIndex() : -1;
}

void CComboBox::SetCurSel(int row)
{
    if (auto* combo = as<QComboBox>(*this))
        combo->setCurrentIndex(isRow(row, combo->count()) ? row : -1);
}

CStdStr<wchar_t> CComboBox::GetLBText(int row) const
{
    const auto* combo = as<QComboBox>(*this);
    return combo ? CStdStr<wchar_t>(toWide(combo->itemText(row))) : CStdStr<wchar_t>();
}

int CComboBox::FindStringExact(int after, const wchar_t* text) const
{
    const auto* combo = as<QComboBox>(*this);
    const QString wanted = toQString(text ? text : L"");
    for (int row = after + 1; combo && row < combo->count(); ++row) {
        if (combo->itemText(row) == wanted)
            return row;
    }
    return -1;
}

void CComboBox::SetItemDataPtr(int row, void* data)
{
    if (auto* combo = as<QComboBox>(*this))
        combo->setItemData(row, QVariant::fromValue(data));
}

void* CComboBox::GetItemDataPtr(int row) const
{
    const auto* combo = as<QComboBox>(*this);
    return combo ? combo->itemData(row).value<void*>() : nullptr;
}

const CRuntimeClass* CListBox::GetRuntimeClass() const
{
    return &kListClass;
}

int CListBox::AddString(const wchar_t* text)
{
    auto* list = as<KdUiListBox>(*this);
    if (!list)
        return -1;
    const QSignalBlocker quiet(list);
    list->addText(toQString(text ? text : L""));
    return list->count() - 1;
}

void CListBox::ResetContent()
{
    auto* list = as<KdUiListBox>(*this);
    if (!list)
        return;
    const QSignalBlocker quiet(list);
    list->clear();
}

int CListBox::GetCount() const
{
    const auto* list = as<KdUiListBox>(*this);
    return list ? list->count() : 0;
}

int CListBox::GetCurSel() const
{
    const auto* list = as<KdUiListBox>(*this);
    const QList<QListWidgetItem*> selected =
        list ? list->selectedItems() : QList<QListWidgetItem*>();
    return selected.isEmpty() ? -1 : list->row(selected.first());
}

void CListBox::SetCurSel(int row)
{
    auto* list = as<KdUiListBox>(*this);
    if (!list)
        return;
    if (!isRow(row, list->count())) {
        list->setCurrentRow(-1);
        list->clearSelection();
        return;
    }
    list->setCurrentRow(row);
    list->item(row)->setSelected(true);
}

CStdStr<wchar_t> CListBox::GetText(int row) const
{
    const auto* list = as<KdUiListBox>(*this);
    return list ? CStdStr<wchar_t>(toWide(list->textAt(row))) : CStdStr<wchar_t>();
}

int CListBox::FindStringExact(int after, const wchar_t* text) const
{
    const auto* list = as<KdUiListBox>(*this);
    const QString wanted = toQString(text ? text : L"");
    for (int row = after + 1; list && row < list->count(); ++row) {
        if (list->textAt(row) == wanted)
            return row;
    }
    return -1;
}
