/// The areas in each other through which the contents of nested blocks are seen.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <kwdraw/scene/clip_area.h>

class ClipStack
{
  public:
    /// From now on things are also cut along a polygon. One without an area cuts nothing.
    void push(std::vector<QPointF> corners);
    void pop();
    bool isEmpty() const { return m_areas.empty(); }

    ClipArea::Part visiblePart(const SceneBox& box);
    bool holds(QPointF point);
    /// What can be seen of a path.
    PlanePath cutLine(PlanePath path);
    PlanePath cutFill(PlanePath path);
    /// The part of a line without end that is not surely hidden, or an empty path.
    /// @param direction  of length 1
    PlanePath cutRay(QPointF base, QPointF direction, bool bothSides);

    /// What all this has taken, in points that could have been drawn instead.
    std::uint64_t work() const { return m_work / kTestsForPoint; }

  private:
    static constexpr std::uint64_t kTestsForPoint = 8;

    std::vector<ClipArea> m_areas;
    std::vector<bool> m_cuts; ///< for each push: whether it has given an area
    std::uint64_t m_work = 0;
};
