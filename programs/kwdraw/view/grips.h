/// Small squares that tell what is selected without any colour.
#pragma once

#include <QColor>
#include <QPainter>

#include <vector>

#include <kwdraw/scene/scene.h>

/// How far a grip reaches from its place, in pixels of the widget.
inline constexpr double kGripReach = 4.0;

/// Where the grips of an item are, in drawing units: the ends of its lines and arcs if it is one
/// short path, and the corners of its box otherwise. Empty for an item without a box.
std::vector<QPointF> gripsOf(const Scene& scene, const SceneItem& item);

/// @param pixel  in the painter's own pixels
void paintGrip(QPainter& painter, QPointF pixel, const QColor& color, const QColor& edge,
               double pixelRatio);
