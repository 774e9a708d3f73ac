// Selecting in the window: picks, commands, the way through what is selected.
#include <kwdraw/window/main_window.h>

#include <QCursor>
#include <QMenu>

#include <utility>

#include <kwdraw/panels/command_line.h>
#include <kwdraw/panels/layer_panel.h>
#include <kwdraw/panels/property_panel.h>
#include <kwdraw/window/match_preview.h>
#include <kwdraw/window/notice_bar.h>
#include <kwdraw/window/status_line.h>

void MainWindow::connectSelecting()
{
    connect(m_view, &DrawingView::picked, this, &MainWindow::takePicked);
    connect(m_view, &DrawingView::cursorMoved, m_status, &StatusLine::showPlace);
    connect(m_view, &DrawingView::rightClicked, this, [this](QPoint global) {
        if (m_picking.isPicking())
            m_picking.finish();
        else
            showContextMenu(global);
    });
    connect(&m_document.selection(), &Selection::changed, this, &MainWindow::showSelection);
    connect(&m_document.selection(), &Selection::handedOver, this, [this] { m_hasOutcome = true; });
    connect(&m_picking, &ObjectPicking::attentionWanted, this, [this] {
        activateWindow();
        focusDrawing();
    });
    connect(m_matches, &MatchPreview::told, m_status, &StatusLine::showPreview);
    connect(m_matches, &MatchPreview::found, m_view, &DrawingView::setPreviewed);
    connect(&m_picking, &ObjectPicking::begun, this, [this] {
        m_matches->clear();
        m_commandLine->setPrompt(tr("Select objects:"));
        updateCommands();
        showPicking();
        activateWindow();
        focusDrawing();
    });
    connect(&m_picking, &ObjectPicking::changed, this, &MainWindow::showPicking);
    connect(&m_picking, &ObjectPicking::ended, this, [this] {
        m_view->cancelBox();
        m_promptBar->hide();
        m_commandLine->setPrompt({});
        showSelection();
    });
}

MainWindow::CommandScope::CommandScope(MainWindow& window) : m_window(window)
{
    m_step.emplace(window.m_document.selection());
    ++window.m_runningCommands;
    window.updateCommands();
}

MainWindow::CommandScope::~CommandScope()
{
    m_step.reset();
    --m_window.m_runningCommands;
    m_window.updateCommands();
    if (!m_window.isWaiting() && m_window.m_arrived)
        m_window.takeDrawing(std::exchange(m_window.m_arrived, nullptr));
}

void MainWindow::quickSelect()
{
    if (isWaiting())
        return;
    m_hasOutcome = false;
    {
        const CommandScope scope(*this);
        m_module.selectCmd();
        m_matches->clear();
        if (m_hasOutcome)
            noteRun();
    }
    focusDrawing();
}

std::vector<KdDbObjectId> MainWindow::pickable() const
{
    std::vector<KdDbObjectId> ids;
    const std::shared_ptr<const Scene> scene = m_document.scene();
    if (!scene)
        return ids;
    const std::vector<LayerState>& states = m_layers->model().states();
    for (const SceneItem& item : scene->items) {
        const bool isKnown = item.layer < states.size();
        if (!isKnown || (states[item.layer].on && !states[item.layer].frozen))
            ids.push_back(item.id);
    }
    return ids;
}

void MainWindow::selectAll()
{
    if (m_picking.isPicking())
        m_picking.add(pickable());
    else if (!m_document.isBusy())
        m_document.selection().set(pickable());
}

void MainWindow::takePicked(const std::vector<KdDbObjectId>& ids, bool takeAway)
{
    if (m_picking.isPicking())
        takeAway ? m_picking.remove(ids) : m_picking.add(ids);
    else if (m_document.isOpen() && !m_document.isBusy())
        takeAway ? m_document.selection().remove(ids) : m_document.selection().add(ids);
}

void MainWindow::showSelection()
{
    if (m_picking.isPicking())
        return showPicking();
    const Selection& selection = m_document.selection();
    m_step = -1;
    if (!isWaiting())
        m_runs.breakOff();
    m_view->setHighlighted(selection.ids());
    m_properties->show(selection.ids());
    m_status->showCount(selection.ids().size());
    updateCommands();
}

void MainWindow::showPicking()
{
    const std::size_t count = m_picking.picked().size();
    m_view->setHighlighted(m_picking.picked());
    m_status->showCount(count);
    m_promptBar->tell(
        tr("Select objects, then press Enter. Shift takes away. %1 picked.").arg(count));
}

void MainWindow::goTo(int direction)
{
    const std::vector<KdDbObjectId>& ids = m_document.selection().ids();
    const int count = static_cast<int>(ids.size());
    if (count == 0)
        return;
    m_step = m_step < 0 && direction < 0 ? count - 1 : (m_step + direction + count) % count;
    const KdDbObjectId id = ids[static_cast<std::size_t>(m_step)];
    m_view->center(id);
    m_commandLine->say(tr("%1 of %2: handle %3")
                           .arg(m_step + 1)
                           .arg(count)
                           .arg(QString::number(id.handle(), 16).toUpper()));
}

void MainWindow::showContextMenu(QPoint global)
{
    QMenu menu;
    for (const Command command : {Command::QuickSelect, Command::SelectSimilar, Command::Undo,
                                  Command::Invert, Command::Deselect})
        menu.addAction(m_commands.action(command));
    menu.addSeparator();
    for (const Command command :
         {Command::ZoomExtents, Command::ZoomWindow, Command::ZoomSelection, Command::ZoomPrevious})
        menu.addAction(m_commands.action(command));
    menu.exec(global);
}
