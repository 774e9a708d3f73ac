#include "cubic.h"

#include <algorithm>
#include <cmath>

namespace {

double norm(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace

QPointF Cubic::at(double t) const
{
    const double s = 1.0 - t;
    return s * s * s * start + 3.0 * s * s * t * control1 + 3.0 * s * t * t * control2 +
           t * t * t * end;
}

std::pair<Cubic, Cubic> Cubic::halves() const
{
    const QPointF a = (start + control1) / 2.0;
    const QPointF b = (control1 + control2) / 2.0;
    const QPointF c = (control2 + end) / 2.0;
    const QPointF ab = (a + b) / 2.0;
    const QPointF bc = (b + c) / 2.0;
    const QPointF middle = (ab + bc) / 2.0;
    return {{start, a, ab, middle}, {middle, bc, c, end}};
}

bool Cubic::misses(const ClipBox& box) const
{
    const auto [left, right] = std::minmax({start.x(), control1.x(), control2.x(), end.x()});
    const auto [top, bottom] = std::minmax({start.y(), control1.y(), control2.y(), end.y()});
    return !(left <= box.right && right >= box.left && top <= box.bottom && bottom >= box.top);
}

double Cubic::pieces(double tolerance) const
{
    // The second derivative stays below six times the larger of these bends, and a chord leaves
    // its curve by an eighth of it times the square of the chord's part.
    const double bend =
        std::max(norm(start - 2.0 * control1 + control2), norm(control1 - 2.0 * control2 + end));
    return std::ceil(std::sqrt(0.75 * bend / tolerance));
}

double Cubic::length() const
{
    // Gauss-Legendre with five points.
    constexpr double kPlaces[] = {0.0469100770306680, 0.2307653449471585, 0.5, 0.7692346550528415,
                                  0.9530899229693320};
    constexpr double kWeights[] = {0.1184634425280945, 0.2393143352496832, 0.2844444444444444,
                                   0.2393143352496832, 0.1184634425280945};
    double sum = 0.0;
    for (int i = 0; i < 5; ++i) {
        const double t = kPlaces[i];
        const double s = 1.0 - t;
        sum += kWeights[i] *
               norm(3.0 * (s * s * (control1 - start) + 2.0 * s * t * (control2 - control1) +
                           t * t * (end - control2)));
    }
    return sum;
}
