/// Points and vectors in two and three dimensions, as plain values.
#pragma once

#include <geometry/tolerance.h>
#include <runtime/export.h>

struct KW_EXPORT KdGeVector2d
{
    double x = 0.0;
    double y = 0.0;

    double length() const;
    /// From the x axis, counter-clockwise, above minus half a turn up to half a turn, in radians.
    double angle() const;
    bool operator==(const KdGeVector2d&) const = default;
};

struct KW_EXPORT KdGeVector3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    static const KdGeVector3d kXAxis;
    static const KdGeVector3d kYAxis;
    static const KdGeVector3d kZAxis;

    double length() const;
    /// The vector scaled to length 1; unchanged if it has no length.
    KdGeVector3d normal() const;
    double dotProduct(const KdGeVector3d& other) const;
    KdGeVector3d crossProduct(const KdGeVector3d& other) const;
    /// The angle between the two vectors, in radians from 0 to half a turn. 0 if a vector has no
    /// length.
    double angleTo(const KdGeVector3d& other) const;
    /// The angle to `other`, counter-clockwise as seen against `axis`, in radians from 0 up to but
    /// not including a whole turn. 0 if a vector has no length.
    /// @param axis  across both vectors; only the side to which it points matters
    double angleTo(const KdGeVector3d& other, const KdGeVector3d& axis) const;
    /// The vector turned by an angle in radians, counter-clockwise as seen against `axis`, which
    /// may have any length but 0.
    KdGeVector3d rotatedBy(double angle, const KdGeVector3d& axis) const;
    bool isEqualTo(const KdGeVector3d& other, const KdGeTol& tolerance = KdGeContext::gTol) const;
    KdGeVector3d operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
    KdGeVector3d operator+(const KdGeVector3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
    KdGeVector3d operator-() const { return {-x, -y, -z}; }
    bool operator==(const KdGeVector3d&) const = default;
};

struct KW_EXPORT KdGePoint2d
{
    double x = 0.0;
    double y = 0.0;

    static const KdGePoint2d kOrigin;

    double distanceTo(const KdGePoint2d& other) const;
    KdGeVector2d operator-(const KdGePoint2d& o) const { return {x - o.x, y - o.y}; }
    bool operator==(const KdGePoint2d&) const = default;
};

struct KdGePlane;

struct KW_EXPORT KdGePoint3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    static const KdGePoint3d kOrigin;

    double distanceTo(const KdGePoint3d& other) const;
    bool isEqualTo(const KdGePoint3d& other, const KdGeTol& tolerance = KdGeContext::gTol) const;
    /// The coordinates of the point's foot in a plane, along its axes.
    KdGePoint2d convert2d(const KdGePlane& plane) const;
    KdGePoint3d operator+(const KdGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    KdGeVector3d operator-(const KdGePoint3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
    KdGeVector3d asVector() const { return {x, y, z}; }
    bool operator==(const KdGePoint3d&) const = default;
};

/// Scale factors along the three axes.
struct KdGeScale3d
{
    double sx = 1.0;
    double sy = 1.0;
    double sz = 1.0;

    bool operator==(const KdGeScale3d&) const = default;
};
