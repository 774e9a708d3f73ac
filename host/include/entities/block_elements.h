/// The parameters, actions, grips and constraints of dynamic blocks, as entities. A drawing holds
/// them only while one of its blocks stands open in a block editor.
#pragma once

#include <entities/declare.h>
#include <entities/dyn_block_actions.h>
#include <entities/dyn_block_parameters.h>

struct KW_EXPORT BlockElementEntityMembers : EntityMembers
{
    KdDbObjectId element;
};

/// Shows one element of the graph of a block. All that there is to know is the element's.
class KW_EXPORT KdDbBlockElementEntity : public KdDbEntity
{
    KD_RX_DECLARE(KdDbBlockElementEntity)
    KD_DB_MEMBERS(BlockElementEntityMembers)

    /// A `KdDbBlockElement`; the null id for an entity that has lost its element.
    KdDbObjectId blockElementId() const { return data().element; }

    /// Applies `read` to the element, or to one with nothing set if there is none of class
    /// `Element`. Takes a function, since the element is open for its time alone.
    template <class Element, class Read>
    auto readElement(Read read) const
    {
        static const Element blank;
        const OpenForRead<Element> element(blockElementId());
        return read(element ? *element : blank);
    }
};

/// The class of the entities that show elements of a class; null for what no entity shows.
KW_EXPORT KdRxClass* kddbBlockElementEntityClass(const KdRxClass* elementClass);

// Parameters.
KD_DB_PLAIN_ENTITY(KdDbBlockParameterEntity, KdDbBlockElementEntity)
KD_DB_PLAIN_ENTITY(KdDbBlock1PtParameterEntity, KdDbBlockParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockBasepointParameterEntity, KdDbBlock1PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockPointParameterEntity, KdDbBlock1PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLookupParameterEntity, KdDbBlock1PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockVisibilityParameterEntity, KdDbBlock1PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlock2PtParameterEntity, KdDbBlockParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockAlignmentParameterEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockFlipParameterEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLinearParameterEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockPolarParameterEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockRotationParameterEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockXYParameterEntity, KdDbBlock2PtParameterEntity)

// Constraints: the tag shows in the editor, the parameter carries the value.
KD_DB_PLAIN_ENTITY(KdDbBlockConstraintTagEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockAngularConstraintTagEntity, KdDbBlockConstraintTagEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockDiametricConstraintTagEntity, KdDbBlockConstraintTagEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLinearConstraintTagEntity, KdDbBlockConstraintTagEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockRadialConstraintTagEntity, KdDbBlockConstraintTagEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockConstraintParameterEntity, KdDbBlock2PtParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockAngularConstraintParameterEntity, KdDbBlockConstraintParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockDiametricConstraintParameterEntity, KdDbBlockConstraintParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLinearConstraintParameterEntity, KdDbBlockConstraintParameterEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockRadialConstraintParameterEntity, KdDbBlockConstraintParameterEntity)

// Actions.
KD_DB_PLAIN_ENTITY(KdDbBlockActionEntity, KdDbBlockElementEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockArrayActionEntity, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockFlipActionEntity, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLookupActionEntity, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockMoveActionEntity, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockPolarStretchActionEntity, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockStretchActionEntity, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockActionEntityWithBasePt, KdDbBlockActionEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockRotateActionEntity, KdDbBlockActionEntityWithBasePt)
KD_DB_PLAIN_ENTITY(KdDbBlockScaleActionEntity, KdDbBlockActionEntityWithBasePt)

// Grips.
KD_DB_PLAIN_ENTITY(KdDbBlockGripEntity, KdDbBlockElementEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockAlignmentGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockFlipGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLinearGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockLookupGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockPolarGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockRotationGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockVisibilityGripEntity, KdDbBlockGripEntity)
KD_DB_PLAIN_ENTITY(KdDbBlockXYGripEntity, KdDbBlockGripEntity)
