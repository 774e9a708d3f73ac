#include <entities/dyn_block_reference.h>

#include <string>

#include <database/dictionary.h>
#include <entities/dyn_block_actions.h>

#include "dyn_block_properties.h"

namespace {

/// The dictionary of what a reference stores, by the numbers of the parameters; null if the
/// reference is unchanged.
KdDbObjectId storedValues(const KdDbBlockReference& reference)
{
    KdDbObjectId id = kddbExtensionEntry(reference, L"AcDbBlockRepresentation");
    for (const wchar_t* name : {L"AppDataCache", L"ACAD_ENHANCEDBLOCKDATA"})
        id = kddbDictionaryEntry(id, name);
    return id;
}

DynBlockState stateOf(KdDbObjectId stored, const KdDbBlockParameter& parameter)
{
    if (stored.isNull())
        return {};
    const std::wstring key = std::to_wstring(parameter.nodeId());
    const OpenForRead<KdDbXrecord> record(kddbDictionaryEntry(stored, key.c_str()));
    return record ? DynBlockState::of(*record) : DynBlockState();
}

using Values = KdArray<KdDbEvalVariant>;

void appendTexts(const std::vector<KdString>& texts, Values& values)
{
    for (const KdString& text : texts)
        values.append(KdDbEvalVariant(text, 1));
}

void appendAllowed(const KdDbBlockParameter& parameter, Values& values)
{
    if (parameter.isKindOf(KdDbBlockVisibilityParameter::desc())) {
        appendTexts(static_cast<const KdDbBlockVisibilityParameter&>(parameter).states(), values);
    } else if (parameter.isKindOf(KdDbBlockFlipParameter::desc())) {
        for (const int state : {0, 1})
            values.append(KdDbEvalVariant(state, 70));
    } else if (parameter.isKindOf(KdDbBlockLookupParameter::desc())) {
        const auto& lookup = static_cast<const KdDbBlockLookupParameter&>(parameter);
        if (const OpenForRead<KdDbBlockLookupAction> table(lookup.actionId()); table)
            appendTexts(table->valuesOf(lookup.nodeId()), values);
    }
}

} // namespace

KdArray<KdDbEvalVariant> KdDbDynBlockReferenceProperty::getAllowedValues() const
{
    Values values;
    if (const OpenForRead<KdDbBlockParameter> parameter(m_parameter); parameter)
        appendAllowed(*parameter, values);
    return values;
}

bool KdDbDynBlockReference::isDynamicBlock(KdDbObjectId block)
{
    return !KdDbEvalGraph::ofBlock(block).isNull();
}

bool KdDbDynBlockReference::isDynamicBlock() const
{
    return isDynamicBlock(dynamicBlockTableRecord());
}

KdDbObjectId KdDbDynBlockReference::dynamicBlockTableRecord() const
{
    const KdDbObjectId original = kddbGetEnhancedBlkOriginalBtrId(m_reference);
    return original.isNull() ? m_reference.blockTableRecord() : original;
}

void KdDbDynBlockReference::getBlockProperties(KdDbDynBlockReferencePropertyArray& properties) const
{
    const OpenForRead<KdDbEvalGraph> graph(KdDbEvalGraph::ofBlock(dynamicBlockTableRecord()));
    if (!graph)
        return;
    const KdDbObjectId stored = storedValues(m_reference);
    for (const KdDbObjectId id : graph->elements()) {
        if (const OpenForRead<KdDbBlockParameter> parameter(id); parameter)
            appendDynBlockProperties(*parameter, stateOf(stored, *parameter), properties);
    }
}
