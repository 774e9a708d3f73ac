#include <kwdraw/window/selection_output.h>

#include <QFile>
#include <QFileInfo>

#include <utility>

#include <kwdraw/document/document.h>

SelectionOutput::SelectionOutput(const Module& module, Document& document, QObject* parent)
    : QObject(parent), m_module(module), m_document(document)
{
    connect(&document, &Document::leaving, this, &SelectionOutput::cancel);
}

SelectionOutput::~SelectionOutput() = default;

SelectionExport& SelectionOutput::begin(const QString& onSuccess)
{
    const OpenDrawing& drawing = m_document.drawing();
    m_export = std::make_unique<SelectionExport>(m_module, *drawing.database,
                                                 QFile::encodeName(drawing.path).toStdString());
    connect(m_export.get(), &SelectionExport::progressed, this, [this](int done, int all) {
        emit progressed(static_cast<double>(done) / std::max(all, 1));
    });
    connect(m_export.get(), &SelectionExport::finished, this,
            [this, onSuccess](const QString& problem) {
                m_export.release()->deleteLater(); // it is its signal that runs
                emit ended(problem.isEmpty() ? onSuccess : problem, !problem.isEmpty());
            });
    return *m_export;
}

void SelectionOutput::copy(ExportFormat format, std::vector<std::string> columns)
{
    const auto ids = m_document.selection().ids();
    ExportOptions options;
    options.format = format;
    options.columns = std::move(columns);
    begin(tr("%n objects are in the clipboard.", nullptr, static_cast<int>(ids.size())))
        .toClipboard(ids, options);
}

void SelectionOutput::write(const QString& file, const ExportOptions& options)
{
    const auto ids = m_document.selection().ids();
    const QString done = tr("%n objects were written to %1.", nullptr, static_cast<int>(ids.size()))
                             .arg(QFileInfo(file).fileName());
    begin(done).toFile(ids, QFile::encodeName(file).toStdString(), options);
}

void SelectionOutput::cancel()
{
    if (!m_export)
        return;
    m_export.release()->deleteLater();
    emit ended(tr("Writing the selection was given up."), true);
}

ExportFormat formatOf(const QString& file)
{
    const QString ending = QFileInfo(file).suffix().toLower();
    if (ending == "csv")
        return ExportFormat::Csv;
    if (ending == "json")
        return ExportFormat::Json;
    return ending == "dxf" ? ExportFormat::Drawing : ExportFormat::Handles;
}
