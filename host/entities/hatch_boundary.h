// The boundary of a hatch as geometry: closed loops, and the regions that its style fills.
#pragma once

#include <vector>

#include <entities/hatch.h>

#include "closed_loop.h"

/// The loops of a hatch and what they enclose. Coordinates are those of the object frame less
/// `origin`, so that drawings far from zero lose no digits.
class HatchBoundary
{
  public:
    explicit HatchBoundary(const HatchContent& hatch);

    /// The loops with the numbers that they have in the hatch; those without size are missing.
    std::span<const plane::ClosedLoop> loops() const { return m_loops; }
    std::size_t numberOf(std::size_t loop) const { return m_numbers[loop]; }
    const KdGePoint2d& origin() const { return m_origin; }

    /// What is filled, in the order of the outer loops.
    std::vector<plane::Region> filledRegions() const;
    double areaOf(const plane::Region& region) const;

  private:
    std::vector<plane::ClosedLoop> m_loops;
    std::vector<std::size_t> m_numbers;
    std::vector<bool> m_isTextBox;
    KdGePoint2d m_origin;
    HatchContent::Style m_style;
};
