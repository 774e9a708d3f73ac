/// Which shapes of a scene are seen.
#pragma once

#include <span>
#include <vector>

#include <kwdraw/scene/scene.h>

#include "view_place.h"

class LayerFilter
{
  public:
    /// @param states  for the first layers of the scene; the others are as the drawing has them
    LayerFilter(const Scene& scene, std::span<const LayerState> states);

    /// Hides these layers as well.
    void freeze(std::span<const std::uint32_t> layers);

    bool shows(const SceneItem& item) const { return !isFrozen(item.layer); }
    /// The item's own layer must be asked for too.
    bool shows(const SceneShape& shape) const
    {
        return shape.layer >= m_layers.size() || m_layers[shape.layer] == Shown;
    }
    bool shows(const SceneItem& item, const SceneShape& shape) const
    {
        return shows(item) && shows(shape);
    }

  private:
    enum Visibility : std::uint8_t
    {
        Shown,
        Off,
        Frozen,
    };
    bool isFrozen(std::uint32_t layer) const
    {
        return layer < m_layers.size() && m_layers[layer] == Frozen;
    }

    std::vector<Visibility> m_layers;
};

/// The box around all items that are seen.
SceneBox visibleBox(const Scene& scene, const LayerFilter& filter);
