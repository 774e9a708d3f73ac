// The panels that read and run filters, and what leaves the program.
#include <kwdraw/window/main_window.h>

#include <runtime/utf8.h>

#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>

#include <common/command_line_text.h>
#include <kwdraw/document/sentences.h>
#include <kwdraw/panels/command_line.h>
#include <kwdraw/panels/filter_running.h>
#include <kwdraw/panels/property_panel.h>
#include <kwdraw/panels/saved_filters.h>
#include <kwdraw/panels/select_similar.h>
#include <kwdraw/window/selection_output.h>
#include <kwdraw/window/status_line.h>

namespace {

struct Offered
{
    Command command;
    ExportFormat format;
    const char* files; ///< as a file dialog takes it
    const char* ending;
};

// clang-format off
constexpr Offered kExports[] = {
    {Command::ExportHandles, ExportFormat::Handles, QT_TRANSLATE_NOOP("MainWindow", "Handles (*.txt)"),  "txt"},
    {Command::ExportCsv,     ExportFormat::Csv,     QT_TRANSLATE_NOOP("MainWindow", "Tables (*.csv)"),   "csv"},
    {Command::ExportJson,    ExportFormat::Json,    QT_TRANSLATE_NOOP("MainWindow", "JSON (*.json)"),    "json"},
    {Command::ExportDrawing, ExportFormat::Drawing, QT_TRANSLATE_NOOP("MainWindow", "Drawings (*.dxf)"), "dxf"},
};
constexpr Offered kCopies[] = {
    {Command::CopyHandles, ExportFormat::Handles, "", ""},
    {Command::CopyTable,   ExportFormat::Table,   "", ""},
    {Command::CopyJson,    ExportFormat::Json,    "", ""},
};
// clang-format on

/// The space as kwselect names it.
std::string spaceName(const Document& document)
{
    if (document.hasOpenBlock())
        return "block:" + document.openBlockName().toStdString();
    const OpenDrawing& drawing = document.drawing();
    const DrawingSpace& space = drawing.spaces[static_cast<std::size_t>(document.space())];
    const bool isModel = space.block == drawing.database->modelSpaceId();
    return isModel ? "model" : "paper:" + space.name.toStdString();
}

} // namespace

void MainWindow::connectPanels()
{
    connect(m_properties, &PropertyPanel::runRequested, this, [this](const RunRequest& request) {
        run([&](std::string& problem) { return ::carryOut(m_module, request, problem); }, true);
    });
    connect(m_properties, &PropertyPanel::similarRequested, this, &MainWindow::findSimilar);
    connect(m_filters, &SavedFilters::runRequested, this, &MainWindow::runWritten);
    connect(m_filters, &SavedFilters::recentChanged, this, &MainWindow::updateCommands);
    connect(m_output, &SelectionOutput::progressed, this,
            [this](double part) { m_status->showWork(tr("Writing the selection"), part); });
    connect(m_output, &SelectionOutput::ended, this,
            [this](const QString& sentence, bool isProblem) {
                showWork();
                isProblem ? tellProblem(sentence) : m_commandLine->say(sentence);
            });
    for (const Offered& offered : kExports)
        m_commands.on(offered.command, [this, &offered] {
            exportSelection(tr(offered.files), QLatin1String(offered.ending));
        });
    for (const Offered& offered : kCopies)
        m_commands.on(offered.command, [this, &offered] {
            m_output->copy(offered.format, exportColumns(m_properties->properties()));
        });
    m_commands.on(Command::CopyCommand, [this] { copyCommand(); });
    m_commands.on(Command::RunLast, [this] { runLast(); });
    m_commands.on(Command::SelectSimilar, [this] { findSimilar(m_document.selection().ids()); });
}

bool MainWindow::run(const std::function<bool(std::string&)>& command, bool isOneRun)
{
    if (!m_document.isOpen() || isWaiting() || m_document.isBusy()) {
        m_commandLine->say(tr("That can't be done now."));
        return false;
    }
    std::string problem;
    bool isDone = false;
    {
        const CommandScope scope(*this);
        isDone = command(problem);
    }
    if (!isDone)
        tellProblem(inUserLanguage(QString::fromStdString(problem)));
    else if (isOneRun)
        noteRun();
    updateCommands();
    return isDone;
}

void MainWindow::runWritten(const QString& text)
{
    const std::wstring filter = text.toStdWString();
    std::string problem;
    const bool isDone = run(
        [&](std::string& reason) {
            const bool found = runFilter(m_module, filter, m_filters->filters(), reason);
            if (found)
                m_runs.add(m_filters->filters().expandedText(filter));
            problem = reason;
            return found;
        },
        false);
    if (isDone)
        m_filters->noteRun(filter);
    else
        m_filters->tell(inUserLanguage(QString::fromStdString(problem)));
}

void MainWindow::runLast()
{
    runWritten(QString::fromStdWString(m_filters->recent().front()));
}

void MainWindow::fillFilterMenu()
{
    constexpr int kLongest = 60; // characters that a menu shows of a filter
    m_filterMenu->clear();
    int number = 0;
    for (const std::wstring& filter : m_filters->recent()) {
        const QString text = QString::fromStdWString(filter);
        QString shown = text.size() > kLongest ? text.left(kLongest) + QChar(0x2026) : text;
        QAction* action =
            m_filterMenu->addAction(tr("&%1 %2").arg(++number % 10).arg(shown.replace('&', "&&")),
                                    this, [this, text] { runWritten(text); });
        action->setToolTip(text);
        action->setEnabled(m_commands.action(Command::QuickSelect)->isEnabled());
    }
    m_filterMenu->addSeparator();
    QAction* clear =
        m_filterMenu->addAction(tr("&Clear List"), this, [this] { m_filters->forgetRecent(); });
    clear->setEnabled(number > 0);
}

void MainWindow::findSimilar(const std::vector<KdDbObjectId>& entities)
{
    run([&](std::string& problem) { return ::selectSimilar(m_module, entities, problem); }, false);
}

void MainWindow::noteRun()
{
    const std::optional<RunRequest> last = lastRun(m_module);
    if (last)
        m_runs.add(*last, m_document.selection().ids().size());
    else
        m_runs.breakOff();
    m_filters->noteRun(last ? filterText(*last) : std::wstring());
}

void MainWindow::exportSelection(const QString& files, const QString& ending)
{
    const QFileInfo drawing(m_document.drawing().path);
    const QString proposed =
        drawing.absolutePath() + '/' + drawing.completeBaseName() + "-selection." + ending;
    const QString file =
        QFileDialog::getSaveFileName(this, tr("Export the Selection"), proposed, files);
    if (!file.isEmpty())
        exportTo(QFileInfo(file).suffix().isEmpty() ? file + '.' + ending : file, true);
}

void MainWindow::exportTo(const QString& file, bool overwrite)
{
    if (!m_document.isOpen() || m_output->isRunning() || m_document.selection().ids().empty())
        return m_commandLine->say(tr("There is nothing to write."));
    ExportOptions options;
    options.format = formatOf(file);
    options.columns = exportColumns(m_properties->properties());
    options.overwrite = overwrite;
    m_output->write(file, options);
}

void MainWindow::copyCommand()
{
    Catalog catalog(m_module);
    const CommandLineText line =
        commandLineFor(m_runs.runs(), QFile::encodeName(m_document.drawing().path).toStdString(),
                       spaceName(m_document), catalog);
    const QString text = QString::fromStdString(line.text);
    QGuiApplication::clipboard()->setText(text);
    m_commandLine->say(text);
    if (!line.note.empty())
        m_commandLine->say(inUserLanguage(QString::fromStdString(line.note)));
}
