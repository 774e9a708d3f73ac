#include <dialog/qselect_dialog.h>

#include <algorithm>
#include <iterator>

#include <database/reserved_strings.h>
#include <database/symbol_table.h>
#include <editor/system_variables.h>
#include <platform/main_app_service.h>
#include <platform/message_box.h>
#include <runtime/status.h>

#include <QSignalBlocker>

#include <dialog/control_names.h>
#include <providers/property_row.h>
#include <values/filter_value.h>
#include <values/globals.h>
#include <values/resource_string.h>

using namespace ControlName;

namespace {

constexpr ResourceText kEntireDrawing = {78021, L"Entire drawing"};

/// A coordinate is named by the letter that its key ends with. A property of a scale ends with one
/// as well and is none.
struct AxisRow
{
    ResourceText letter;
    ResourceText scale;
};

constexpr AxisRow kAxes[] = {
    {{24000, L"X"}, {77411, L"Geometry:Scale X"}},
    {{24001, L"Y"}, {77412, L"Geometry:Scale Y"}},
    {{24002, L"Z"}, {77413, L"Geometry:Scale Z"}},
};

/// Takes the letter of an axis off a key. Returns 1, 2 or 3, or 0 for a key that stays whole.
int cutAxis(KdString& key)
{
    int axis = 0;
    for (const auto& [letter, scale] : kAxes) {
        ++axis;
        const int place = key.find(letter.text().view());
        if (place < 0)
            continue;
        if (key.find(scale.text().view()) >= 0)
            return 0;
        key = key.substr(0, static_cast<std::size_t>(place));
        return axis;
    }
    return 0;
}

/// Kinds of which no value is an empty text; the user is told.
constexpr int kKindsThatNeedText[] = {ResBuf::kInt8, ResBuf::kInt16, ResBuf::kInt32, ResBuf::kBool};

bool needsText(int kind)
{
    return std::ranges::find(kKindsThatNeedText, kind) != std::end(kKindsThatNeedText);
}

KdString lineweightText(const CKdUiLineWeightComboBox& combo)
{
    switch (combo.GetCurrentItemLineWeight()) {
    case -1:
        return kddbGetReservedString(ReservedString::ByLayer, false);
    case -2:
        return kddbGetReservedString(ReservedString::ByBlock, false);
    case -3:
        return kddbGetReservedString(ReservedString::Default, false);
    default:
        return KdString(combo.GetCurrentText().c_str());
    }
}

KdString linetypeText(const CKdUiLineTypeComboBox& combo)
{
    const OpenForRead<KdDbSymbolTableRecord> record(combo.idOf(combo.GetCurSel()));
    KdString name;
    if (record)
        record->getName(name);
    return name;
}

/// A colour as it is typed, if reading that gives the same colour.
std::optional<KdString> typedColor(const KdCmColor& color)
{
    std::wstring text;
    switch (color.colorMethod()) {
    case KdCmColor::kByLayer:
        text = L"ByLayer";
        break;
    case KdCmColor::kByBlock:
        text = L"ByBlock";
        break;
    case KdCmColor::kByACI:
        text = std::to_wstring(color.colorIndex());
        break;
    default:
        text = std::to_wstring(color.red()) + L',' + std::to_wstring(color.green()) + L',' +
               std::to_wstring(color.blue());
    }
    FilterValue read = readFilterValue(ResBuf::kColor, 0, KdString(text));
    const bool isSame = read.record && read.record->getColor().color() == color.color();
    ResBuf::relRb(read.record);
    return isSame ? std::optional<KdString>(text) : std::nullopt;
}

KdString rowText(const CComboBox& combo)
{
    return KdString(combo.GetCurrentText().c_str());
}

} // namespace

void CQSelectDialog::OnOK()
{
    gComboValues.clear();
    if (!read(m_asked)) {
        if (m_asked.refusal)
            refuse(*m_asked.refusal);
        return;
    }
    keepCustomColors();
    writeShowListValues();
    writeCurPropertiesToRegistry();
    CKdUiDialog::OnOK();
}

bool CQSelectDialog::peek(Asked& asked)
{
    const QWidget* ok = getWidgetsFromOrignal(kOk, 0);
    asked.parameters.selectionSource = m_asked.parameters.selectionSource;
    asked.refusal.reset();
    return ok && ok->isEnabled() && read(asked);
}

void CQSelectDialog::OnCancel()
{
    gComboValues.clear();
    keepCustomColors();
    if (MainAppService* service = kwdrawMainAppService())
        service->focusDrawing();
    CKdUiDialog::OnCancel();
}

/// False if a control is missing or the user's text was refused.
bool CQSelectDialog::read(Asked& asked)
{
    ResBuf::relRb(asked.parameters.filter);
    asked.filterTail = nullptr;
    asked.parameters.propertyParameters = {};
    asked.typedValue = TypedValue{};
    asked.refusal.reset();
    if (!control<CComboBox>(kApplyTo) || !control<CComboBox>(kObjectType))
        return false;
    readFlags(asked.parameters);
    const auto* properties = control<CListBox>(kProperties);
    const int row = properties ? properties->GetCurSel() : -1;
    readProperty(row, asked.parameters);
    if (!control<CComboBox>(kOperator) || !control<CEdit>(kValueEdit))
        return false;
    return row < 0 || control<CComboBox>(kObjectType)->GetCurSel() < 0 || readFilter(asked);
}

void CQSelectDialog::readFlags(DialogParameters& parameters) const
{
    const auto* types = control<CComboBox>(kObjectType);
    parameters.include = IsDlgButtonChecked(kInclude) == BST_CHECKED;
    parameters.append = IsDlgButtonChecked(kAppend) == BST_CHECKED;
    parameters.entireDrawing = kEntireDrawing.matches(KdString(textOf(kApplyTo).c_str()));
    parameters.objectTypeName = textOf(kObjectType);
    const auto* className =
        static_cast<const CStdStr<wchar_t>*>(types->GetItemDataPtr(types->GetCurSel()));
    parameters.objectClassName = className ? *className : CStdStr<wchar_t>();
}

void CQSelectDialog::readProperty(int row, DialogParameters& parameters)
{
    const KdArray<KdString> keys = TypeKeys[parameters.objectTypeName];
    if (row < 0 || row >= keys.length())
        return;
    PropertyParameters& property = parameters.propertyParameters;
    property.propertyKey = keys[row];
    property.axis = cutAxis(property.propertyKey);
}

/// Builds the filter as far as there is one to build; false if the user's text was refused.
bool CQSelectDialog::readFilter(Asked& asked)
{
    const std::optional<Operators> op = currentOperator();
    const Value* value = currentValue();
    asked.typedValue->kind = value ? value->type : ResBuf::kNone;
    if (!op || *op == Operators::SelectAll)
        return true;
    asked.typedValue.reset();
    asked.parameters.propertyParameters.operatorText = operatorText(*op);
    const bool isListed =
        PropertyKeys.contains(compositeKey(asked.parameters.objectTypeName, currentProperty()));
    return !value || !isListed || readValue(*value, *op, asked);
}

bool CQSelectDialog::readValue(const Value& value, Operators op, Asked& asked)
{
    PropertyParameters& property = asked.parameters.propertyParameters;
    FilterValue filter;
    std::optional<KdString> text;
    if (value.type == ResBuf::kColor) {
        filter = filterOfColor(m_colorCombo.GetCurrentItemColor());
        text = typedColor(m_colorCombo.GetCurrentItemColor());
    } else {
        text = valueText(value, op);
        if (text)
            filter = readFilterValue(value.type, property.axis, *text);
        if (!text || (filter.text == FilterText::Empty && needsText(value.type)))
            asked.refusal = ResourceText{78042, L"Invalid value"};
    }
    if (!asked.refusal && filter.text == FilterText::NotANumber)
        asked.refusal = ResourceText{78043, L"Not a numeric value"};
    if (asked.refusal)
        return false;
    // What can't be read counts as the value that its reader falls back on.
    if (filter.text == FilterText::Unreadable)
        text = fallbackText(value.type);
    if (filter.record) {
        if (text)
            asked.typedValue = TypedValue{value.type, *text};
        asked.AddFilter(filter.record);
        property.valueType = filter.valueType;
    }
    return true;
}

/// The text of the control for that kind; none if it is a combo without a current row that needs
/// one.
std::optional<KdString> CQSelectDialog::valueText(const Value& value, Operators op)
{
    const auto ofRow = [](const auto& combo, auto text) {
        return combo.GetCurSel() >= 0 ? std::optional<KdString>(text(combo)) : std::nullopt;
    };
    bool useCombo = value.isList;
    switch (value.type) {
    case ResBuf::kLineweightName:
        return ofRow(m_lineWeightCombo, lineweightText);
    case ResBuf::kLinetypeName:
        return ofRow(m_lineTypeCombo, linetypeText);
    case ResBuf::kPlotStyleName:
        return ofRow(m_arrowHeadCombo, rowText);
    case ResBuf::kPlotStyleChoice:
        return ofRow(m_valueCombo, rowText);
    case ResBuf::kString:
        useCombo = op != Operators::WildcardMatch && (m_showListValues || value.isList);
        break;
    default:
        break;
    }
    return GetStringValue(useCombo, control<CEdit>(kValueEdit), &m_valueCombo);
}

KdString CQSelectDialog::GetStringValue(bool useCombo, CEdit* edit, CComboBox* combo) const
{
    if (useCombo)
        return combo ? rowText(*combo) : KdString();
    constexpr int kMostCharacters = 2048;
    wchar_t buffer[kMostCharacters] = {};
    if (edit)
        edit->GetWindowText(buffer, kMostCharacters);
    return KdString(buffer);
}

void CQSelectDialog::Asked::AddFilter(ResBuf* record)
{
    if (!parameters.filter) {
        parameters.filter = record;
        filterTail = record;
        return;
    }
    filterTail = filterTail->setNext(record);
}

void CQSelectDialog::refuse(const ResourceText& text)
{
    MessageBoxW(kdsw_kdadMainWnd(), text.text().kwszPtr(), GetOemProductName(), 0);
}

/// The custom rows of the colour combo, from the last one, are kept for the next run.
void CQSelectDialog::keepCustomColors()
{
    constexpr int kLastStandardRow = CKdUiTrueColorComboBox::kStandardRows - 1;
    const QSignalBlocker quiet(m_colorCombo.widget());
    const bool isVisible = m_colorCombo.IsWindowVisible();
    // Nobody is to see how the combo runs through its rows.
    m_colorCombo.ShowWindow(SW_HIDE);
    const int current = m_colorCombo.GetCurSel();
    for (int row = m_colorCombo.GetCount() - 1; row > kLastStandardRow; --row) {
        m_colorCombo.SetCurSel(row);
        gComboValues.push_back(m_colorCombo.GetCurrentItemColor());
    }
    m_colorCombo.SetCurSel(current);
    if (isVisible)
        m_colorCombo.ShowWindow(SW_SHOW);
}

void CQSelectDialog::writeShowListValues()
{
    resbuf variable{};
    if (kdedGetVar(L"QSELECTLISTVALUES", &variable) != RTNORM)
        return;
    variable.resval.rint = m_showListValues;
    kdedSetVar(L"QSELECTLISTVALUES", &variable);
}
