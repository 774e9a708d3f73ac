#include <command/matching.h>

#include <array>
#include <cstdint>
#include <functional>

#include <database/tables.h>
#include <entities/block_reference.h>
#include <entities/viewport.h>
#include <plugin/entity_pe.h>

#include <values/class_map.h>
#include <values/compare.h>
#include <values/display_name.h>
#include <values/names.h>
#include <values/resource_string.h>
#include <values/text_utilities.h>
#include <values/value_chain.h>

/// Tests candidates one after the other. Nothing changes in the drawing meanwhile, so what holds
/// for a whole class or layer is found out once.
class MatchWalk::Matcher
{
  public:
    explicit Matcher(const DialogParameters& parameters)
        : m_parameters(parameters),
          m_comparison(parameters.propertyParameters),
          m_allTypes(isForAllTypes(parameters))
    {
    }

    bool isOnFrozenLayer(const KdDbEntity& entity)
    {
        const KdDbObjectId id = entity.layerId();
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
        LayerState& state = m_layers[std::hash<KdDbObjectId>()(id) * kGoldenRatio >> (64 - kBits)];
        if (state.id != id) {
            const OpenForRead<KdDbLayerTableRecord> layer(id);
            state = {id, layer && layer->isFrozen()};
        }
        return state.isFrozen;
    }

    /// With one type chosen both class and display name decide, since two names may share a class.
    bool isOfType(const KdDbEntity& entity)
    {
        if (m_allTypes)
            return true;
        const KdRxClass* const rxClass = entity.isA();
        Answer& answer = m_ofChosenClass.at(rxClass);
        if (answer == Answer::Unknown)
            answer = m_parameters.objectClassName == rxClass->name() ? Answer::Yes : Answer::No;
        if (answer == Answer::No)
            return false;
        const std::wstring& name = m_names.of(entity);
        return name.empty() || name == m_parameters.objectTypeName;
    }

    bool passes(KdDbEntity& entity, KdDbEntityPE& provider)
    {
        const KdString& key = m_parameters.propertyParameters.propertyKey;
        m_value.reset();
        if (isBlockName(entity, provider)) {
            if (getBlockReferenceName(&entity, m_value.head()) != eOk)
                return false;
        } else {
            provider.PropertyValueGet(&entity, key, m_value.head(), false, false);
        }
        return m_comparison.satisfies(m_value.head(), m_parameters.filter);
    }

  private:
    static constexpr unsigned kBits = 10;

    enum class Answer : std::uint8_t
    {
        Unknown,
        No,
        Yes,
    };
    struct LayerState
    {
        KdDbObjectId id; ///< null: nothing is frozen
        bool isFrozen = false;
    };

    /// Block references are known by the name of the block they came from, which is read directly.
    bool isBlockName(const KdDbEntity& entity, const KdDbEntityPE& provider)
    {
        Answer& answer = m_isBlockReference.at(entity.isA());
        if (answer == Answer::Unknown)
            answer = entity.isKindOf(KdDbBlockReference::desc()) ? Answer::Yes : Answer::No;
        return answer == Answer::Yes && provider.isKindOf(KdDbEntity_Extension::desc()) &&
               m_parameters.propertyParameters.propertyKey.compare(
                   __ResourceString(77414, L"Misc:Name")) == 0;
    }

    const DialogParameters& m_parameters;
    const PropertyComparison m_comparison;
    const bool m_allTypes;
    DisplayNames m_names;
    ValueChain m_value;
    std::array<LayerState, std::size_t{1} << kBits> m_layers; ///< those looked at last
    ClassMap<Answer> m_ofChosenClass;
    ClassMap<Answer> m_isBlockReference;
};

namespace {

const std::vector<KdDbEntity*>& walkedBy(const Candidates& candidates,
                                         const std::vector<KdDbEntity*>& picked,
                                         const DialogParameters& parameters)
{
    if (parameters.entireDrawing)
        return candidates.allEntities;
    return parameters.selectionSource == -1 ? candidates.selectionEntities : picked;
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
      m_matcher(std::make_unique<Matcher>(parameters))
{
}

MatchWalk::~MatchWalk() = default;

MatchWalk::Verdict MatchWalk::next()
{
    KdDbEntity* const entity = m_walked[m_next++];
    if (!entity || m_matcher->isOnFrozenLayer(*entity))
        return Verdict::PassedOver;
    if (!m_matcher->isOfType(*entity))
        return Verdict::NoMatch;
    KdDbEntityPE* provider = KdDbEntityPE::of(*entity);
    if (!provider)
        return Verdict::NoProvider;
    return m_matcher->passes(*entity, *provider) ? Verdict::Match : Verdict::NoMatch;
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
