#include <kwdraw/scene/entity_shapes.h>

namespace {

constexpr std::span<const ShapeRow> (*kFamilies[])() = {
    blockShapes, bodyShapes, curveShapes, faceShapes,    hatchShapes,    imageShapes, leaderShapes,
    markShapes,  meshShapes, mlineShapes, mleaderShapes, polylineShapes, textShapes,
};

using DrawerMap = std::unordered_map<const KdRxClass*, DrawEntity>;

DrawerMap allDrawers()
{
    DrawerMap drawers;
    for (const auto family : kFamilies) {
        for (const ShapeRow& row : family())
            drawers.emplace(row.rxClass(), row.draw);
    }
    return drawers;
}

} // namespace

DrawEntity findDrawer(const KdRxClass* rxClass)
{
    static const DrawerMap drawers = allDrawers();
    for (; rxClass; rxClass = rxClass->myParent()) {
        const auto found = drawers.find(rxClass);
        if (found != drawers.end())
            return found->second;
    }
    return nullptr;
}
