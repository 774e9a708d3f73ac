#include <entities/block_elements.h>

#include <algorithm>

// These entities have no names of their own in DXF: a file that holds them tells theirs in its list
// of classes.
#define KW_BLOCK_ELEMENT_GROUP(Class, Parent)                                                      \
    KD_RX_DEFINE_ABSTRACT(KdDb##Class, KdDb##Parent, L"AcDb" #Class)
#define KW_BLOCK_ELEMENT(Class, Parent) KD_RX_DEFINE(KdDb##Class, KdDb##Parent, L"AcDb" #Class, L"")

KW_BLOCK_ELEMENT_GROUP(BlockElementEntity, Entity)

KW_BLOCK_ELEMENT_GROUP(BlockParameterEntity, BlockElementEntity)
KW_BLOCK_ELEMENT_GROUP(Block1PtParameterEntity, BlockParameterEntity)
KW_BLOCK_ELEMENT(BlockBasepointParameterEntity, Block1PtParameterEntity)
KW_BLOCK_ELEMENT(BlockPointParameterEntity, Block1PtParameterEntity)
KW_BLOCK_ELEMENT(BlockLookupParameterEntity, Block1PtParameterEntity)
KW_BLOCK_ELEMENT(BlockVisibilityParameterEntity, Block1PtParameterEntity)
KW_BLOCK_ELEMENT_GROUP(Block2PtParameterEntity, BlockParameterEntity)
KW_BLOCK_ELEMENT(BlockAlignmentParameterEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockFlipParameterEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockLinearParameterEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockPolarParameterEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockRotationParameterEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockXYParameterEntity, Block2PtParameterEntity)

KW_BLOCK_ELEMENT_GROUP(BlockConstraintTagEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockAngularConstraintTagEntity, BlockConstraintTagEntity)
KW_BLOCK_ELEMENT(BlockDiametricConstraintTagEntity, BlockConstraintTagEntity)
KW_BLOCK_ELEMENT(BlockLinearConstraintTagEntity, BlockConstraintTagEntity)
KW_BLOCK_ELEMENT(BlockRadialConstraintTagEntity, BlockConstraintTagEntity)
KW_BLOCK_ELEMENT_GROUP(BlockConstraintParameterEntity, Block2PtParameterEntity)
KW_BLOCK_ELEMENT(BlockAngularConstraintParameterEntity, BlockConstraintParameterEntity)
KW_BLOCK_ELEMENT(BlockDiametricConstraintParameterEntity, BlockConstraintParameterEntity)
KW_BLOCK_ELEMENT(BlockLinearConstraintParameterEntity, BlockConstraintParameterEntity)
KW_BLOCK_ELEMENT(BlockRadialConstraintParameterEntity, BlockConstraintParameterEntity)

KW_BLOCK_ELEMENT_GROUP(BlockActionEntity, BlockElementEntity)
KW_BLOCK_ELEMENT(BlockArrayActionEntity, BlockActionEntity)
KW_BLOCK_ELEMENT(BlockFlipActionEntity, BlockActionEntity)
KW_BLOCK_ELEMENT(BlockLookupActionEntity, BlockActionEntity)
KW_BLOCK_ELEMENT(BlockMoveActionEntity, BlockActionEntity)
KW_BLOCK_ELEMENT(BlockPolarStretchActionEntity, BlockActionEntity)
KW_BLOCK_ELEMENT(BlockStretchActionEntity, BlockActionEntity)
KW_BLOCK_ELEMENT_GROUP(BlockActionEntityWithBasePt, BlockActionEntity)
KW_BLOCK_ELEMENT(BlockRotateActionEntity, BlockActionEntityWithBasePt)
KW_BLOCK_ELEMENT(BlockScaleActionEntity, BlockActionEntityWithBasePt)

KW_BLOCK_ELEMENT_GROUP(BlockGripEntity, BlockElementEntity)
KW_BLOCK_ELEMENT(BlockAlignmentGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockFlipGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockLinearGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockLookupGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockPolarGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockRotationGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockVisibilityGripEntity, BlockGripEntity)
KW_BLOCK_ELEMENT(BlockXYGripEntity, BlockGripEntity)

namespace {

struct EntityRow
{
    KdRxClass* (*element)();
    KdRxClass* (*entity)();
};

// clang-format off
constexpr EntityRow kEntities[] = {
    {KdDbBlockBasepointParameter::desc,           KdDbBlockBasepointParameterEntity::desc},
    {KdDbBlockPointParameter::desc,               KdDbBlockPointParameterEntity::desc},
    {KdDbBlockLookupParameter::desc,              KdDbBlockLookupParameterEntity::desc},
    {KdDbBlockVisibilityParameter::desc,          KdDbBlockVisibilityParameterEntity::desc},
    {KdDbBlockAlignmentParameter::desc,           KdDbBlockAlignmentParameterEntity::desc},
    {KdDbBlockFlipParameter::desc,                KdDbBlockFlipParameterEntity::desc},
    {KdDbBlockLinearParameter::desc,              KdDbBlockLinearParameterEntity::desc},
    {KdDbBlockPolarParameter::desc,               KdDbBlockPolarParameterEntity::desc},
    {KdDbBlockRotationParameter::desc,            KdDbBlockRotationParameterEntity::desc},
    {KdDbBlockXYParameter::desc,                  KdDbBlockXYParameterEntity::desc},
    {KdDbBlockAngularConstraintParameter::desc,   KdDbBlockAngularConstraintParameterEntity::desc},
    {KdDbBlockDiametricConstraintParameter::desc, KdDbBlockDiametricConstraintParameterEntity::desc},
    {KdDbBlockLinearConstraintParameter::desc,    KdDbBlockLinearConstraintParameterEntity::desc},
    {KdDbBlockRadialConstraintParameter::desc,    KdDbBlockRadialConstraintParameterEntity::desc},
    {KdDbBlockArrayAction::desc,                  KdDbBlockArrayActionEntity::desc},
    {KdDbBlockFlipAction::desc,                   KdDbBlockFlipActionEntity::desc},
    {KdDbBlockLookupAction::desc,                 KdDbBlockLookupActionEntity::desc},
    {KdDbBlockMoveAction::desc,                   KdDbBlockMoveActionEntity::desc},
    {KdDbBlockPolarStretchAction::desc,           KdDbBlockPolarStretchActionEntity::desc},
    {KdDbBlockStretchAction::desc,                KdDbBlockStretchActionEntity::desc},
    {KdDbBlockRotateAction::desc,                 KdDbBlockRotateActionEntity::desc},
    {KdDbBlockScaleAction::desc,                  KdDbBlockScaleActionEntity::desc},
    {KdDbBlockAlignmentGrip::desc,                KdDbBlockAlignmentGripEntity::desc},
    {KdDbBlockFlipGrip::desc,                     KdDbBlockFlipGripEntity::desc},
    {KdDbBlockLinearGrip::desc,                   KdDbBlockLinearGripEntity::desc},
    {KdDbBlockLookupGrip::desc,                   KdDbBlockLookupGripEntity::desc},
    {KdDbBlockPolarGrip::desc,                    KdDbBlockPolarGripEntity::desc},
    {KdDbBlockRotationGrip::desc,                 KdDbBlockRotationGripEntity::desc},
    {KdDbBlockVisibilityGrip::desc,               KdDbBlockVisibilityGripEntity::desc},
    {KdDbBlockXYGrip::desc,                       KdDbBlockXYGripEntity::desc},
};
// clang-format on

} // namespace

KdRxClass* kddbBlockElementEntityClass(const KdRxClass* elementClass)
{
    const auto* const row = std::ranges::find_if(kEntities, [=](const EntityRow& each) {
        return elementClass && elementClass->isDerivedFrom(each.element());
    });
    return row == std::end(kEntities) ? nullptr : row->entity();
}
