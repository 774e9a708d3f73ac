/// Walks the entities of a space and, through its block references, those of blocks.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include <QString>

#include <database/block_table.h>
#include <kwdraw/scene/look_table.h>
#include <kwdraw/scene/picture_store.h>
#include <kwdraw/scene/scene_writer.h>

class EntityWalk;

/// What a drawing says for all its entities, read once.
struct DrawingSettings
{
    explicit DrawingSettings(const KdDbDatabase& database);

    int pointMode;
    double pointSize;
    int attributeMode; ///< 0 shows no attribute, 1 those that are visible, 2 all
    bool fillsAreas;
};

/// Draws an entity with the means of the walk, which has set its look.
using DrawEntity = void (*)(const KdDbEntity& entity, EntityWalk& walk);

class EntityWalk
{
  public:
    /// @param folder      where pictures are looked for that are not found under their whole path
    /// @param mostPoints  what blocks may add, as for `buildScene`
    EntityWalk(const KdDbDatabase& database, Scene& scene, const KdGeMatrix3d& toScene,
               const QString& folder, std::uint64_t mostPoints);

    /// Draws all entities of a block as items of the scene. False if `progress` gave up.
    bool drawSpace(const KdDbBlockTableRecord& space, const std::function<bool(double)>& progress);

    // For those who draw entities:

    const KdDbDatabase& database() const { return m_database; }
    const DrawingSettings& settings() const { return m_settings; }
    const LookTable& looks() const { return m_looks; }
    PictureStore& pictures() { return m_pictures; }
    SceneWriter& writer() { return m_writer; }
    /// An empty path, valid until the next call.
    ScenePath& newPath();

    /// What a single entity may still add; blocks are drawn as boxes when it is used up.
    std::size_t pointsLeft() const;
    bool isTooMuch() const { return pointsLeft() == 0; }
    /// True for entities of the space itself, which are not seen through a reference.
    bool isInSpace() const { return m_activeBlocks.size() == 1; }
    /// The entity's own look, however it is changed meanwhile.
    const SceneLook& entityLook() const { return m_entityLook; }
    std::uint32_t entityLayer() const { return m_entityLayer; }
    /// Changes the look until the entity is done. Colours "by block" leave it as it is, so that
    /// parts of an entity which have no colour of their own take the entity's.
    void setPartColor(const KdCmColor& color);
    void setPartLineweight(int lineweight);
    void setPartLinetype(KdDbObjectId linetype);
    void setPartLook(const SceneLook& look) { m_writer.setLook(look, m_writer.layer()); }
    /// Back to the entity's own look.
    void resetPartLook() { setPartLook(m_entityLook); }

    /// Draws the entities of a block, seen through the entity that is being drawn. A block that is
    /// just being drawn shows nothing.
    /// @param clip  corners in the frame of the block, between which it is seen; empty: all of it
    void drawBlock(KdDbObjectId block, const KdGeMatrix3d& placement,
                   std::span<const KdGePoint3d> clip = {});
    /// Draws an entity that belongs to the one that is being drawn, such as an attribute.
    void drawPart(KdDbObjectId part);

  private:
    void drawId(KdDbObjectId id);
    void drawEntity(const KdDbEntity& entity);
    void drawContents(const std::vector<KdDbObjectId>& ids);
    void drawAsBox(KdDbObjectId block);
    const std::vector<KdDbObjectId>& contentsOf(KdDbObjectId block);
    SceneBox boxOf(KdDbObjectId block);
    std::uint32_t layerOf(const KdDbEntity& entity) const;
    DrawEntity drawerOf(const KdRxClass* rxClass);

    const KdDbDatabase& m_database;
    Scene& m_scene;
    DrawingSettings m_settings;
    LookTable m_looks;
    PictureStore m_pictures;
    SceneWriter m_writer;
    ScenePath m_path;
    QString m_folder;
    std::uint64_t m_mostPoints;

    SceneLook m_byBlock;
    std::uint32_t m_layerForZero;              ///< what layer "0" means here
    std::optional<std::uint32_t> m_coverLayer; ///< a frozen layer that all this is seen through
    SceneLook m_entityLook;
    std::uint32_t m_entityLayer = 0;
    std::vector<KdDbObjectId> m_activeBlocks;
    std::uint64_t m_work = 0; ///< without the points
    std::unordered_map<const KdRxClass*, DrawEntity> m_drawers;
    std::unordered_map<KdDbObjectId, std::vector<KdDbObjectId>> m_contents;
    std::unordered_map<KdDbObjectId, SceneBox> m_boxes;
};
