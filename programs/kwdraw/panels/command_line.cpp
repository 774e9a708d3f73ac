#include <kwdraw/panels/command_line.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>

CommandLine::CommandLine(QWidget* parent)
    : QWidget(parent), m_said(new QPlainTextEdit), m_prompt(new QLabel), m_input(new QLineEdit)
{
    m_said->setObjectName("said");
    m_said->setReadOnly(true);
    m_said->setMaximumBlockCount(kMostLines);
    m_said->setFocusPolicy(Qt::ClickFocus);
    m_said->setAccessibleName(tr("Messages"));
    m_input->setObjectName("commandInput");
    m_input->setAccessibleName(tr("Command"));
    m_input->setPlaceholderText(tr("Type a command, such as QSELECT or HELP"));
    m_input->installEventFilter(this);
    m_prompt->setObjectName("prompt");
    m_prompt->setBuddy(m_input);
    connect(m_input, &QLineEdit::returnPressed, this, &CommandLine::enter);

    auto* line = new QHBoxLayout;
    line->setContentsMargins(4, 0, 0, 0);
    line->addWidget(m_prompt);
    line->addWidget(m_input, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_said, 1);
    layout->addLayout(line);
    setPrompt({});
}

void CommandLine::setCommands(const QStringList& names)
{
    auto* completer = new QCompleter(names, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_input->setCompleter(completer);
}

void CommandLine::print(const QString& text)
{
    QString rest = text;
    if (rest.startsWith('\n')) {
        m_lineIsOpen = false;
        rest.remove(0, 1);
    }
    const bool ends = rest.endsWith('\n');
    if (ends)
        rest.chop(1);
    if (m_lineIsOpen) {
        m_said->moveCursor(QTextCursor::End);
        m_said->insertPlainText(rest);
    } else {
        m_said->appendPlainText(rest);
    }
    m_lineIsOpen = !ends;
    m_said->moveCursor(QTextCursor::End);
    m_said->moveCursor(QTextCursor::StartOfLine);
    m_said->ensureCursorVisible();
}

void CommandLine::say(const QString& line)
{
    print('\n' + line + '\n');
}

QString CommandLine::text() const
{
    return m_said->toPlainText();
}

void CommandLine::setPrompt(const QString& prompt)
{
    m_prompt->setText(prompt.isEmpty() ? tr("Command:") : prompt);
}

void CommandLine::focusInput()
{
    m_input->setFocus();
}

void CommandLine::type(const QString& text)
{
    m_input->setFocus();
    m_input->setText(m_input->text() + text);
    if (QCompleter* completer = m_input->completer()) {
        completer->setCompletionPrefix(m_input->text());
        completer->complete();
    }
}

void CommandLine::enter()
{
    const QString line = m_input->text().trimmed();
    m_input->clear();
    if (!line.isEmpty() && (m_history.isEmpty() || m_history.last() != line))
        m_history.append(line);
    m_place = m_history.size();
    emit entered(line);
}

void CommandLine::recall(int direction)
{
    m_place = std::clamp(m_place + direction, 0, m_history.size());
    m_input->setText(m_history.value(m_place));
}

bool CommandLine::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        recall(-1);
        return true;
    case Qt::Key_Down:
        recall(+1);
        return true;
    case Qt::Key_Escape:
        if (m_input->text().isEmpty())
            emit left();
        m_input->clear();
        return true;
    default:
        return false;
    }
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QWidget::eventFilter(watched, event);
}
