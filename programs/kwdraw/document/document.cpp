#include <kwdraw/document/document.h>

#include <editor/current_space.h>

#include <QFileInfo>

#include <algorithm>
#include <utility>

#include <kwdraw/document/settings.h>
#include <kwdraw/scene/scene_builder.h>

namespace {

QString textOf(const KdString& text)
{
    return QString::fromWCharArray(text.kwszPtr(), static_cast<int>(text.length()));
}

QString nameOfBlock(KdDbObjectId id)
{
    const OpenForRead<KdDbBlockTableRecord> block(id);
    return block ? textOf(block->name()) : QString();
}

/// The sentence on why a block is not shown.
QString whyNot(KdErrorStatus status, const QString& name)
{
    if (status == eNotApplicable)
        return Document::tr("%1 is an external reference or a layout and can't be opened.")
            .arg(name);
    return Document::tr("The block %1 can't be opened.").arg(name);
}

} // namespace

/// What survives a reload, by names and handles.
struct Document::Remembered
{
    QString space;
    QString block;
    std::vector<KdDbHandle> selected;
};

Document::Document(QObject* parent) : QObject(parent)
{
    connect(&m_building, &BackgroundTask::progressed, this, &Document::building);
    connect(&m_building, &BackgroundTask::finished, this, &Document::endBuilding);
}

Document::~Document()
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
}

void Document::take(std::shared_ptr<OpenDrawing> drawing)
{
    emit leaving();
    leaveBlock();
    m_selection.reset();
    kddbHostApplicationServices()->setWorkingDatabase(drawing->database.get());
    // Whoever still shows the old drawing hears of the new one before the old one goes.
    const std::shared_ptr<OpenDrawing> old = std::exchange(m_drawing, std::move(drawing));
    const KdDbObjectId active =
        kddbHostApplicationServices()->layoutManager()->getActiveLayoutBTRId();
    const auto& spaces = m_drawing->spaces;
    const auto found = std::find_if(spaces.begin(), spaces.end(),
                                    [&](const DrawingSpace& each) { return each.block == active; });
    enter(found == spaces.end() ? 0 : static_cast<int>(found - spaces.begin()));
}

bool Document::isPutOff(std::shared_ptr<OpenDrawing>& drawing, bool isReload)
{
    if (!isBusy())
        return false;
    m_waiting = std::move(drawing);
    m_waitingIsReload = isReload;
    m_building.cancel();
    return true;
}

void Document::open(std::shared_ptr<OpenDrawing> drawing)
{
    if (isPutOff(drawing, false))
        return;
    take(std::move(drawing));
}

Document::Remembered Document::remember() const
{
    if (!m_drawing)
        return {};
    Remembered remembered;
    remembered.space = m_drawing->spaces[static_cast<std::size_t>(m_space)].name;
    if (!m_block.isNull())
        remembered.block = nameOfBlock(m_block);
    remembered.selected = m_selectedInBlock; // a block that is still being built has no selection
    for (const KdDbObjectId id : m_selection.ids())
        remembered.selected.push_back(id.handle());
    return remembered;
}

void Document::recall(const Remembered& remembered)
{
    showSpace(remembered.space);
    KdDbDatabase& database = *m_drawing->database;
    KdDbObjectId block;
    if (!remembered.block.isEmpty() && database.table<KdDbBlockTable>().getIdAt(
                                           remembered.block.toStdWString().c_str(), block) == eOk)
        return openBlock(block, remembered.selected);
    select(remembered.selected);
}

void Document::select(const std::vector<KdDbHandle>& handles)
{
    const KdDbObjectId space = kdedCurrentSpaceId();
    std::vector<KdDbObjectId> selected;
    for (const KdDbHandle handle : handles) {
        KdDbObjectId id;
        if (m_drawing->database->getObjectId(id, handle) == eOk && id.ownerId() == space)
            selected.push_back(id);
    }
    m_selection.set(selected);
}

void Document::reload(std::shared_ptr<OpenDrawing> drawing)
{
    if (isPutOff(drawing, true))
        return;
    const Remembered remembered = remember();
    take(std::move(drawing));
    recall(remembered);
}

void Document::enter(int number)
{
    m_space = number;
    m_selection.reset();
    const DrawingSpace& space = m_drawing->spaces[static_cast<std::size_t>(number)];
    kddbHostApplicationServices()->layoutManager()->setCurrentLayout(
        space.name.toStdWString().c_str());
    if (space.block != m_drawing->database->modelSpaceId())
        setSwitch(L"CVPORT", 1); // the sheet itself, not a window of it
    emit spaceChanged();
}

void Document::showSpace(int number)
{
    if (!m_drawing || isBusy() || number < 0 ||
        number >= static_cast<int>(m_drawing->spaces.size()))
        return;
    if (number == m_space && !hasOpenBlock())
        return;
    leaveBlock();
    enter(number);
}

bool Document::showSpace(const QString& name)
{
    if (!m_drawing)
        return false;
    const auto& spaces = m_drawing->spaces;
    const auto found = std::find_if(spaces.begin(), spaces.end(), [&](const DrawingSpace& each) {
        return each.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == spaces.end())
        return false;
    showSpace(static_cast<int>(found - spaces.begin()));
    return true;
}

void Document::openBlock(KdDbObjectId block)
{
    openBlock(block, {});
}

void Document::openBlock(KdDbObjectId block, std::vector<KdDbHandle> selected)
{
    if (!m_drawing || isBusy())
        return;
    m_selection.reset();
    const KdErrorStatus status = kdedOpenBlock(block);
    if (status != eOk) {
        emit blockFailed(whyNot(status, nameOfBlock(block)));
        return;
    }
    m_block = block;
    m_selectedInBlock = std::move(selected);
    const QString folder = QFileInfo(m_drawing->path).absolutePath();
    m_building.start([this, block, folder](const BackgroundTask::Progress& progress) {
        m_built = buildScene(*m_drawing->database, block, nullptr, progress, folder);
    });
    emit busyChanged();
}

void Document::endBuilding()
{
    const std::shared_ptr<const Scene> built = std::exchange(m_built, nullptr);
    m_blockScene = built;
    emit busyChanged();
    if (std::shared_ptr<OpenDrawing> waiting = std::exchange(m_waiting, nullptr))
        return m_waitingIsReload ? reload(std::move(waiting)) : open(std::move(waiting));
    if (!built) {
        emit blockFailed(tr("The block %1 was not opened.").arg(nameOfBlock(m_block)));
        closeBlock();
        return;
    }
    emit spaceChanged();
    select(std::exchange(m_selectedInBlock, {}));
}

void Document::leaveBlock()
{
    kdedCloseBlock();
    m_selectedInBlock.clear();
    m_block = {};
    m_blockScene.reset();
}

void Document::closeBlock()
{
    if (!m_drawing || isBusy() || m_block.isNull())
        return;
    leaveBlock();
    enter(m_space);
}

QString Document::openBlockName() const
{
    return hasOpenBlock() ? nameOfBlock(m_block) : QString();
}

std::shared_ptr<const Scene> Document::scene() const
{
    if (m_blockScene)
        return m_blockScene;
    return m_drawing ? m_drawing->spaces[static_cast<std::size_t>(m_space)].scene : nullptr;
}
