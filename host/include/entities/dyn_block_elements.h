/// What dynamic blocks are made of: parameters, which say what can change, grips to change it by,
/// and actions that follow. They are objects that hang together in an evaluation graph, which
/// extends the block's definition. All points are in the block's frame, all angles radians.
#pragma once

#include <array>
#include <unordered_map>

#include <database/eval_variant.h>
#include <database/object.h>
#include <geometry/point.h>

struct KW_EXPORT BlockElementMembers : ObjectMembers
{
    int nodeId = 0; ///< its number in the graph; 0 is none
    KdString name;  ///< what a person calls the element
};

/// Base of the elements.
class KW_EXPORT KdDbBlockElement : public KdDbObject
{
    KD_RX_DECLARE(KdDbBlockElement)
    KD_DB_MEMBERS(BlockElementMembers)

    int nodeId() const { return data().nodeId; }
    const KdString& elementName() const { return data().name; }
    /// What kind of element this is, in one or two English words such as "Polar Stretch".
    const wchar_t* typeName() const;
};

/// The elements of one block. Nodes are found in constant time once one was asked for.
struct KW_EXPORT EvalGraphMembers : ObjectMembers
{
    std::vector<KdDbObjectId> elements; ///< without those of kinds that are not known
};

class KW_EXPORT KdDbEvalGraph : public KdDbObject
{
    KD_RX_DECLARE(KdDbEvalGraph)
    KD_DB_MEMBERS(EvalGraphMembers)

    const std::vector<KdDbObjectId>& elements() const { return data().elements; }
    /// The element with that number; the null id if there is none.
    KdDbObjectId elementOf(int nodeId) const;
    /// The parameter to which the grip of that number belongs; the null id if no parameter has it.
    KdDbObjectId parameterOfGrip(int nodeId) const;

    /// The graph that makes a block dynamic; the null id for any other block.
    static KdDbObjectId ofBlock(KdDbObjectId block);
    /// The graph to which an element belongs, or the null id.
    static KdDbObjectId ofElement(const KdDbBlockElement& element);

  private:
    using Nodes = std::unordered_map<int, KdDbObjectId>;
    void indexNodes() const;

    mutable Nodes m_elements;
    mutable Nodes m_parametersOfGrips;
    mutable std::size_t m_indexed = 0; ///< elements that the maps know
};

/// Where a grip stands and which parameter it moves.
struct KW_EXPORT BlockGripMembers : BlockElementMembers
{
    KdGePoint3d location;
    bool cycling = false; ///< takes part when a person runs through the insertion points
};

class KW_EXPORT KdDbBlockGrip : public KdDbBlockElement
{
    KD_RX_DECLARE(KdDbBlockGrip)
    KD_DB_MEMBERS(BlockGripMembers)

    KdGePoint3d location() const { return data().location; }
    bool cycling() const { return data().cycling; }
    /// The parameter that lists this grip; the null id if none does.
    KdDbObjectId parameterId() const;
    /// The type name of that parameter; empty without one.
    KdString parameterTypeName() const;
    /// From the parameter's base point to the grip; no offset without a parameter.
    KdGeVector3d baseOffset() const;
};

#define KW_BLOCK_ELEMENT_CLASS(Class, Parent)                                                      \
    class KW_EXPORT Class : public Parent                                                          \
    {                                                                                              \
        KD_RX_DECLARE(Class)                                                                       \
    };
KW_BLOCK_ELEMENT_CLASS(KdDbBlockAlignmentGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockFlipGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockLinearGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockLookupGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockPolarGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockRotationGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockVisibilityGrip, KdDbBlockGrip)
KW_BLOCK_ELEMENT_CLASS(KdDbBlockXYGrip, KdDbBlockGrip)
