#include <ui/dialog.h>

#include <ui/editor_prompt.h>
#include <ui/widgets.h>

#include "layout_loader.h"

#include <platform/message_box.h>

#include <QEventLoop>
#include <QKeyEvent>

#include <string>

namespace {

constexpr int kDialogWidget = 1;

/// What stands in front of a widget of each kind.
std::unique_ptr<CWnd> controlFor(const QWidget& widget)
{
    if (widget.inherits("QComboBox"))
        return std::make_unique<CComboBox>();
    if (widget.inherits("KdUiListBox"))
        return std::make_unique<CListBox>();
    if (widget.inherits("QLineEdit"))
        return std::make_unique<CEdit>();
    if (widget.inherits("QAbstractButton"))
        return std::make_unique<CButton>();
    return std::make_unique<CWnd>();
}

} // namespace

KdUiBaseDialog::KdUiBaseDialog(QWidget* parent) : QDialog(parent ? parent : kdsw_kdadMainWnd())
{
    setWidget(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

KdUiBaseDialog::~KdUiBaseDialog() = default;

bool KdUiBaseDialog::generateUICtrls(const wchar_t* resourcePath, const wchar_t* dialogName,
                                     int widgetType)
{
    if (m_generated || widgetType != kDialogWidget || !resourcePath || !dialogName)
        return false;
    if (!loadLayout(resourcePath, dialogName, *this))
        return false;
    m_generated = true;
    wrapControls();
    return true;
}

void KdUiBaseDialog::wrapControls()
{
    for (QWidget* child : findChildren<QWidget*>()) {
        // What widgets are made of inside has names of Qt's own.
        if (child->objectName().isEmpty() || child->objectName().startsWith("qt_"))
            continue;
        std::unique_ptr<CWnd> control = controlFor(*child);
        control->setWidget(child);
        m_controls.emplace(child->objectName(), std::move(control));
    }
}

QWidget* KdUiBaseDialog::getWidgetsFromOrignal(const char* name, int) const
{
    const CWnd* found = GetDlgItem(name);
    return found ? found->widget() : nullptr;
}

CWnd* KdUiBaseDialog::GetDlgItem(const char* name) const
{
    const auto found = m_controls.find(QString::fromLatin1(name));
    return found == m_controls.end() ? nullptr : found->second.get();
}

int KdUiBaseDialog::IsDlgButtonChecked(const char* name) const
{
    const auto* button = control<CButton>(name);
    return button ? button->GetCheck() : BST_UNCHECKED;
}

void KdUiBaseDialog::CheckDlgButton(const char* name, int state)
{
    if (auto* button = control<CButton>(name))
        button->SetCheck(state);
}

void KdUiBaseDialog::enableControl(const char* name, bool enable)
{
    if (CWnd* window = GetDlgItem(name))
        window->EnableWindow(enable);
}

void KdUiBaseDialog::showControl(const char* name, bool show)
{
    if (CWnd* window = GetDlgItem(name))
        window->ShowWindow(show ? SW_SHOW : SW_HIDE);
}

int CKdUiDialog::DoModal()
{
    if (!isGenerated())
        return IDCANCEL;
    OnInitDialog();
    setResult(Rejected);
    setModal(true);
    // A loop of its own, because the one of QDialog ends when the dialog is hidden for a prompt.
    QEventLoop loop;
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    show();
    loop.exec(QEventLoop::DialogExec);
    return result() == Accepted ? IDOK : IDCANCEL;
}

bool CKdUiDialog::OnInitDialog()
{
    return true;
}

void CKdUiDialog::OnOK()
{
    done(Accepted);
}

void CKdUiDialog::OnCancel()
{
    done(Rejected);
}

void CKdUiDialog::BeginEditorCommand()
{
    hide();
    if (KdUiEditorPrompt* prompt = kduiEditorPrompt())
        prompt->beginEditorCommand();
}

void CKdUiDialog::CompleteEditorCommand(int restore)
{
    if (KdUiEditorPrompt* prompt = kduiEditorPrompt())
        prompt->completeEditorCommand();
    if (restore == 0)
        return;
    show();
    raise();
    activateWindow();
}

void CKdUiDialog::bindSingals()
{
    for (QWidget* child : findChildren<QWidget*>())
        child->installEventFilter(this);
}

bool CKdUiDialog::eventFilter(QObject* object, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget && m_toolTips) {
        tagMSG message{widget, event};
        if (PreTranslateMessage(&message))
            return true;
    }
    return QDialog::eventFilter(object, event);
}

void CKdUiDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::HelpContents))
        OnHelpInfo();
    else
        QDialog::keyPressEvent(event);
}
