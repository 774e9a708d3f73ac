#include <dialog/qselect_dialog.h>

#include <ui/help.h>

#include <dialog/control_names.h>
#include <dialog/multi_text.h>
#include <values/resource_string.h>

using namespace ControlName;

namespace {

constexpr int kDialogWidget = 1;

struct Connection
{
    const char* control;
    const char* signal;
    const char* slot;
};

// clang-format off
const Connection kConnections[] = {
    {kApplyTo,        SIGNAL(currentIndexChanged(int)),     SLOT(OnApplyToChange())},
    {kObjectType,     SIGNAL(currentIndexChanged(int)),     SLOT(OnObjectTypeChange())},
    {kProperties,     SIGNAL(itemSelectionChanged()),       SLOT(OnPropertiesChange())},
    {kOperator,       SIGNAL(currentIndexChanged(int)),     SLOT(OnOperatorChange())},
    {kValueEdit,      SIGNAL(valueChanged(const QString&)), SLOT(OnTextEditChange())},
    {kSelectObjects,  SIGNAL(clicked()),                    SLOT(OnSelectEntities())},
    {kShowListValues, SIGNAL(clicked()),                    SLOT(OnShowListValuesCheckChanged())},
    {kInclude,        SIGNAL(clicked()),                    SLOT(OnHowToApplyRadioChanged())},
    {kExclude,        SIGNAL(clicked()),                    SLOT(OnHowToApplyRadioChanged())},
    {kAppend,         SIGNAL(clicked()),                    SLOT(OnHowToApplyRadioChanged())},
    {kHelp,           SIGNAL(clicked()),                    SLOT(OnHelp())},
    {kCancel,         SIGNAL(clicked()),                    SLOT(OnCancel())},
    {kOk,             SIGNAL(clicked()),                    SLOT(OnOK())},
    // Behind the others, so that the links that follow are filled by then.
    {kApplyTo,        SIGNAL(currentIndexChanged(int)),     SLOT(OnFilterChanged())},
    {kObjectType,     SIGNAL(currentIndexChanged(int)),     SLOT(OnFilterChanged())},
    {kProperties,     SIGNAL(itemSelectionChanged()),       SLOT(OnFilterChanged())},
    {kOperator,       SIGNAL(currentIndexChanged(int)),     SLOT(OnFilterChanged())},
    {kValueEdit,      SIGNAL(valueChanged(const QString&)), SLOT(OnFilterChanged())},
    {kInclude,        SIGNAL(clicked()),                    SLOT(OnFilterChanged())},
    {kExclude,        SIGNAL(clicked()),                    SLOT(OnFilterChanged())},
    {kAppend,         SIGNAL(clicked()),                    SLOT(OnFilterChanged())},
};
// clang-format on

} // namespace

CQSelectDialog::CQSelectDialog(const std::vector<KdDbEntity*>& drawing,
                               const std::vector<KdDbEntity*>& selection)
    : CKdUiDialog(nullptr), m_pickedEntities(selection)
{
    if (!generateUICtrls(L"KwQselectUtilRes/KrxQselectRes", L"IDD_QSELECT_DIALOG", kDialogWidget))
        return;
    bindSingals();
    fitValueEdit();
    setFixedSize(size().expandedTo(sizeHint()));
    enterTypes(drawing, m_drawingTypeNames, m_drawingClassNames);
    enterTypes(selection, m_selectionTypeNames, m_selectionClassNames);
    InitData();
    for (const std::vector<KdDbEntity*>* entities : {&drawing, &selection}) {
        for (KdDbEntity* entity : *entities)
            AddNewTypeProperties(GetLocalNameOfKdDbEntity(entity), entity);
    }
    g_pstrMulti = new CStdStr<wchar_t>;
}

CQSelectDialog::~CQSelectDialog()
{
    delete g_pstrMulti;
    g_pstrMulti = nullptr;
}

void CQSelectDialog::InitData()
{
    DialogParameters& parameters = m_asked.parameters;
    parameters.include = true;
    parameters.entireDrawing = true;
    parameters.append = false;
    parameters.filter = nullptr;
    parameters.objectTypeName = static_cast<const wchar_t*>(__ResourceString(78023, L"Multiple"));
    TypeCatalog::InitData();
}

void CQSelectDialog::bindSingals()
{
    for (const auto& [name, signal, slot] : kConnections) {
        if (const QWidget* widget = getWidgetsFromOrignal(name, 0))
            connect(widget, signal, slot);
    }
    CKdUiDialog::bindSingals();
}

void CQSelectDialog::enterTypes(const std::vector<KdDbEntity*>& entities,
                                std::vector<CStdStr<wchar_t>>& typeNames,
                                std::vector<CStdStr<wchar_t>>& classNames)
{
    for (KdDbEntity* entity : entities) {
        typeNames.push_back(GetLocalNameOfKdDbEntity(entity));
        classNames.emplace_back(entity->isA()->name());
    }
}

int CQSelectDialog::DoModal(bool resetSource)
{
    if (resetSource)
        m_asked.parameters.selectionSource = -1;
    return CKdUiDialog::DoModal();
}

void CQSelectDialog::DoDataExchange(CDataExchange* exchange)
{
    CKdUiDialog::DoDataExchange(exchange);
}

bool CQSelectDialog::PreTranslateMessage(tagMSG* message)
{
    m_toolTip.RelayEvent(message);
    return CKdUiDialog::PreTranslateMessage(message);
}

void CQSelectDialog::OnHelp()
{
    KWCMDHELP::KdadHelp(L"QSELECT_DIA");
}

void CQSelectDialog::OnFilterChanged()
{
    if (m_watcher)
        m_watcher();
}

CStdStr<wchar_t> CQSelectDialog::textOf(const char* name) const
{
    const auto* combo = control<CComboBox>(name);
    return combo ? combo->GetCurrentText() : CStdStr<wchar_t>();
}

CStdStr<wchar_t> CQSelectDialog::currentProperty() const
{
    const auto* list = control<CListBox>(kProperties);
    return list ? list->GetCurrentText() : CStdStr<wchar_t>();
}

std::optional<Operators> CQSelectDialog::currentOperator() const
{
    const auto found = OperatorsByName.find(textOf(kOperator));
    return found == OperatorsByName.end() ? std::nullopt : std::optional(found->second);
}

const CQSelectDialog::Value* CQSelectDialog::currentValue() const
{
    return GetValue(textOf(kObjectType), currentProperty());
}
