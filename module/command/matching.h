/// The second half of a run: which candidates pass the filter.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <command/gathering.h>
#include <dialog/filter_record.h>
#include <values/compare.h>
#include <values/host_set.h>

/// What a run over the candidates found.
struct Matches
{
    HostSet resultSet; ///< the matches, and the clip entities of matched viewports
    HostSet keptSet; ///< in a run over a selection: all its entities that are not on frozen layers
    int viewportClipExtras = 0; ///< clip entities added on behalf of viewports
};

/// True if the filter is for entities of all types.
bool isForAllTypes(const DialogParameters& parameters);

/// The candidates that a filter is for, tested one by one in their order.
class MatchWalk
{
  public:
    /// All arguments must outlive the walk, and nothing may change in the drawing meanwhile.
    /// @param picked  the entities picked in the dialog; used when the filter is for them
    MatchWalk(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
              const DialogParameters& parameters);
    ~MatchWalk();
    MatchWalk(const MatchWalk&) = delete;
    MatchWalk& operator=(const MatchWalk&) = delete;

    enum class Verdict
    {
        PassedOver, ///< on a frozen layer, so it counts nowhere
        NoMatch,
        Match,
        NoProvider,
    };

    bool isDone() const { return m_next == m_walked.size(); }
    /// Tests the next candidate; only before the end. Within a `toleranceOfRun`.
    Verdict next();
    /// The one that was tested last.
    KdDbEntity* entity() const { return &m_walked[m_next - 1]; }

    std::size_t tested() const { return m_next; }
    std::size_t size() const { return m_walked.size(); }

  private:
    class Matcher;

    const CandidateList m_walked;
    std::size_t m_next = 0;
    std::unique_ptr<Matcher> m_matcher;
};

/// The drawing's tolerance for as long as it is held, so that it is not asked for at each
/// candidate.
ScopedTolerance toleranceOfRun();

/// Tests every candidate. False if an entity has no provider: the run is then to be given up with
/// nothing changed.
/// @param picked  the entities picked in the dialog; used when the filter is for them
bool matchCandidates(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                     const DialogParameters& parameters, Matches& matches);
