/// Bodies in the text form of a solid modeler, put together for tests.
#pragma once

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include <geometry/point.h>

namespace body_text {

inline std::string numbers(const KdGePoint3d& point)
{
    std::ostringstream out;
    out.precision(17);
    out << point.x << ' ' << point.y << ' ' << point.z;
    return out.str();
}

/// Gathers records. The old form has one reference before the values of a record, the new one three
/// values; and edges of the new form tell which part of the curve they take.
class Writer
{
  public:
    explicit Writer(bool isNewForm = false) : m_isNewForm(isNewForm)
    {
        add("body", "$1 $-1 $-1"); // its last reference is set by `move`
        add("lump", "$-1 $2 $0");
        add("shell", "$-1 $-1 $-1 $-1 $1");
    }

    bool isNewForm() const { return m_isNewForm; }
    int next() const { return static_cast<int>(m_records.size()); }
    int add(const std::string& name, const std::string& values)
    {
        m_records.push_back(name + (m_isNewForm ? " $-1 -1 $-1 " : " $-1 ") + values + " #");
        return next() - 1;
    }
    static std::string to(int record) { return "$" + std::to_string(record); }

    /// Turns the body by a quarter about Z, scales and shifts it.
    void move(double scale, const KdGePoint3d& offset)
    {
        std::ostringstream values;
        values << "0 1 0 -1 0 0 0 0 1 " << numbers(offset) << ' ' << scale
               << " rotate no_reflect no_shear";
        const int transform = add("transform", values.str());
        m_records[0].replace(m_records[0].rfind("$-1"), 3, to(transform));
    }
    int vertex(const KdGePoint3d& point)
    {
        const int place = add("point", numbers(point));
        return add("vertex", "$-1 " + to(place));
    }
    /// An edge between two vertices; `curve` -1 for one without.
    int edge(int start, int end, int curve, bool reversed = false, const std::string& first = "0",
             const std::string& last = "1")
    {
        const std::string sense = reversed ? " reversed" : " forward";
        return m_isNewForm ? add("edge", to(start) + ' ' + first + ' ' + to(end) + ' ' + last +
                                             " $-1 " + to(curve) + sense + " @7 unknown")
                           : add("edge", to(start) + ' ' + to(end) + " $-1 " + to(curve) + sense);
    }
    int straightEdge(int start, int end)
    {
        return edge(start, end, add("straight-curve", "0 0 0 1 0 0 I I"));
    }
    int circle(const KdGePoint3d& center, const KdGePoint3d& normal, const KdGePoint3d& major,
               double ratio = 1.0)
    {
        std::ostringstream values;
        values.precision(17);
        values << numbers(center) << ' ' << numbers(normal) << ' ' << numbers(major) << ' ' << ratio
               << " I I";
        return add("ellipse-curve", values.str());
    }

    struct Use
    {
        int edge;
        bool reversed = false;
    };
    /// A face with its loops, each a ring of edges.
    void face(const std::string& surface, const std::vector<std::vector<Use>>& loops,
              bool reversed = false)
    {
        int nextLoop = -1;
        for (auto loop = loops.rbegin(); loop != loops.rend(); ++loop) {
            const int first = next() + 1;
            nextLoop = add("loop", to(nextLoop) + ' ' + to(first) + " $-1");
            const auto count = static_cast<int>(loop->size());
            for (int i = 0; i < count; ++i) {
                const Use& use = (*loop)[static_cast<std::size_t>(i)];
                add("coedge", to(first + (i + 1) % count) + ' ' +
                                  to(first + (i + count - 1) % count) + " $-1 " + to(use.edge) +
                                  (use.reversed ? " reversed " : " forward ") + to(nextLoop) +
                                  " $-1");
            }
        }
        const std::size_t space = surface.find(' ');
        const int geometry = add(surface.substr(0, space), surface.substr(space + 1));
        add("face", "$-1 " + to(nextLoop) + " $2 $-1 " + to(geometry) +
                        (reversed ? " reversed" : " forward") + " single");
    }

    std::string text() const
    {
        std::string result = m_isNewForm ? "20800 " : "400 ";
        result += std::to_string(next()) + " 1 0\n";
        result += "@4 Test @7 maker 1 @3 now\n-1 9.9e-07 1e-10\n";
        for (const std::string& record : m_records)
            result += record + '\n';
        return result + "End-of-ACIS-data\n";
    }

  private:
    bool m_isNewForm;
    std::vector<std::string> m_records;
};

/// A body of one straight edge, from corner to corner of a box.
inline std::string edgeOfBox(const KdGePoint3d& low, const KdGePoint3d& high)
{
    Writer writer;
    const int start = writer.vertex(low);
    const int end = writer.vertex(high);
    writer.straightEdge(start, end);
    return writer.text();
}

/// Straight edges from point to point and back to the first.
inline std::vector<Writer::Use> polygon(Writer& writer, const std::vector<KdGePoint3d>& points)
{
    std::vector<int> vertices;
    for (const KdGePoint3d& point : points)
        vertices.push_back(writer.vertex(point));
    std::vector<Writer::Use> uses;
    for (std::size_t i = 0; i < vertices.size(); ++i)
        uses.push_back({writer.straightEdge(vertices[i], vertices[(i + 1) % vertices.size()])});
    return uses;
}

inline std::string plane(double normalZ = 1.0)
{
    return "plane-surface 0 0 0 0 0 " + std::to_string(normalZ) + " 1 0 0 forward_v I I I I";
}

/// A rectangle at the origin whose plane looks up or down.
inline std::string rectangle(double width, double height, double normalZ = 1.0)
{
    Writer writer;
    writer.face(plane(normalZ),
                {polygon(writer, {{0, 0, 0}, {width, 0, 0}, {width, height, 0}, {0, height, 0}})});
    return writer.text();
}

} // namespace body_text
