/// The drawing of entities: one small function for each class.
#pragma once

#include <span>

#include <kwdraw/scene/entity_walk.h>

/// Ties a class to the function that draws its entities. A class without a row is drawn by that of
/// its nearest ancestor, or not at all.
struct ShapeRow
{
    KdRxClass* (*rxClass)();
    DrawEntity draw;
};

/// A row for a function that takes the class itself.
template <class Class, void (*Draw)(const Class&, EntityWalk&)>
constexpr ShapeRow shapeRow()
{
    return {Class::desc, [](const KdDbEntity& entity, EntityWalk& walk) {
                Draw(static_cast<const Class&>(entity), walk);
            }};
}

std::span<const ShapeRow> blockShapes();
std::span<const ShapeRow> bodyShapes();
std::span<const ShapeRow> curveShapes();
std::span<const ShapeRow> faceShapes();
std::span<const ShapeRow> hatchShapes();
std::span<const ShapeRow> imageShapes();
std::span<const ShapeRow> leaderShapes();
std::span<const ShapeRow> markShapes();
std::span<const ShapeRow> meshShapes();
std::span<const ShapeRow> mleaderShapes();
std::span<const ShapeRow> mlineShapes();
std::span<const ShapeRow> polylineShapes();
std::span<const ShapeRow> textShapes();

/// The function that draws entities of a class; null if nothing does.
DrawEntity findDrawer(const KdRxClass* rxClass);
