/// The command line: what the program and its commands say, and a line to type commands in.
#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

class CommandLine : public QWidget
{
    Q_OBJECT
  public:
    /// So many lines are kept.
    static constexpr int kMostLines = 2000;

    explicit CommandLine(QWidget* parent = nullptr);

    /// Offered for completion while a command is typed.
    void setCommands(const QStringList& names);
    /// Adds to what was said. A text that begins with a line feed starts a line of its own; what
    /// follows on one line is put together.
    void print(const QString& text);
    /// Says something in a line of its own.
    void say(const QString& line);
    QString text() const;

    /// What stands before the line to type in; empty for the usual one.
    void setPrompt(const QString& prompt);
    void focusInput();
    /// Begins a line with what was typed elsewhere.
    void type(const QString& text);

  signals:
    /// A line was ended by Enter; empty if nothing stood in it.
    void entered(const QString& line);
    /// Esc was pressed in the empty line.
    void left();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool handleKey(int key);
    void enter();
    /// Brings back an earlier line, or a later one.
    void recall(int direction);

    QPlainTextEdit* m_said;
    QLabel* m_prompt;
    QLineEdit* m_input;
    QStringList m_history;
    int m_place = 0; ///< in the history; behind its end while a new line is typed
    bool m_lineIsOpen = false;
};
