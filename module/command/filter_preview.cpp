#include <command/filter_preview.h>

#include <unordered_set>

#include <database/entity.h>
#include <entities/viewport.h>

namespace {

using Verdict = MatchWalk::Verdict;

/// So many candidates are tested between two looks at the clock.
constexpr int kAtOnce = 32;

bool isOfClass(const KdDbEntity& entity, const DialogParameters& parameters)
{
    return parameters.objectClassName == entity.isA()->name();
}

} // namespace

FilterPreview::FilterPreview(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                             const DialogParameters& parameters)
    : m_candidates(candidates),
      m_parameters(parameters),
      m_allTypes(isForAllTypes(parameters)),
      m_excludesFromStart(!parameters.include && !parameters.entireDrawing &&
                          parameters.selectionSource == -1),
      m_walk(candidates, picked, parameters)
{
}

void FilterPreview::goOn(std::chrono::milliseconds time)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + time;
    const ScopedTolerance tolerance = toleranceOfRun();
    while (!m_isDone) {
        for (int i = 0; i < kAtOnce && !m_walk.isDone() && !m_isAbandoned; ++i)
            testNext();
        if (m_walk.isDone() || m_isAbandoned)
            finish();
        else if (Clock::now() >= end)
            return;
    }
}

double FilterPreview::part() const
{
    const auto size = static_cast<double>(m_walk.size());
    return m_isDone ? 1.0 : static_cast<double>(m_walk.tested()) / size;
}

int FilterPreview::matches() const
{
    const int count = static_cast<int>(m_ids.size());
    return m_isDone && !m_allTypes ? count - static_cast<int>(m_clips.size()) : count;
}

void FilterPreview::testNext()
{
    const Verdict verdict = m_walk.next();
    const KdDbEntity* const entity = m_walk.entity();
    m_isAbandoned = verdict == Verdict::NoProvider;
    if (m_isAbandoned || !entity)
        return;
    const bool taken = verdict == Verdict::Match && isTaken(*entity);
    if (m_parameters.include ? taken : !taken && isInBase(*entity, verdict))
        m_ids.push_back(entity->objectId());
    if (taken && m_excludesFromStart && m_candidates.given)
        m_taken.push_back(entity->objectId());
}

/// A viewport that is off is not; one that is clipped brings along what clips it.
bool FilterPreview::isTaken(const KdDbEntity& entity)
{
    if (!entity.isKindOf(KdDbViewport::desc()))
        return true;
    const auto& viewport = static_cast<const KdDbViewport&>(entity);
    if (!viewport.isOn())
        return false;
    if (const KdDbObjectId clip = viewport.nonRectClipEntityId(); !clip.isNull())
        m_clips.push_back(clip);
    return true;
}

/// Whether an exclusion leaves the entity if it is not taken. Of the starting selection frozen
/// layers don't count, but the chosen class does.
bool FilterPreview::isInBase(const KdDbEntity& entity, Verdict verdict) const
{
    if (m_excludesFromStart)
        return m_allTypes || isOfClass(entity, m_parameters);
    return verdict != Verdict::PassedOver;
}

void FilterPreview::finish()
{
    m_isDone = true;
    if (m_excludesFromStart && m_candidates.given)
        excludeFromImplied();
    takeClips();
}

/// With a starting selection of the caller's, an exclusion is from the host's own all the same.
void FilterPreview::excludeFromImplied()
{
    const std::unordered_set<KdDbObjectId> taken(m_taken.begin(), m_taken.end());
    Candidates implied;
    gatherSelection(nullptr, implied);
    m_ids.clear();
    for (const KdDbEntity* entity : implied.selectionEntities) {
        const bool isChosen = m_allTypes || isOfClass(*entity, m_parameters);
        if (isChosen && !taken.contains(entity->objectId()))
            m_ids.push_back(entity->objectId());
    }
}

void FilterPreview::takeClips()
{
    if (m_clips.empty())
        return;
    std::unordered_set<KdDbObjectId> clips(m_clips.begin(), m_clips.end());
    if (!m_parameters.include) {
        std::erase_if(m_ids, [&](KdDbObjectId id) { return clips.contains(id); });
        return;
    }
    for (const KdDbObjectId id : m_ids)
        clips.erase(id);
    for (const KdDbObjectId id : m_clips) {
        if (clips.erase(id) > 0)
            m_ids.push_back(id);
    }
}
