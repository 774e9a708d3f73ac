#include <kwdraw/texts/line_filler.h>

#include <algorithm>
#include <cmath>

using TabKind = ParagraphFormat::TabStop::Kind;

namespace {

/// The stop behind x: the format's own, or the next of those that stand at equal distances.
ParagraphFormat::TabStop nextStop(const ParagraphFormat& format, double x, double letterHeight)
{
    constexpr double kUsualDistance = 4.0; // in heights of the letters
    constexpr double kNear = 1e-6;
    for (const ParagraphFormat::TabStop& stop : format.tabs) {
        if (stop.place > x + kNear * letterHeight)
            return stop;
    }
    const double distance = kUsualDistance * letterHeight;
    return {(std::floor(x / distance + kNear) + 1.0) * distance, TabKind::Left};
}

bool isBlank(const LineElement& element)
{
    return element.isBlank;
}

} // namespace

LineFiller::LineFiller(const MTextItems& text, double width) : m_text(text), m_width(width) {}

void LineFiller::start(std::uint32_t format, bool isFirst)
{
    const ParagraphFormat& paragraph = m_text.formats[format];
    m_format = format;
    m_start = paragraph.left + (isFirst ? paragraph.first : 0.0);
    m_limit = m_width - paragraph.right;
    const bool hasRoom = m_limit - m_start > m_text.looks.front().height;
    if (m_width > 0.0 && !hasRoom) {
        m_start = 0.0;
        m_limit = m_width;
    }
    m_x = m_start;
    m_hasTabs = false;
    m_tab = {};
    m_elements.clear();
}

LineElement LineFiller::elementOf(const MTextItem& item) const
{
    LineElement element;
    element.letters = item.letters;
    element.look = item.look;
    element.isBlank = item.kind == MTextItem::Kind::Blank;
    element.stack = item.kind == MTextItem::Kind::Stack ? &m_text.stacks[item.stack] : nullptr;
    element.width =
        element.stack ? element.stack->width : widthOf(m_text.looks[item.look], item.letters);
    return element;
}

bool LineFiller::hasRoomFor(double width) const
{
    constexpr double kNear = 1e-6; // a width that was measured from the same letters must do
    return !(m_width > 0.0) || m_x + width <= m_limit + kNear * m_width;
}

void LineFiller::add(LineElement element)
{
    m_emptyLook = element.look;
    element.x = m_x;
    m_x += element.width;
    m_elements.push_back(std::move(element));
}

void LineFiller::addTab(double letterHeight)
{
    settleTab();
    m_hasTabs = true;
    const auto stop = nextStop(m_text.formats[m_format], m_x, letterHeight);
    if (stop.kind == TabKind::Left)
        m_x = stop.place;
    else
        m_tab = {m_elements.size(), m_x, stop};
}

void LineFiller::settleTab()
{
    if (m_tab.stop.kind == TabKind::Left)
        return;
    const double width = m_x - m_tab.from;
    const double share = m_tab.stop.kind == TabKind::Center ? 0.5 : 1.0;
    const double shift = std::max(0.0, m_tab.stop.place - m_tab.from - width * share);
    for (std::size_t i = m_tab.firstElement; i < m_elements.size(); ++i)
        m_elements[i].x += shift;
    m_x += shift;
    m_tab = {};
}

/// Widens the blanks of a justified line until it fills its column.
void LineFiller::spread(bool endsParagraph)
{
    using Align = ParagraphFormat::Align;
    const Align align = m_text.formats[m_format].align;
    const bool isSpread =
        align == Align::Distributed || (align == Align::Justified && !endsParagraph);
    const auto gaps = std::ranges::count_if(m_elements, isBlank);
    if (!isSpread || m_hasTabs || gaps == 0 || !(m_width > 0.0) || m_x >= m_limit)
        return;
    const double extra = (m_limit - m_x) / static_cast<double>(gaps);
    double shift = 0.0;
    for (LineElement& element : m_elements) {
        element.x += shift;
        if (element.isBlank) {
            element.width += extra;
            element.isSpread = true;
            shift += extra;
        }
    }
    m_x = m_limit;
}

double LineFiller::lineHeight() const
{
    double height = 0.0;
    double stacks = 0.0;
    for (const LineElement& element : m_elements) {
        double& tallest = element.stack ? stacks : height;
        tallest = std::max(tallest, lookOf(element).height);
    }
    if (height > 0.0)
        return height;
    return stacks > 0.0 ? stacks : m_text.looks[m_emptyLook].height;
}

/// How far over the base line an element stands.
double LineFiller::placeOf(const LineElement& element, double lineHeight) const
{
    const double height = element.stack ? element.stack->height : lookOf(element).height;
    switch (lookOf(element).place) {
    case TextLook::Place::Middle:
        return (lineHeight - height) / 2.0;
    case TextLook::Place::Top:
        return lineHeight - height;
    default:
        return 0.0;
    }
}

/// Adds an element to a line; letters that go on as those before them do, to their run.
void LineFiller::addPiece(const LineElement& element, const LineElement* before,
                          TextLine& line) const
{
    const double y = placeOf(element, line.height);
    if (element.stack) {
        line.pieces.add(element.stack->pieces, element.x, y);
        line.above = std::max(line.above, y + element.stack->height - line.height);
        line.below = std::max(line.below, -y);
        return;
    }
    line.depth = std::max(line.depth, depthOf(lookOf(element), element.letters) - y);
    const bool goesOn = before && !before->stack && !before->isSpread &&
                        before->look == element.look && before->x + before->width == element.x;
    if (goesOn) {
        TextRun& run = line.pieces.runs.back();
        run.letters += element.letters;
        run.width += element.width;
    } else {
        line.pieces.runs.push_back({element.letters, element.look, element.x, y, element.width});
    }
}

TextLine LineFiller::take(bool endsParagraph)
{
    settleTab();
    while (!m_elements.empty() && m_elements.back().isBlank && !m_hasTabs) {
        m_x = m_elements.back().x;
        m_elements.pop_back();
    }
    spread(endsParagraph);
    TextLine line;
    line.format = m_format;
    line.end = m_x;
    line.height = lineHeight();
    const LineElement* before = nullptr;
    for (const LineElement& element : m_elements) {
        addPiece(element, before, line);
        before = &element;
    }
    m_elements.clear();
    return line;
}
