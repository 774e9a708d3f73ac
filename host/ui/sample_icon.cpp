#include "sample_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <utility>

namespace {

QColor inkOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Selected:
        return palette.color(QPalette::HighlightedText);
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::Text);
    default:
        return palette.color(QPalette::Text);
    }
}

class SampleEngine : public QIconEngine
{
  public:
    SampleEngine(const QSize& drawnFor, SamplePainter draw)
        : m_drawnFor(drawnFor), m_draw(std::move(draw))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(double(rect.width()) / m_drawnFor.width(),
                       double(rect.height()) / m_drawnFor.height());
        m_draw(*painter, inkOf(mode));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return image;
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        return m_drawnFor.scaled(size, Qt::KeepAspectRatio);
    }

    QIconEngine* clone() const override { return new SampleEngine(m_drawnFor, m_draw); }

  private:
    QSize m_drawnFor;
    SamplePainter m_draw;
};

} // namespace

QIcon sampleIcon(const QSize& drawnFor, SamplePainter paint)
{
    return QIcon(new SampleEngine(drawnFor, std::move(paint)));
}
