// Single-line texts and attributes.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include <entities/attribute.h>
#include <entities/text_codes.h>
#include <kwdraw/texts/font_metrics.h>
#include <kwdraw/texts/frames.h>
#include <kwdraw/texts/style_look.h>
#include <kwdraw/texts/text_pen.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

/// A text's letters in one line from the origin on.
struct SetLine
{
    std::vector<TextLook> looks;
    TextPieces pieces;
    double width = 0.0;
    double depth = 0.0; ///< below the base line
};

class LineReader
{
  public:
    explicit LineReader(const TextLook& look) : m_look(look) {}

    SetLine read(std::wstring_view text)
    {
        for (std::size_t at = 0; at < text.size();) {
            TextCode code;
            if (!kddbTakeTextCode(text, at, code))
                add(text[at++]);
            else if (code.lineSwitch)
                toggle(code.lineSwitch);
            else
                add(code.letter);
        }
        flush();
        return std::move(m_line);
    }

  private:
    void add(wchar_t letter)
    {
        const auto code = static_cast<char32_t>(letter);
        if (code >= U' ')
            m_letters += QString::fromUcs4(&code, 1);
    }

    void toggle(wchar_t lineSwitch)
    {
        flush();
        bool& line = lineSwitch == L'u'   ? m_look.lineBelow
                     : lineSwitch == L'o' ? m_look.lineAbove
                                          : m_look.lineThrough;
        line = !line;
    }

    void flush()
    {
        if (m_letters.isEmpty())
            return;
        const double width = widthOf(m_look, m_letters);
        m_line.depth = std::max(m_line.depth, depthOf(m_look, m_letters));
        m_line.pieces.runs.push_back(
            {m_letters, static_cast<std::uint32_t>(m_line.looks.size()), m_line.width, 0.0, width});
        m_line.looks.push_back(m_look);
        m_line.width += width;
        m_letters.clear();
    }

    TextLook m_look;
    QString m_letters;
    SetLine m_line;
};

/// The two points of a text in its object frame.
struct Points
{
    explicit Points(const KdDbText& text)
    {
        const KdGeMatrix3d toPlane = KdGeMatrix3d::worldToPlane(text.normal());
        position = toPlane * text.position();
        alignment = toPlane * text.alignmentPoint();
    }
    KdGePoint3d position;
    KdGePoint3d alignment;
};

/// Where the line stands: its frame in the object frame, and where in it the base line begins.
struct Place
{
    KdGeMatrix3d frame;
    double x = 0.0;
    double y = 0.0;
};

bool isBetweenTwoPoints(const KdDbText& text)
{
    return text.horizontalMode() == KdDb::kTextAligned || text.horizontalMode() == KdDb::kTextFit;
}

double xOf(const KdDbText& text, double width)
{
    switch (text.horizontalMode()) {
    case KdDb::kTextCenter:
    case KdDb::kTextMiddle:
        return -width / 2.0;
    case KdDb::kTextRight:
        return -width;
    default:
        return 0.0;
    }
}

double yOf(const KdDbText& text, const TextLook& look, double depth)
{
    if (look.isDown)
        return -look.height / 2.0; // the points lie on the middle of the column
    if (text.horizontalMode() == KdDb::kTextMiddle)
        return -(look.height - depth) / 2.0;
    switch (text.verticalMode()) {
    case KdDb::kTextBottom:
        return descentOf(look.face.font) * look.height;
    case KdDb::kTextVerticalMiddle:
        return -look.height / 2.0;
    case KdDb::kTextTop:
        return -look.height;
    default:
        return 0.0;
    }
}

/// Turned and mirrored as the text says, about the point by which it is aligned.
KdGeMatrix3d frameAt(const KdGePoint3d& origin, double angle, const KdDbText& text)
{
    KdGeMatrix3d mirror;
    mirror.entry[0][0] = text.isMirroredInX() ? -1.0 : 1.0;
    mirror.entry[1][1] = text.isMirroredInY() ? -1.0 : 1.0;
    return turnedFrame(origin, angle) * mirror;
}

Place placeOf(const KdDbText& text, const Points& points, const TextLook& look, const SetLine& line)
{
    const bool isAtPosition =
        text.horizontalMode() == KdDb::kTextLeft && text.verticalMode() == KdDb::kTextBase;
    const KdGePoint3d& origin = isAtPosition ? points.position : points.alignment;
    return {frameAt(origin, text.rotation(), text), xOf(text, line.width),
            yOf(text, look, line.depth)};
}

/// Between two points the rotation follows from them; a backward line runs from the second one.
Place placeBetween(const KdDbText& text, const Points& points, const TextLook& look,
                   const SetLine& line)
{
    const KdGeVector3d along = points.alignment - points.position;
    const KdGePoint3d& origin = text.isMirroredInX() ? points.alignment : points.position;
    return {frameAt(origin, std::atan2(along.y, along.x), text), 0.0, yOf(text, look, line.depth)};
}

/// Gives the letters the height or the width with which the line just fills the distance.
void fit(const KdDbText& text, double distance, double width, TextLook& look)
{
    const double factor = distance / width;
    if (text.horizontalMode() == KdDb::kTextAligned)
        look.height *= factor;
    else
        look.widthFactor *= factor;
}

const KdDbMText* linesOf(const KdDbText& text)
{
    if (text.isKindOf(KdDbAttribute::desc()))
        return static_cast<const KdDbAttribute&>(text).getMTextAttributeConst();
    if (text.isKindOf(KdDbAttributeDefinition::desc()))
        return static_cast<const KdDbAttributeDefinition&>(text).getMTextAttributeDefinitionConst();
    return nullptr;
}

} // namespace

void writeText(const KdDbText& text, SceneWriter& writer)
{
    if (const KdDbMText* lines = linesOf(text)) {
        writeMText(*lines, writer);
        return;
    }
    if (!(text.height() > 0.0) || text.shownText().isEmpty())
        return;
    TextLook look = lookOfStyle(text.textStyle());
    look.height = text.height();
    look.oblique = text.oblique();
    look.widthFactor = text.widthFactor() > 0.0 ? text.widthFactor() : 1.0;
    SetLine line = LineReader(look).read(text.shownText());

    const Points points(text);
    const double distance = points.position.distanceTo(points.alignment);
    const bool isBetween = isBetweenTwoPoints(text) && distance > 0.0 && line.width > 0.0;
    if (isBetween) {
        fit(text, distance, line.width, look);
        line = LineReader(look).read(text.shownText());
    }
    const Place place =
        isBetween ? placeBetween(text, points, look, line) : placeOf(text, points, look, line);
    TextPen pen(writer, KdGeMatrix3d::planeToWorld(text.normal()) * place.frame);
    pen.pieces(line.pieces, line.looks, place.x, place.y);
}
