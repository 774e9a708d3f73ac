#include <command/matching.h>

#include <database/tables.h>
#include <entities/block_reference.h>
#include <entities/viewport.h>

#include <providers/entity_pe.h>
#include <values/compare.h>
#include <values/display_name.h>
#include <values/names.h>
#include <values/resource_string.h>
#include <values/text_utilities.h>
#include <values/value_chain.h>

namespace {

/// With one type chosen both class and display name decide, since two names may share a class.
bool isOfType(const KdDbEntity& entity, const DialogParameters& parameters, DisplayNames& names)
{
    if (isForAllTypes(parameters))
        return true;
    if (parameters.objectClassName != entity.isA()->name())
        return false;
    const std::wstring& name = names.of(entity);
    return name.empty() || name == parameters.objectTypeName;
}

/// Block references are known by the name of the block they came from, which is read directly.
bool isBlockName(const KdDbEntity& entity, const KdDbEntityPE& provider, const KdString& key)
{
    return entity.isKindOf(KdDbBlockReference::desc()) &&
           provider.isKindOf(KdDbEntity_Extension::desc()) &&
           key.compare(__ResourceString(77414, L"Misc:Name")) == 0;
}

bool passes(KdDbEntity& entity, KdDbEntityPE& provider, const DialogParameters& parameters)
{
    const PropertyParameters& property = parameters.propertyParameters;
    ValueChain value;
    if (isBlockName(entity, provider, property.propertyKey)) {
        if (getBlockReferenceName(&entity, value.head()) != eOk)
            return false;
    } else {
        provider.PropertyValueGet(&entity, property.propertyKey, value.head(), false, false);
    }
    return CompareProp(value.head(), parameters.filter, property);
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

bool matchCandidates(const Candidates& candidates, const std::vector<KdDbEntity*>& picked,
                     const DialogParameters& parameters, Matches& matches)
{
    const bool overStart = parameters.selectionSource == -1;
    const std::vector<KdDbEntity*>& walked = parameters.entireDrawing ? candidates.allEntities
                                             : overStart              ? candidates.selectionEntities
                                                                      : picked;
    DisplayNames names;
    for (KdDbEntity* entity : walked) {
        if (!entity)
            continue;
        const OpenForRead<KdDbLayerTableRecord> layer(entity->layerId());
        if (layer && layer->isFrozen())
            continue;
        if (!parameters.entireDrawing)
            matches.keptSet.add(*entity);
        if (!isOfType(*entity, parameters, names))
            continue;
        KdDbEntityPE* provider = KdDbEntityPE::of(*entity);
        if (!provider)
            return false;
        if (passes(*entity, *provider, parameters))
            addMatch(*entity, matches);
    }
    return true;
}
