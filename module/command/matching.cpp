#include <command/matching.h>

#include <cstdint>
#include <vector>

#include <database/tables.h>
#include <entities/block_reference.h>
#include <entities/viewport.h>
#include <plugin/entity_pe.h>

#include <command/registration.h>
#include <providers/general_rows.h>
#include <values/compare.h>
#include <values/names.h>
#include <values/resource_string.h>
#include <values/text_utilities.h>
#include <values/value_chain.h>

namespace {

constexpr ResourceText kBlockName{77414, L"Misc:Name"};

/// How a run deals with candidates of one kind, found out when the first of them comes.
struct KindPlan
{
    enum class Reading : std::uint8_t
    {
        AskProvider,  ///< for each entity
        ReadRow,      ///< `row` answers for all of them
        NothingThere, ///< none has the property
    };

    bool isMade = false;
    bool isWanted = false; ///< of the chosen type
    bool isBlockReference = false;
    KdDbEntityPE* provider = nullptr;
    Reading reading = Reading::AskProvider;
    const PropertyRow* row = nullptr;
    bool followsFromLayer = false; ///< what `row` reads
};

} // namespace

/// Tests candidates one after the other. Nothing changes in the drawing meanwhile, so what holds
/// for a whole kind or layer is found out once.
class MatchWalk::Matcher
{
  public:
    Matcher(const DialogParameters& parameters, const CandidateList& candidates)
        : m_parameters(parameters),
          m_candidates(candidates),
          m_comparison(parameters.propertyParameters),
          m_allTypes(isForAllTypes(parameters)),
          m_plans(candidates.kinds().size()),
          m_layers(candidates.layers().size())
    {
    }

    bool isOnFrozenLayer(std::size_t candidate)
    {
        LayerState& layer = layerOf(candidate);
        if (layer.freezing == Answer::Unknown)
            layer.freezing = isFrozen(m_candidates.note(candidate).layer);
        return layer.freezing == Answer::Yes;
    }

    /// What is to be done with a candidate, by its kind.
    const KindPlan& planFor(std::size_t candidate)
    {
        KindPlan& plan = m_plans[m_candidates.note(candidate).kind];
        if (!plan.isMade)
            makePlan(plan, m_candidates.kindOf(candidate), m_candidates[candidate]);
        return plan;
    }

    bool passes(std::size_t candidate, const KindPlan& plan)
    {
        if (!plan.followsFromLayer)
            return passes(m_candidates[candidate], plan);
        Answer& answer = layerOf(candidate).match;
        if (answer == Answer::Unknown)
            answer = answerOf(passes(m_candidates[candidate], plan));
        return answer == Answer::Yes;
    }

  private:
    enum class Answer : std::uint8_t
    {
        Unknown,
        No,
        Yes,
    };
    struct LayerState
    {
        Answer freezing = Answer::Unknown;
        Answer match = Answer::Unknown; ///< of what follows from the layer
    };

    static Answer answerOf(bool answer) { return answer ? Answer::Yes : Answer::No; }

    LayerState& layerOf(std::size_t candidate)
    {
        return m_layers[m_candidates.note(candidate).layer];
    }
    /// A layer that can't be opened excludes nothing.
    Answer isFrozen(std::uint32_t number) const
    {
        const OpenForRead<KdDbLayerTableRecord> layer(m_candidates.layers()[number]);
        return answerOf(layer && layer->isFrozen());
    }

    /// With one type chosen both class and display name decide, since two names may share a class.
    bool isWanted(const CandidateKind& kind) const
    {
        if (m_allTypes)
            return true;
        if (!(m_parameters.objectClassName == kind.rxClass->name()))
            return false;
        return kind.displayName.empty() || kind.displayName == m_parameters.objectTypeName;
    }

    void makePlan(KindPlan& plan, const CandidateKind& kind, const KdDbEntity& example) const
    {
        plan.isMade = true;
        plan.isWanted = isWanted(kind);
        if (!plan.isWanted)
            return;
        plan.provider = KdDbEntityPE::of(example);
        plan.isBlockReference = kind.rxClass->isDerivedFrom(KdDbBlockReference::desc()) &&
                                plan.provider &&
                                plan.provider->isKindOf(KdDbEntity_Extension::desc());
        if (plan.provider && !(plan.isBlockReference && mayBeBlockName()))
            planReading(plan, *kind.rxClass);
    }

    void planReading(KindPlan& plan, const KdRxClass& rxClass) const
    {
        const LastingRow row =
            lastingRow(*plan.provider, rxClass, m_parameters.propertyParameters.propertyKey);
        if (!row)
            return;
        plan.row = *row;
        plan.reading = *row ? KindPlan::Reading::ReadRow : KindPlan::Reading::NothingThere;
        plan.followsFromLayer = *row && followsFromLayer(**row);
    }

    bool passes(KdDbEntity& entity, const KindPlan& plan)
    {
        if (plan.reading == KindPlan::Reading::AskProvider) {
            if (!ask(entity, plan))
                return false;
        } else {
            read(entity, plan.row);
        }
        return m_comparison.satisfies(m_value.head(), m_parameters.filter);
    }

    /// False if the entity is not to be compared.
    bool ask(KdDbEntity& entity, const KindPlan& plan)
    {
        m_value.reset();
        if (plan.isBlockReference && isBlockName())
            return getBlockReferenceName(&entity, m_value.head()) == eOk;
        plan.provider->PropertyValueGet(&entity, m_parameters.propertyParameters.propertyKey,
                                        m_value.head(), false, false);
        return true;
    }

    /// As the provider would answer; a null row is a property that is not there.
    void read(const KdDbEntity& entity, const PropertyRow* row)
    {
        m_value.clear();
        ResBuf& head = *m_value.head();
        if (!row || !row->read({entity, head, false, false}, row->kind))
            head.setRestype(ResBuf::kNone);
    }

    /// Block references are known by the name of the block they came from, which is read directly.
    bool isBlockName() const
    {
        return kBlockName.matches(m_parameters.propertyParameters.propertyKey);
    }

    /// The same, or the text is not there, which is told at each use and so not here.
    bool mayBeBlockName() const { return !kBlockName.isThere() || isBlockName(); }

    const DialogParameters& m_parameters;
    const CandidateList& m_candidates;
    const PropertyComparison m_comparison;
    const bool m_allTypes;
    std::vector<KindPlan> m_plans; ///< by the number of the kind
    ValueChain m_value;
    std::vector<LayerState> m_layers; ///< by the number of the layer
};

namespace {

CandidateList listOf(const std::vector<KdDbEntity*>& picked)
{
    CandidateList list;
    for (KdDbEntity* entity : picked) {
        if (entity)
            list.add(*entity);
    }
    return list;
}

CandidateList walkedBy(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                       const DialogParameters& parameters)
{
    if (parameters.entireDrawing)
        return candidates.allEntities;
    return parameters.selectionSource == -1 ? candidates.selectionEntities : listOf(picked);
}

/// A viewport that is off does not show what would be selected; one that is clipped by an entity
/// takes that entity along.
void addMatch(const KdDbEntity& entity, Matches& matches)
{
    matches.resultSet.add(entity);
    if (!entity.isKindOf(KdDbViewport::desc()))
        return;
    const auto& viewport = static_cast<const KdDbViewport&>(entity);
    if (!viewport.isOn())
        matches.resultSet.remove(viewport.objectId());
    else if (matches.resultSet.add(viewport.nonRectClipEntityId()))
        ++matches.viewportClipExtras;
}

} // namespace

bool isForAllTypes(const DialogParameters& parameters)
{
    __ResourceString allTypes(78023, L"Multiple");
    return equalLowered(parameters.objectTypeName, static_cast<const wchar_t*>(allTypes));
}

MatchWalk::MatchWalk(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                     const DialogParameters& parameters)
    : m_walked(walkedBy(candidates, picked, parameters)),
      m_matcher(std::make_unique<Matcher>(parameters, m_walked))
{
}

MatchWalk::~MatchWalk() = default;

MatchWalk::Verdict MatchWalk::next()
{
    const std::size_t candidate = m_next++;
    if (m_matcher->isOnFrozenLayer(candidate))
        return Verdict::PassedOver;
    const KindPlan& plan = m_matcher->planFor(candidate);
    if (!plan.isWanted)
        return Verdict::NoMatch;
    if (!plan.provider)
        return Verdict::NoProvider;
    return m_matcher->passes(candidate, plan) ? Verdict::Match : Verdict::NoMatch;
}

ScopedTolerance toleranceOfRun()
{
    return ScopedTolerance(CompareDynamicEpsilon(kDefaultTolerance));
}

bool matchCandidates(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                     const DialogParameters& parameters, Matches& matches)
{
    const ScopedTolerance tolerance = toleranceOfRun();
    MatchWalk walk(candidates, picked, parameters);
    while (!walk.isDone()) {
        const MatchWalk::Verdict verdict = walk.next();
        if (verdict == MatchWalk::Verdict::PassedOver)
            continue;
        if (!parameters.entireDrawing)
            matches.keptSet.add(*walk.entity());
        if (verdict == MatchWalk::Verdict::NoProvider)
            return false;
        if (verdict == MatchWalk::Verdict::Match)
            addMatch(*walk.entity(), matches);
    }
    return true;
}
