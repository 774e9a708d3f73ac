#include <dialog/qselect_dialog.h>

#include <map>
#include <memory>

#include <database/database.h>
#include <editor/current_space.h>
#include <plugin/entity_pe.h>

#include <dialog/control_names.h>
#include <providers/property_row.h>
#include <values/value_chain.h>

#include <QSignalBlocker>

using namespace ControlName;

namespace {

constexpr ResourceText kAllTypes = {78023, L"Multiple"};
constexpr ResourceText kPlotStyle = {78037, L"Plot style"};

/// Calls `visit` with each entity of the current space; false if the space can't be read.
template <class Visit>
bool walkCurrentSpace(Visit visit)
{
    const OpenForRead<KdDbBlockTableRecord> space(kdedCurrentSpaceId());
    KdDbBlockTableRecordIterator* walker = nullptr;
    if (!space || space->newIterator(walker, true, true) != eOk || !walker)
        return false;
    const std::unique_ptr<KdDbBlockTableRecordIterator> iterator(walker);
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        KdDbEntity* entity = nullptr;
        if (iterator->getEntity(entity, KdDb::kForRead) != eOk)
            continue;
        visit(*entity);
        entity->close();
    }
    return true;
}

} // namespace

void CQSelectDialog::FillValueComboOrEdit()
{
    const auto* properties = control<CListBox>(kProperties);
    const auto* types = control<CComboBox>(kObjectType);
    if (!m_currentValueControl || !GetDlgItem(kValueEdit) || !properties || !types)
        return;
    showControl(kValueEdit, false);
    m_currentValueControl->ShowWindow(SW_HIDE);
    if (properties->GetCurSel() < 0 || types->GetCurSel() < 0)
        return;
    const Value* value = currentValue();
    if (!value) {
        m_currentValueControl->ShowWindow(SW_SHOW);
        return;
    }
    if (!offersList(*value, currentOperator().value_or(Operators::Equals))) {
        showEdit();
        return;
    }
    enableControl(kOk, true);
    if (CWnd* combo = prepareCombo(*value, currentProperty())) {
        m_currentValueControl = combo;
        showAsValueControl(*combo);
    }
}

bool CQSelectDialog::offersList(const Value& value, Operators op) const
{
    if (op == Operators::WildcardMatch)
        return false;
    switch (value.type) {
    case ResBuf::kString:
        return m_showListValues || value.isList;
    case ResBuf::kLinetypeName:
    case ResBuf::kPlotStyleName:
    case ResBuf::kLineweightName:
        return true;
    default:
        return value.isList;
    }
}

void CQSelectDialog::showEdit()
{
    showAsValueControl(*GetDlgItem(kValueEdit));
    OnTextEditChange();
}

void CQSelectDialog::OnTextEditChange()
{
    if (const auto* edit = control<CEdit>(kValueEdit))
        enableControl(kOk, !edit->GetWindowText().empty());
}

/// Fills the combo for a list of values and gives it; null if the values can't be had.
CWnd* CQSelectDialog::prepareCombo(const Value& value, const std::wstring& shortName)
{
    int first = 0;
    switch (value.type) {
    case ResBuf::kLineweightName:
        return &m_lineWeightCombo;
    case ResBuf::kPlotStyleName:
        return &m_arrowHeadCombo;
    case ResBuf::kLinetypeName:
        return &m_lineTypeCombo;
    case ResBuf::kColor:
        fillColorCombo();
        return &m_colorCombo;
    case ResBuf::kLayerName:
        fillDefaultCombo(value.strings, m_layerIndex);
        return &m_valueCombo;
    case ResBuf::kString:
        if (!value.isList)
            return fillFromDrawing(textOf(kObjectType), shortName) ? &m_valueCombo : nullptr;
        if (kPlotStyle.text().compareNoCase(shortName.c_str()) == 0) {
            fillDefaultCombo(value.strings, m_plotStyleIndex);
            return &m_valueCombo;
        }
        [[fallthrough]];
    default:
        fillDefaultCombo(value.strings, first);
        return &m_valueCombo;
    }
}

void CQSelectDialog::fillColorCombo()
{
    if (m_colorIndex < 0 || m_colorIndex >= m_colorCombo.GetCount())
        m_colorIndex = 0;
    if (m_restoreColor) {
        m_restoreColor = false;
        m_colorCombo.SetCurSel(m_colorIndex);
    }
    if (m_colorCombo.GetCurSel() < 0)
        m_colorCombo.SetCurSel(m_colorIndex);
    if (m_colorCombo.GetCurSel() != m_colorIndex)
        m_colorIndex = m_colorCombo.GetCurSel();
}

/// `row` becomes the first one where it is not in the list.
void CQSelectDialog::fillDefaultCombo(const std::vector<std::wstring>& strings, int& row)
{
    // What the combo says while it is filled is no choice of the user's.
    const QSignalBlocker quiet(m_valueCombo.widget());
    m_valueCombo.ResetContent();
    for (const std::wstring& text : strings)
        m_valueCombo.AddString(text.c_str());
    if (row < 0 || row >= m_valueCombo.GetCount())
        row = 0;
    m_valueCombo.SetCurSel(row);
}

bool CQSelectDialog::fillFromDrawing(const std::wstring& typeName, const std::wstring& shortName)
{
    const bool ofAllTypes = kAllTypes.matches(KdString(typeName));
    std::map<std::wstring, int> texts;
    const bool read = walkCurrentSpace([&](KdDbEntity& entity) {
        const std::wstring ownType = GetLocalNameOfKdDbEntity(&entity);
        if (!ofAllTypes && ownType != typeName)
            return;
        KdDbEntityPE* provider = KdDbEntityPE::of(entity);
        const auto key = PropertyKeys.find(compositeKey(ownType, shortName));
        if (!provider || key == PropertyKeys.end())
            return;
        ValueChain chain;
        provider->PropertyValueGet(&entity, KdString(key->second), chain.head(), false, false);
        if (chain.head()->restype() == ResBuf::kString)
            texts.emplace(chain.head()->getString().view(), 1);
    });
    if (!read)
        return false;
    std::vector<std::wstring> strings;
    for (const auto& [text, one] : texts)
        strings.push_back(text);
    int first = 0;
    fillDefaultCombo(strings, first);
    return true;
}

void CQSelectDialog::OnDefaultComboChange()
{
    const Value* value = currentValue();
    if (!value)
        return;
    if (value->type == ResBuf::kLayerName)
        m_layerIndex = m_valueCombo.GetCurSel();
    else if (value->type == ResBuf::kString)
        m_plotStyleIndex = m_valueCombo.GetCurSel();
}

void CQSelectDialog::OnComboBoxCurrentChanged(int)
{
    for (CKdUiMRUComboBox* combo : std::initializer_list<CKdUiMRUComboBox*>{
             &m_colorCombo, &m_lineTypeCombo, &m_lineWeightCombo, &m_arrowHeadCombo}) {
        if (combo->widget() == sender())
            combo->OnSelEndOk();
    }
}
