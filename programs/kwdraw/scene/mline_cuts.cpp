#include <kwdraw/scene/mline_cuts.h>

#include <algorithm>

#include <kwdraw/scene/curve_paths.h>

namespace {

/// A segment of a line, from the point at a vertex to that at the next.
struct Segment
{
    KdGePoint3d start;
    KdGePoint3d end;

    double length() const { return (end - start).length(); }
    KdGePoint3d at(double distance) const
    {
        const double whole = length();
        return distance < whole ? start + (end - start) * (std::max(distance, 0.0) / whole) : end;
    }
};

Segment segmentAt(const MlineLine& line, std::size_t vertex)
{
    return {line.points[vertex], line.points[(vertex + 1) % line.points.size()]};
}

std::size_t segmentCount(const KdDbMline& mline, const MlineLine& line)
{
    return line.points.size() - (mline.closedMline() ? 0 : 1);
}

/// Goes on with what is drawn of a segment; the path may be at its start already.
void addDashes(ScenePath& path, const Segment& segment, const std::vector<double>& places,
               bool isThere)
{
    const double whole = segment.length();
    for (std::size_t i = 0; i < places.size(); i += 2) {
        const double from = places[i];
        const double to = i + 1 < places.size() ? places[i + 1] : whole;
        if (!(from < to && from < whole && to > 0.0))
            continue;
        if (from > 0.0 || !isThere)
            path.moveTo(segment.at(from));
        path.lineTo(segment.at(to));
    }
}

} // namespace

void addCutLine(ScenePath& path, const KdDbMline& mline, const MlineLine& line)
{
    bool isThere = false;
    for (std::size_t i = 0; i < segmentCount(mline, line); ++i) {
        const Segment segment = segmentAt(line, i);
        const MlineCut* cut = mline.lineCut(i, line.element);
        addDashes(path, segment, cut ? cut->places : std::vector<double>{0.0}, isThere);
        // Only what is drawn up to the vertex is drawn on from there.
        isThere = !cut || (cut->places.size() % 2 == 1 && cut->places.back() < segment.length());
    }
}

void addFillGaps(ScenePath& path, const KdDbMline& mline, const MlineLine& right,
                 const MlineLine& left)
{
    for (std::size_t i = 0; i < segmentCount(mline, right); ++i) {
        const MlineCut* onRight = mline.fillCut(i, right.element);
        const MlineCut* onLeft = mline.fillCut(i, left.element);
        if (!onRight || !onLeft || onRight->places.size() != onLeft->places.size())
            continue;
        const Segment rightSide = segmentAt(right, i);
        const Segment leftSide = segmentAt(left, i);
        const auto placeAt = [](const Segment& side, const MlineCut& cut, std::size_t k) {
            return k < cut.places.size() ? side.at(cut.places[k]) : side.end;
        };
        for (std::size_t k = 1; k < onRight->places.size(); k += 2) {
            const KdGePoint3d corners[] = {
                placeAt(rightSide, *onRight, k), placeAt(rightSide, *onRight, k + 1),
                placeAt(leftSide, *onLeft, k + 1), placeAt(leftSide, *onLeft, k)};
            addPolygon(path, corners, true);
        }
    }
}
