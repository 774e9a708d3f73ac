#include <command/candidate_list.h>

#include <cassert>

CandidateList::CandidateList(std::initializer_list<KdDbEntity*> entities) : CandidateList()
{
    for (KdDbEntity* entity : entities)
        add(*entity);
}

void CandidateList::reserve(std::size_t entities)
{
    m_content->entities.reserve(entities);
    m_content->notes.reserve(entities);
}

std::uint32_t CandidateList::add(KdDbEntity& entity)
{
    assert(m_content.use_count() == 1 && "a list that is shared does not change");
    const std::uint32_t kind = kindOf(entity);
    ++m_content->kinds[kind].count;
    m_content->entities.push_back(&entity);
    m_content->notes.push_back({kind, layerOf(entity)});
    return kind;
}

/// Most classes have one name for all their entities; the others are asked for each.
std::uint32_t CandidateList::kindOf(const KdDbEntity& entity)
{
    const KdRxClass* rxClass = entity.isA();
    KindsOfClass& ofClass = m_content->ofClasses.at(rxClass);
    if (ofClass.hasOneName)
        return ofClass.last;
    std::vector<CandidateKind>& kinds = m_content->kinds;
    const std::wstring& name = m_content->names.of(entity);
    if (!ofClass.byName.empty() && kinds[ofClass.last].displayName == name)
        return ofClass.last;
    const auto [place, isNew] =
        ofClass.byName.try_emplace(name, static_cast<std::uint32_t>(kinds.size()));
    if (isNew)
        kinds.push_back({rxClass, name, &entity});
    ofClass.hasOneName = m_content->names.ofClass(rxClass) != nullptr;
    return ofClass.last = place->second;
}

std::uint32_t CandidateList::layerOf(const KdDbEntity& entity)
{
    std::vector<KdDbObjectId>& layers = m_content->layers;
    std::uint32_t& number = m_content->layerNumbers.at(entity.layerId());
    if (number == 0) {
        layers.push_back(entity.layerId());
        number = static_cast<std::uint32_t>(layers.size());
    }
    return number - 1;
}
