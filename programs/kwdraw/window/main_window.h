/// The program's window.
#pragma once

#include <QHash>
#include <QMainWindow>

#include <platform/main_app_service.h>

#include <common/module.h>
#include <common/run_request.h>
#include <kwdraw/document/document.h>
#include <kwdraw/document/drawing_loader.h>
#include <kwdraw/document/file_watch.h>
#include <kwdraw/document/recent_files.h>
#include <kwdraw/view/drawing_view.h>
#include <kwdraw/window/commands.h>
#include <kwdraw/window/object_picking.h>
#include <kwdraw/window/theme.h>

class CommandLine;
class LayerPanel;
class MatchPreview;
class NoticeBar;
class PropertyPanel;
class QActionGroup;
class QStackedWidget;
class QTabBar;
class SavedFilters;
class SelectionOutput;
class StartPage;
class StatusLine;

/// Ties the drawing, its view and the panels together. While it lives it is the program's main
/// window, answers the host's prompts and shows what commands print. There is one of it.
class MainWindow : public QMainWindow, public MainAppService
{
    Q_OBJECT
  public:
    /// @param module  loaded; must outlive the window
    explicit MainWindow(const Module& module);
    ~MainWindow() override;

    /// Opens a drawing beside the window, and shows a layout of it if one is named.
    void openFile(const QString& path, const QString& layout = {});
    /// Carries out what a user types in the command line.
    void carryOut(const QString& line);

    Document& document() { return m_document; }
    const Commands& commands() const { return m_commands; }

    void focusDrawing() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    /// A command works on the drawing, which stays as it is meanwhile. What it does to the
    /// selection is one step.
    class CommandScope
    {
      public:
        explicit CommandScope(MainWindow& window);
        ~CommandScope();
        CommandScope(const CommandScope&) = delete;
        CommandScope& operator=(const CommandScope&) = delete;

      private:
        MainWindow& m_window;
        std::optional<Selection::OneStep> m_step;
    };
    bool isWaiting() const { return m_runningCommands > 0; }

    // building, main_window.cpp
    void makeCentre();
    void makeBars();
    void makeDocks();
    void addDock(const char* name, const QString& title, Icon icon, Qt::DockWidgetArea area,
                 QWidget* content);
    void makeMenus();
    void makeToolBar();
    void connectHost();
    void restoreSettings();
    void storeSettings();

    // the drawing, main_window_drawing.cpp
    void connectDrawing();
    void askForFile();
    void reload();
    void takeDrawing(const std::shared_ptr<OpenDrawing>& drawing);
    bool isUnfinished(const OpenDrawing& drawing) const;
    void tellProblem(const QString& sentence);
    void tellFindings();
    void showSpace();
    void listSpaces();
    void showWork();
    void fillRecentMenu();
    void askForBlock();
    QString placeName() const;

    // selecting, main_window_selecting.cpp
    void connectSelecting();
    void quickSelect();
    void selectAll();
    std::vector<KdDbObjectId> pickable() const;
    void takePicked(const std::vector<KdDbObjectId>& ids, bool takeAway);
    void showSelection();
    void showPicking();
    void goTo(int direction);
    void showContextMenu(QPoint global);

    // filters and output, main_window_panels.cpp
    void connectPanels();
    /// Carries out what selects something; a problem is told. `isOneRun`: the module knows it.
    bool run(const std::function<bool(std::string&)>& command, bool isOneRun);
    /// Runs a filter that was written down, and notes it.
    void runWritten(const QString& text);
    void runLast();
    void fillFilterMenu();
    void findSimilar(const std::vector<KdDbObjectId>& entities);
    void noteRun();
    void exportSelection(const QString& files, const QString& ending);
    void exportTo(const QString& file, bool overwrite);
    void copyCommand();

    // commands, main_window_commands.cpp
    void connectCommands();
    void updateCommands();
    bool carryOutWithArgument(const QString& line);
    void endOrClear();
    void setTheme(Theme theme);
    void showAbout();

    const Module& m_module;
    Commands m_commands;
    DrawingLoader m_loader;
    Document m_document;
    ObjectPicking m_picking;
    FileWatch m_watch;
    RecentFiles m_recent;

    DrawingView* m_view;
    QStackedWidget* m_pages;
    StartPage* m_start;
    QTabBar* m_tabs;
    LayerPanel* m_layers;
    PropertyPanel* m_properties;
    SavedFilters* m_filters;
    SelectionOutput* m_output;
    CommandLine* m_commandLine;
    StatusLine* m_status;
    MatchPreview* m_matches;
    NoticeBar* m_promptBar;
    NoticeBar* m_blockBar;
    NoticeBar* m_changedBar;
    NoticeBar* m_findingsBar;
    NoticeBar* m_problemBar;
    QMenu* m_recentMenu = nullptr;
    QMenu* m_filterMenu = nullptr;
    QMenu* m_themeMenu = nullptr;
    QActionGroup* m_themes = nullptr; ///< one of which holds
    Theme m_theme = Theme::Dark;

    QString m_wantedLayout;
    bool m_isReloading = false;
    int m_runningCommands = 0;
    bool m_hasOutcome = false;              ///< the command has handed something over
    RunChain m_runs;                        ///< that led to what is selected
    std::shared_ptr<OpenDrawing> m_arrived; ///< was loaded while a command ran
    int m_step = -1;                        ///< the selected entity that was last gone to
    QHash<QString, ViewPlace> m_places;     ///< where the view was in each space
    QString m_placeName;                    ///< of the space that the view shows
};
