/// Hatches for tests.
#pragma once

#include <initializer_list>
#include <memory>
#include <numbers>
#include <vector>

#include <entities/hatch.h>

namespace hatch_test {

constexpr double kPi = std::numbers::pi;

inline HatchLoop polyline(std::initializer_list<HatchVertex> vertices, int bits = 0)
{
    HatchLoop loop;
    loop.type = HatchLoop::kPolyline | bits;
    loop.vertices = vertices;
    return loop;
}

/// From corner to corner, counter-clockwise.
inline HatchLoop rectangle(double left, double bottom, double right, double top, int bits = 0)
{
    return polyline({{{left, bottom}}, {{right, bottom}}, {{right, top}}, {{left, top}}}, bits);
}

inline HatchLoop backwards(HatchLoop loop)
{
    loop.vertices = {loop.vertices.rbegin(), loop.vertices.rend()};
    return loop;
}

/// Two half circles.
inline HatchLoop circle(double x, double y, double radius)
{
    return polyline({{{x - radius, y}, 1.0}, {{x + radius, y}, 1.0}});
}

inline HatchLoop edges(std::initializer_list<HatchEdge> row)
{
    HatchLoop loop;
    loop.edges = row;
    return loop;
}

inline HatchLoop ellipse(KdGePoint2d center, KdGeVector2d majorAxis, double ratio)
{
    return edges({HatchArcEdge{center, majorAxis, ratio, 0.0, 2.0 * kPi}});
}

inline std::unique_ptr<KdDbHatch> hatchOf(std::initializer_list<HatchLoop> loops,
                                          HatchContent::Style style = HatchContent::Style::Normal)
{
    auto hatch = std::make_unique<KdDbHatch>();
    hatch->edit().loops = loops;
    hatch->edit().style = style;
    hatch->edit().solid = true;
    hatch->edit().patternName = L"SOLID";
    return hatch;
}

/// -1 where the hatch has no area.
inline double areaOf(const KdDbHatch& hatch)
{
    double area = -1.0;
    const KdErrorStatus status = hatch.getArea(area);
    EXPECT_EQ(status, area < 0.0 ? eNotApplicable : eOk);
    return area;
}

/// What `explode` gives, owned.
class Pieces
{
  public:
    explicit Pieces(const KdDbHatch& hatch)
    {
        KdArray<KdDbEntity*> raw;
        status = hatch.explode(raw);
        for (int i = 0; i < raw.length(); ++i)
            m_pieces.emplace_back(raw[i]);
    }
    std::size_t size() const { return m_pieces.size(); }
    template <class T>
    const T& at(std::size_t i) const
    {
        return dynamic_cast<const T&>(*m_pieces.at(i));
    }

    KdErrorStatus status = eOk;

  private:
    std::vector<std::unique_ptr<KdDbEntity>> m_pieces;
};

} // namespace hatch_test
