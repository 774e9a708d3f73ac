/// Scenes made by hand, and the application that views need.
#pragma once

#include <memory>
#include <vector>

#include <kwdraw/scene/scene.h>

/// An id that names no object, for scenes that belong to no drawing; `number` from 0 on.
KdDbObjectId madeId(std::size_t number);

/// Puts a scene together. What is drawn belongs to the item that was begun last, and has the look
/// and the layer that were set last; the first item begins by itself.
class SceneMaker
{
  public:
    SceneMaker();

    /// Begins an entity; ids are `madeId(0)`, `madeId(1)`, ...
    KdDbObjectId item(std::uint32_t layer = 0);
    std::uint32_t addLayer(bool on = true, bool frozen = false);
    void onLayer(std::uint32_t layer) { m_layer = layer; }
    void color(QRgb rgb);
    void foreground();
    void look(const SceneLook& look);
    /// The look that comes next has these dashes.
    void dashes(std::vector<double> dashes);

    void line(QPointF from, QPointF to);
    void polyline(const QPolygonF& points);
    void circle(QPointF center, double radius);
    /// A quarter of a circle, counter-clockwise from the right.
    void quarter(QPointF center, double radius);
    void fill(const QPolygonF& outline);
    void fill(const std::vector<QPolygonF>& outlines);
    void gradient(const QPolygonF& outline, const SceneGradient& gradient);
    void wipeout(const QPolygonF& outline);
    void text(const QString& text, QPointF place, double height, double degrees = 0.0);
    void marker(QPointF place, int mode, double size);
    void ray(QPointF base, QPointF direction, bool bothSides = false);
    void image(const QImage& picture, QPointF corner, double width, double height);
    void window(const QPolygonF& clip, const QTransform& modelToSheet,
                std::shared_ptr<const Scene> model, std::vector<std::uint32_t> frozen = {});
    Scene& scene() { return *m_scene; }

    std::shared_ptr<const Scene> finish();

  private:
    void step(PathStep step, std::initializer_list<QPointF> points);
    void outline(const QPolygonF& points);
    SceneShape& add(SceneShape::Kind kind, const SceneBox& box);
    SceneShape& addPath(SceneShape::Kind kind, const SceneBox& box);

    std::shared_ptr<Scene> m_scene;
    std::uint32_t m_layer = 0;
    std::size_t m_firstStep = 0;
    std::size_t m_firstPoint = 0;
};
