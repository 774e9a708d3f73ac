#include <geometry/point.h>

#include <cmath>
#include <numbers>

#include <geometry/plane.h>

const KdGeVector3d KdGeVector3d::kXAxis{1.0, 0.0, 0.0};
const KdGeVector3d KdGeVector3d::kYAxis{0.0, 1.0, 0.0};
const KdGeVector3d KdGeVector3d::kZAxis{0.0, 0.0, 1.0};
const KdGePoint2d KdGePoint2d::kOrigin{};
const KdGePoint3d KdGePoint3d::kOrigin{};

double KdGeVector2d::length() const
{
    return std::hypot(x, y);
}

double KdGeVector2d::angle() const
{
    return std::atan2(y, x);
}

double KdGeVector3d::length() const
{
    return std::hypot(x, y, z);
}

KdGeVector3d KdGeVector3d::normal() const
{
    const double size = length();
    return size > 0.0 ? KdGeVector3d{x / size, y / size, z / size} : *this;
}

double KdGeVector3d::dotProduct(const KdGeVector3d& other) const
{
    return x * other.x + y * other.y + z * other.z;
}

KdGeVector3d KdGeVector3d::crossProduct(const KdGeVector3d& other) const
{
    return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
}

double KdGeVector3d::angleTo(const KdGeVector3d& other) const
{
    // Of length 1, so that products of long or short vectors stay within the range of numbers.
    const KdGeVector3d from = normal();
    const KdGeVector3d to = other.normal();
    return std::atan2(from.crossProduct(to).length(), from.dotProduct(to));
}

double KdGeVector3d::angleTo(const KdGeVector3d& other, const KdGeVector3d& axis) const
{
    const double angle = angleTo(other);
    constexpr double kTurn = 2.0 * std::numbers::pi;
    if (normal().crossProduct(other.normal()).dotProduct(axis) >= 0.0)
        return angle;
    return angle > 0.0 && kTurn - angle < kTurn ? kTurn - angle : 0.0;
}

KdGeVector3d KdGeVector3d::rotatedBy(double angle, const KdGeVector3d& axis) const
{
    const KdGeVector3d unit = axis.normal();
    const KdGeVector3d along = unit * dotProduct(unit);
    const KdGeVector3d across = *this + -along;
    return along + across * std::cos(angle) + unit.crossProduct(across) * std::sin(angle);
}

bool KdGeVector3d::isEqualTo(const KdGeVector3d& other, const KdGeTol& tolerance) const
{
    return KdGeVector3d{x - other.x, y - other.y, z - other.z}.length() <= tolerance.equalVector;
}

double KdGePoint2d::distanceTo(const KdGePoint2d& other) const
{
    return (*this - other).length();
}

double KdGePoint3d::distanceTo(const KdGePoint3d& other) const
{
    return (*this - other).length();
}

bool KdGePoint3d::isEqualTo(const KdGePoint3d& other, const KdGeTol& tolerance) const
{
    return distanceTo(other) <= tolerance.equalPoint;
}

KdGePoint2d KdGePoint3d::convert2d(const KdGePlane& plane) const
{
    const KdGeVector3d offset = *this - plane.origin;
    return {offset.dotProduct(plane.xAxis), offset.dotProduct(plane.yAxis)};
}
