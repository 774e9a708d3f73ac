#include "layer_filter.h"

LayerFilter::LayerFilter(const Scene& scene, std::span<const LayerState> states)
{
    m_layers.reserve(scene.layers.size());
    for (std::size_t i = 0; i < scene.layers.size(); ++i) {
        const bool known = i < states.size();
        const bool frozen = known ? states[i].frozen : scene.layers[i].frozen;
        const bool on = known ? states[i].on : scene.layers[i].on;
        m_layers.push_back(frozen ? Frozen : on ? Shown : Off);
    }
}

void LayerFilter::freeze(std::span<const std::uint32_t> layers)
{
    for (const std::uint32_t layer : layers)
        if (layer < m_layers.size())
            m_layers[layer] = Frozen;
}

SceneBox visibleBox(const Scene& scene, const LayerFilter& filter)
{
    SceneBox box;
    for (const SceneItem& item : scene.items) {
        if (!filter.shows(item))
            continue;
        for (const SceneShape& shape : scene.shapesOf(item))
            if (filter.shows(shape) && !shape.box.isEmpty())
                box.add(shape.box);
    }
    return box;
}
