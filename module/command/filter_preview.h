/// What a filter would select, found out a piece at a time and with nothing changed.
#pragma once

#include <chrono>
#include <vector>

#include <command/matching.h>

/// Comes to what matching and handing over come to, without the host's selection sets. Only members
/// of the starting selection that can't be opened are left out where an exclusion would keep them.
class FilterPreview
{
  public:
    using Ids = std::vector<KdDbObjectId>;

    /// As for `MatchWalk`.
    FilterPreview(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                  const DialogParameters& parameters);

    /// Tests further candidates for about that long, a few at least.
    void goOn(std::chrono::milliseconds time);
    bool isDone() const { return m_isDone; }
    /// An entity has no provider, so a run would be given up.
    bool isAbandoned() const { return m_isAbandoned; }
    /// Of the candidates, 0 to 1, that have been tested.
    double part() const;

    /// What would be handed over, as far as it is known, without what it would be added to.
    const Ids& ids() const { return m_ids; }
    /// As the count line would tell it.
    int matches() const;

  private:
    void testNext();
    bool isTaken(const KdDbEntity& entity);
    bool isInBase(const KdDbEntity& entity, MatchWalk::Verdict verdict) const;
    void finish();
    void excludeFromImplied();
    void takeClips();

    const Candidates& m_candidates;
    const DialogParameters& m_parameters;
    const bool m_allTypes;
    const bool m_excludesFromStart; ///< in place of the space or of what was picked
    MatchWalk m_walk;
    Ids m_ids;
    Ids m_taken; ///< kept only for `excludeFromImplied`
    Ids m_clips; ///< one for each taken viewport that an entity clips
    bool m_isDone = false;
    bool m_isAbandoned = false;
};
