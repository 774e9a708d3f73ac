/// Small squares that tell what is selected without any colour.
#pragma once

#include <QColor>
#include <QPainter>

#include <vector>

#include <kwdraw/scene/scene.h>

/// How far a grip reaches from its place, in pixels of the widget.
inline constexpr double kGripReach = 4.0;

struct Grip
{
    QPointF place;   ///< drawing units
    QPointF outward; ///< where it is moved by its reach, y downwards, so that it hides nothing

    bool operator==(const Grip&) const = default;
};

/// The ends of an item's lines and arcs if it is one short path, and around the corners of its box
/// otherwise. Empty for an item without a box.
std::vector<Grip> gripsOf(const Scene& scene, const SceneItem& item);

/// @param pixel  of its middle
void paintGrip(QPainter& painter, QPointF pixel, const QColor& color, const QColor& edge,
               double pixelRatio);
