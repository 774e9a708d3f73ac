#include <dialog/qselect_dialog.h>

#include <editor/system_variables.h>
#include <platform/config.h>
#include <runtime/status.h>

#include <QSignalBlocker>

#include <dialog/control_names.h>

using namespace ControlName;

namespace {

const std::wstring kPrefix = L"UserInterfaceSettings/KwQSelect/";

std::wstring readText(const wchar_t* name)
{
    KdadVariant value;
    kdadConfig().getValue(KwdrawConfig::kUserInterface, (kPrefix + name).c_str(), value);
    return value.text();
}

/// 0 for a value that is missing or no integer.
int readInteger(const wchar_t* name)
{
    KdadVariant value;
    kdadConfig().getValue(KwdrawConfig::kUserInterface, (kPrefix + name).c_str(), value);
    return value.integerOr(0);
}

void write(const wchar_t* name, const KdadVariant& value)
{
    kdadConfig().setValue(KwdrawConfig::kUserInterface, (kPrefix + name).c_str(), value);
}

void write(const wchar_t* name, int value)
{
    write(name, KdadVariant::ofInteger(value));
}

/// Selects a row without the handlers, which are called in their own order.
template <class List>
void selectQuietly(List& list, int row)
{
    const QSignalBlocker quiet(list.widget());
    list.SetCurSel(row);
}

} // namespace

void CQSelectDialog::InitCurPropertiesFromRegistry()
{
    auto* types = control<CComboBox>(kObjectType);
    auto* properties = control<CListBox>(kProperties);
    auto* operators = control<CComboBox>(kOperator);
    if (!types || !properties || !operators)
        return;
    if (const int row = types->FindStringExact(-1, readText(L"Type").c_str()); row >= 0) {
        selectQuietly(*types, row);
        OnObjectTypeChange();
    }
    selectQuietly(*properties, readInteger(L"Properties"));
    OnPropertiesChange();
    selectQuietly(*operators, readInteger(L"Operators"));

    const bool excludes = readInteger(L"Exclude") != 0;
    CheckDlgButton(excludes ? kExclude : kInclude, BST_CHECKED);
    CheckDlgButton(kAppend, readInteger(L"Accumulate"));
    const bool appends = IsDlgButtonChecked(kAppend) != BST_UNCHECKED;
    enableControl(kSelectObjects, !excludes && !appends);

    m_colorIndex = readInteger(L"VarColor");
    m_layerIndex = readInteger(L"VarLayer");
    m_lineTypeCombo.SetCurSel(readInteger(L"VarLType"));
    m_arrowHeadCombo.SetCurSel(readInteger(L"VarArrowHead"));
    m_plotStyleIndex = readInteger(L"VarPlotStyle");
    m_lineWeightCombo.SetCurSel(readInteger(L"VarLWeight"));
    m_restoreColor = true;
    OnOperatorChange();
}

void CQSelectDialog::writeCurPropertiesToRegistry()
{
    const auto* properties = control<CListBox>(kProperties);
    const auto* operators = control<CComboBox>(kOperator);
    if (!properties || !operators)
        return;
    const KwdrawConfig::Update together(kdadConfig());
    write(L"Type", KdadVariant::ofText(textOf(kObjectType).c_str()));
    write(L"Properties", properties->GetCurSel());
    write(L"Operators", operators->GetCurSel());
    write(L"Exclude", IsDlgButtonChecked(kExclude));
    write(L"Accumulate", IsDlgButtonChecked(kAppend));
    write(L"VarColor", m_colorCombo.GetCurSel());
    write(L"VarLayer", m_layerIndex);
    write(L"VarLType", m_lineTypeCombo.GetCurSel());
    write(L"VarArrowHead", m_arrowHeadCombo.GetCurSel());
    write(L"VarPlotStyle", m_plotStyleIndex);
    write(L"VarLWeight", m_lineWeightCombo.GetCurSel());
}

void CQSelectDialog::readShowListValues()
{
    resbuf variable{};
    m_showListValues = kdedGetVar(L"QSELECTLISTVALUES", &variable) == RTNORM &&
                       variable.restype == RTSHORT && variable.resval.rint == 1;
    CheckDlgButton(kShowListValues, m_showListValues ? BST_CHECKED : BST_UNCHECKED);
}
