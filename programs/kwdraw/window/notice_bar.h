/// A line over the drawing that tells something and offers what can be done about it.
#pragma once

#include <QFrame>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// Hidden until it has something to tell.
class NoticeBar : public QFrame
{
    Q_OBJECT
  public:
    enum class Tone
    {
        Plain,
        Prompt,  ///< waits for the user
        Problem, ///< something failed
    };

    NoticeBar(const char* name, Tone tone, QWidget* parent = nullptr);

    /// A button at the end, from left to right in the order of the calls.
    QPushButton* addButton(const QString& text, std::function<void()> act);
    /// The button that hides the bar.
    void addCloseButton();
    void tell(const QString& text);
    QString text() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Tone m_tone;
    QLabel* m_text;
    QHBoxLayout* m_layout;
};
