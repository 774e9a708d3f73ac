// Closed boundaries in a plane: their areas, and which lies inside which.
#pragma once

#include <span>
#include <vector>

#include "plane_curve.h"

namespace plane {

/// A closed row of curves. Rows from drawings have gaps and edges that run backwards; the row is
/// mended when it is made.
class ClosedLoop
{
  public:
    explicit ClosedLoop(std::vector<Curve> curves);
    ClosedLoop(ClosedLoop&&) noexcept = default;
    ClosedLoop& operator=(ClosedLoop&&) noexcept = default;

    std::span<const Curve> curves() const { return m_curves; }
    /// Not below 0, whichever way round the loop runs.
    double area() const { return m_area; }
    const Range& width() const { return m_width; }
    const Range& height() const { return m_height; }
    /// True if `other` lies inside; loops may touch, but must not cross. Of two equal loops each
    /// lies inside the other.
    bool contains(const ClosedLoop& other) const;

  private:
    enum class Side
    {
        Inside,
        Outside,
        Edge,
    };
    Side sideOf(const KdGePoint2d& point) const;

    std::vector<Curve> m_curves;
    std::vector<MonotonePart> m_parts; ///< they refer to the curves
    Range m_width;
    Range m_height;
    double m_area = 0.0;
};

/// A connected area: an outer loop and the holes in it, by their places in the row of loops.
struct Region
{
    std::size_t outer;
    std::vector<std::size_t> holes;
};

/// For each loop the smallest other loop that contains it, or its own place if there is none.
std::vector<std::size_t> enclosingLoops(std::span<const ClosedLoop> loops);

} // namespace plane
