#include <algorithm>
#include <cmath>
#include <numbers>

#include <kwdraw/scene/scene_writer.h>

void ScenePath::moveTo(const KdGePoint3d& point)
{
    m_steps.push_back(PathStep::Move);
    m_points.push_back(point);
}

void ScenePath::lineTo(const KdGePoint3d& point)
{
    m_steps.push_back(PathStep::Line);
    m_points.push_back(point);
}

void ScenePath::cubicTo(const KdGePoint3d& control1, const KdGePoint3d& control2,
                        const KdGePoint3d& end)
{
    m_steps.push_back(PathStep::Cubic);
    m_points.insert(m_points.end(), {control1, control2, end});
}

void ScenePath::close()
{
    if (!m_steps.empty())
        m_steps.push_back(PathStep::Close);
}

void ScenePath::clear()
{
    m_steps.clear();
    m_points.clear();
}

void ScenePath::ellipseTo(const KdGePoint3d& center, const KdGeVector3d& majorAxis,
                          const KdGeVector3d& minorAxis, double start, double end)
{
    // A twelfth of a circle as a cubic is off by 4e-7 of the radius, less than half a pixel of a
    // circle that is a million pixels in radius.
    constexpr double kLongestPiece = std::numbers::pi / 6.0;
    constexpr double kMostPieces = 1200.0; // a damaged drawing may ask for any number of turns
    const double span = end - start;
    const double wanted = std::ceil(std::abs(span) / kLongestPiece - 1e-9);
    const int pieces = static_cast<int>(std::clamp(wanted, 1.0, kMostPieces));
    const double step = span / pieces;
    const double reach = 4.0 / 3.0 * std::tan(step / 4.0);

    const auto offset = [&](double cosine, double sine) {
        return majorAxis * cosine + minorAxis * sine;
    };
    double cosine = std::cos(start);
    double sine = std::sin(start);
    if (isEmpty() || m_steps.back() == PathStep::Close)
        moveTo(center + offset(cosine, sine));
    for (int piece = 1; piece <= pieces; ++piece) {
        const KdGePoint3d from = center + offset(cosine, sine);
        const KdGeVector3d leaving = offset(-sine, cosine) * reach;
        cosine = std::cos(start + step * piece);
        sine = std::sin(start + step * piece);
        const KdGePoint3d to = center + offset(cosine, sine);
        const KdGeVector3d arriving = offset(-sine, cosine) * reach;
        cubicTo(from + leaving, to + -arriving, to);
    }
}
