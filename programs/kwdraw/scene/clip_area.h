/// Areas of a scene outside of which nothing is seen.
#pragma once

#include <vector>

#include <kwdraw/scene/plane_path.h>

/// The inside of a polygon, by the odd-even rule.
class ClipArea
{
  public:
    /// @param corners  with an area between them; of very many, the box around them counts
    explicit ClipArea(std::vector<QPointF> corners);

    enum class Part
    {
        None,
        Some, ///< at least, the edge is near
        All,
    };
    /// What can be seen of a box.
    Part visiblePart(const SceneBox& box) const;
    bool holds(QPointF point) const;
    const SceneBox& box() const { return m_box; }

    /// What can be seen of a line.
    PlanePath cutLine(const PlanePath& path) const;
    /// What can be seen of the inside of a path. Its parts meet without overlapping, so that the
    /// odd-even rule holds for the whole of it.
    PlanePath cutFill(const PlanePath& path) const;
    /// How many edges a piece of a path is held against, at most.
    std::size_t edgeCount() const { return m_corners.size() + 4 * m_convexParts.size(); }

  private:
    void addCrossings(const PlaneCubic& piece, std::vector<double>& crossings) const;

    std::vector<QPointF> m_corners;
    std::vector<std::vector<QPointF>> m_convexParts; ///< counter-clockwise
    SceneBox m_box;
    double m_near = 0.0; ///< what is nearer to the edge counts as inside
};
