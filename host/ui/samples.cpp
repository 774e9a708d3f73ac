#include "samples.h"

#include <database/color_palette.h>

#include "sample_icon.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int kForegroundIndex = 7;

QRectF frameOf(const QSize& size)
{
    return QRectF(0.5, 0.5, size.width() - 1.0, size.height() - 1.0);
}

void drawFrame(QPainter& painter, const QSize& size, const QColor& ink)
{
    painter.setBrush(Qt::NoBrush);
    QColor soft = ink;
    soft.setAlphaF(0.55);
    painter.setPen(QPen(soft, 1.0));
    painter.drawRect(frameOf(size));
}

/// Index 7 is white or black, whichever shows on the ground.
void drawForeground(QPainter& painter)
{
    const QRectF frame = frameOf(kColorSampleSize);
    painter.fillRect(frame, Qt::white);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF({frame.bottomLeft(), frame.bottomRight(), frame.topRight()}));
}

/// By layer and by block are no colours: a stack of sheets, and a box in a box.
void drawIndirect(QPainter& painter, bool byLayer, const QColor& ink)
{
    painter.setPen(QPen(ink, 1.0));
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 3; ++i) {
        if (byLayer)
            painter.drawLine(QPointF(6.0 - i, 3.5 + 2.5 * i), QPointF(18.0 - i, 3.5 + 2.5 * i));
        else if (i < 2)
            painter.drawRect(QRectF(5.5 + 3 * i, 2.5 + 2 * i, 11.0 - 6 * i, 7.0 - 4 * i));
    }
}

QColor shownColor(const KdCmColor& color)
{
    if (color.colorMethod() == KdCmColor::kByColor)
        return QColor(color.red(), color.green(), color.blue());
    return QColor::fromRgb(kdcmPaletteRgb(color.colorIndex()));
}

/// How many pixels one unit of a pattern takes, so that patterns of any scale can be told apart and
/// seen.
double pixelsPerUnit(double patternLength)
{
    constexpr double kUsual = 22.0;
    constexpr double kShortest = 8.0;
    constexpr double kLongest = 44.0;
    const double length = std::clamp(patternLength * kUsual, kShortest, kLongest);
    return length / patternLength;
}

void drawDashes(QPainter& painter, const std::vector<double>& dashes, double unit)
{
    const double y = kLinetypeSampleSize.height() / 2.0;
    const double end = kLinetypeSampleSize.width() - 1.0;
    constexpr double kDot = 1.0;
    for (double x = 1.0; x < end;) {
        for (const double dash : dashes) {
            const double length = dash == 0.0 ? kDot : std::abs(dash) * unit;
            if (dash >= 0.0 && x < end)
                painter.drawLine(QPointF(x, y), QPointF(std::min(x + length, end), y));
            x += length;
        }
    }
}

} // namespace

QIcon colorSample(const KdCmColor& color)
{
    return sampleIcon(kColorSampleSize, [color](QPainter& painter, const QColor& ink) {
        const KdCmColor::Method method = color.colorMethod();
        if (method != KdCmColor::kByColor && method != KdCmColor::kByACI)
            drawIndirect(painter, method == KdCmColor::kByLayer, ink);
        else if (color.colorIndex() == kForegroundIndex)
            drawForeground(painter);
        else
            painter.fillRect(frameOf(kColorSampleSize), shownColor(color));
        drawFrame(painter, kColorSampleSize, ink);
    });
}

QIcon linetypeSample(std::vector<double> dashes)
{
    const double length =
        std::accumulate(dashes.begin(), dashes.end(), 0.0,
                        [](double sum, double dash) { return sum + std::abs(dash); });
    const bool isContinuous = !std::isnormal(length);
    const double unit = isContinuous ? 1.0 : pixelsPerUnit(length);
    if (isContinuous)
        dashes = {static_cast<double>(kLinetypeSampleSize.width())};
    return sampleIcon(kLinetypeSampleSize,
                      [dashes = std::move(dashes), unit](QPainter& painter, const QColor& ink) {
                          painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::FlatCap));
                          drawDashes(painter, dashes, unit);
                      });
}

QIcon lineweightSample(int weight)
{
    constexpr double kPixelsPerUnit = 96.0 / 25.4 / 100.0; // of 1/100 mm
    constexpr double kHairline = 0.6;
    const double width = std::max(weight * kPixelsPerUnit, kHairline);
    return sampleIcon(kLineweightSampleSize, [width](QPainter& painter, const QColor& ink) {
        const double y = kLineweightSampleSize.height() / 2.0;
        painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(2.0, y), QPointF(kLineweightSampleSize.width() - 2.0, y));
    });
}

QIcon emptySample()
{
    return sampleIcon(kLinetypeSampleSize, [](QPainter&, const QColor&) {});
}
