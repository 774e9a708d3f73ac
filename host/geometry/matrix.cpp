#include <geometry/matrix.h>

#include <cmath>

KdGeMatrix3d KdGeMatrix3d::fromFrame(const KdGePoint3d& origin, const KdGeVector3d& xAxis,
                                     const KdGeVector3d& yAxis, const KdGeVector3d& zAxis)
{
    KdGeMatrix3d map;
    map.entry = {{{xAxis.x, yAxis.x, zAxis.x, origin.x},
                  {xAxis.y, yAxis.y, zAxis.y, origin.y},
                  {xAxis.z, yAxis.z, zAxis.z, origin.z},
                  {0.0, 0.0, 0.0, 1.0}}};
    return map;
}

KdGeMatrix3d KdGeMatrix3d::planeToWorld(const KdGeVector3d& normal)
{
    constexpr double kNearZ = 1.0 / 64.0;
    const KdGeVector3d z = normal.length() > 0.0 ? normal.normal() : KdGeVector3d::kZAxis;
    const bool nearZ = std::fabs(z.x) < kNearZ && std::fabs(z.y) < kNearZ;
    const KdGeVector3d& reference = nearZ ? KdGeVector3d::kYAxis : KdGeVector3d::kZAxis;
    const KdGeVector3d x = reference.crossProduct(z).normal();
    return fromFrame(KdGePoint3d::kOrigin, x, z.crossProduct(x).normal(), z);
}

KdGeMatrix3d KdGeMatrix3d::worldToPlane(const KdGeVector3d& normal)
{
    // The axes are orthonormal and the origin stays, so the inverse is the transpose.
    const KdGeMatrix3d forward = planeToWorld(normal);
    KdGeMatrix3d map;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            map.entry[row][column] = forward.entry[column][row];
    return map;
}

KdGeMatrix3d KdGeMatrix3d::inverse() const
{
    const auto column = [this](std::size_t i) {
        return KdGeVector3d{entry[0][i], entry[1][i], entry[2][i]};
    };
    const KdGeVector3d yz = column(1).crossProduct(column(2));
    const double volume = column(0).dotProduct(yz);
    if (volume == 0.0)
        return {};
    const KdGeVector3d rows[]{yz * (1.0 / volume),
                              column(2).crossProduct(column(0)) * (1.0 / volume),
                              column(0).crossProduct(column(1)) * (1.0 / volume)};
    KdGeMatrix3d map;
    for (std::size_t i = 0; i < 3; ++i)
        map.entry[i] = {rows[i].x, rows[i].y, rows[i].z, -rows[i].dotProduct(column(3))};
    return map;
}

KdGePoint3d KdGeMatrix3d::operator*(const KdGePoint3d& p) const
{
    const auto row = [&](std::size_t i) {
        return entry[i][0] * p.x + entry[i][1] * p.y + entry[i][2] * p.z + entry[i][3];
    };
    return {row(0), row(1), row(2)};
}

KdGeVector3d KdGeMatrix3d::operator*(const KdGeVector3d& v) const
{
    const auto row = [&](std::size_t i) {
        return entry[i][0] * v.x + entry[i][1] * v.y + entry[i][2] * v.z;
    };
    return {row(0), row(1), row(2)};
}

KdGeMatrix3d KdGeMatrix3d::operator*(const KdGeMatrix3d& other) const
{
    KdGeMatrix3d product;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            double sum = 0.0;
            for (std::size_t k = 0; k < 4; ++k)
                sum += entry[row][k] * other.entry[k][column];
            product.entry[row][column] = sum;
        }
    }
    return product;
}
