#include <kwdraw/scene/wide_dashes.h>

#include <cmath>

namespace {

/// Goes along a pattern.
class DashCursor
{
  public:
    explicit DashCursor(const DashPattern& pattern) : m_pattern(pattern) { restart(); }

    void restart()
    {
        m_index = 0;
        m_left = lengthOf(0);
    }
    double left() const { return m_left; }
    bool isDrawn() const { return m_pattern.dashes[m_index] >= 0.0; }
    void stopAfter(double way) { m_left -= way; }
    void goToNext()
    {
        m_index = (m_index + 1) % m_pattern.dashes.size();
        m_left = lengthOf(m_index);
    }

  private:
    double lengthOf(std::size_t index) const
    {
        return std::abs(m_pattern.dashes[index]) * m_pattern.scale;
    }

    const DashPattern& m_pattern;
    std::size_t m_index = 0;
    double m_left = 0.0;
};

bool hasLength(const DashPattern& pattern)
{
    double length = 0.0;
    for (const double dash : pattern.dashes)
        length += std::abs(dash) * pattern.scale;
    return std::isfinite(length) && length > 0.0;
}

WideSegment partOf(const WideSegment& segment, double from, double to)
{
    const auto widthAt = [&](double share) {
        return segment.startWidth + (segment.endWidth - segment.startWidth) * share;
    };
    WideSegment part;
    part.line = segment.line.part(from, to);
    part.startWidth = widthAt(from);
    part.endWidth = widthAt(to);
    const double direction = segment.line.startDirection();
    const double turn = segment.line.turn();
    part.startCut = from > 0.0 ? leftOf(direction + turn * from) : segment.startCut;
    part.endCut = to < 1.0 ? leftOf(direction + turn * to) : segment.endCut;
    return part;
}

} // namespace

KdGeVector2d leftOf(double direction)
{
    return {-std::sin(direction), std::cos(direction)};
}

std::optional<std::vector<WideSegment>> dashesAlong(std::span<const WideSegment> segments,
                                                    const DashPattern& pattern, std::size_t most)
{
    if (!hasLength(pattern))
        return {};
    std::vector<WideSegment> dashes;
    DashCursor cursor(pattern);
    std::size_t steps = 0;
    for (const WideSegment& segment : segments) {
        if (!pattern.runsOn)
            cursor.restart();
        const double length = segment.line.length();
        for (double at = 0.0; at < length;) {
            if (++steps > most)
                return {};
            const bool endsHere = at + cursor.left() <= length;
            const double next = endsHere ? at + cursor.left() : length;
            if (cursor.isDrawn() && segment.isWide())
                dashes.push_back(partOf(segment, at / length, next / length));
            if (endsHere)
                cursor.goToNext();
            else
                cursor.stopAfter(length - at);
            at = next;
        }
    }
    return dashes;
}
