/// Resolves what entities look like.
#pragma once

#include <unordered_map>
#include <vector>

#include <database/color.h>
#include <kwdraw/scene/scene.h>

class KdDbDatabase;
class KdDbEntity;
class KdDbLayerTableRecord;

/// The layers and linetypes of a drawing, and what follows from them.
class LookTable
{
  public:
    /// Puts all layers and linetypes into the scene.
    LookTable(const KdDbDatabase& database, Scene& scene);

    /// The place of a layer in the scene; that of layer "0" for one that is not there.
    std::uint32_t layerOf(KdDbObjectId layer) const;
    std::uint32_t layerZero() const { return m_layerZero; }
    bool isFrozen(std::uint32_t layer) const { return m_scene.layers[layer].frozen; }

    /// @param layer    what counts as the entity's layer
    /// @param byBlock  the look of what the entity is seen through
    SceneLook lookOf(const KdDbEntity& entity, std::uint32_t layer, const SceneLook& byBlock) const;

    // Changes of one trait; the transparency stays when the colour changes.
    void setColor(SceneLook& look, const KdCmColor& color, std::uint32_t layer,
                  const SceneLook& byBlock) const;
    void setLineweight(SceneLook& look, int lineweight, std::uint32_t layer,
                       const SceneLook& byBlock) const;
    void setLinetype(SceneLook& look, KdDbObjectId linetype, std::uint32_t layer,
                     const SceneLook& byBlock) const;

    /// The dashes of a look; null if its lines are without breaks.
    const SceneLinetype* dashesOf(const SceneLook& look) const;

  private:
    void addLinetypes(const KdDbDatabase& database);
    void addLayers(const KdDbDatabase& database);
    void addLayer(const KdDbLayerTableRecord& layer);

    Scene& m_scene;
    double m_linetypeScale;
    std::uint32_t m_layerZero = 0;
    std::vector<SceneLook> m_layerLooks;
    std::unordered_map<KdDbObjectId, std::uint32_t> m_layers;
    std::unordered_map<KdDbObjectId, std::int32_t> m_linetypes;
    KdDbObjectId m_linetypeByBlock;
    KdDbObjectId m_linetypeByLayer;
};
