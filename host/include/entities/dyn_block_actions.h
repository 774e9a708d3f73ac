/// The actions of dynamic blocks: what follows when a parameter changes.
#pragma once

#include <entities/dyn_block_elements.h>

struct KW_EXPORT BlockActionMembers : BlockElementMembers
{
    KdGePoint3d position; ///< of the mark in the editor
    std::vector<KdDbObjectId> selection;
    std::vector<int> drivers; ///< numbers of the parameters that the action follows
};

class KW_EXPORT KdDbBlockAction : public KdDbBlockElement
{
    KD_RX_DECLARE(KdDbBlockAction)
    KD_DB_MEMBERS(BlockActionMembers)

    KdGePoint3d position() const { return data().position; }
    /// What the action changes.
    const std::vector<KdDbObjectId>& selection() const { return data().selection; }
    /// True if one of the elements that the action follows is of that class.
    bool follows(const KdRxClass* elementClass) const;
};

struct KW_EXPORT BlockActionWithBasePtMembers : BlockActionMembers
{
    KdGePoint3d baseOffset;
    bool dependent = true; ///< the base point goes with the parameter
};

class KW_EXPORT KdDbBlockActionWithBasePt : public KdDbBlockAction
{
    KD_RX_DECLARE(KdDbBlockActionWithBasePt)
    KD_DB_MEMBERS(BlockActionWithBasePtMembers)

    KdGePoint3d baseOffset() const { return data().baseOffset; }
    bool isDependent() const { return data().dependent; }
};
KW_BLOCK_ELEMENT_CLASS(KdDbBlockRotateAction, KdDbBlockActionWithBasePt)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockScaleAction, KdDbBlockActionWithBasePt)

/// How a movement differs from that of the parameter, and the frame of actions that have one.
struct KW_EXPORT BlockMovingActionMembers : BlockActionMembers
{
    double distanceMultiplier = 1.0;
    double angleOffset = 0.0;
    std::vector<KdGePoint2d> frame; ///< what lies inside moves, what crosses it is stretched
};

/// What moving and stretching actions share. Drawing files know no such class.
class KW_EXPORT KdDbBlockMovingAction : public KdDbBlockAction
{
    KD_RX_DECLARE(KdDbBlockMovingAction)
    KD_DB_MEMBERS(BlockMovingActionMembers)

    double distanceMultiplier() const { return data().distanceMultiplier; }
    double angleOffset() const { return data().angleOffset; }
    const std::vector<KdGePoint2d>& frame() const { return data().frame; }
};
KW_BLOCK_ELEMENT_CLASS(KdDbBlockMoveAction, KdDbBlockMovingAction)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockStretchAction, KdDbBlockMovingAction)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockPolarStretchAction, KdDbBlockMovingAction)

struct KW_EXPORT BlockArrayActionMembers : BlockActionMembers
{
    double rowOffset = 0.0;
    double columnOffset = 0.0;
};

class KW_EXPORT KdDbBlockArrayAction : public KdDbBlockAction
{
    KD_RX_DECLARE(KdDbBlockArrayAction)
    KD_DB_MEMBERS(BlockArrayActionMembers)

    double rowOffset() const { return data().rowOffset; }
    double columnOffset() const { return data().columnOffset; }
};

KW_BLOCK_ELEMENT_CLASS(KdDbBlockFlipAction, KdDbBlockAction)

/// A table that ties the values of some parameters together.
struct KW_EXPORT BlockLookupActionMembers : BlockActionMembers
{
    struct Column
    {
        int parameterNode = 0;
        KdString noMatch; ///< the value for a row that is not in the table
    };
    std::vector<Column> columns;
    std::vector<KdString> cells; ///< row by row
};

class KW_EXPORT KdDbBlockLookupAction : public KdDbBlockAction
{
    KD_RX_DECLARE(KdDbBlockLookupAction)
    KD_DB_MEMBERS(BlockLookupActionMembers)

    /// The values that the table has for the parameter of that number, row by row, and behind them
    /// the one for no match. Empty if the table does not speak of that parameter.
    std::vector<KdString> valuesOf(int parameterNode) const;
};
