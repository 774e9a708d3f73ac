#include <kwdraw/window/icons.h>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QTextStream>

namespace {

constexpr qreal kGrid = 20.0;
constexpr qreal kPen = 1.5;

/// Lines on a grid of 20 by 20, y downwards: M and L with a point, O with centre and radius, R with
/// corner and size, A with centre, radius, start and sweep in degrees, Z.
struct Drawing
{
    Icon icon;
    const char* lines;    ///< in the colour of texts
    const char* accented; ///< in the colour of what is selected
};

// clang-format off
constexpr Drawing kDrawings[] = {
    {Icon::Open, "M 2 16 L 2 4 L 7.5 4 L 9.5 6 L 16.5 6 L 16.5 9 M 2 16 L 5 9 L 19 9 L 16 16 Z", ""},
    {Icon::Reload, "A 10 10.5 6.5 60 -290 M 13 2.5 L 13.2 5 L 10 6.6", ""},
    {Icon::Undo, "M 6.5 3 L 2.5 7 L 6.5 11 M 2.5 7 L 12.5 7 A 12.5 11.5 4.5 90 -180 L 7 16", ""},
    {Icon::Redo, "M 13.5 3 L 17.5 7 L 13.5 11 M 17.5 7 L 7.5 7 A 7.5 11.5 4.5 90 180 L 13 16", ""},
    {Icon::QuickSelect, "M 2 2 L 5 2 M 8 2 L 11 2 M 14 2 L 14 5 M 2 5 L 2 8 M 2 11 L 2 14 L 5 14",
                        "M 13 6 L 7.5 12.5 L 11 12.5 L 9 18.5 L 16.5 10.5 L 12.5 10.5 L 15 6 Z"},
    {Icon::SelectSimilar, "O 14 14 3.5 R 10.5 2.5 6.5 6", "O 5.5 14 3.5"},
    {Icon::ZoomExtents, "M 2 6 L 2 2 L 6 2 M 14 2 L 18 2 L 18 6 M 18 14 L 18 18 L 14 18 M 6 18 L 2 18 L 2 14",
                        "O 10 10 4.5"},
    {Icon::ZoomWindow, "O 8 8 6 M 12.5 12.5 L 18 18", "R 5 6 6 4"},
    {Icon::ZoomSelection, "O 8 8 6 M 12.5 12.5 L 18 18", "M 5 10 L 7 7 L 9 9 L 11 6"},
    {Icon::ZoomPrevious, "O 11 8 6 M 15.5 12.5 L 19 16", "M 13 8 L 8 8 M 10 6 L 8 8 L 10 10"},
    {Icon::Next, "M 3 5 L 3 15 M 17 5 L 17 15", "M 6 10 L 14 10 M 11 7 L 14 10 L 11 13"},
    {Icon::Previous, "M 3 5 L 3 15 M 17 5 L 17 15", "M 14 10 L 6 10 M 9 7 L 6 10 L 9 13"},
    {Icon::Layers, "M 2 10 L 10 14 L 18 10 M 2 13.5 L 10 17.5 L 18 13.5", "M 10 2.5 L 18 6.5 L 10 10.5 L 2 6.5 Z"},
    {Icon::Properties, "R 2.5 2.5 15 15 M 2.5 7 L 17.5 7 M 8 7 L 8 17.5", "M 10.5 10 L 15 10 M 10.5 14 L 15 14"},
    {Icon::CommandLine, "R 2 3.5 16 13", "M 5 7.5 L 7.5 10 L 5 12.5 M 9.5 13 L 14 13"},
    {Icon::Lineweights, "M 2 4 L 18 4", "M 2 9 L 18 9 M 2 9.8 L 18 9.8 M 2 14.5 L 18 14.5 M 2 15.5 L 18 15.5 M 2 16.5 L 18 16.5"},
    {Icon::Theme, "O 10 10 7.5", "M 10 2.5 A 10 10 7.5 90 -180 Z"},
    {Icon::Help, "O 10 10 8", "A 10 7.8 2.5 170 -215 L 10 11.2 M 10 14 L 10 14.3"},
    {Icon::Block, "R 2.5 2.5 15 15", "O 10 10 3.5"},
};
// clang-format on

/// Adds one element to a path; the letter says which.
void addElement(QPainterPath& path, char letter, QTextStream& numbers)
{
    qreal x = 0.0;
    qreal y = 0.0;
    if (letter != 'Z')
        numbers >> x >> y;
    qreal a = 0.0;
    qreal b = 0.0;
    qreal c = 0.0;
    switch (letter) {
    case 'M':
        return path.moveTo(x, y);
    case 'L':
        return path.lineTo(x, y);
    case 'O':
        numbers >> a;
        return path.addEllipse(QPointF(x, y), a, a);
    case 'R':
        numbers >> a >> b;
        return path.addRoundedRect(QRectF(x, y, a, b), 1.0, 1.0);
    case 'A': {
        numbers >> a >> b >> c;
        const QRectF around(x - a, y - a, 2.0 * a, 2.0 * a);
        if (path.elementCount() == 0)
            path.arcMoveTo(around, b);
        return path.arcTo(around, b, c);
    }
    default:
        return path.closeSubpath();
    }
}

QPainterPath pathOf(const char* text)
{
    QPainterPath path;
    QString letters = QString::fromLatin1(text);
    QTextStream stream(&letters);
    QString letter;
    while (!stream.atEnd()) {
        stream >> letter;
        if (!letter.isEmpty())
            addElement(path, letter[0].toLatin1(), stream);
    }
    return path;
}

class ThemedEngine : public QIconEngine
{
  public:
    explicit ThemedEngine(const Drawing& drawing)
        : m_lines(pathOf(drawing.lines)), m_accented(pathOf(drawing.accented))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const bool off = mode == QIcon::Disabled;
        const auto group = off ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = QApplication::palette();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kGrid, rect.height() / kGrid);
        draw(*painter, m_lines, palette.color(group, QPalette::ButtonText));
        draw(*painter, m_accented,
             palette.color(group, off ? QPalette::ButtonText : QPalette::Link));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new ThemedEngine(*this); }

  private:
    static void draw(QPainter& painter, const QPainterPath& path, const QColor& color)
    {
        painter.strokePath(path, QPen(color, kPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    QPainterPath m_lines;
    QPainterPath m_accented;
};

} // namespace

QIcon iconOf(Icon icon)
{
    for (const Drawing& drawing : kDrawings) {
        if (drawing.icon == icon)
            return QIcon(new ThemedEngine(drawing));
    }
    return {};
}

QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 64, 128}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / kGrid, size / kGrid);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x22, 0x4E, 0x86));
        painter.drawRoundedRect(QRectF(0.5, 0.5, 19, 19), 3.5, 3.5);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(pathOf("M 4 15.5 L 4 4.5 L 16 15.5 Z"));
        painter.setPen(QPen(QColor(0xFF, 0xB4, 0x3C), 1.6));
        painter.drawEllipse(QPointF(13, 7), 2.8, 2.8);
        icon.addPixmap(picture);
    }
    return icon;
}
