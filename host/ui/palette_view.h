/// The 255 numbered colours as a field to pick from.
#pragma once

#include <QWidget>

/// Ten shades of each hue in columns, below them the named colours and the greys.
class KdUiPaletteView : public QWidget
{
    Q_OBJECT
  public:
    explicit KdUiPaletteView(QWidget* parent = nullptr);

    int index() const { return m_index; }
    /// @param index  1 to 255
    void setIndex(int index);

    QSize sizeHint() const override;
    /// Where a colour is shown.
    QRect cellOf(int index) const;

  signals:
    /// A colour was clicked twice.
    void picked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int indexAt(const QPoint& place) const;
    void moveTo(const QPoint& place);

    int m_index = 7;
};
