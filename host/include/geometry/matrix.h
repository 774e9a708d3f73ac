/// Changes of frame in three dimensions.
#pragma once

#include <array>

#include <geometry/point.h>

/// An affine map: `entry[row][column]`, points as columns, the last row being (0, 0, 0, 1).
struct KW_EXPORT KdGeMatrix3d
{
    std::array<std::array<double, 4>, 4> entry{
        {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

    /// The map that takes frame coordinates to world coordinates.
    static KdGeMatrix3d fromFrame(const KdGePoint3d& origin, const KdGeVector3d& xAxis,
                                  const KdGeVector3d& yAxis, const KdGeVector3d& zAxis);
    /// From the object frame of an extrusion direction to the world, by the arbitrary axis rule:
    /// the x axis is the world's Y (for a normal within 1/64 of Z) or Z crossed with the normal.
    /// @param normal  of any length; without length it counts as Z
    static KdGeMatrix3d planeToWorld(const KdGeVector3d& normal);
    /// The inverse of `planeToWorld`.
    static KdGeMatrix3d worldToPlane(const KdGeVector3d& normal);

    /// The map back. A map that flattens space has none and gives the identity.
    KdGeMatrix3d inverse() const;

    KdGePoint3d operator*(const KdGePoint3d& point) const;
    KdGeVector3d operator*(const KdGeVector3d& vector) const;
    KdGeMatrix3d operator*(const KdGeMatrix3d& other) const;
};
