// What the window does on commands and keys.
#include <kwdraw/window/main_window.h>

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include <common/nearest_name.h>
#include <kwdraw/document/settings.h>
#include <kwdraw/panels/command_line.h>
#include <kwdraw/panels/layer_panel.h>
#include <kwdraw/panels/saved_filters.h>
#include <kwdraw/window/findings_window.h>
#include <kwdraw/window/help_window.h>
#include <kwdraw/window/match_preview.h>
#include <kwdraw/window/notice_bar.h>
#include <kwdraw/window/selection_output.h>

namespace {

constexpr double kZoomStep = 1.5;

struct ThemeCommand
{
    Command command;
    Theme theme;
};
constexpr ThemeCommand kThemes[] = {{Command::SystemTheme, Theme::System},
                                    {Command::LightTheme, Theme::Light},
                                    {Command::DarkTheme, Theme::Dark},
                                    {Command::ContrastTheme, Theme::HighContrast}};

unsigned when(bool condition, unsigned need)
{
    return condition ? need : 0U;
}

} // namespace

void MainWindow::connectCommands()
{
    m_themes = new QActionGroup(this);
    Commands& on = m_commands;
    Selection& selection = m_document.selection();
    on.on(Command::Open, [this] { askForFile(); });
    on.on(Command::Reload, [this] { reload(); });
    on.on(Command::Quit, [this] { close(); });
    on.on(Command::OpenBlock, [this] { askForBlock(); });
    on.on(Command::CloseBlock, [this] { m_document.closeBlock(); });
    on.on(Command::Findings,
          [this] { showFindings(m_document.drawing().path, m_document.drawing().report, this); });
    on.on(Command::Undo, [&selection] { selection.undo(); });
    on.on(Command::Redo, [&selection] { selection.redo(); });
    on.on(Command::SelectAll, [this] { selectAll(); });
    on.on(Command::Invert, [this, &selection] { selection.invert(pickable()); });
    on.on(Command::Deselect, [&selection] { selection.clear(); });
    on.on(Command::QuickSelect, [this] { quickSelect(); });
    on.on(Command::ZoomExtents, [this] { m_view->zoomToExtents(); });
    on.on(Command::ZoomWindow, [this] { m_view->beginZoomWindow(); });
    on.on(Command::ZoomSelection, [this, &selection] { m_view->zoomTo(selection.ids()); });
    on.on(Command::ZoomPrevious, [this] { m_view->zoomToPrevious(); });
    on.on(Command::ZoomIn, [this] { m_view->zoomBy(kZoomStep); });
    on.on(Command::ZoomOut, [this] { m_view->zoomBy(1.0 / kZoomStep); });
    on.on(Command::NextSelected, [this] { goTo(+1); });
    on.on(Command::PreviousSelected, [this] { goTo(-1); });
    on.on(Command::Layers, [this] {
        auto* dock = findChild<QDockWidget*>("layersDock");
        dock->show();
        dock->raise(); // it may stand behind another one
        // Later, since the line that a command is typed in keeps the keys until it has ended.
        QTimer::singleShot(0, m_layers, &LayerPanel::focusFilter);
    });
    on.on(Command::Help, [this] { showHelp("kwdraw.md", this); });
    on.on(Command::QuickSelectHelp, [this] { showHelp("quick_select.md", this); });
    on.on(Command::Keys, [this] { showHelp("keys.md", this); });
    on.on(Command::About, [this] { showAbout(); });
    on.onToggled(Command::Lineweights, [this](bool shown) { m_view->setLineweightsShown(shown); });
    for (const ThemeCommand& each : kThemes) {
        m_themes->addAction(on.action(each.command));
        on.on(each.command, [this, &each] {
            storeTheme(each.theme);
            setTheme(each.theme);
        });
    }
    on.onToggled(Command::ListValues,
                 [](bool listed) { setSwitch(L"QSELECTLISTVALUES", listed ? 1 : 0); });
    on.onToggled(Command::PreviewMatches, [this](bool shown) { m_matches->setOn(shown); });
    m_commandLine->setCommands(m_commands.typedNames() + QStringList{"EXPORT", "LAYOUT"});
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::carryOut);
    connect(m_commandLine, &CommandLine::left, this, [this] {
        focusDrawing();
        endOrClear();
    });
}

void MainWindow::updateCommands()
{
    const Selection& selection = m_document.selection();
    const bool waits = isWaiting() || m_document.isBusy();
    m_commands.update(
        when(m_document.isOpen(), kDrawing) | when(!selection.ids().empty(), kSelected) |
        when(!waits, kAttention) | when(selection.canUndo(), kUndoable) |
        when(selection.canRedo(), kRedoable) | when(!m_output->isRunning(), kWriter) |
        when(!m_runs.runs().empty(), kRun) | when(m_document.hasOpenBlock(), kBlockOpen) |
        when(!m_filters->recent().empty(), kRecentFilter) |
        when(m_document.isOpen() && m_document.drawing().report.totalFindings > 0, kFindings));
    m_recentMenu->setEnabled(!waits);
}

void MainWindow::carryOut(const QString& line)
{
    if (line.isEmpty()) {
        m_picking.finish();
        return focusDrawing();
    }
    m_commandLine->say(line);
    if (carryOutWithArgument(line))
        return;
    const std::optional<Command> command = m_commands.byTypedName(line);
    if (!command) {
        const QStringList names = m_commands.typedNames();
        std::vector<std::wstring> known;
        for (const QString& name : names)
            known.push_back(name.toStdWString());
        const std::wstring* nearest = nearestName(line.simplified().toStdWString(), known);
        QString sentence = tr("Unknown command \"%1\".").arg(line);
        if (nearest)
            sentence += ' ' + tr("Did you mean %1?").arg(QString::fromStdWString(*nearest));
        return m_commandLine->say(sentence + ' ' + tr("KEYS lists all commands."));
    }
    QAction* action = m_commands.action(*command);
    if (!action->isEnabled())
        return m_commandLine->say(tr("That can't be done now."));
    action->trigger();
}

bool MainWindow::carryOutWithArgument(const QString& line)
{
    const QString name = line.section(' ', 0, 0).toUpper();
    const QString argument = line.section(' ', 1).trimmed();
    if (argument.isEmpty())
        return false;
    if (name == "OPEN") {
        openFile(argument);
        return true;
    }
    if (name == "EXPORT" && !m_commands.byTypedName(line)) {
        exportTo(argument, false);
        return true;
    }
    if (name == "LAYOUT") {
        if (!isWaiting() && !m_document.showSpace(argument))
            m_commandLine->say(tr("The drawing has no layout \"%1\".").arg(argument));
        return true;
    }
    return false;
}

void MainWindow::endOrClear()
{
    if (m_view->cancelBox())
        return;
    if (m_picking.isPicking())
        m_picking.giveUp();
    else if (m_commands.action(Command::Deselect)->isEnabled())
        m_document.selection().clear();
}

void MainWindow::setTheme(Theme theme)
{
    for (const ThemeCommand& each : kThemes)
        if (each.theme == theme)
            m_commands.action(each.command)->setChecked(true);
    m_theme = theme;
    applyTheme(theme);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ThemeChange && m_theme == Theme::System)
        applyTheme(m_theme);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const bool isEnd = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
    const bool isText = !event->text().isEmpty() && event->text()[0].isPrint() &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (event->key() == Qt::Key_Escape)
        endOrClear();
    else if (isEnd && m_picking.isPicking())
        m_picking.finish();
    else if (isEnd)
        m_commandLine->focusInput();
    else if (event->key() == Qt::Key_Home)
        m_view->zoomToExtents();
    else if (isText)
        m_commandLine->type(event->text());
    else
        QMainWindow::keyPressEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (isWaiting()) {
        // The command that waits for the user has to come to its end first.
        m_picking.giveUp();
        event->ignore();
        return;
    }
    m_loader.cancel();
    m_document.cancelBuilding();
    storeSettings();
    QMainWindow::closeEvent(event);
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About kwdraw"),
                       tr("kwdraw %1\n\nShows drawings and selects among their objects by their "
                          "properties.")
                           .arg(QCoreApplication::applicationVersion()));
}
