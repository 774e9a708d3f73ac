#include <entities/dyn_block_actions.h>

#include <algorithm>

#define KW_BLOCK_ACTION(Kind, Parent, dxfName)                                                     \
    KD_RX_DEFINE(KdDbBlock##Kind##Action, Parent, L"AcDbBlock" #Kind "Action", dxfName)

KD_RX_DEFINE_ABSTRACT(KdDbBlockAction, KdDbBlockElement, L"AcDbBlockAction")
KD_RX_DEFINE_ABSTRACT(KdDbBlockActionWithBasePt, KdDbBlockAction, L"AcDbBlockActionWithBasePt")
KW_BLOCK_ACTION(Rotate, KdDbBlockActionWithBasePt, L"BLOCKROTATEACTION")
KW_BLOCK_ACTION(Scale, KdDbBlockActionWithBasePt, L"BLOCKSCALEACTION")
KD_RX_DEFINE_ABSTRACT(KdDbBlockMovingAction, KdDbBlockAction, L"AcDbBlockMovingAction")
KW_BLOCK_ACTION(Move, KdDbBlockMovingAction, L"BLOCKMOVEACTION")
KW_BLOCK_ACTION(Stretch, KdDbBlockMovingAction, L"BLOCKSTRETCHACTION")
KW_BLOCK_ACTION(PolarStretch, KdDbBlockMovingAction, L"BLOCKPOLARSTRETCHACTION")
KW_BLOCK_ACTION(Array, KdDbBlockAction, L"BLOCKARRAYACTION")
KW_BLOCK_ACTION(Flip, KdDbBlockAction, L"BLOCKFLIPACTION")
KW_BLOCK_ACTION(Lookup, KdDbBlockAction, L"BLOCKLOOKUPACTION")

bool KdDbBlockAction::follows(const KdRxClass* elementClass) const
{
    const OpenForRead<KdDbEvalGraph> graph(KdDbEvalGraph::ofElement(*this));
    return graph && std::ranges::any_of(data().drivers, [&](int node) {
               return graph->elementOf(node).isKindOf(elementClass);
           });
}

std::vector<KdString> KdDbBlockLookupAction::valuesOf(int parameterNode) const
{
    const auto& columns = data().columns;
    const auto column =
        std::ranges::find(columns, parameterNode, &BlockLookupActionMembers::Column::parameterNode);
    if (column == columns.end())
        return {};
    std::vector<KdString> values;
    for (auto i = static_cast<std::size_t>(column - columns.begin()); i < data().cells.size();
         i += columns.size())
        values.push_back(data().cells[i]);
    if (!column->noMatch.isEmpty() && std::ranges::find(values, column->noMatch) == values.end())
        values.push_back(column->noMatch);
    return values;
}
