/// Block references.
#pragma once

#include <entities/declare.h>
#include <entities/extrusion.h>
#include <entities/parts.h>

struct KW_EXPORT BlockReferenceMembers : EntityMembers
{
    KdDbObjectId block;
    KdGePoint3d position; ///< OCS
    KdGeScale3d scale;
    double rotation = 0.0; ///< radians in the object frame
    Extrusion extrusion;   ///< the thickness stays 0
};

/// One use of a block; its parts are `KdDbAttribute` objects.
class KW_EXPORT KdDbBlockReference : public KdDbOwnerOfParts<KdDbEntity>
{
    KD_RX_DECLARE(KdDbBlockReference)
    KD_DB_MEMBERS(BlockReferenceMembers)

    /// The block that the reference names, which is an anonymous copy for a dynamic block in any
    /// but its first form. The null id if the drawing lacks the block.
    KdDbObjectId blockTableRecord() const { return data().block; }
    /// In WCS.
    KdGePoint3d position() const { return data().extrusion.toWorld(data().position); }
    KdGeScale3d scaleFactors() const { return data().scale; }
    /// In radians, counter-clockwise about the normal from the x axis of the object frame.
    double rotation() const { return data().rotation; }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }
    std::unique_ptr<KdDbObjectIterator> attributeIterator() const { return iteratorOverParts(); }
    /// From the block's frame to the world: base point, scale, rotation, object frame, position.
    KdGeMatrix3d blockTransform() const;
    /// One of `CLSID_KdadAssocArrayRect`, `...Polar` and `...Path` for an associative array.
    KdErrorStatus getClassID(CLSID* classId) const override;
};

struct KW_EXPORT MInsertBlockMembers : BlockReferenceMembers
{
    std::uint16_t columns = 1;
    std::uint16_t rows = 1;
    double columnSpacing = 0.0; ///< along the reference's own x axis
    double rowSpacing = 0.0;    ///< along its y axis
};

/// A block reference repeated in a grid.
class KW_EXPORT KdDbMInsertBlock : public KdDbBlockReference
{
    KD_RX_DECLARE(KdDbMInsertBlock)
    KD_DB_MEMBERS(MInsertBlockMembers)

    std::uint16_t columns() const { return data().columns; }
    std::uint16_t rows() const { return data().rows; }
    double columnSpacing() const { return data().columnSpacing; }
    double rowSpacing() const { return data().rowSpacing; }
};

struct KW_EXPORT BlockRepresentationMembers : ObjectMembers
{
    KdDbObjectId block;
};

/// Stands in the extension dictionary of a reference to an anonymous copy and names the original.
class KW_EXPORT KdDbBlockRepresentationData : public KdDbObject
{
    KD_RX_DECLARE(KdDbBlockRepresentationData)
    KD_DB_MEMBERS(BlockRepresentationMembers)

    KdDbObjectId blockId() const { return data().block; }
};

/// The block that an anonymous copy of a dynamic block was made from. `id` is that of the copy or
/// of a reference to it. The null id for a block that is no such copy, for anything else, and where
/// the original is not in the drawing.
KW_EXPORT KdDbObjectId kddbGetEnhancedBlkOriginalBtrId(KdDbObjectId id);
KW_EXPORT KdDbObjectId kddbGetEnhancedBlkOriginalBtrId(const KdDbBlockReference& reference);

/// The same for blocks that follow their surroundings, which are another mechanism. No form of
/// theirs in drawing files is known, so a block read from one is never such a copy: always the null
/// id.
KW_EXPORT KdDbObjectId kddbGetSmartBlkOriginalBtrId(KdDbObjectId id);
KW_EXPORT KdDbObjectId kddbGetSmartBlkOriginalBtrId(const KdDbBlockReference& reference);
