/// The parameters of dynamic blocks: what can change from one reference to the next.
#pragma once

#include <entities/dyn_block_elements.h>

/// What a person reads of a value that a parameter holds.
struct BlockParameterLabel
{
    KdString name; ///< the property goes by this name
    KdString description;
};

/// Which values a parameter takes.
struct KW_EXPORT KdDbBlockParamValueSet
{
    enum Flags
    {
        kMinimum = 1,
        kMaximum = 2,
        kIncrement = 4,
        kValueList = 8,
    };

    bool useIncrement() const { return (flags & kIncrement) != 0; }
    bool useValueList() const { return (flags & kValueList) != 0; }

    KdString description;
    int flags = 0;
    double minimum = 0.0;
    double maximum = 0.0;
    double increment = 0.0;
    std::vector<double> values;
};

struct KW_EXPORT BlockParameterMembers : BlockElementMembers
{
    bool showProperties = true; ///< listed among the properties of references
    bool chainActions = false;
    /// Numbers of the grips; 0 where a place has none.
    std::array<int, 4> gripNodes{};
};

class KW_EXPORT KdDbBlockParameter : public KdDbBlockElement
{
    KD_RX_DECLARE(KdDbBlockParameter)
    KD_DB_MEMBERS(BlockParameterMembers)

    bool showProperties() const { return data().showProperties; }
    bool chainActions() const { return data().chainActions; }
    const std::array<int, 4>& gripNodes() const { return data().gripNodes; }
    int numberOfGrips() const;
    /// From where the parameter measures; here the origin.
    virtual KdGePoint3d basePoint() const { return {}; }
};

// Parameters at one point.

struct KW_EXPORT Block1PtParameterMembers : BlockParameterMembers
{
    KdGePoint3d point;
};

class KW_EXPORT KdDbBlock1PtParameter : public KdDbBlockParameter
{
    KD_RX_DECLARE(KdDbBlock1PtParameter)
    KD_DB_MEMBERS(Block1PtParameterMembers)

    KdGePoint3d basePoint() const override { return data().point; }
};

/// Where references have their insertion point.
KW_BLOCK_ELEMENT_CLASS(KdDbBlockBasepointParameter, KdDbBlock1PtParameter)

struct KW_EXPORT BlockPointParameterMembers : Block1PtParameterMembers
{
    BlockParameterLabel label;
    KdGePoint3d labelPoint;
};

class KW_EXPORT KdDbBlockPointParameter : public KdDbBlock1PtParameter
{
    KD_RX_DECLARE(KdDbBlockPointParameter)
    KD_DB_MEMBERS(BlockPointParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    KdGePoint3d labelPoint() const { return data().labelPoint; }
};

struct KW_EXPORT BlockLookupParameterMembers : Block1PtParameterMembers
{
    BlockParameterLabel label;
    int actionNode = 0;
};

/// Takes its value from a table of the values of others.
class KW_EXPORT KdDbBlockLookupParameter : public KdDbBlock1PtParameter
{
    KD_RX_DECLARE(KdDbBlockLookupParameter)
    KD_DB_MEMBERS(BlockLookupParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    /// The action that holds the table; the null id if there is none.
    KdDbObjectId actionId() const;
    /// That action's name; empty without one.
    KdString actionName() const;
};

struct KW_EXPORT BlockVisibilityParameterMembers : Block1PtParameterMembers
{
    BlockParameterLabel label;
    std::vector<KdString> states;
};

class KW_EXPORT KdDbBlockVisibilityParameter : public KdDbBlock1PtParameter
{
    KD_RX_DECLARE(KdDbBlockVisibilityParameter)
    KD_DB_MEMBERS(BlockVisibilityParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    const std::vector<KdString>& states() const { return data().states; }
};

// Parameters from one point to another.

struct KW_EXPORT Block2PtParameterMembers : BlockParameterMembers
{
    KdGePoint3d start;
    KdGePoint3d end;
    int basePosition = 0; ///< 0 the start stays where it is, 1 the middle
};

class KW_EXPORT KdDbBlock2PtParameter : public KdDbBlockParameter
{
    KD_RX_DECLARE(KdDbBlock2PtParameter)
    KD_DB_MEMBERS(Block2PtParameterMembers)

    KdGePoint3d basePoint() const override { return data().start; }
    KdGePoint3d endPoint() const { return data().end; }
    int basePosition() const { return data().basePosition; }
    double distance() const { return data().start.distanceTo(data().end); }
    /// From the x axis to the end, from 0 up to but not including a whole turn; 0 if both points
    /// are one.
    double angle() const;
};

struct KW_EXPORT BlockAlignmentParameterMembers : Block2PtParameterMembers
{
    bool perpendicular = false;
};

class KW_EXPORT KdDbBlockAlignmentParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockAlignmentParameter)
    KD_DB_MEMBERS(BlockAlignmentParameterMembers)

    bool isPerpendicular() const { return data().perpendicular; }
};

struct KW_EXPORT BlockFlipParameterMembers : Block2PtParameterMembers
{
    BlockParameterLabel label;
    KdString baseStateName;
    KdString flippedStateName;
    KdGePoint3d labelPoint;
};

class KW_EXPORT KdDbBlockFlipParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockFlipParameter)
    KD_DB_MEMBERS(BlockFlipParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    const KdString& baseStateName() const { return data().baseStateName; }
    const KdString& flippedStateName() const { return data().flippedStateName; }
    KdGePoint3d labelPoint() const { return data().labelPoint; }
};

struct KW_EXPORT BlockLinearParameterMembers : Block2PtParameterMembers
{
    BlockParameterLabel label;
    double labelOffset = 0.0;
    KdDbBlockParamValueSet valueSet;
};

class KW_EXPORT KdDbBlockLinearParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockLinearParameter)
    KD_DB_MEMBERS(BlockLinearParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    double labelOffset() const { return data().labelOffset; }
    const KdDbBlockParamValueSet& valueSet() const { return data().valueSet; }
};

struct KW_EXPORT BlockPolarParameterMembers : Block2PtParameterMembers
{
    BlockParameterLabel distanceLabel;
    BlockParameterLabel angleLabel;
    double labelOffset = 0.0;
    KdDbBlockParamValueSet distanceSet;
    KdDbBlockParamValueSet angleSet;
};

class KW_EXPORT KdDbBlockPolarParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockPolarParameter)
    KD_DB_MEMBERS(BlockPolarParameterMembers)

    const BlockParameterLabel& distanceLabel() const { return data().distanceLabel; }
    const BlockParameterLabel& angleLabel() const { return data().angleLabel; }
    double labelOffset() const { return data().labelOffset; }
    const KdDbBlockParamValueSet& distanceSet() const { return data().distanceSet; }
    const KdDbBlockParamValueSet& angleSet() const { return data().angleSet; }
};

struct KW_EXPORT BlockXYParameterMembers : Block2PtParameterMembers
{
    BlockParameterLabel horizontalLabel;
    BlockParameterLabel verticalLabel;
    double horizontalLabelOffset = 0.0;
    double verticalLabelOffset = 0.0;
    KdDbBlockParamValueSet horizontalSet;
    KdDbBlockParamValueSet verticalSet;
};

class KW_EXPORT KdDbBlockXYParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockXYParameter)
    KD_DB_MEMBERS(BlockXYParameterMembers)

    const BlockParameterLabel& horizontalLabel() const { return data().horizontalLabel; }
    const BlockParameterLabel& verticalLabel() const { return data().verticalLabel; }
    double horizontalLabelOffset() const { return data().horizontalLabelOffset; }
    double verticalLabelOffset() const { return data().verticalLabelOffset; }
    const KdDbBlockParamValueSet& horizontalSet() const { return data().horizontalSet; }
    const KdDbBlockParamValueSet& verticalSet() const { return data().verticalSet; }
    double horizontalDistance() const;
    double verticalDistance() const;
};

struct KW_EXPORT BlockRotationParameterMembers : Block2PtParameterMembers
{
    BlockParameterLabel label;
    KdGePoint3d baseAnglePoint; ///< the angle is measured from here
    double labelOffset = 0.0;
    KdDbBlockParamValueSet valueSet;
};

class KW_EXPORT KdDbBlockRotationParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockRotationParameter)
    KD_DB_MEMBERS(BlockRotationParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    double labelOffset() const { return data().labelOffset; }
    const KdDbBlockParamValueSet& valueSet() const { return data().valueSet; }
    KdGePoint3d baseAnglePoint() const { return data().baseAnglePoint; }
    /// From the x axis to the point from which angles are measured.
    double baseAngle() const;
    /// From that point to the end.
    double rotation() const;
};

/// What a user parameter measures; the numbers are those of `KdDbDynBlockReferenceProperty`, and
/// whatever lies above them is a measure that properties don't know.
enum class BlockUserParameterUnit : std::uint8_t
{
    None = 0,
    Angle = 1,
    Distance = 2,
    Area = 3,
    Volume = 4,
};

struct KW_EXPORT BlockUserParameterMembers : BlockParameterMembers
{
    BlockParameterLabel label;
    BlockUserParameterUnit unit = BlockUserParameterUnit::None;
    KdDbEvalVariant value;
};

/// A value that belongs to no place in the block. Its form in drawing files is not known.
class KW_EXPORT KdDbBlockUserParameter : public KdDbBlockParameter
{
    KD_RX_DECLARE(KdDbBlockUserParameter)
    KD_DB_MEMBERS(BlockUserParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    BlockUserParameterUnit unit() const { return data().unit; }
    const KdDbEvalVariant& value() const { return data().value; }
};

// Constraints that are values, too.

struct KW_EXPORT BlockConstraintParameterMembers : Block2PtParameterMembers
{
    BlockParameterLabel label;
    KdString expression;
    double value = 0.0; ///< drawing units, or radians of an angular one
    KdDbBlockParamValueSet valueSet;
    KdGePoint3d textPosition;
    double dimensionLineOffset = 0.0;
};

class KW_EXPORT KdDbBlockConstraintParameter : public KdDbBlock2PtParameter
{
    KD_RX_DECLARE(KdDbBlockConstraintParameter)
    KD_DB_MEMBERS(BlockConstraintParameterMembers)

    const BlockParameterLabel& label() const { return data().label; }
    const KdString& expression() const { return data().expression; }
    double value() const { return data().value; }
    const KdDbBlockParamValueSet& valueSet() const { return data().valueSet; }
    KdGePoint3d textPosition() const { return data().textPosition; }
    double dimensionLineOffset() const { return data().dimensionLineOffset; }
};
KW_BLOCK_ELEMENT_CLASS(KdDbBlockAngularConstraintParameter, KdDbBlockConstraintParameter)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockDiametricConstraintParameter, KdDbBlockConstraintParameter)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockLinearConstraintParameter, KdDbBlockConstraintParameter)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockAlignedConstraintParameter, KdDbBlockLinearConstraintParameter)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockHorizontalConstraintParameter, KdDbBlockLinearConstraintParameter)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockVerticalConstraintParameter, KdDbBlockLinearConstraintParameter)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockRadialConstraintParameter, KdDbBlockConstraintParameter)
