#include "hatch_lines.h"

#include <algorithm>
#include <cmath>

namespace {

using plane::MonotonePart;

/// A family in a frame in which its lines run along x, and upwards one after the other.
struct LevelFamily
{
    explicit LevelFamily(const HatchPatternLine& family)
    {
        const plane::Turn turn(-family.angle);
        base = turn(family.base);
        offset = turn(family.offset);
        if (offset.y < 0.0)
            offset = {-offset.x, -offset.y};
    }

    KdGePoint2d base;
    KdGeVector2d offset;
};

/// The numbers of the lines between two heights, as reals, since they may be huge.
struct LineNumbers
{
    LineNumbers(const LevelFamily& family, const plane::Range& height)
    {
        if (family.offset.y > 0.0) {
            first = std::ceil((height.low - family.base.y) / family.offset.y);
            last = std::floor((height.high - family.base.y) / family.offset.y);
        } else if (height.low > family.base.y || height.high < family.base.y) {
            last = -1.0; // one line, and it passes by
        }
    }

    double count() const { return last - first + 1.0; }

    double first = 0.0;
    double last = 0.0;
};

plane::Range heightOf(std::span<const plane::Curve> boundary, double angle)
{
    plane::Range height;
    for (const plane::Curve& curve : boundary)
        addRange(curve, {-std::sin(angle), std::cos(angle)}, height);
    return height;
}

/// Meets a boundary with level lines, the lowest first.
class Sweep
{
  public:
    explicit Sweep(std::span<const plane::Curve> boundary)
    {
        for (const plane::Curve& curve : boundary)
            appendMonotoneParts(curve, m_parts);
        std::ranges::sort(m_parts, {}, [](const MonotonePart& part) { return part.low().y; });
    }

    /// Where the line of that height crosses, from left to right: an even number of places. No call
    /// may go below the one before.
    const std::vector<double>& crossings(double y)
    {
        while (m_next < m_parts.size() && m_parts[m_next].low().y <= y)
            m_active.push_back(&m_parts[m_next++]);
        std::erase_if(m_active, [y](const MonotonePart* part) { return part->high().y <= y; });
        m_crossings.clear();
        for (const MonotonePart* part : m_active)
            m_crossings.push_back(part->xAt(y));
        std::ranges::sort(m_crossings);
        return m_crossings;
    }

  private:
    std::vector<MonotonePart> m_parts;
    std::size_t m_next = 0;
    std::vector<const MonotonePart*> m_active;
    std::vector<double> m_crossings;
};

/// Breaks pieces of level lines into dashes.
class Dashes
{
  public:
    explicit Dashes(const std::vector<double>& lengths) : m_lengths(lengths)
    {
        for (const double length : lengths)
            m_period += std::abs(length);
    }

    /// Calls `take` with the ends of each dash between `from` and `to`; a dash begins at `phase`.
    /// False as soon as `take` says so.
    template <class Take>
    bool cut(double from, double to, double phase, Take take) const
    {
        if (!(m_period > 0.0))
            return take(from, to);
        const double first = std::floor((from - phase) / m_period);
        const double periods = std::floor((to - phase) / m_period) - first + 1.0;
        if (!(periods <= static_cast<double>(kMostHatchLines)))
            return false;
        for (int i = 0; i < static_cast<int>(periods); ++i) {
            double at = phase + (first + i) * m_period;
            for (const double length : m_lengths) {
                const double start = std::max(at, from);
                const double end = std::min(at + std::abs(length), to);
                if (length >= 0.0 && (length > 0.0 ? start < end : start <= end) &&
                    !take(start, end))
                    return false;
                at += std::abs(length);
            }
        }
        return true;
    }

  private:
    const std::vector<double>& m_lengths;
    double m_period = 0.0;
};

} // namespace

double countHatchLines(std::span<const plane::Curve> boundary, const HatchPatternLine& family)
{
    return LineNumbers(LevelFamily(family), heightOf(boundary, family.angle)).count();
}

bool cutHatchLines(std::span<const plane::Curve> boundary, const HatchPatternLine& family,
                   std::size_t most, std::vector<plane::Line>& pieces)
{
    std::vector<plane::Curve> level;
    level.reserve(boundary.size());
    for (const plane::Curve& curve : boundary)
        level.push_back(turned(curve, plane::Turn(-family.angle)));
    const LevelFamily lines(family);
    const LineNumbers numbers(lines, heightOf(level, 0.0));
    if (!(numbers.count() <= static_cast<double>(most)))
        return false;

    // A line that only grazes the boundary has a length of half the digits.
    const double least = 1e-7 * heightOf(level, 0.0).length();
    Sweep sweep(level);
    const Dashes dashes(family.dashes);
    const plane::Turn back(family.angle);
    for (int i = 0; i < static_cast<int>(numbers.count()); ++i) {
        const double number = numbers.first + i;
        const double y = lines.base.y + number * lines.offset.y;
        const double phase = lines.base.x + number * lines.offset.x;
        const auto append = [&](double from, double to) {
            pieces.push_back({back(KdGePoint2d{from, y}), back(KdGePoint2d{to, y})});
            return pieces.size() <= most;
        };
        const std::vector<double>& crossings = sweep.crossings(y);
        for (std::size_t k = 1; k < crossings.size(); k += 2) {
            if (crossings[k] - crossings[k - 1] > least &&
                !dashes.cut(crossings[k - 1], crossings[k], phase, append))
                return false;
        }
    }
    return true;
}
