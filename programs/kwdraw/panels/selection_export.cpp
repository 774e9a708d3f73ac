#include <kwdraw/panels/selection_export.h>

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QClipboard>

#include <exchange/drawing_writer.h>
#include <kwdraw/panels/select_similar.h>
#include <kwdraw/panels/selection_rows.h>
#include <runtime/utf8.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kSlice = 15ms;

} // namespace

std::vector<std::string> exportColumns(const std::vector<MergedProperty>& shown)
{
    std::vector<std::string> columns = defaultColumns(false, false);
    const std::vector<std::string> fixed = columns;
    std::vector<std::wstring> names;
    for (const MergedProperty& property : shown)
        names.push_back(comparable(property.name()));
    for (const MergedProperty& property : shown) {
        const std::wstring name = comparable(property.name());
        const bool isFixed = std::any_of(fixed.begin(), fixed.end(), [&](const auto& c) {
            return comparable(kdFromUtf8(c)) == name;
        });
        if (isFixed && isGeneral(property)) // the layer
            continue;
        // A name that stands for several properties, for a column of its own or for what a block
        // holds needs the key.
        const bool isPlain =
            !isFixed && !property.isOpen && std::count(names.begin(), names.end(), name) == 1;
        std::wstring key = property.key;
        std::erase(key, L'\t');
        columns.push_back(kdToUtf8(isPlain ? property.name() : key));
    }
    return columns;
}

SelectionExport::SelectionExport(const Module& module, const KdDbDatabase& database,
                                 std::filesystem::path drawing, QObject* parent)
    : QObject(parent), m_module(module), m_database(database), m_drawing(std::move(drawing))
{
    m_slice.setInterval(0);
    connect(&m_slice, &QTimer::timeout, this, &SelectionExport::writeOn);
    connect(&m_task, &BackgroundTask::finished, this, [this] { end(m_problem); });
}

SelectionExport::~SelectionExport() = default;

void SelectionExport::toFile(const std::vector<KdDbObjectId>& entities,
                             const std::filesystem::path& file, const ExportOptions& options)
{
    cancel();
    std::string problem;
    if (options.format == ExportFormat::Drawing)
        return writeDrawing(entities, file, options.overwrite);
    auto rows = std::make_unique<SelectionRows>(m_module, entities, options, m_drawing.string());
    const SafeFileRules rules{.overwrite = options.overwrite,
                              .untouchable = kdFileIdentity(m_drawing)};
    if (rows->open(file, rules, problem))
        start(std::move(rows));
    else
        end(problem);
}

void SelectionExport::writeDrawing(const std::vector<KdDbObjectId>& entities,
                                   const std::filesystem::path& file, bool overwrite)
{
    KdString error;
    PreparedSelection selection;
    if (prepareSelection(m_database, entities, selection, error) != eOk)
        return end(file.string() + ": " + kdToUtf8(error));
    m_problem.clear();
    m_task.start([this, file, overwrite, selection = std::move(selection)](const auto&) {
        KdString failure;
        if (writeSelection(selection, file, failure, {overwrite}) != eOk)
            m_problem = file.string() + ": " + kdToUtf8(failure);
    });
}

void SelectionExport::toClipboard(const std::vector<KdDbObjectId>& entities,
                                  const ExportOptions& options)
{
    cancel();
    start(std::make_unique<SelectionRows>(m_module, entities, options, m_drawing.string()));
}

void SelectionExport::start(std::unique_ptr<SelectionRows> rows)
{
    m_rows = std::move(rows);
    writeOn(); // most selections are done with that
    if (m_rows)
        m_slice.start();
}

void SelectionExport::writeOn()
{
    m_rows->writeOn(kSlice);
    emit progressed(static_cast<int>(m_rows->written()), static_cast<int>(m_rows->size()));
    if (!m_rows || !m_rows->isDone()) // given up by who was told, or not at its end
        return;
    std::string problem;
    const auto rows = std::move(m_rows);
    if (rows->finish(problem) && rows->isText())
        QApplication::clipboard()->setText(QString::fromStdString(rows->text()));
    end(problem);
}

void SelectionExport::cancel()
{
    m_slice.stop();
    m_rows.reset();
}

void SelectionExport::end(const std::string& problem)
{
    m_slice.stop();
    m_rows.reset();
    emit finished(QString::fromStdString(problem));
}
