#include <kwdraw/window/notice_bar.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include <utility>

namespace {

constexpr int kStripe = 4; // pixels

QColor colorOf(NoticeBar::Tone tone, const QPalette& palette)
{
    switch (tone) {
    case NoticeBar::Tone::Prompt:
        return {0xE0, 0x9A, 0x2B};
    case NoticeBar::Tone::Problem:
        return {0xD0, 0x4A, 0x4A};
    default:
        return palette.color(QPalette::Highlight);
    }
}

} // namespace

NoticeBar::NoticeBar(const char* name, Tone tone, QWidget* parent)
    : QFrame(parent), m_tone(tone), m_text(new QLabel), m_layout(new QHBoxLayout(this))
{
    setObjectName(name);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_layout->setContentsMargins(kStripe + 8, 4, 6, 4);
    m_layout->addWidget(m_text, 1);
    hide();
}

QPushButton* NoticeBar::addButton(const QString& text, std::function<void()> act)
{
    auto* button = new QPushButton(text);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys with the drawing
    connect(button, &QPushButton::clicked, this, [act = std::move(act)] { act(); });
    m_layout->addWidget(button);
    return button;
}

void NoticeBar::addCloseButton()
{
    auto* button = new QToolButton;
    button->setObjectName("close");
    button->setText(QString(QChar(0x00D7)));
    button->setToolTip(tr("Hide"));
    button->setAccessibleName(tr("Hide"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, &QWidget::hide);
    m_layout->addWidget(button);
}

void NoticeBar::tell(const QString& text)
{
    m_text->setText(text);
    show();
}

QString NoticeBar::text() const
{
    return m_text->text();
}

void NoticeBar::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(0, 0, kStripe, height(), colorOf(m_tone, palette()));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, height() - 1, width(), height() - 1);
}
