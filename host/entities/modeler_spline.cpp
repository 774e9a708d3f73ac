#include "modeler_spline.h"

namespace {

using Kind = ModelerToken::Kind;

constexpr std::size_t kHighestDegree = 25;
constexpr std::size_t kMostValues = std::size_t{1} << 24; // of a curve or surface; more is damage

/// Reads the values of a spline one after the other.
class SplineReader
{
  public:
    /// Stands behind the word that begins the first spline of the record; see `isGood`.
    SplineReader(const ModelerRecords& records, int record) : m_tokens(records.tokens(record))
    {
        ModelerToken token;
        while (m_tokens.next(token) && token.kind != Kind::RecordEnd) {
            if (token.kind != Kind::Word)
                continue;
            if (token.text == "ref" && m_tokens.next(token) && token.kind == Kind::Number)
                m_tokens = records.sharedPart(static_cast<int>(token.number));
            m_good = token.text == "nubs" || token.text == "nurbs";
            m_rational = token.text == "nurbs";
            if (m_good)
                return;
        }
    }

    bool isGood() const { return m_good; }
    bool isRational() const { return m_rational; }
    double number()
    {
        ModelerToken token;
        m_good = m_good && m_tokens.next(token) && token.kind == Kind::Number;
        return m_good ? token.number : 0.0;
    }
    std::size_t count(std::size_t most)
    {
        const double value = number();
        m_good = m_good && value >= 0.0 && value <= static_cast<double>(most);
        return m_good ? static_cast<std::size_t>(value) : 0;
    }
    void skip(int tokens)
    {
        ModelerToken token;
        for (; tokens > 0; --tokens)
            m_good = m_good && m_tokens.next(token);
    }
    /// `count` knots, each with the number of times that it stands.
    std::vector<double> knots(std::size_t count)
    {
        std::vector<double> result;
        for (; count > 0 && m_good; --count) {
            const double knot = number();
            result.insert(result.end(), this->count(kHighestDegree + 1), knot);
        }
        return result;
    }
    KdGePoint3d point()
    {
        const double x = number();
        const double y = number();
        return {x, y, number()};
    }

  private:
    ModelerTokens m_tokens;
    bool m_good = false;
    bool m_rational = false;
};

/// How many control points belong to knots of which the outer ones stand once less than usual.
std::size_t polesFor(const std::vector<double>& knots, std::size_t degree)
{
    return knots.size() + 1 > degree ? knots.size() + 1 - degree : 0;
}

} // namespace

std::unique_ptr<KdGeNurbCurve3d> readModelerCurve(const ModelerRecords& records, int record,
                                                  const KdGeMatrix3d& frame)
{
    SplineReader reader(records, record);
    const std::size_t degree = reader.count(kHighestDegree);
    reader.skip(1); // open, closed or periodic
    std::vector<double> knots = reader.knots(reader.count(kMostValues));
    const std::size_t count = polesFor(knots, degree);
    std::vector<KdGePoint3d> poles;
    std::vector<double> weights;
    for (std::size_t i = 0; i < count && reader.isGood(); ++i) {
        poles.push_back(frame * reader.point());
        if (reader.isRational())
            weights.push_back(reader.number());
    }
    if (!reader.isGood() || knots.empty())
        return nullptr;
    knots.insert(knots.begin(), knots.front());
    knots.push_back(knots.back());
    return KdGeNurbCurve3d::create(static_cast<int>(degree), knots, poles, weights);
}

std::vector<KdGePoint3d> readModelerSurface(const ModelerRecords& records, int record,
                                            const KdGeMatrix3d& frame)
{
    SplineReader reader(records, record);
    if (!reader.isGood())
        return {};
    const std::size_t degreeU = reader.count(kHighestDegree);
    const std::size_t degreeV = reader.count(kHighestDegree);
    // How the surface closes and where it narrows to a point, in both directions; a rational one
    // also tells in which direction it is rational.
    reader.skip(reader.isRational() ? 5 : 4);
    const std::size_t knotsU = reader.count(kMostValues);
    const std::size_t knotsV = reader.count(kMostValues);
    const std::size_t polesU = polesFor(reader.knots(knotsU), degreeU);
    const std::size_t polesV = polesFor(reader.knots(knotsV), degreeV);
    if (polesV > 0 && polesU > kMostValues / polesV)
        return {};
    std::vector<KdGePoint3d> hull;
    for (std::size_t i = 0; i < polesU * polesV && reader.isGood(); ++i) {
        hull.push_back(frame * reader.point());
        if (reader.isRational())
            reader.number();
    }
    return reader.isGood() ? hull : std::vector<KdGePoint3d>();
}
