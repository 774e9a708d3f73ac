#include <kwdraw/document/selection.h>

#include <editor/selection_sets.h>

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include <common/entity_set.h>

Selection::Selection(QObject* parent) : QObject(parent)
{
    kdedSetPickfirstHook([this](int flags) { follow(flags); });
}

Selection::~Selection()
{
    kdedSetPickfirstHook({});
}

void Selection::set(const Ids& ids)
{
    setPickfirstEntities(ids);
}

void Selection::add(const Ids& ids)
{
    Ids together = m_ids;
    together.insert(together.end(), ids.begin(), ids.end());
    set(together); // the host's set takes each once
}

void Selection::remove(const Ids& ids)
{
    const std::unordered_set<KdDbObjectId> leaving(ids.begin(), ids.end());
    Ids rest = m_ids;
    std::erase_if(rest, [&](KdDbObjectId id) { return leaving.contains(id); });
    set(rest);
}

void Selection::invert(const Ids& all)
{
    const std::unordered_set<KdDbObjectId> selected(m_ids.begin(), m_ids.end());
    Ids others;
    std::copy_if(all.begin(), all.end(), std::back_inserter(others),
                 [&](KdDbObjectId id) { return !selected.contains(id); });
    set(others);
}

void Selection::follow(int flags)
{
    if (flags & kKdedIsCommandOutcome)
        emit handedOver();
    Ids now = pickfirstEntities();
    if (now == m_ids)
        return;
    if (m_openSteps == 0)
        remember(m_ids);
    take(std::move(now));
}

void Selection::take(Ids ids)
{
    m_ids = std::move(ids);
    emit changed();
}

void Selection::remember(Ids before)
{
    m_redo.clear();
    m_idsInUndo += before.size();
    m_undo.push_back(std::move(before));
    while (m_undo.size() > kMostSteps || (m_idsInUndo > kMostIdsInHistory && m_undo.size() > 1)) {
        m_idsInUndo -= m_undo.front().size();
        m_undo.pop_front();
    }
}

void Selection::step(std::deque<Ids>& from, std::deque<Ids>& to)
{
    if (from.empty() || m_openSteps > 0)
        return;
    ++m_openSteps; // the way back is no step of its own
    Ids before = m_ids;
    Ids target = std::move(from.back());
    from.pop_back();
    to.push_back(std::move(before));
    m_idsInUndo = 0;
    for (const Ids& ids : m_undo)
        m_idsInUndo += ids.size();
    setPickfirstEntities(target);
    --m_openSteps;
    emit changed(); // what can be undone has changed, even if a command had the last word
}

void Selection::undo()
{
    step(m_undo, m_redo);
}

void Selection::redo()
{
    step(m_redo, m_undo);
}

void Selection::reset()
{
    m_undo.clear();
    m_redo.clear();
    m_idsInUndo = 0;
    ++m_openSteps;
    setPickfirstEntities({});
    --m_openSteps;
    take({});
}

Selection::OneStep::OneStep(Selection& selection)
    : m_selection(selection), m_before(selection.m_ids)
{
    ++m_selection.m_openSteps;
}

Selection::OneStep::~OneStep()
{
    if (--m_selection.m_openSteps > 0 || m_before == m_selection.m_ids)
        return;
    m_selection.remember(std::move(m_before));
    emit m_selection.changed();
}
