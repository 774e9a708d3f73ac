/// Lines of pixels, ready for the painter.
#pragma once

#include <QPointF>

#include <span>
#include <vector>

#include "clipping.h"
#include "cubic.h"
#include "pixel_frame.h"

/// Polylines one after another.
class StrokeRuns
{
  public:
    /// A line of its own, or the next of the last run if it goes on where that ended.
    void add(QPointF from, QPointF to);
    /// The next line starts a run whatever its start.
    void breakRun() { m_open = false; }
    void clear();
    bool isEmpty() const { return m_starts.empty(); }
    std::size_t pointCount() const { return m_points.size(); }
    std::size_t count() const { return m_starts.size(); }
    std::span<const QPointF> run(std::size_t index) const;

  private:
    std::vector<QPointF> m_points;
    std::vector<std::size_t> m_starts;
    bool m_open = false;
};

/// Continuous lines, cut at the bounds of the picture. See path_walk.h.
class SolidLine
{
  public:
    SolidLine(StrokeRuns& runs, const ClipBox& box) : m_runs(runs), m_box(box) {}

    void moveTo(QPointF point);
    void lineTo(QPointF point);
    void jumpTo(const Cubic& cubic) { m_at = cubic.end; }

  private:
    StrokeRuns& m_runs;
    ClipBox m_box;
    QPointF m_at;
};

/// Lines with dashes that go on over the corners and begin anew with each part of a path.
class DashedLine
{
  public:
    /// @param dashes         see `SceneLinetype`; not empty; referred to as long as this lives
    /// @param pixelsPerUnit  of the dashes; the pattern must come out longer than 0
    DashedLine(StrokeRuns& runs, const ClipBox& box, const SceneLinetype& dashes,
               double pixelsPerUnit);

    void moveTo(QPointF point);
    void lineTo(QPointF point);
    void jumpTo(const Cubic& cubic);

    /// False if the dashes are too small to be told apart.
    static bool isVisible(const SceneLinetype& dashes, double pixelsPerUnit);

  private:
    void dash(QPointF from, QPointF vector, double length, LinePart shown);

    StrokeRuns& m_runs;
    ClipBox m_box;
    const SceneLinetype& m_dashes;
    double m_scale;
    double m_pattern; ///< length of one repetition
    QPointF m_at;
    double m_done = 0.0; ///< from the start of this part of the path
};
