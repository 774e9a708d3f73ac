#include <ui/tool_tip.h>

#include "texts.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QScreen>
#include <QTimer>
#include <QToolTip>

#include <map>

struct CToolTipCtrl::State
{
    std::map<const QWidget*, QString> texts;
    QTimer timer;
    QPointer<QWidget> tool;
    int maxWidth = -1;
    int initialDelay = 500;
    int reshowDelay = 100;
    int stay = 5000;
    bool active = false;

    void rest(QWidget* widget)
    {
        tool = widget;
        timer.start(QToolTip::isVisible() ? reshowDelay : initialDelay);
    }

    void leave()
    {
        timer.stop();
        if (tool && QToolTip::isVisible())
            QToolTip::hideText();
        tool = nullptr;
    }

    /// Broken into lines where it is wider than allowed.
    QString wrapped(const QString& text) const
    {
        const QFontMetrics metrics(QToolTip::font());
        if (maxWidth <= 0 || metrics.horizontalAdvance(text) <= maxWidth)
            return text;
        QString lines;
        QString line;
        for (const QString& word : text.split(QLatin1Char(' '))) {
            const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
            if (!line.isEmpty() && metrics.horizontalAdvance(longer) > maxWidth) {
                lines += line + QLatin1Char('\n');
                line = word;
            } else {
                line = longer;
            }
        }
        return lines + line;
    }

    void show()
    {
        const auto text = texts.find(tool);
        if (!active || !tool || text == texts.end())
            return;
        const QPoint below = tool->mapToGlobal(QPoint(tool->width() / 2, tool->height()));
        QToolTip::showText(below, wrapped(text->second).toHtmlEscaped(), tool, {}, stay);
    }
};

CToolTipCtrl::CToolTipCtrl(QWidget* parent) : m_state(std::make_unique<State>())
{
    setWidget(parent);
}

CToolTipCtrl::~CToolTipCtrl() = default;

bool CToolTipCtrl::Create(CWnd* parent)
{
    if (!parent || !parent->widget())
        return false;
    setWidget(parent->widget());
    State* state = m_state.get();
    state->timer.setSingleShot(true);
    QObject::connect(&state->timer, &QTimer::timeout, &state->timer, [state] { state->show(); });
    return true;
}

void CToolTipCtrl::SetMaxTipWidth(int width)
{
    m_state->maxWidth = width;
}

void CToolTipCtrl::SetDelayTime(int kind, int milliseconds)
{
    switch (kind) {
    case TTDT_RESHOW:
        m_state->reshowDelay = milliseconds;
        break;
    case TTDT_AUTOPOP:
        m_state->stay = milliseconds;
        break;
    case TTDT_INITIAL:
        m_state->initialDelay = milliseconds;
        break;
    default:
        break;
    }
}

void CToolTipCtrl::Activate(int active)
{
    m_state->active = active != 0;
}

void CToolTipCtrl::AddTool(CWnd* tool, const wchar_t* text)
{
    if (tool && tool->widget())
        m_state->texts[tool->widget()] = toQString(text ? text : L"");
}

void CToolTipCtrl::RelayEvent(tagMSG* message)
{
    if (!message || m_state->texts.find(message->hwnd) == m_state->texts.end())
        return;
    switch (message->event->type()) {
    case QEvent::Enter:
        m_state->rest(message->hwnd);
        break;
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Hide:
        m_state->leave();
        break;
    default:
        break;
    }
}

double kdadGetDPIScale()
{
    constexpr double kUsualDots = 96.0;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInch() / kUsualDots : 1.0;
}
