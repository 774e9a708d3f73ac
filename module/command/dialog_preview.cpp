#include <command/dialog_preview.h>

#include <string>
#include <utility>

namespace {

using quick_select::Preview;

DialogPreview* current = nullptr;

struct Watcher
{
    quick_select::DialogWatcher call = nullptr;
    void* context = nullptr;
};
Watcher watcher;

void tellWatcher()
{
    if (watcher.call)
        watcher.call(watcher.context);
}

Preview::State stateOf(const FilterPreview& preview)
{
    if (preview.isAbandoned())
        return Preview::State::Abandoned;
    return preview.isDone() ? Preview::State::Done : Preview::State::Counting;
}

} // namespace

DialogPreview::DialogPreview(CQSelectDialog& dialog, const Candidates& candidates)
    : m_dialog(dialog), m_candidates(candidates), m_outer(std::exchange(current, this))
{
    m_dialog.setWatcher([this] {
        m_isRead = false;
        tellWatcher();
    });
}

DialogPreview::~DialogPreview()
{
    m_dialog.setWatcher({});
    current = m_outer;
    tellWatcher();
}

/// What was counted for another filter is forgotten.
void DialogPreview::begin()
{
    m_preview.reset();
    m_isRead = true;
    const bool isComplete = m_dialog.peek(m_asked);
    if (isComplete)
        m_preview.emplace(m_candidates, m_dialog.pickedEntities(), m_asked.parameters);
}

void DialogPreview::visit(std::chrono::milliseconds time, quick_select::PreviewVisitor visitor,
                          void* context)
{
    if (!m_isRead)
        begin();
    Preview told{Preview::State::Incomplete, L"", 0.0, 0, nullptr, 0};
    if (!m_preview) {
        const KdString reason = m_asked.refusal ? m_asked.refusal->text() : KdString();
        told.reason = reason.kwszPtr();
        return visitor(context, told);
    }
    m_preview->goOn(time);
    told.state = stateOf(*m_preview);
    told.part = m_preview->part();
    told.matches = m_preview->matches();
    told.ids = m_preview->ids().data();
    told.idCount = m_preview->ids().size();
    visitor(context, told);
}

void watchDialog(quick_select::DialogWatcher call, void* context)
{
    watcher = {call, context};
}

void previewDialog(int milliseconds, quick_select::PreviewVisitor visitor, void* context)
{
    if (current)
        return current->visit(std::chrono::milliseconds(milliseconds), visitor, context);
    visitor(context, {Preview::State::NoDialog, L"", 0.0, 0, nullptr, 0});
}
