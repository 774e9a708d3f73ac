/// Dialogs that come from resource libraries.
#pragma once

#include <ui/controls.h>
#include <ui/wnd.h>

#include <QDialog>

#include <map>
#include <memory>

/// What `DoModal` returns.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;

/// A dialog whose controls come from a layout, and are found by their names.
class KW_EXPORT KdUiBaseDialog : public QDialog, public CWnd
{
    Q_OBJECT
  public:
    /// @param parent  the window that the dialog stands before; null: the main window
    explicit KdUiBaseDialog(QWidget* parent);
    ~KdUiBaseDialog() override;

    /// Builds the controls.
    /// @param resourcePath  "library/group"
    /// @param dialogName    the layout's name in that group
    /// @param widgetType    1, a dialog; there is no other
    /// @return              false, with nothing built, if there is no such layout
    bool generateUICtrls(const wchar_t* resourcePath, const wchar_t* dialogName, int widgetType);
    bool isGenerated() const { return m_generated; }

    /// The widget of a name, or null. `kind` is 0.
    QWidget* getWidgetsFromOrignal(const char* name, int kind) const;

    /// The control of a name; null if there is none or it is of another class. The dialog owns it.
    template <class Control>
    Control* control(const char* name) const
    {
        return dynamic_cast<Control*>(GetDlgItem(name));
    }
    CWnd* GetDlgItem(const char* name) const;

    /// Check states by name; a button that is not there counts as unchecked.
    int IsDlgButtonChecked(const char* name) const;
    void CheckDlgButton(const char* name, int state);
    void enableControl(const char* name, bool enable);
    void showControl(const char* name, bool show);

  private:
    void wrapControls();

    bool m_generated = false;
    std::map<QString, std::unique_ptr<CWnd>> m_controls;
};

/// A modal dialog.
class KW_EXPORT CKdUiDialog : public KdUiBaseDialog
{
    Q_OBJECT
  public:
    using KdUiBaseDialog::KdUiBaseDialog;

    /// Shows the dialog and waits for its end. One that has no controls ends at once.
    /// @return  `IDOK`, or `IDCANCEL`
    int DoModal();

    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    virtual void OnHelpInfo() {}
    virtual void DoDataExchange(CDataExchange*) {}

    /// Hides the dialog, which stays in `DoModal`, and gives the control to the program's prompts.
    void BeginEditorCommand();
    /// Brings it back. `restore` 0 leaves it hidden, for a dialog that is about to end.
    void CompleteEditorCommand(int restore);

    // The keys and the frame of the window end a dialog as its buttons do.
    void accept() override { OnOK(); }
    void reject() override { OnCancel(); }

  protected:
    /// Begins to look at the events of the controls.
    void bindSingals();
    void EnableToolTips(int enable) { m_toolTips = enable != 0; }

    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool m_toolTips = false;
};
