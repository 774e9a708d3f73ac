#include <dialog/qselect_dialog.h>

#include <QSignalBlocker>

#include <dialog/control_names.h>
#include <dialog/multi_text.h>
#include <providers/property_row.h>
#include <values/resource_string.h>
#include <values/text_utilities.h>

using namespace ControlName;

namespace {

constexpr ResourceText kEntireDrawing = {78021, L"Entire drawing"};
constexpr ResourceText kCurrentSelection = {78022, L"Current selection"};
constexpr ResourceText kAllTypes = {78023, L"Multiple"};
constexpr ResourceText kPlotStyle = {78037, L"Plot style"};
constexpr ResourceText kMlineStyle = {77355, L"Misc:Mline style"};
constexpr ResourceText kMlineAlignment = {77356, L"Misc:Mline alignment"};

bool isSameName(const CStdStr<wchar_t>& a, const KdString& b)
{
    return b.compareNoCase(a.c_str()) == 0;
}

KdString nameInKey(const ResourceText& key)
{
    const KdString text = key.text();
    return text.substr(static_cast<std::size_t>(text.find(L":") + 1));
}

/// The kind whose operators a property offers.
int kindOfOperators(const CStdStr<wchar_t>& property, int kind)
{
    if (isSameName(property, kPlotStyle.text()))
        return ResBuf::kPlotStyleChoice;
    if (isSameName(property, nameInKey(kMlineStyle)) ||
        isSameName(property, nameInKey(kMlineAlignment)))
        return ResBuf::kNone;
    return kind;
}

/// Selects a row without a word of the widget's own: whoever fills calls the next handler himself.
template <class List>
void selectRow(List& list, int row)
{
    const QSignalBlocker quiet(list.widget());
    list.SetCurSel(row);
}

/// Selects the row of that text, or the first one.
template <class List>
void selectText(List& list, const CStdStr<wchar_t>& text)
{
    const int row = text.empty() ? -1 : list.FindStringExact(-1, text.c_str());
    selectRow(list, row >= 0 ? row : 0);
}

} // namespace

void CQSelectDialog::FillApplyToCombo()
{
    auto* combo = control<CComboBox>(kApplyTo);
    if (!combo)
        return;
    combo->ResetContent();
    combo->AddString(kEntireDrawing.text().kwszPtr());
    int row = 0;
    if (!m_selectionTypeNames.empty() && IsDlgButtonChecked(kAppend) == BST_UNCHECKED)
        row = combo->AddString(kCurrentSelection.text().kwszPtr());
    selectRow(*combo, row);
    OnApplyToChange();
}

void CQSelectDialog::OnApplyToChange()
{
    FillObjectTypeCombo();
}

void CQSelectDialog::OnObjectTypeChange()
{
    FillPropertiesList();
}

void CQSelectDialog::OnPropertiesChange()
{
    FillOperatorCombo();
}

void CQSelectDialog::FillObjectTypeCombo()
{
    auto* combo = control<CComboBox>(kObjectType);
    if (!combo)
        return;
    const CStdStr<wchar_t> earlier = combo->GetCurrentText();
    const bool entireDrawing = kEntireDrawing.matches(KdString(textOf(kApplyTo).c_str()));
    std::vector<CStdStr<wchar_t>>& types =
        entireDrawing ? m_drawingTypeNames : m_selectionTypeNames;
    std::vector<CStdStr<wchar_t>>& classes =
        entireDrawing ? m_drawingClassNames : m_selectionClassNames;
    combo->ResetContent();
    if (types.size() > 1) {
        const int row = combo->AddString(kAllTypes.text().kwszPtr());
        *g_pstrMulti = L"Multiple";
        combo->SetItemDataPtr(row, g_pstrMulti);
    }
    for (std::size_t i = 0; i < types.size(); ++i) {
        const int row = combo->AddString(types[i].c_str());
        combo->SetItemDataPtr(row, &classes[i]);
    }
    selectText(*combo, earlier);
    OnObjectTypeChange();
}

void CQSelectDialog::FillPropertiesList()
{
    auto* list = control<CListBox>(kProperties);
    if (!list)
        return;
    const CStdStr<wchar_t> earlier = list->GetCurrentText();
    list->ResetContent();
    const auto type = TypeProperties.find(textOf(kObjectType));
    if (type != TypeProperties.end()) {
        for (const std::wstring& name : type->second)
            list->AddString(name.c_str());
    }
    selectText(*list, earlier);
    OnPropertiesChange();
}

void CQSelectDialog::FillOperatorCombo()
{
    auto* combo = control<CComboBox>(kOperator);
    if (!combo)
        return;
    const CStdStr<wchar_t> earlier = combo->GetCurrentText();
    const CStdStr<wchar_t> property = currentProperty();
    combo->ResetContent();
    if (const Value* value = GetValue(textOf(kObjectType), property)) {
        const auto row = TypeOperators.find(kindOfOperators(property, value->type));
        const std::vector<Operators>& offered =
            row == TypeOperators.end() ? TypeOperators.at(ResBuf::kNone) : row->second;
        for (const Operators op : offered)
            combo->AddString(OperatorNames.at(op).c_str());
    }
    selectText(*combo, earlier);
    OnOperatorChange();
}

void CQSelectDialog::OnOperatorChange()
{
    const bool selectsAll = currentOperator() == Operators::SelectAll;
    enableControl(kProperties, !selectsAll);
    showControl(kValueLabel, !selectsAll);
    if (!selectsAll) {
        FillValueComboOrEdit();
        return;
    }
    if (m_currentValueControl)
        m_currentValueControl->ShowWindow(SW_HIDE);
    showControl(kValueEdit, false);
    enableControl(kOk, true);
}

void CQSelectDialog::OnHowToApplyRadioChanged()
{
    const bool excludes = IsDlgButtonChecked(kExclude) != BST_UNCHECKED;
    const bool appends = IsDlgButtonChecked(kAppend) != BST_UNCHECKED;
    enableControl(kSelectObjects, !excludes && !appends);
    if (m_selectionTypeNames.empty())
        return;
    if (appends) {
        withdrawCurrentSelection();
        return;
    }
    auto* applyTo = control<CComboBox>(kApplyTo);
    if (applyTo && applyTo->GetCount() == 1)
        applyTo->AddString(kCurrentSelection.text().kwszPtr());
}

/// Appending needs the whole drawing to choose from.
void CQSelectDialog::withdrawCurrentSelection()
{
    auto* applyTo = control<CComboBox>(kApplyTo);
    auto* objectType = control<CComboBox>(kObjectType);
    if (!applyTo || !objectType)
        return;
    const CStdStr<wchar_t> typeBefore = objectType->GetCurrentText();
    if (applyTo->GetCount() > 1) {
        if (!kEntireDrawing.matches(KdString(applyTo->GetCurrentText().c_str()))) {
            selectRow(*applyTo, 0);
            OnApplyToChange();
        }
        applyTo->DeleteString(1);
    }
    if (objectType->GetCount() > 1 && !isSameName(typeBefore, kAllTypes.text())) {
        selectRow(*objectType, 0);
        OnApplyToChange();
    }
}

void CQSelectDialog::OnShowListValuesCheckChanged()
{
    m_showListValues = IsDlgButtonChecked(kShowListValues) == BST_CHECKED;
}
