/// Paints shapes of a scene into a picture.
#pragma once

#include <QPainter>

#include <optional>
#include <vector>

#include <kwdraw/scene/scene.h>

#include "glyphs.h"
#include "ground.h"
#include "pixel_frame.h"
#include "stroke_runs.h"

/// How shapes are marked.
struct MarkStyle
{
    QColor color; ///< the one for all
    /// Lines are wide and broken, and areas hatched, so that no colour is needed to tell them.
    bool isBroken = false;
    double leastWidth = 1.0; ///< of lines, in pixels of the picture
};

/// What is the same for all shapes of a picture.
struct PaintStyle
{
    Ground ground;
    std::optional<MarkStyle> marked; ///< of a picture that marks shapes
    bool lineweights = false;
    double pixelRatio = 1.0; ///< pixels of the picture for one of the widget
    double viewHeight = 0.0; ///< of the widget, in pixels of the picture
    ClipBox clip;            ///< the picture and a little more
};

/// One pixel of the widget, rounded to whole pixels of the picture: on a fine screen a line of one
/// of its own pixels could hardly be seen.
double thinnestPen(const PaintStyle& style);
/// The thinnest where no lineweight is shown, and for those that come out about as thin.
double penWidth(const SceneLook& look, const PaintStyle& style);

/// Gathers lines of one pen, so call `flush` before anything else is painted.
class ShapePainter
{
  public:
    /// All are referred to as long as this lives.
    ShapePainter(QPainter& painter, const PaintStyle& style, GlyphStore& glyphs);

    /// Goes on with shapes of this scene, in this frame.
    /// @param dashScale  pixels for one unit of the dashes of linetypes
    void enter(const Scene& scene, const PixelFrame& frame, double dashScale);
    void paint(const SceneShape& shape);
    void flush();

  private:
    struct Pen
    {
        QColor color;
        double width = 1.0;
        bool operator==(const Pen&) const = default;
    };

    Pen penOf(const SceneLook& look) const;
    void usePen(const Pen& pen);
    void strokePath(const PathView& path, const PixelFrame& frame, const SceneLook& look);
    void paintDot(QPointF pixel, const QColor& color);
    bool paintSmall(const SceneShape& shape);
    void paintStroke(const SceneShape& shape);
    void paintRay(const SceneShape& shape);
    void paintMarker(const SceneShape& shape);
    void paintText(const SceneShape& shape);
    void paintFill(const SceneShape& shape, const QBrush& brush);
    void paintGradient(const SceneShape& shape);
    void paintImage(const SceneShape& shape);
    QBrush fillBrush(const SceneShape& shape) const;

    QPainter& m_painter;
    const PaintStyle& m_style;
    GlyphStore& m_glyphs;
    const Scene* m_scene = nullptr;
    PixelFrame m_frame;
    double m_scale = 1.0;
    double m_dashScale = 1.0;
    std::vector<Pen> m_pens; ///< of the looks of the scene
    StrokeRuns m_runs;       ///< not yet painted, in `m_pen`
    std::vector<QLineF> m_lines;
    Pen m_pen;
};
