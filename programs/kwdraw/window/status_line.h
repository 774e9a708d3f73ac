/// What stands at the foot of the window.
#pragma once

#include <QPointF>
#include <QWidget>

class QLabel;
class QProgressBar;
class QStatusBar;
class QToolButton;

class StatusLine : public QWidget
{
    Q_OBJECT
  public:
    /// Places its parts in `bar`.
    explicit StatusLine(QStatusBar& bar);

    /// The cursor's place in drawing units, in the notation of the drawing.
    void showPlace(QPointF place);
    /// The units of the working drawing, and no place.
    void showUnits();
    void showCount(std::size_t selected);
    /// What would be selected, beside the colour in which the view shows it; empty: nothing.
    void showPreview(const QString& line);
    /// What is going on, with the part that is done, 0 to 1.
    void showWork(const QString& what, double part);
    void endWork();

  signals:
    void cancelled();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void colorPreview();
    QLabel* addLabel(const char* name, int widthInLetters);

    QStatusBar& m_bar;
    QLabel* m_place;
    QLabel* m_units;
    QLabel* m_count;
    QLabel* m_previewColor;
    QLabel* m_preview;
    QLabel* m_what;
    QProgressBar* m_progress;
    QToolButton* m_cancel;
};
