#include <kwdraw/scene/entity_walk.h>

#include <algorithm>
#include <utility>

#include <database/database.h>
#include <entities/draw_order.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

/// A deeper nesting is a mistake, and the stack has its limits.
constexpr std::size_t kDeepestNesting = 64;

// By the time that they take, in points.
constexpr std::uint64_t kWorkOfEntity = 2;
constexpr std::uint64_t kWorkOfReference = 16;

constexpr std::size_t kEntitiesBetweenReports = 256;

/// Keeps a value and puts it back.
template <class Value>
class Restored
{
  public:
    explicit Restored(Value& value) : m_value(value), m_kept(value) {}
    ~Restored() { m_value = std::move(m_kept); }
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;

  private:
    Value& m_value;
    Value m_kept;
};

SceneLook foreground()
{
    SceneLook look;
    look.isForeground = true;
    look.lineweight = 25;
    return look;
}

} // namespace

DrawingSettings::DrawingSettings(const KdDbDatabase& database)
    : pointMode(database.header().integer(L"PDMODE")),
      pointSize(database.header().real(L"PDSIZE")),
      attributeMode(database.header().integer(L"ATTMODE")),
      fillsAreas(database.header().integer(L"FILLMODE") != 0)
{
}

EntityWalk::EntityWalk(const KdDbDatabase& database, Scene& scene, const KdGeMatrix3d& toScene,
                       const QString& folder, std::uint64_t mostPoints)
    : m_database(database),
      m_scene(scene),
      m_settings(database),
      m_looks(database, scene),
      m_pictures(folder),
      m_writer(scene),
      m_folder(folder),
      m_mostPoints(mostPoints),
      m_byBlock(foreground()),
      m_layerForZero(m_looks.layerZero())
{
    m_writer.setFrame(toScene);
}

ScenePath& EntityWalk::newPath()
{
    m_path.clear();
    return m_path;
}

DrawEntity EntityWalk::drawerOf(const KdRxClass* rxClass)
{
    const auto [entry, isNew] = m_drawers.try_emplace(rxClass, nullptr);
    if (isNew)
        entry->second = findDrawer(rxClass);
    return entry->second;
}

std::uint32_t EntityWalk::layerOf(const KdDbEntity& entity) const
{
    const std::uint32_t layer = m_looks.layerOf(entity.layerId());
    return layer == m_looks.layerZero() ? m_layerForZero : layer;
}

bool EntityWalk::drawSpace(const KdDbBlockTableRecord& space,
                           const std::function<bool(double)>& progress)
{
    m_activeBlocks.push_back(space.objectId());
    const std::vector<KdDbObjectId> ids = kddbDrawOrder(space);
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (progress && i % kEntitiesBetweenReports == 0 &&
            !progress(static_cast<double>(i) / static_cast<double>(ids.size())))
            return false;
        const OpenForRead<KdDbEntity> entity(ids[i]);
        if (!entity || entity->isInvisible())
            continue;
        m_writer.beginItem(ids[i], m_looks.layerOf(entity->layerId()));
        drawEntity(*entity);
        m_writer.endItem();
    }
    m_activeBlocks.pop_back();
    return !progress || progress(1.0);
}

void EntityWalk::drawId(KdDbObjectId id)
{
    const OpenForRead<KdDbEntity> entity(id);
    if (entity && !entity->isInvisible())
        drawEntity(*entity);
}

void EntityWalk::drawEntity(const KdDbEntity& entity)
{
    const DrawEntity draw = drawerOf(entity.isA());
    if (!draw)
        return;
    m_entityLayer = layerOf(entity);
    m_entityLook = m_looks.lookOf(entity, m_entityLayer, m_byBlock);
    m_writer.setLook(m_entityLook, m_coverLayer.value_or(m_entityLayer));
    draw(entity, *this);
}

void EntityWalk::setPartColor(const KdCmColor& color)
{
    SceneLook look = m_writer.look();
    m_looks.setColor(look, color, m_entityLayer, m_entityLook);
    setPartLook(look);
}

void EntityWalk::setPartLineweight(int lineweight)
{
    SceneLook look = m_writer.look();
    m_looks.setLineweight(look, lineweight, m_entityLayer, m_entityLook);
    setPartLook(look);
}

void EntityWalk::setPartLinetype(KdDbObjectId linetype)
{
    SceneLook look = m_writer.look();
    look.linetypeScale = m_entityLook.linetypeScale;
    m_looks.setLinetype(look, linetype, m_entityLayer, m_entityLook);
    setPartLook(look);
}

const std::vector<KdDbObjectId>& EntityWalk::contentsOf(KdDbObjectId block)
{
    const auto [entry, isNew] = m_contents.try_emplace(block);
    if (isNew && block.isKindOf(KdDbBlockTableRecord::desc())) {
        const OpenForRead<KdDbBlockTableRecord> record(block);
        if (record && !record->isFromExternalReference())
            entry->second = kddbDrawOrder(*record);
    }
    return entry->second;
}

std::size_t EntityWalk::pointsLeft() const
{
    const std::uint64_t used = m_scene.points.size() + m_work + m_writer.clippingWork();
    return used < m_mostPoints ? m_mostPoints - used : 0;
}

void EntityWalk::drawBlock(KdDbObjectId block, const KdGeMatrix3d& placement,
                           std::span<const KdGePoint3d> clip)
{
    const bool isLoop = std::ranges::find(m_activeBlocks, block) != m_activeBlocks.end();
    if (block.isNull() || isLoop || m_activeBlocks.size() > kDeepestNesting)
        return;
    const Restored byBlock(m_byBlock);
    const Restored layerForZero(m_layerForZero);
    const Restored coverLayer(m_coverLayer);
    const Restored entityLook(m_entityLook);
    const Restored entityLayer(m_entityLayer);
    const KdGeMatrix3d frame = m_writer.frame();
    const SceneLook look = m_writer.look();
    const std::uint32_t layer = m_writer.layer();

    m_byBlock = look;
    m_layerForZero = m_entityLayer;
    // What is inside may be on other layers, but is hidden and comes back with this one. The
    // outermost reference is the item, whose layer hides all of it.
    if (!isInSpace() && !m_coverLayer && m_looks.isFrozen(m_entityLayer))
        m_coverLayer = m_entityLayer;
    m_writer.setFrame(frame * placement);
    m_writer.pushClip(clip);
    m_activeBlocks.push_back(block);
    if (isTooMuch())
        drawAsBox(block);
    else
        drawContents(contentsOf(block));
    m_activeBlocks.pop_back();
    m_writer.popClip();
    m_writer.setFrame(frame);
    m_writer.setLook(look, layer);
}

void EntityWalk::drawContents(const std::vector<KdDbObjectId>& ids)
{
    m_work += kWorkOfEntity * ids.size() + kWorkOfReference;
    for (const KdDbObjectId id : ids) {
        if (isTooMuch())
            return;
        drawId(id);
    }
}

void EntityWalk::drawPart(KdDbObjectId part)
{
    const Restored byBlock(m_byBlock);
    const Restored entityLook(m_entityLook);
    const Restored entityLayer(m_entityLayer);
    const SceneLook look = m_writer.look();
    const std::uint32_t layer = m_writer.layer();
    m_byBlock = m_entityLook;
    drawId(part);
    m_writer.setLook(look, layer);
}

SceneBox EntityWalk::boxOf(KdDbObjectId block)
{
    const auto [entry, isNew] = m_boxes.try_emplace(block);
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (!isNew || !record || record->isFromExternalReference())
        return entry->second;
    Scene scratch;
    // References in the block count by their boxes as well.
    EntityWalk walk(m_database, scratch, KdGeMatrix3d(), m_folder, 0);
    walk.m_activeBlocks = m_activeBlocks;
    std::swap(walk.m_boxes, m_boxes); // so that each box is made once, however deep blocks nest
    walk.drawSpace(*record, {});
    std::swap(walk.m_boxes, m_boxes);
    SceneBox box;
    for (const SceneItem& item : scratch.items)
        box.add(item.box);
    m_boxes[block] = box;
    return box;
}

void EntityWalk::drawAsBox(KdDbObjectId block)
{
    const SceneBox box = boxOf(block);
    if (box.isEmpty())
        return;
    ScenePath& path = newPath();
    path.moveTo({box.left, box.bottom, 0.0});
    path.lineTo({box.right, box.bottom, 0.0});
    path.lineTo({box.right, box.top, 0.0});
    path.lineTo({box.left, box.top, 0.0});
    path.close();
    m_writer.stroke(path);
}
