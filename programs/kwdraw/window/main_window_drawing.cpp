// The drawing in the window: opening, reloading, spaces and blocks.
#include <kwdraw/window/main_window.h>

#include <exchange/findings.h>

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>
#include <utility>

#include <kwdraw/panels/command_line.h>
#include <kwdraw/panels/layer_panel.h>
#include <kwdraw/window/block_chooser.h>
#include <kwdraw/window/findings_window.h>
#include <kwdraw/window/notice_bar.h>
#include <kwdraw/window/start_page.h>
#include <kwdraw/window/status_line.h>

namespace {

/// The files that are dropped, as far as they lie on this machine.
QStringList filesOf(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

bool lacksItsEnd(const OpenDrawing& drawing)
{
    const auto& findings = drawing.report.findings;
    return std::any_of(findings.begin(), findings.end(), [](const ReadFinding& finding) {
        return finding.number == static_cast<int>(DrawingFinding::NoEndOfFile);
    });
}

} // namespace

void MainWindow::connectDrawing()
{
    connect(&m_loader, &DrawingLoader::progressed, this, [this](double part) {
        m_status->showWork(tr("Opening %1").arg(QFileInfo(m_loader.path()).fileName()), part);
    });
    connect(&m_loader, &DrawingLoader::loaded, this, &MainWindow::takeDrawing);
    connect(&m_loader, &DrawingLoader::failed, this,
            [this](const QString& path, const QString& message) {
                showWork();
                if (!QFileInfo::exists(path))
                    m_recent.remove(path);
                tellProblem(message);
            });
    connect(&m_loader, &DrawingLoader::cancelled, this, [this](const QString& path) {
        showWork();
        m_commandLine->say(tr("Opening %1 was cancelled.").arg(QFileInfo(path).fileName()));
    });
    connect(m_status, &StatusLine::cancelled, this, [this] {
        m_loader.cancel();
        m_document.cancelBuilding();
    });
    connect(&m_document, &Document::leaving, this, [this] { m_module.holdDrawing(false); });
    connect(&m_document, &Document::spaceChanged, this, &MainWindow::showSpace);
    connect(&m_document, &Document::busyChanged, this, &MainWindow::showWork);
    connect(&m_document, &Document::building, this,
            [this](double part) { m_status->showWork(tr("Opening a block"), part); });
    connect(&m_document, &Document::blockFailed, this, &MainWindow::tellProblem);
    connect(&m_watch, &FileWatch::changed, this,
            [this] { m_changedBar->tell(tr("The file has changed on the disk.")); });
    connect(m_tabs, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0 && !isWaiting())
            m_document.showSpace(tab);
    });
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
        if (!isWaiting())
            m_document.showSpace(tab); // by the keys
        const QSignalBlocker quiet(m_tabs);
        m_tabs->setCurrentIndex(m_document.space());
    });
    connect(m_start, &StartPage::openWanted, this, &MainWindow::askForFile);
    connect(m_start, &StartPage::fileWanted, this, [this](const QString& file) { openFile(file); });
    connect(&m_layers->model(), &LayerModel::statesChanged, this,
            [this] { m_view->setLayerStates(m_layers->model().states()); });
}

void MainWindow::openFile(const QString& path, const QString& layout)
{
    if (isWaiting())
        return;
    m_problemBar->hide();
    m_wantedLayout = layout;
    m_isReloading = false;
    m_loader.load(QFileInfo(path).absoluteFilePath());
    m_status->showWork(tr("Opening %1").arg(QFileInfo(path).fileName()), 0.0);
}

void MainWindow::askForFile()
{
    const QString folder = m_document.isOpen()
                               ? QFileInfo(m_document.drawing().path).absolutePath()
                               : QFileInfo(m_recent.files().value(0)).absolutePath();
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open a Drawing"), folder,
                                     tr("Drawings (*.dxf *.DXF *.dwg *.DWG);;All files (*)"));
    if (!file.isEmpty())
        openFile(file);
}

void MainWindow::reload()
{
    if (!m_document.isOpen() || isWaiting())
        return;
    openFile(m_document.drawing().path);
    m_isReloading = true;
}

bool MainWindow::isUnfinished(const OpenDrawing& drawing) const
{
    return m_isReloading && lacksItsEnd(drawing) && !lacksItsEnd(m_document.drawing());
}

void MainWindow::takeDrawing(const std::shared_ptr<OpenDrawing>& drawing)
{
    if (isWaiting()) { // the command works on the drawing of before
        m_arrived = drawing;
        return;
    }
    if (isUnfinished(*drawing)) {
        showWork();
        m_changedBar->tell(tr("The file has changed, but its end is missing: it may still be "
                              "being written. The drawing stays as it was."));
        return;
    }
    m_watch.watch(drawing->path);
    m_changedBar->hide();
    m_recent.add(drawing->path);
    const auto& layers = drawing->spaces.front().scene->layers;
    if (m_isReloading) {
        m_layers->model().updateLayers(layers);
        m_document.reload(drawing);
    } else {
        m_placeName.clear();
        m_places.clear();
        m_layers->model().setLayers(layers);
        m_document.open(drawing);
    }
    m_isReloading = false;
    showWork();
    setWindowTitle(QFileInfo(drawing->path).fileName() + " - kwdraw");
    setWindowFilePath(drawing->path);
    m_commandLine->say(tr("%1: %n objects", nullptr, static_cast<int>(drawing->report.entities))
                           .arg(QFileInfo(drawing->path).fileName()));
    tellFindings();
    if (!m_wantedLayout.isEmpty() && !m_document.showSpace(m_wantedLayout))
        tellProblem(tr("The drawing has no layout \"%1\".").arg(m_wantedLayout));
    m_wantedLayout.clear();
    focusDrawing();
}

void MainWindow::tellProblem(const QString& sentence)
{
    m_problemBar->tell(sentence);
    m_commandLine->say(sentence);
}

void MainWindow::tellFindings()
{
    const QString sentence = findingsSentence(m_document.drawing().report);
    m_findingsBar->hide();
    if (sentence.isEmpty())
        return;
    m_commandLine->say(sentence);
    m_findingsBar->tell(sentence);
}

QString MainWindow::placeName() const
{
    if (!m_document.isOpen())
        return {};
    if (m_document.hasOpenBlock())
        return "block:" + m_document.openBlockName();
    return "space:" +
           m_document.drawing().spaces[static_cast<std::size_t>(m_document.space())].name;
}

void MainWindow::showSpace()
{
    if (!m_placeName.isEmpty())
        m_places[m_placeName] = m_view->place();
    m_placeName = placeName();
    m_module.holdDrawing(true); // nothing changes in a space while it is shown
    m_pages->setCurrentWidget(m_view);
    m_view->setScene(m_document.scene());
    m_view->setLayerStates(m_layers->model().states());
    const auto place = m_places.constFind(m_placeName);
    if (place != m_places.constEnd())
        m_view->setPlace(*place);
    listSpaces();
    m_blockBar->setVisible(m_document.hasOpenBlock());
    if (m_document.hasOpenBlock())
        m_blockBar->tell(tr("Block %1").arg(m_document.openBlockName()));
    m_status->showUnits();
    showSelection();
}

void MainWindow::listSpaces()
{
    const QSignalBlocker quiet(m_tabs);
    const auto& spaces = m_document.drawing().spaces;
    while (m_tabs->count() > static_cast<int>(spaces.size()))
        m_tabs->removeTab(m_tabs->count() - 1);
    for (std::size_t i = 0; i < spaces.size(); ++i) {
        const int tab = static_cast<int>(i);
        const QString text = QString(spaces[i].name).replace('&', "&&");
        tab < m_tabs->count() ? m_tabs->setTabText(tab, text)
                              : static_cast<void>(m_tabs->addTab(text));
    }
    m_tabs->setCurrentIndex(m_document.space());
    m_tabs->show();
}

void MainWindow::showWork()
{
    if (m_document.isBusy())
        m_status->showWork(tr("Opening a block"), 0.0);
    else if (!m_loader.isLoading())
        m_status->endWork();
    updateCommands();
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    int number = 0;
    for (const QString& path : m_recent.files()) {
        const QFileInfo file(path);
        const QString name = QString(file.fileName()).replace('&', "&&");
        QAction* action = m_recentMenu->addAction(tr("&%1 %2").arg(++number % 10).arg(name), this,
                                                  [this, path] { openFile(path); });
        action->setEnabled(file.exists());
        action->setToolTip(path);
    }
    if (number > 0)
        m_recentMenu->addSeparator();
    m_recentMenu->setToolTipsVisible(true);
    QAction* clear = m_recentMenu->addAction(tr("&Clear List"), this, [this] { m_recent.clear(); });
    clear->setEnabled(number > 0);
}

void MainWindow::askForBlock()
{
    KdDbObjectId chosen;
    {
        const CommandScope scope(*this);
        BlockChooser chooser(*m_document.drawing().database, this);
        if (chooser.exec() == QDialog::Accepted)
            chosen = chooser.chosen();
    }
    if (!chosen.isNull() && chosen.database() == m_document.drawing().database.get())
        m_document.openBlock(chosen);
    focusDrawing();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!filesOf(*event->mimeData()).isEmpty() && !isWaiting())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = filesOf(*event->mimeData());
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    openFile(files.first());
    if (files.size() > 1)
        m_commandLine->say(tr("Only one drawing is open at a time; the first one is taken."));
}
