#include <kwdraw/window/contrast_style.h>

#include <QIcon>
#include <QLineF>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QStyleOption>
#include <QVector>

namespace {

constexpr int kFocus = 3; ///< pixels
constexpr QRgb kAccent = 0xFFFFFF00;

// clang-format off
struct Shade
{
    QPalette::ColorRole role;
    QRgb color;
};
constexpr Shade kShades[] = {
    {QPalette::Window,          0xFF000000},
    {QPalette::WindowText,      0xFFFFFFFF},
    {QPalette::Base,            0xFF000000},
    {QPalette::AlternateBase,   0xFF000000},
    {QPalette::Text,            0xFFFFFFFF},
    {QPalette::PlaceholderText, 0xFFC8C8C8},
    {QPalette::Button,          0xFF000000},
    {QPalette::ButtonText,      0xFFFFFFFF},
    {QPalette::ToolTipBase,     0xFF000000},
    {QPalette::ToolTipText,     0xFFFFFFFF},
    {QPalette::Highlight,       0xFFFFFFFF},
    {QPalette::HighlightedText, 0xFF000000},
    {QPalette::Link,            0xFF00FFFF},
    {QPalette::LinkVisited,     0xFF00FFFF},
    {QPalette::BrightText,      kAccent},
    {QPalette::Light,           0xFFFFFFFF},
    {QPalette::Midlight,        0xFF000000},
    {QPalette::Mid,             0xFFFFFFFF},
    {QPalette::Dark,            0xFFFFFFFF},
    {QPalette::Shadow,          0xFFFFFFFF},
};
// clang-format on
constexpr QRgb kDisabled = 0xFFA0A0A0;

void drawFrame(QPainter& painter, const QRect& rect, int width, const QColor& color)
{
    QRegion frame(rect);
    frame -= rect.adjusted(width, width, -width, -width);
    for (const QRect& side : frame)
        painter.fillRect(side, color);
}

/// With a dark edge inside, by which it stands out on what is chosen, too.
void drawFocus(QPainter& painter, const QRect& rect)
{
    drawFrame(painter, rect, kFocus + 1, Qt::black);
    drawFrame(painter, rect, kFocus, QColor(kAccent));
}

/// On a grid of 16 by 16.
QIcon lineIcon(const QVector<QLineF>& lines)
{
    constexpr int kSize = 32;
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kSize / 16.0, kSize / 16.0);
    painter.setPen(QPen(Qt::white, 2.0));
    painter.drawLines(lines);
    return picture;
}

bool hasFocus(const QStyleOption& option)
{
    return (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_Enabled);
}

} // namespace

ContrastStyle::ContrastStyle() : QProxyStyle("windows") {}

QPalette ContrastStyle::palette()
{
    QPalette palette;
    for (const Shade& shade : kShades)
        palette.setColor(shade.role, QColor(shade.color));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(kDisabled));
    return palette;
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    if (element == PE_FrameFocusRect)
        return drawFocus(*painter, option->rect);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if ((element == PE_PanelLineEdit || element == PE_Frame) && hasFocus(*option))
        drawFocus(*painter, option->rect);
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && hasFocus(*option))
        drawFocus(*painter, option->rect);
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && hasFocus(*option))
        drawFocus(*painter, option->rect);
}

int ContrastStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returned) const
{
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ContrastStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const
{
    if (icon == SP_TitleBarCloseButton)
        return lineIcon({{3, 3, 13, 13}, {13, 3, 3, 13}});
    if (icon == SP_TitleBarNormalButton)
        return lineIcon({{3, 3, 13, 3}, {13, 3, 13, 13}, {13, 13, 3, 13}, {3, 13, 3, 3}});
    return QProxyStyle::standardIcon(icon, option, widget);
}
