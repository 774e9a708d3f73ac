#include <providers/point_chain.h>

namespace {

void storePoint(ResBuf& record, const KdGePoint3d& point)
{
    if (record.restype() == ResBuf::kPoint2d)
        record.setPoint2d({point.x, point.y});
    else
        record.setPoint3d(point);
}

} // namespace

void storePoints(ResBuf& head, ValueKind kind, const std::vector<KdGePoint3d>& points)
{
    head.setRestype(kind);
    ResBuf* record = &head;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0)
            record = record->setNext(ResBuf::newRb(kind));
        storePoint(*record, points[i]);
    }
}
