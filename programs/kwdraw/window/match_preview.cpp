#include <kwdraw/window/match_preview.h>

#include <QLocale>

namespace {

using quick_select::Preview;

/// Milliseconds in which a user types on or runs through a list.
constexpr int kSettling = 80;
/// Milliseconds at a time, so that the window answers between.
constexpr int kPiece = 12;

QString textOf(const wchar_t* text)
{
    return QString::fromWCharArray(text);
}

QString lineOf(const Preview& preview)
{
    const QLocale locale;
    switch (preview.state) {
    case Preview::State::NoDialog:
        return {};
    case Preview::State::Counting:
        return MatchPreview::tr("Would select %1 ... (%2%)")
            .arg(locale.toString(preview.matches))
            .arg(static_cast<int>(preview.part * 100.0));
    case Preview::State::Done:
        return MatchPreview::tr("Would select %1").arg(locale.toString(preview.matches));
    default:
        break;
    }
    const QString reason = textOf(preview.reason);
    return reason.isEmpty() ? MatchPreview::tr("Would select \u2014")
                            : MatchPreview::tr("Would select \u2014 (%1)").arg(reason);
}

} // namespace

MatchPreview::MatchPreview(const Module& module, QObject* parent)
    : QObject(parent), m_module(module)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MatchPreview::goOn);
    m_module.watchDialog([](void* self) { static_cast<MatchPreview*>(self)->begin(); }, this);
}

MatchPreview::~MatchPreview()
{
    m_module.watchDialog(nullptr, nullptr);
}

void MatchPreview::setOn(bool on)
{
    m_isOn = on;
    on ? begin() : clear();
}

void MatchPreview::begin()
{
    if (m_isOn)
        m_timer.start(kSettling);
}

void MatchPreview::clear()
{
    m_timer.stop();
    emit told({});
    show({});
}

void MatchPreview::show(const Ids& ids)
{
    if (ids.empty() && !m_isShown)
        return;
    m_isShown = !ids.empty();
    emit found(ids);
}

void MatchPreview::goOn()
{
    m_module.preview(
        kPiece,
        [](void* self, const Preview& preview) { static_cast<MatchPreview*>(self)->take(preview); },
        this);
}

void MatchPreview::take(const Preview& preview)
{
    emit told(lineOf(preview));
    if (preview.state == Preview::State::Counting) {
        show({});
        return m_timer.start(0);
    }
    const bool isDone = preview.state == Preview::State::Done;
    show(isDone ? Ids(preview.ids, preview.ids + preview.idCount) : Ids());
}
