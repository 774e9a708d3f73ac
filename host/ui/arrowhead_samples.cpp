#include "sample_icon.h"
#include "samples.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <iterator>

namespace {

// The tip points to the left end; the line comes from the right.
constexpr double kTip = 8.0;
constexpr double kAxis = 7.0;
constexpr double kEnd = 36.0;

/// Draws a head and returns where its line begins.
using HeadPainter = double (*)(QPainter& painter);

double nothing(QPainter&)
{
    return kTip;
}

template <int Length, int HalfHeight>
double triangle(QPainter& painter)
{
    painter.drawPolygon(QPolygonF(
        {{kTip, kAxis}, {kTip + Length, kAxis - HalfHeight}, {kTip + Length, kAxis + HalfHeight}}));
    return kTip + Length;
}

/// The line goes through a closed head up to its tip.
double closed(QPainter& painter)
{
    triangle<11, 4>(painter);
    return kTip;
}

template <int Length, int HalfHeight>
double open(QPainter& painter)
{
    painter.drawPolyline(QPolygonF(
        {{kTip + Length, kAxis - HalfHeight}, {kTip, kAxis}, {kTip + Length, kAxis + HalfHeight}}));
    return kTip;
}

template <int Radius>
double circle(QPainter& painter)
{
    painter.drawEllipse(QPointF(kTip, kAxis), Radius, Radius);
    return kTip + Radius;
}

double origin(QPainter& painter)
{
    circle<4>(painter);
    return kTip;
}

double twoCircles(QPainter& painter)
{
    circle<2>(painter);
    return circle<4>(painter);
}

double box(QPainter& painter)
{
    constexpr double kHalf = 4.0;
    painter.drawRect(QRectF(kTip - kHalf, kAxis - kHalf, 2 * kHalf, 2 * kHalf));
    return kTip + kHalf;
}

/// A triangle that stands on the end of the line and points along it.
double datum(QPainter& painter)
{
    constexpr double kLength = 8.0;
    painter.drawPolygon(
        QPolygonF({{kTip, kAxis - 5.0}, {kTip, kAxis + 5.0}, {kTip + kLength, kAxis}}));
    return kTip + kLength;
}

template <int TenthsOfWidth>
double stroke(QPainter& painter)
{
    QPen pen = painter.pen();
    pen.setWidthF(TenthsOfWidth / 10.0);
    painter.setPen(pen);
    painter.drawLine(QPointF(kTip - 4.0, kAxis + 4.0), QPointF(kTip + 4.0, kAxis - 4.0));
    pen.setWidthF(1.2);
    painter.setPen(pen);
    return kTip;
}

double integral(QPainter& painter)
{
    QPainterPath path(QPointF(kTip - 4.0, kAxis + 5.0));
    path.cubicTo({kTip + 2.0, kAxis + 5.0}, {kTip - 2.0, kAxis - 5.0}, {kTip + 4.0, kAxis - 5.0});
    painter.drawPath(path);
    return kTip;
}

struct Head
{
    ArrowheadRow row;
    bool filled;
    HeadPainter paint;
};

// clang-format off
constexpr Head kHeads[] = {
    {{48281, "None"},                  false, nothing},
    {{48282, "Closed"},                false, closed},
    {{48283, "Dot"},                   true,  circle<4>},
    {{48284, "Closed filled"},         true,  triangle<11, 4>},
    {{48285, "Closed blank"},          false, triangle<11, 4>},
    {{48286, "Oblique"},               false, stroke<12>},
    {{48287, "Architectural tick"},    false, stroke<28>},
    {{48288, "Open"},                  false, open<11, 4>},
    {{48289, "Origin indicator"},      false, origin},
    {{48290, "Origin indicator 2"},    false, twoCircles},
    {{48291, "Right angle"},           false, open<5, 5>},
    {{48292, "Open 30"},               false, open<11, 3>},
    {{48293, "Dot blank"},             false, circle<4>},
    {{48294, "Dot small"},             true,  circle<2>},
    {{48295, "Box filled"},            true,  box},
    {{48296, "Box"},                   false, box},
    {{48297, "Datum triangle filled"}, true,  datum},
    {{48298, "Datum triangle"},        false, datum},
    {{48299, "Integral"},              false, integral},
    {{48300, "Dot small blank"},       false, circle<2>},
};
// clang-format on

constexpr auto kRows = [] {
    std::array<ArrowheadRow, std::size(kHeads)> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = kHeads[i].row;
    return rows;
}();

} // namespace

std::span<const ArrowheadRow> arrowheadRows()
{
    return kRows;
}

QIcon arrowheadSample(int row)
{
    const Head& head = kHeads[row];
    return sampleIcon(kArrowheadSampleSize, [&head](QPainter& painter, const QColor& ink) {
        painter.setPen(QPen(ink, 1.2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.setBrush(head.filled ? QBrush(ink) : QBrush(Qt::NoBrush));
        const double begin = head.paint(painter);
        painter.drawLine(QPointF(begin, kAxis), QPointF(kEnd, kAxis));
    });
}
