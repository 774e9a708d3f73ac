#include <kwdraw/window/main_window.h>

#include <editor/command_line.h>
#include <editor/display.h>
#include <platform/message_box.h>
#include <ui/help.h>

#include <QDockWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <iterator>

#include <kwdraw/document/settings.h>
#include <kwdraw/panels/command_line.h>
#include <kwdraw/panels/layer_panel.h>
#include <kwdraw/panels/property_panel.h>
#include <kwdraw/panels/saved_filters.h>
#include <kwdraw/window/help_window.h>
#include <kwdraw/window/match_preview.h>
#include <kwdraw/window/notice_bar.h>
#include <kwdraw/window/selection_output.h>
#include <kwdraw/window/start_page.h>
#include <kwdraw/window/status_line.h>

namespace {

constexpr const wchar_t* kGeometry = L"Geometry";
constexpr const wchar_t* kDocks = L"Docks";
constexpr const wchar_t* kLineweights = L"Lineweights";
constexpr const wchar_t* kPreviewMatches = L"PreviewMatches";
constexpr int kDockVersion = 1; ///< changes when docks come or go

// clang-format off
constexpr Command kToolBar[] = {
    Command::Open, Command::Reload,
    Command::QuickSelect, Command::SelectSimilar, Command::Undo, Command::Redo,
    Command::ZoomExtents, Command::ZoomWindow, Command::ZoomSelection, Command::ZoomPrevious,
    Command::PreviousSelected, Command::NextSelected,
    Command::Lineweights, Command::Help,
};
constexpr Command kBeforeGap[] = {Command::Reload, Command::Redo, Command::ZoomPrevious, Command::NextSelected};
// clang-format on

} // namespace

MainWindow::MainWindow(const Module& module)
    : m_module(module),
      m_commands(this),
      m_view(new DrawingView),
      m_pages(new QStackedWidget),
      m_start(new StartPage),
      m_tabs(new QTabBar),
      m_layers(new LayerPanel),
      m_properties(new PropertyPanel(module)),
      m_filters(new SavedFilters),
      m_output(new SelectionOutput(module, m_document, this)),
      m_commandLine(new CommandLine),
      m_status(new StatusLine(*statusBar())),
      m_matches(new MatchPreview(module, this)),
      m_promptBar(new NoticeBar("promptBar", NoticeBar::Tone::Prompt)),
      m_blockBar(new NoticeBar("blockBar", NoticeBar::Tone::Plain)),
      m_changedBar(new NoticeBar("changedBar", NoticeBar::Tone::Plain)),
      m_findingsBar(new NoticeBar("findingsBar", NoticeBar::Tone::Plain)),
      m_problemBar(new NoticeBar("problemBar", NoticeBar::Tone::Problem))
{
    setWindowTitle("kwdraw");
    setWindowIcon(programIcon());
    setAcceptDrops(true);
    resize(1180, 780);
    makeBars();
    makeCentre();
    makeDocks();
    makeMenus();
    makeToolBar();
    connectHost();
    connectDrawing();
    connectSelecting();
    connectPanels();
    connectCommands();
    restoreSettings();
    m_start->setRecentFiles(m_recent.files());
    updateCommands();
}

MainWindow::~MainWindow()
{
    m_module.holdDrawing(false);
    delete m_output; // before its document
    disconnect(&m_document, nullptr, this, nullptr);
    disconnect(&m_document.selection(), nullptr, this, nullptr);
    kdedSetUpdateDisplayHook({});
    kdutSetPrintSink({});
    kduiSetHelpViewer({});
    setMainAppService(nullptr);
    setMainWindow(nullptr);
}

void MainWindow::makeCentre()
{
    m_view->setObjectName("view");
    m_view->setFocusPolicy(Qt::StrongFocus);
    m_view->setAccessibleName(tr("Drawing"));
    m_tabs->setObjectName("spaces");
    m_tabs->setShape(QTabBar::RoundedSouth);
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->setUsesScrollButtons(true);
    m_tabs->setFocusPolicy(Qt::TabFocus);
    m_tabs->hide();
    m_pages->addWidget(m_start);
    m_pages->addWidget(m_view);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (NoticeBar* bar : {m_problemBar, m_changedBar, m_findingsBar, m_blockBar, m_promptBar})
        layout->addWidget(bar);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_tabs);
    setCentralWidget(page);
}

void MainWindow::makeBars()
{
    m_promptBar->addButton(tr("Done"), [this] { m_picking.finish(); })->setObjectName("done");
    m_promptBar->addButton(tr("Cancel"), [this] { m_picking.giveUp(); })->setObjectName("giveUp");
    m_blockBar->addButton(tr("Close"), [this] { m_document.closeBlock(); })
        ->setObjectName("closeBlock");
    m_changedBar->addButton(tr("Reload"), [this] { reload(); })->setObjectName("reload");
    m_changedBar->addCloseButton();
    m_findingsBar
        ->addButton(tr("Details"), [this] { m_commands.action(Command::Findings)->trigger(); })
        ->setObjectName("details");
    m_findingsBar->addCloseButton();
    m_problemBar->addCloseButton();
}

void MainWindow::addDock(const char* name, const QString& title, Icon icon, Qt::DockWidgetArea area,
                         QWidget* content)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(content);
    dock->toggleViewAction()->setIcon(iconOf(icon));
    addDockWidget(area, dock);
}

void MainWindow::makeDocks()
{
    addDock("layersDock", tr("Layers"), Icon::Layers, Qt::LeftDockWidgetArea, m_layers);
    addDock("propertiesDock", tr("Properties"), Icon::Properties, Qt::RightDockWidgetArea,
            m_properties);
    addDock("filtersDock", tr("Filters"), Icon::QuickSelect, Qt::RightDockWidgetArea, m_filters);
    tabifyDockWidget(findChild<QDockWidget*>("propertiesDock"),
                     findChild<QDockWidget*>("filtersDock"));
    findChild<QDockWidget*>("propertiesDock")->raise();
    addDock("commandDock", tr("Command Line"), Icon::CommandLine, Qt::BottomDockWidgetArea,
            m_commandLine);
    resizeDocks({findChild<QDockWidget*>("layersDock"), findChild<QDockWidget*>("propertiesDock")},
                {230, 270}, Qt::Horizontal);
    resizeDocks({findChild<QDockWidget*>("commandDock")}, {130}, Qt::Vertical);
}

void MainWindow::makeMenus()
{
    constexpr Menu kParents[] = {Menu::File, Menu::Edit, Menu::View, Menu::Help,
                                 Menu::File, Menu::Edit, Menu::View};
    std::array<QMenu*, std::size(kParents)> menus;
    for (std::size_t i = 0; i < menus.size(); ++i) {
        const auto menu = static_cast<Menu>(i);
        menus[i] = new QMenu(titleOf(menu), this);
        if (kParents[i] == menu)
            menuBar()->addMenu(menus[i]);
    }
    const auto menuOf = [&](Menu menu) { return menus[static_cast<std::size_t>(menu)]; };
    for (const CommandRow& row : Commands::rows()) {
        QMenu& menu = *menuOf(row.menu);
        if (row.startsGroup)
            menu.addSeparator();
        QMenu& parent = *menuOf(kParents[static_cast<std::size_t>(row.menu)]);
        if (&parent != &menu && menu.isEmpty())
            parent.addMenu(&menu);
        menu.addAction(m_commands.action(row.command));
        if (row.command == Command::Open)
            m_recentMenu = menu.addMenu(tr("Open Rece&nt"));
        if (row.command == Command::RunLast)
            m_filterMenu = menu.addMenu(tr("R&ecent Filters"));
    }
    m_themeMenu = menuOf(Menu::Theme);
    m_themeMenu->setIcon(iconOf(Icon::Theme));
    QMenu& view = *menuOf(Menu::View);
    view.addSeparator();
    for (const QDockWidget* dock : findChildren<QDockWidget*>())
        view.addAction(dock->toggleViewAction());
    m_recentMenu->setObjectName("recentMenu");
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    m_filterMenu->setObjectName("filterMenu");
    m_filterMenu->setToolTipsVisible(true);
    connect(m_filterMenu, &QMenu::aboutToShow, this, &MainWindow::fillFilterMenu);
}

void MainWindow::makeToolBar()
{
    QToolBar* bar = addToolBar(tr("Commands"));
    bar->setObjectName("toolBar");
    bar->setMovable(false);
    bar->setIconSize({20, 20});
    for (const Command command : kToolBar) {
        bar->addAction(m_commands.action(command));
        if (std::find(std::begin(kBeforeGap), std::end(kBeforeGap), command) !=
            std::end(kBeforeGap))
            bar->addSeparator();
    }
    QAction* const themes = m_themeMenu->menuAction();
    bar->insertAction(m_commands.action(Command::Help), themes);
    qobject_cast<QToolButton*>(bar->widgetForAction(themes))
        ->setPopupMode(QToolButton::InstantPopup);
}

void MainWindow::connectHost()
{
    setMainWindow(this);
    setMainAppService(this);
    kduiSetHelpViewer([this](const wchar_t*) { showHelp("quick_select.md", this); });
    kdedSetUpdateDisplayHook([this] { m_view->update(); });
    kdutSetPrintSink([this](std::wstring_view text) {
        m_commandLine->print(QString::fromWCharArray(text.data(), static_cast<int>(text.size())));
    });
}

void MainWindow::restoreSettings()
{
    restoreGeometry(storedBytes(kGeometry));
    restoreState(storedBytes(kDocks), kDockVersion);
    m_commands.action(Command::Lineweights)->setChecked(storedText(kLineweights) == "1");
    m_commands.action(Command::PreviewMatches)->setChecked(storedText(kPreviewMatches) != "0");
    setTheme(storedTheme());
    m_commands.action(Command::ListValues)->setChecked(switchValue(L"QSELECTLISTVALUES") == 1);
}

void MainWindow::storeSettings()
{
    storeBytes(kGeometry, saveGeometry());
    storeBytes(kDocks, saveState(kDockVersion));
    storeText(kLineweights, m_commands.action(Command::Lineweights)->isChecked() ? "1" : "0");
    storeText(kPreviewMatches, m_commands.action(Command::PreviewMatches)->isChecked() ? "1" : "0");
    storeVariables();
}

void MainWindow::focusDrawing()
{
    m_view->setFocus();
}
