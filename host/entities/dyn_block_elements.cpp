#include <entities/dyn_block_elements.h>

#include <unordered_map>

#include <database/block_table.h>
#include <database/dictionary.h>
#include <entities/dyn_block_actions.h>
#include <entities/dyn_block_parameters.h>

KD_RX_DEFINE(KdDbEvalGraph, KdDbObject, L"AcDbEvalGraph", L"ACAD_EVALUATION_GRAPH")
KD_RX_DEFINE_ABSTRACT(KdDbBlockElement, KdDbObject, L"AcDbBlockElement")
KD_RX_DEFINE_ABSTRACT(KdDbBlockGrip, KdDbBlockElement, L"AcDbBlockGrip")

#define KW_BLOCK_GRIP(Kind, dxfName)                                                               \
    KD_RX_DEFINE(KdDbBlock##Kind##Grip, KdDbBlockGrip, L"AcDbBlock" #Kind "Grip", dxfName)
KW_BLOCK_GRIP(Alignment, L"BLOCKALIGNMENTGRIP")
KW_BLOCK_GRIP(Flip, L"BLOCKFLIPGRIP")
KW_BLOCK_GRIP(Linear, L"BLOCKLINEARGRIP")
KW_BLOCK_GRIP(Lookup, L"BLOCKLOOKUPGRIP")
KW_BLOCK_GRIP(Polar, L"BLOCKPOLARGRIP")
KW_BLOCK_GRIP(Rotation, L"BLOCKROTATIONGRIP")
KW_BLOCK_GRIP(Visibility, L"BLOCKVISIBILITYGRIP")
KW_BLOCK_GRIP(XY, L"BLOCKXYGRIP")

namespace {

struct TypeNameRow
{
    KdRxClass* (*rxClass)();
    const wchar_t* name;
};

// clang-format off
constexpr TypeNameRow kTypeNames[] = {
    {KdDbBlockBasepointParameter::desc,            L"Base Point"},
    {KdDbBlockPointParameter::desc,                L"Point"},
    {KdDbBlockLookupParameter::desc,               L"Lookup"},
    {KdDbBlockVisibilityParameter::desc,           L"Visibility"},
    {KdDbBlockAlignmentParameter::desc,            L"Alignment"},
    {KdDbBlockFlipParameter::desc,                 L"Flip"},
    {KdDbBlockLinearParameter::desc,               L"Linear"},
    {KdDbBlockPolarParameter::desc,                L"Polar"},
    {KdDbBlockRotationParameter::desc,             L"Rotation"},
    {KdDbBlockXYParameter::desc,                   L"XY"},
    {KdDbBlockUserParameter::desc,                 L"User"},
    {KdDbBlockAngularConstraintParameter::desc,    L"Angular Constraint"},
    {KdDbBlockDiametricConstraintParameter::desc,  L"Diametric Constraint"},
    {KdDbBlockLinearConstraintParameter::desc,     L"Linear Constraint"},
    {KdDbBlockAlignedConstraintParameter::desc,    L"Aligned Constraint"},
    {KdDbBlockHorizontalConstraintParameter::desc, L"Horizontal Constraint"},
    {KdDbBlockVerticalConstraintParameter::desc,   L"Vertical Constraint"},
    {KdDbBlockRadialConstraintParameter::desc,     L"Radial Constraint"},
    {KdDbBlockArrayAction::desc,                   L"Array"},
    {KdDbBlockFlipAction::desc,                    L"Flip"},
    {KdDbBlockLookupAction::desc,                  L"Lookup"},
    {KdDbBlockMoveAction::desc,                    L"Move"},
    {KdDbBlockPolarStretchAction::desc,            L"Polar Stretch"},
    {KdDbBlockStretchAction::desc,                 L"Stretch"},
    {KdDbBlockRotateAction::desc,                  L"Rotate"},
    {KdDbBlockScaleAction::desc,                   L"Scale"},
    {KdDbBlockAlignmentGrip::desc,                 L"Alignment"},
    {KdDbBlockFlipGrip::desc,                      L"Flip"},
    {KdDbBlockLinearGrip::desc,                    L"Linear"},
    {KdDbBlockLookupGrip::desc,                    L"Lookup"},
    {KdDbBlockPolarGrip::desc,                     L"Polar"},
    {KdDbBlockRotationGrip::desc,                  L"Rotation"},
    {KdDbBlockVisibilityGrip::desc,                L"Visibility"},
    {KdDbBlockXYGrip::desc,                        L"XY"},
};
// clang-format on

using TypeNames = std::unordered_map<const KdRxClass*, const wchar_t*>;

TypeNames makeTypeNames()
{
    TypeNames names;
    for (const TypeNameRow& row : kTypeNames)
        names.emplace(row.rxClass(), row.name);
    return names;
}

} // namespace

const wchar_t* KdDbBlockElement::typeName() const
{
    static const TypeNames names = makeTypeNames();
    const auto found = names.find(isA());
    return found == names.end() ? L"" : found->second;
}

void KdDbEvalGraph::indexNodes() const
{
    for (; m_indexed < elements().size(); ++m_indexed) {
        const OpenForRead<KdDbBlockElement> element(elements()[m_indexed]);
        if (!element || element->nodeId() == 0)
            continue;
        m_elements.try_emplace(element->nodeId(), element->objectId());
        if (!element->isKindOf(KdDbBlockParameter::desc()))
            continue;
        for (const int grip : static_cast<const KdDbBlockParameter&>(*element).gripNodes()) {
            if (grip != 0)
                m_parametersOfGrips.try_emplace(grip, element->objectId());
        }
    }
}

KdDbObjectId KdDbEvalGraph::elementOf(int nodeId) const
{
    indexNodes();
    const auto found = m_elements.find(nodeId);
    return found == m_elements.end() ? KdDbObjectId() : found->second;
}

KdDbObjectId KdDbEvalGraph::parameterOfGrip(int nodeId) const
{
    indexNodes();
    const auto found = m_parametersOfGrips.find(nodeId);
    return found == m_parametersOfGrips.end() ? KdDbObjectId() : found->second;
}

KdDbObjectId KdDbEvalGraph::ofBlock(KdDbObjectId block)
{
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (!record)
        return {};
    const KdDbObjectId graph = kddbExtensionEntry(*record, L"ACAD_ENHANCEDBLOCK");
    return graph.isKindOf(desc()) ? graph : KdDbObjectId();
}

KdDbObjectId KdDbEvalGraph::ofElement(const KdDbBlockElement& element)
{
    const KdDbObjectId owner = element.ownerId();
    return owner.isKindOf(desc()) ? owner : KdDbObjectId();
}

KdDbObjectId KdDbBlockGrip::parameterId() const
{
    const OpenForRead<KdDbEvalGraph> graph(KdDbEvalGraph::ofElement(*this));
    return graph ? graph->parameterOfGrip(nodeId()) : KdDbObjectId();
}

KdString KdDbBlockGrip::parameterTypeName() const
{
    const OpenForRead<KdDbBlockParameter> parameter(parameterId());
    return parameter ? parameter->typeName() : KdString();
}

KdGeVector3d KdDbBlockGrip::baseOffset() const
{
    const OpenForRead<KdDbBlockParameter> parameter(parameterId());
    return parameter ? location() - parameter->basePoint() : KdGeVector3d();
}
