/// How windows look in high contrast.
#pragma once

#include <QPalette>
#include <QProxyStyle>

/// Edges of full contrast around all that can be used, and a thick frame around what has the keys.
class ContrastStyle : public QProxyStyle
{
    Q_OBJECT
  public:
    ContrastStyle();

    static QPalette palette();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    /// The usual ones of title bars are dark.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};
