#include <kwdraw/document/drawing_loader.h>

#include <QFile>
#include <QFileInfo>
#include <QThreadPool>

#include <algorithm>
#include <utility>

#include <common/drawing_reading.h>
#include <database/goodbye.h>
#include <kwdraw/document/sentences.h>
#include <kwdraw/scene/scene_builder.h>

namespace {

/// Of the whole work, the part that reading the file takes; the scenes share the rest.
constexpr double kReadingPart = 0.5;

QString textOf(const KdString& text)
{
    return QString::fromWCharArray(text.kwszPtr(), static_cast<int>(text.length()));
}

/// Builds the scenes of all spaces, the model's first because the sheets show it. False if it was
/// told to give up.
bool buildScenes(OpenDrawing& drawing, const BackgroundTask::Progress& progress)
{
    std::shared_ptr<const Scene> model;
    const double part = (1.0 - kReadingPart) / static_cast<double>(drawing.spaces.size());
    const QString folder = QFileInfo(drawing.path).absolutePath();
    double done = kReadingPart;
    for (DrawingSpace& space : drawing.spaces) {
        const auto inside = [&](double fraction) { return progress(done + fraction * part); };
        space.scene = buildScene(*drawing.database, space.block, model, inside, folder);
        if (!space.scene)
            return false;
        if (!model)
            model = space.scene;
        done += part;
        if (!progress(done))
            return false;
    }
    return true;
}

} // namespace

std::shared_ptr<OpenDrawing> makeOpenDrawing()
{
    return {new OpenDrawing, [](OpenDrawing* drawing) {
                if (drawing->database)
                    kddbSayGoodbye(*drawing->database);
                QThreadPool::globalInstance()->start([drawing] { delete drawing; });
            }};
}

std::vector<DrawingSpace> spacesOf(const KdDbDatabase& database)
{
    const KdDbObjectId layouts =
        kddbDictionaryEntry(database.namedObjectsDictionaryId(), L"ACAD_LAYOUT");
    std::vector<std::pair<int, DrawingSpace>> spaces;
    if (const OpenForRead<KdDbDictionary> dictionary(layouts); dictionary) {
        for (const auto& entry : dictionary->entries()) {
            const OpenForRead<KdDbLayout> layout(entry.id);
            if (!layout || layout->getBlockTableRecordId().isNull())
                continue;
            const KdDbObjectId block = layout->getBlockTableRecordId();
            const int order =
                block == database.modelSpaceId() ? -1 : std::max(0, layout->getTabOrder());
            spaces.push_back({order, {textOf(layout->getLayoutName()), block, nullptr}});
        }
    }
    std::stable_sort(spaces.begin(), spaces.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<DrawingSpace> sorted;
    if (spaces.empty() || spaces.front().first >= 0) // a drawing whose layouts are damaged
        sorted.push_back({QStringLiteral("Model"), database.modelSpaceId(), nullptr});
    for (auto& [order, space] : spaces)
        sorted.push_back(std::move(space));
    return sorted;
}

/// What the work leaves behind.
struct DrawingLoader::Outcome
{
    std::shared_ptr<OpenDrawing> drawing;
    KdErrorStatus status = eOk;
};

DrawingLoader::DrawingLoader(QObject* parent) : QObject(parent)
{
    connect(&m_task, &BackgroundTask::progressed, this, &DrawingLoader::progressed);
    connect(&m_task, &BackgroundTask::finished, this, &DrawingLoader::end);
}

DrawingLoader::~DrawingLoader() = default;

void DrawingLoader::load(const QString& path)
{
    if (!isLoading())
        return start(path);
    m_next = path;
    m_task.cancel();
}

void DrawingLoader::cancel()
{
    m_next.reset();
    m_task.cancel();
}

void DrawingLoader::start(const QString& path)
{
    m_path = path;
    m_outcome = std::make_shared<Outcome>();
    m_outcome->drawing = makeOpenDrawing();
    m_outcome->drawing->path = path;
    m_task.start([outcome = m_outcome](const BackgroundTask::Progress& progress) {
        read(*outcome, progress);
    });
}

void DrawingLoader::read(Outcome& outcome, const BackgroundTask::Progress& progress)
{
    OpenDrawing& drawing = *outcome.drawing;
    ReadOptions options;
    options.readAllMembers = true;
    options.progress = [&](double part) { return progress(part * kReadingPart); };
    outcome.status = readDrawingOrConvert(QFile::encodeName(drawing.path).toStdString(),
                                          drawing.database, drawing.report, options);
    if (outcome.status != eOk)
        return;
    drawing.spaces = spacesOf(*drawing.database);
    if (!buildScenes(drawing, progress))
        outcome.status = eUserBreak;
}

void DrawingLoader::end()
{
    const std::shared_ptr<Outcome> outcome = std::exchange(m_outcome, nullptr);
    const QString path = std::exchange(m_path, {});
    const std::optional<QString> next = std::exchange(m_next, std::nullopt);
    if (next)
        start(*next);
    else if (outcome->status == eUserBreak || m_task.isCancelled())
        emit cancelled(path);
    else if (outcome->status == eOk)
        emit loaded(outcome->drawing);
    else
        emit failed(path, tr("%1 can't be opened: %2")
                              .arg(QFileInfo(path).fileName(),
                                   inUserLanguage(textOf(outcome->drawing->report.error))));
}
