// Hatches.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include <entities/hatch.h>

#include "application_data.h"
#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

/// Reads one loop after the other. The same codes mean different things in corners, in each kind of
/// edge and behind the loops, so what the last 92 and 72 said decides. The counts that drawings
/// give only serve to make room.
class LoopReader
{
  public:
    LoopReader(RecordReader& reader, HatchContent& hatch) : m_reader(reader), m_hatch(hatch) {}
    ~LoopReader() { finishLoop(); }
    LoopReader(const LoopReader&) = delete;
    LoopReader& operator=(const LoopReader&) = delete;

    /// Takes the group if it is part of a loop.
    bool take();

  private:
    enum EdgeKind
    {
        kNoEdge = 0,
        kLine = 1,
        kArc = 2,
        kEllipse = 3,
        kSpline = 4,
    };

    HatchLoop& loop() { return m_hatch.loops.back(); }
    void expectCorners();
    bool takeCorner();
    bool takeEdge();
    bool takeLine();
    bool takeArc();
    bool takeSpline();
    void beginEdge();
    void finishEdge();
    void finishArc(bool isCircle);
    void finishLoop();

    RecordReader& m_reader;
    HatchContent& m_hatch;
    bool m_isInLoops = false;

    int m_kind = kNoEdge; ///< of the edge that is being read
    HatchLineEdge m_line;
    HatchArcEdge m_arc; ///< with its angles as the drawing has them
    double m_radius = 0.0;
    bool m_isCounterClockwise = true;
    HatchSplineEdge m_spline;
};

bool LoopReader::take()
{
    switch (m_reader.code()) {
    case 91:
        return true; // the number of loops
    case 92:
        finishLoop();
        m_isInLoops = true;
        m_hatch.loops.emplace_back().type = m_reader.integer();
        return true;
    case 75: // what comes behind the loops
    case 76:
        finishLoop();
        m_isInLoops = false;
        return false;
    case 93:
        expectCorners();
        return m_isInLoops;
    case 97:
        return m_isInLoops;
    case 330: {
        if (!m_isInLoops)
            return false;
        const KdDbObjectId source = m_reader.reference();
        if (!source.isNull())
            loop().sources.push_back(source);
        return true;
    }
    default:
        return m_isInLoops && (loop().isPolyline() ? takeCorner() : takeEdge());
    }
}

/// Makes room for the number of corners that is stated; loops are small, as a rule.
void LoopReader::expectCorners()
{
    constexpr std::size_t kMost = 1000;
    constexpr std::uint32_t kLeastBytes = 10; // of a corner
    if (m_isInLoops && loop().isPolyline())
        loop().vertices.reserve(std::min(m_reader.statedCount(kLeastBytes), kMost));
}

bool LoopReader::takeCorner()
{
    switch (m_reader.code()) {
    case 10:
        loop().vertices.push_back({m_reader.point2d()});
        return true;
    case 42:
        if (!loop().vertices.empty())
            loop().vertices.back().bulge = m_reader.real();
        return true;
    default: // 72 and 73 tell if there are bulges, and that it is closed
        return m_reader.code() == 72 || m_reader.code() == 73;
    }
}

bool LoopReader::takeEdge()
{
    if (m_reader.code() == 72) {
        finishEdge();
        beginEdge();
        return true;
    }
    switch (m_kind) {
    case kLine:
        return takeLine();
    case kArc:
    case kEllipse:
        return takeArc();
    case kSpline:
        return takeSpline();
    default:
        return true; // of an edge of no known kind
    }
}

bool LoopReader::takeLine()
{
    switch (m_reader.code()) {
    case 10:
        m_line.start = m_reader.point2d();
        return true;
    case 11:
        m_line.end = m_reader.point2d();
        return true;
    default:
        return false;
    }
}

bool LoopReader::takeArc()
{
    switch (m_reader.code()) {
    case 10:
        m_arc.center = m_reader.point2d();
        return true;
    case 11: {
        const KdGePoint2d axis = m_reader.point2d();
        m_arc.majorAxis = {axis.x, axis.y};
        return true;
    }
    case 40:
        (m_kind == kArc ? m_radius : m_arc.radiusRatio) = m_reader.real();
        return true;
    case 50:
        m_arc.startParam = m_reader.angle();
        return true;
    case 51:
        m_arc.endParam = m_reader.angle();
        return true;
    case 73:
        m_isCounterClockwise = m_reader.flag();
        return true;
    default:
        return false;
    }
}

bool LoopReader::takeSpline()
{
    switch (m_reader.code()) {
    case 94:
        m_spline.degree = m_reader.integer();
        return true;
    case 40:
        m_spline.knots.push_back(m_reader.real());
        return true;
    case 10:
        m_spline.controlPoints.push_back(m_reader.point2d());
        return true;
    case 42:
        m_spline.weights.push_back(m_reader.real());
        return true;
    case 11:
        m_spline.fitPoints.push_back(m_reader.point2d());
        return true;
    default: // 12 and 13, the directions at the ends, follow from the control points
        return true;
    }
}

void LoopReader::beginEdge()
{
    m_kind = m_reader.integer();
    m_line = {};
    m_arc = {};
    m_radius = 0.0;
    m_isCounterClockwise = true;
    m_spline = {};
}

/// Gives back the room that its lists took beforehand.
void LoopReader::finishLoop()
{
    finishEdge();
    if (m_hatch.loops.empty())
        return;
    loop().vertices.shrink_to_fit();
    loop().edges.shrink_to_fit();
}

void LoopReader::finishEdge()
{
    switch (m_kind) {
    case kLine:
        loop().edges.emplace_back(m_line);
        break;
    case kArc:
    case kEllipse:
        finishArc(m_kind == kArc);
        break;
    case kSpline:
        if (m_spline.weights.size() != m_spline.controlPoints.size())
            m_spline.weights.clear();
        loop().edges.emplace_back(std::move(m_spline));
        break;
    default:
        break;
    }
    m_kind = kNoEdge;
}

/// Drawings give directions as seen from the center, and the parameter of a flattened circle runs
/// ahead of them or behind.
double paramOfDirection(double angle, double ratio)
{
    const double param = std::atan2(std::sin(angle), ratio * std::cos(angle));
    return param + kTurn * std::round((angle - param) / kTurn);
}

void LoopReader::finishArc(bool isCircle)
{
    if (isCircle) {
        m_arc.majorAxis = {m_radius, 0.0};
        m_arc.radiusRatio = 1.0;
    }
    double start = paramOfDirection(m_arc.startParam, m_arc.radiusRatio);
    double end = paramOfDirection(m_arc.endParam, m_arc.radiusRatio);
    constexpr double kAlmostNothing = 1e-10;
    double sweep = std::fmod(end - start, kTurn);
    if (sweep < kAlmostNothing)
        sweep += kTurn;
    // The angles of a clockwise edge are those of its mirror image.
    m_arc.startParam = m_isCounterClockwise ? start : -start;
    m_arc.endParam = m_isCounterClockwise ? start + sweep : -(start + sweep);
    loop().edges.emplace_back(m_arc);
}

/// Takes the groups of the families of pattern lines; each begins with its angle.
bool takePatternLine(RecordReader& reader, HatchContent& hatch)
{
    const int code = reader.code();
    if (code == 53) {
        hatch.patternLines.emplace_back().angle = reader.angle();
        return true;
    }
    if (hatch.patternLines.empty())
        return false;
    HatchPatternLine& family = hatch.patternLines.back();
    switch (code) {
    case 43:
        family.base.x = reader.real();
        return true;
    case 44:
        family.base.y = reader.real();
        return true;
    case 45:
        family.offset.x = reader.real();
        return true;
    case 46:
        family.offset.y = reader.real();
        return true;
    case 49:
        family.dashes.push_back(reader.real());
        return true;
    default:
        return false;
    }
}

/// A color by its place, its index and, above the index, its own red, green and blue.
bool takeGradientColor(RecordReader& reader, HatchContent& hatch)
{
    const int code = reader.code();
    if (code == 463) {
        hatch.gradientValues.push_back(static_cast<float>(reader.real()));
        hatch.gradientColors.emplace_back();
        return true;
    }
    if ((code != 63 && code != 421) || hatch.gradientColors.empty())
        return false;
    hatch.gradientColors.back() = KdCmColor(code == 63 ? colorWordOfIndex(reader.integer())
                                                       : colorWordOfRgb(reader.integer()));
    return true;
}

bool takeGradient(RecordReader& reader, HatchContent& hatch)
{
    switch (reader.code()) {
    case 450:
        hatch.gradient = reader.flag();
        return true;
    case 452:
        hatch.oneColorGradient = reader.flag();
        return true;
    case 460:
        hatch.gradientAngle = reader.real();
        return true;
    case 461:
        hatch.gradientShift = static_cast<float>(reader.real());
        return true;
    case 462:
        hatch.gradientTint = static_cast<float>(reader.real());
        return true;
    case 470:
        hatch.gradientName = reader.text();
        return true;
    default:
        return takeGradientColor(reader, hatch);
    }
}

/// What gradients add to the name of the solid pattern below them.
KdString withoutGradientMark(const KdString& name)
{
    constexpr std::wstring_view kMark = L",_O";
    const std::wstring_view text = name.view();
    return text.ends_with(kMark) ? KdString(text.substr(0, text.size() - kMark.size())) : name;
}

bool takePattern(RecordReader& reader, HatchContent& hatch)
{
    switch (reader.code()) {
    case 2:
        hatch.patternName = withoutGradientMark(reader.text());
        return true;
    case 41:
        hatch.patternScale = reader.real();
        return true;
    case 52:
        hatch.patternAngle = reader.angle();
        return true;
    case 70:
        hatch.solid = reader.flag();
        return true;
    case 76:
        hatch.patternType = reader.shortInteger();
        return true;
    case 77:
        hatch.doubled = reader.flag();
        return true;
    default:
        return takePatternLine(reader, hatch);
    }
}

void takeRest(RecordReader& reader, HatchContent& hatch, bool& isBehindLoops)
{
    switch (reader.code()) {
    case 10:
        if (isBehindLoops)
            hatch.seeds.push_back(reader.point2d());
        else
            hatch.elevation = reader.point().z;
        break;
    case 71:
        hatch.associative = reader.flag();
        break;
    case 75:
        hatch.style = static_cast<HatchContent::Style>(reader.shortInteger());
        isBehindLoops = true;
        break;
    default:
        takeExtrusion(reader, hatch.extrusion) || takePattern(reader, hatch) ||
            takeGradient(reader, hatch);
    }
}

void takeOrigin(const ResbufChain& extendedData, HatchContent& hatch)
{
    constexpr short kPoint = 1010;
    if (const resbuf* origin = ApplicationData(extendedData, L"ACAD").take(kPoint))
        hatch.origin = {origin->resval.rpoint[0], origin->resval.rpoint[1]};
}

void readHatch(RecordReader& reader, HatchMembers& hatch)
{
    bool isBehindLoops = false;
    {
        LoopReader loops(reader, hatch);
        while (reader.next()) {
            if (!loops.take())
                takeRest(reader, hatch, isBehindLoops);
        }
    }
    takeOrigin(hatch.extendedData, hatch);
    if (hatch.patternType == HatchContent::kUserDefined) // one group for both
        hatch.patternSpace = std::exchange(hatch.patternScale, 1.0);
}

/// Like a hatch, with other codes for what fills it.
void readMPolygon(RecordReader& reader, HatchMembers& polygon)
{
    bool isBehindLoops = false;
    LoopReader loops(reader, polygon);
    while (reader.next()) {
        if (loops.take())
            continue;
        if (reader.code() == 71)
            polygon.solid = reader.flag();
        else if (reader.code() != 70)
            takeRest(reader, polygon, isBehindLoops);
    }
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbHatch, HatchMembers, readHatch>()),
    memberReader<KdDbMPolygon, HatchMembers, readMPolygon>(),
};

} // namespace

std::span<const MemberReaderRow> hatchReaders()
{
    return kRows;
}

} // namespace dxf
