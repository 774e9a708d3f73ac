/// The window that lists a drawing's entities.
#pragma once

#include <QMainWindow>

#include <string>
#include <vector>

#include <platform/main_app_service.h>
#include <ui/editor_prompt.h>

#include <common/module.h>
#include <kwbrowse/drawing_file.h>

class EntityModel;
class QAction;
class QEventLoop;
class QLabel;
class QTableView;

/// What is selected in the list is the selection that commands begin and end with. While the window
/// lives it is the program's main window and answers the host's prompts.
class BrowseWindow : public QMainWindow, public KdUiEditorPrompt, public MainAppService
{
    Q_OBJECT
  public:
    /// @param module  loaded; must outlive the window
    explicit BrowseWindow(const Module& module);
    ~BrowseWindow() override;

    /// Shows a drawing; false, with a message to the user, if it can't be read.
    bool open(const QString& file);

    void beginEditorCommand() override;
    int pickObjects(std::vector<KdDbObjectId>& picked) override;
    void focusDrawing() override;

  public slots:
    void quickSelect();
    void setLightTheme(bool light);

  private:
    void makeActions();
    void makePromptBar();
    void connectHost();
    void askForFile();
    void showPickfirst();
    void takeSelectionOver();
    void endPicking(int status);
    std::vector<KdDbObjectId> selectedIds() const;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    const Module& m_module;
    DrawingFile m_drawing;
    EntityModel* m_entities;
    QTableView* m_table;
    QLabel* m_said;
    QWidget* m_promptBar = nullptr;
    QAction* m_quickSelect = nullptr;
    QAction* m_open = nullptr;
    QEventLoop* m_picking = nullptr; ///< runs while the user picks
    int m_pickStatus = 0;
    bool m_isFollowing = false; ///< the list is being brought up to the host's selection
};
