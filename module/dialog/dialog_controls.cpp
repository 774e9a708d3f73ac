#include <dialog/qselect_dialog.h>

#include <algorithm>
#include <utility>

#include <editor/system_variables.h>
#include <runtime/status.h>
#include <ui/widgets.h>

#include <QIcon>
#include <QLabel>
#include <QLayout>

#include <dialog/control_names.h>
#include <values/globals.h>
#include <values/resource_string.h>

using namespace ControlName;

namespace {

constexpr char kScrollingList[] = "QComboBox{combobox-popup:0;}";
constexpr int kUsualHeight = 20; // of the controls for the value
constexpr int kRowsOfSamples = 5;
constexpr int kRowsOfValues = 30;
constexpr unsigned int kSampleComboStyle = 531;
constexpr unsigned int kDefaultComboStyle = 3;
constexpr unsigned int kDefaultComboId = 60195;
constexpr unsigned int kNoId = 0;

bool isLightTheme()
{
    resbuf theme{};
    return kdedGetVar(L"COLORTHEME", &theme) == RTNORM && theme.resval.rint == 1;
}

KdUiComboBox* withSampleList(KdUiComboBox* combo)
{
    combo->setStyleSheet(kScrollingList);
    combo->setMaxVisibleItems(kRowsOfSamples);
    combo->setComboBoxStyle(2);
    return combo;
}

/// Keeps its room while it is hidden, so that nothing else moves.
void keepRoom(QWidget* widget)
{
    if (!widget)
        return;
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace

bool CQSelectDialog::OnInitDialog()
{
    keepRoom(getWidgetsFromOrignal(kValueEdit, 0));
    keepRoom(getWidgetsFromOrignal(kValueLabel, 0));
    showControl(kValueEdit, false);
    showControl(kShowListValues, false);
    if (QLayout* arrangement = layout())
        arrangement->activate();
    placeSelectButton();
    makeValueCombos();
    const bool initialised = CKdUiDialog::OnInitDialog();
    readShowListValues();
    FillApplyToCombo();
    InitCurPropertiesFromRegistry();
    SetToolTip();
    OnFilterChanged();
    return initialised;
}

/// All controls for the value have the height of the edit. It takes more than the usual one where
/// the font is large.
void CQSelectDialog::fitValueEdit()
{
    constexpr int kMargins = 3;
    if (QWidget* edit = getWidgetsFromOrignal(kValueEdit, 0))
        edit->setFixedHeight(std::max(kUsualHeight, edit->fontMetrics().height() + kMargins));
}

void CQSelectDialog::placeSelectButton()
{
    constexpr int kGap = 10;
    auto* button = qobject_cast<KdUiPushButton*>(getWidgetsFromOrignal(kSelectObjects, 0));
    const QWidget* combo = getWidgetsFromOrignal(kApplyTo, 0);
    if (!button || !combo)
        return;
    button->move(combo->x() + combo->width() + kGap, combo->y());
    button->setIcon(QIcon(isLightTheme() ? ":/KwQselectUtilRes/KrxQselectRes/IDI_FIND_SELECT_LIGHT"
                                         : ":/KwQselectUtilRes/KrxQselectRes/IDI_FIND_SELECT"));
}

void CQSelectDialog::makeValueCombos()
{
    const CWnd* edit = GetDlgItem(kValueEdit);
    if (!edit ||
        m_valueCombo.widget()) // they last as long as the dialog, however often it is shown
        return;
    tagRECT rect;
    edit->GetWindowRect(&rect);
    ScreenToClient(&rect);
    const std::pair<CKdUiMRUComboBox*, KdUiComboBox*> combos[] = {
        {&m_colorCombo, new KdUiColorComboBox(this)},
        {&m_lineTypeCombo, new KdUiLineTypeComboBox(this)},
        {&m_lineWeightCombo, withSampleList(new KdUiComboBox(this))},
        {&m_arrowHeadCombo, withSampleList(new KdUiComboBox(this))},
    };
    for (const auto& [control, widget] : combos) {
        bindComboBox(control, widget, rect);
        control->Create(kSampleComboStyle, rect, this, kNoId);
        control->ShowWindow(SW_HIDE);
    }
    // Put in from behind, each becomes the first custom row, so that they keep their order.
    for (const KdCmColor& color : gComboValues)
        m_colorCombo.AddColor(color);
    makeDefaultCombo(rect);
}

void CQSelectDialog::bindComboBox(CKdUiMRUComboBox* control, QComboBox* widget, const tagRECT& rect)
{
    const int bottom = std::max(rect.top + kUsualHeight, rect.bottom) - 1;
    widget->setGeometry(QRect(QPoint(rect.left, rect.top), QPoint(rect.right - 1, bottom)));
    widget->setEditable(false);
    control->setWidget(widget);
    connect(widget, SIGNAL(currentIndexChanged(int)), SLOT(OnComboBoxCurrentChanged(int)));
    connect(widget, SIGNAL(currentIndexChanged(int)), SLOT(OnFilterChanged()));
}

void CQSelectDialog::makeDefaultCombo(const tagRECT& rect)
{
    auto* widget = new KdUiComboBox(this);
    widget->setGeometry(
        QRect(QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)));
    widget->setEditable(false);
    widget->setObjectName(kValueCombo);
    widget->setStyleSheet(kScrollingList);
    widget->setMaxVisibleItems(kRowsOfValues);
    connect(widget, SIGNAL(currentIndexChanged(int)), SLOT(OnDefaultComboChange()));
    connect(widget, SIGNAL(currentIndexChanged(int)), SLOT(OnFilterChanged()));
    m_valueCombo.setWidget(widget);
    m_valueCombo.Create(kDefaultComboStyle, rect, this, kDefaultComboId);
    m_valueCombo.ShowWindow(SW_HIDE);
    m_currentValueControl = &m_valueCombo;
}

/// The label and its key, the order of the tabs and what screen readers say follow the control.
void CQSelectDialog::showAsValueControl(CWnd& control)
{
    control.ShowWindow(SW_SHOW);
    QWidget* widget = control.widget();
    auto* label = qobject_cast<QLabel*>(getWidgetsFromOrignal(kValueLabel, 0));
    QWidget* edit = getWidgetsFromOrignal(kValueEdit, 0);
    if (!widget || !label || !edit)
        return;
    label->setBuddy(widget);
    if (widget != edit) {
        widget->setAccessibleName(edit->accessibleName());
        setTabOrder(edit, widget);
    }
}

void CQSelectDialog::SetToolTip()
{
    constexpr int kUsualWidth = 300;
    constexpr int kInitialDelay = 500;
    constexpr int kReshowDelay = 100;
    EnableToolTips(1);
    m_toolTip.Create(this);
    m_toolTip.SetMaxTipWidth(static_cast<int>(kUsualWidth * kdadGetDPIScale()));
    m_toolTip.SetDelayTime(TTDT_INITIAL, kInitialDelay);
    m_toolTip.SetDelayTime(TTDT_RESHOW, kReshowDelay);
    m_toolTip.Activate(1);
    m_toolTip.AddTool(GetDlgItem(kSelectObjects), __ResourceString(11023, L"Select objects"));
}
