#include <kwbrowse/browse_window.h>

#include <database/database.h>
#include <editor/command_line.h>
#include <editor/selection_sets.h>
#include <platform/message_box.h>
#include <ui/help.h>
#include <ui/theme.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

#include <kwbrowse/entity_model.h>
#include <kwbrowse/help_window.h>
#include <kwbrowse/remembered_variables.h>

namespace {

/// A selection set of the window's own, freed at the end of its scope.
class Set
{
  public:
    Set() { kdedSSAdd(nullptr, nullptr, m_name); }
    ~Set() { kdedSSFree(m_name); }
    Set(const Set&) = delete;
    Set& operator=(const Set&) = delete;

    long* name() { return m_name; }
    void add(KdDbObjectId id)
    {
        kds_name entity;
        if (kddbGetKdsName(entity, id) == eOk)
            kdedSSAdd(entity, m_name, m_name);
    }

  private:
    kds_name m_name = {};
};

std::vector<KdDbObjectId> pickfirstIds()
{
    std::vector<KdDbObjectId> ids;
    kds_name set;
    if (kdedSSGetFirst(set) != RTNORM)
        return ids;
    kds_name entity;
    for (long i = 0; kdedSSName(set, i, entity) == RTNORM; ++i) {
        KdDbObjectId id;
        if (kddbGetObjectId(id, entity) == eOk)
            ids.push_back(id);
    }
    kdedSSFree(set);
    return ids;
}

} // namespace

BrowseWindow::BrowseWindow(const Module& module)
    : m_module(module),
      m_entities(new EntityModel(this)),
      m_table(new QTableView),
      m_said(new QLabel)
{
    resize(640, 720);
    m_table->setModel(m_entities);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    m_table->horizontalHeader()->setSectionResizeMode(EntityModel::kType, QHeaderView::Stretch);
    m_table->setAccessibleName(tr("Entities"));
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { takeSelectionOver(); });
    makePromptBar();
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_promptBar);
    layout->addWidget(m_table);
    setCentralWidget(page);
    m_said->setObjectName("said");
    statusBar()->addWidget(m_said, 1);
    makeActions();
    connectHost();
}

BrowseWindow::~BrowseWindow()
{
    kdedSetPickfirstHook({});
    kdutSetPrintSink({});
    kduiSetHelpViewer({});
    kduiSetEditorPrompt(nullptr);
    setMainAppService(nullptr);
    setMainWindow(nullptr);
}

void BrowseWindow::makeActions()
{
    m_open = new QAction(tr("&Open..."), this);
    m_open->setShortcut(QKeySequence::Open);
    connect(m_open, &QAction::triggered, this, &BrowseWindow::askForFile);

    m_quickSelect = new QAction(tr("Quick &Select..."), this);
    m_quickSelect->setShortcut(QKeySequence::Find);
    m_quickSelect->setEnabled(false);
    connect(m_quickSelect, &QAction::triggered, this, &BrowseWindow::quickSelect);

    auto* light = new QAction(tr("&Light Colors"), this);
    light->setCheckable(true);
    light->setChecked(switchValue(L"COLORTHEME") == 1);
    connect(light, &QAction::toggled, this, &BrowseWindow::setLightTheme);

    auto* listed = new QAction(tr("List the &Values of Texts"), this);
    listed->setCheckable(true);
    listed->setChecked(switchValue(L"QSELECTLISTVALUES") == 1);
    connect(listed, &QAction::toggled, this,
            [](bool on) { setSwitch(L"QSELECTLISTVALUES", on ? 1 : 0); });

    auto* help = new QAction(tr("&Quick Select"), this);
    connect(help, &QAction::triggered, this, [this] { showHelp(this); });

    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(m_open);
    file->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
    menuBar()->addMenu(tr("&Edit"))->addAction(m_quickSelect);
    menuBar()->addMenu(tr("&View"))->addActions({light, listed});
    menuBar()->addMenu(tr("&Help"))->addAction(help);
    QToolBar* bar = addToolBar(tr("Commands"));
    bar->setMovable(false);
    bar->addAction(m_open);
    bar->addAction(m_quickSelect);
}

void BrowseWindow::makePromptBar()
{
    m_promptBar = new QWidget;
    m_promptBar->setObjectName("promptBar");
    auto* done = new QPushButton(tr("&Done"));
    auto* giveUp = new QPushButton(tr("&Cancel"));
    connect(done, &QPushButton::clicked, this, [this] { endPicking(RTNORM); });
    connect(giveUp, &QPushButton::clicked, this, [this] { endPicking(RTCAN); });
    auto* layout = new QHBoxLayout(m_promptBar);
    layout->addWidget(new QLabel(tr("Select objects in the list, then press Enter.")), 1);
    layout->addWidget(done);
    layout->addWidget(giveUp);
    m_promptBar->hide();
}

void BrowseWindow::connectHost()
{
    setMainWindow(this);
    setMainAppService(this);
    kduiSetEditorPrompt(this);
    kduiSetHelpViewer([this](const wchar_t*) {
        QWidget* const inFront = QApplication::activeModalWidget();
        showHelp(inFront ? inFront : this);
    });
    kdutSetPrintSink([this](std::wstring_view text) {
        m_said->setText(
            QString::fromWCharArray(text.data(), static_cast<int>(text.size())).trimmed());
    });
    kdedSetPickfirstHook([this](int) { showPickfirst(); });
}

void BrowseWindow::askForFile()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open a Drawing"), {}, tr("Drawings (*.dxf)"));
    if (!file.isEmpty())
        open(file);
}

bool BrowseWindow::open(const QString& file)
{
    std::wstring message;
    m_isFollowing = true; // rows that go with their drawing are no choice of the user's
    const bool isOpen = m_drawing.open(QFile::encodeName(file).toStdString(), message);
    if (isOpen) {
        m_entities->list(m_module);
        m_table->resizeColumnToContents(EntityModel::kHandle);
        setWindowTitle(QFileInfo(file).fileName());
        m_said->setText(tr("%1 objects").arg(m_entities->rowCount()));
        m_quickSelect->setEnabled(true);
    }
    m_isFollowing = false;
    if (!message.empty())
        AfxMessageBox(message.c_str(), isOpen ? MB_ICONWARNING : MB_ICONSTOP, 0);
    return isOpen;
}

void BrowseWindow::quickSelect()
{
    m_module.selectCmd();
    focusDrawing();
}

void BrowseWindow::setLightTheme(bool light)
{
    setSwitch(L"COLORTHEME", light ? 1 : 0);
    kduiApplyColorTheme();
}

std::vector<KdDbObjectId> BrowseWindow::selectedIds() const
{
    std::vector<KdDbObjectId> ids;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
        ids.push_back(m_entities->idOf(row.row()));
    return ids;
}

void BrowseWindow::takeSelectionOver()
{
    if (m_isFollowing || m_picking)
        return;
    Set set;
    for (const KdDbObjectId id : selectedIds())
        set.add(id);
    m_isFollowing = true;
    kdedSSSetFirst(set.name(), nullptr);
    m_isFollowing = false;
}

void BrowseWindow::showPickfirst()
{
    if (m_isFollowing)
        return;
    m_isFollowing = true;
    const QItemSelection rows = m_entities->rowsOf(pickfirstIds());
    m_table->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty())
        m_table->scrollTo(rows.first().topLeft(), QAbstractItemView::PositionAtCenter);
    m_isFollowing = false;
}

void BrowseWindow::beginEditorCommand()
{
    activateWindow();
    focusDrawing();
}

int BrowseWindow::pickObjects(std::vector<KdDbObjectId>& picked)
{
    QEventLoop loop;
    m_picking = &loop;
    m_pickStatus = RTCAN;
    m_quickSelect->setEnabled(false);
    m_open->setEnabled(false);
    m_promptBar->show();
    m_table->setFocus();
    loop.exec();
    m_promptBar->hide();
    m_quickSelect->setEnabled(true);
    m_open->setEnabled(true);
    m_picking = nullptr;
    if (m_pickStatus == RTNORM)
        picked = selectedIds();
    m_isFollowing = true;
    m_table->clearSelection(); // what was picked is the command's, not the selection
    m_isFollowing = false;
    return m_pickStatus;
}

void BrowseWindow::endPicking(int status)
{
    if (!m_picking)
        return;
    m_pickStatus = status;
    m_picking->quit();
}

void BrowseWindow::focusDrawing()
{
    m_table->setFocus();
}

void BrowseWindow::keyPressEvent(QKeyEvent* event)
{
    if (m_picking && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        endPicking(RTNORM);
    else if (m_picking && event->key() == Qt::Key_Escape)
        endPicking(RTCAN);
    else
        QMainWindow::keyPressEvent(event);
}

void BrowseWindow::closeEvent(QCloseEvent* event)
{
    if (!m_picking)
        return QMainWindow::closeEvent(event);
    // The command that waits for the user has to come to its end first.
    endPicking(RTCAN);
    event->ignore();
}
