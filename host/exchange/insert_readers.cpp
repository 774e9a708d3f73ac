// Block references.
#include <algorithm>
#include <limits>

#include <entities/block_reference.h>

#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

/// Tables are block references with groups of their own behind.
bool isBlockReferencePart(const RecordReader& reader)
{
    return !reader.isIn("AcDbTable");
}

bool takeBlockReference(RecordReader& reader, BlockReferenceMembers& reference)
{
    switch (reader.code()) {
    case 2:
        reference.block = reader.source().block(reader.group());
        return true;
    case 10:
        reference.position = reader.point();
        return true;
    case 41:
        reference.scale.sx = reader.real();
        return true;
    case 42:
        reference.scale.sy = reader.real();
        return true;
    case 43:
        reference.scale.sz = reader.real();
        return true;
    case 50:
        reference.rotation = reader.angle();
        return true;
    case 210:
        reference.extrusion.setDirection(reader.vector());
        return true;
    default:
        return false;
    }
}

void readBlockReference(RecordReader& reader, BlockReferenceMembers& reference)
{
    while (reader.next()) {
        if (isBlockReferencePart(reader))
            takeBlockReference(reader, reference);
    }
}

std::uint16_t gridCount(RecordReader& reader)
{
    constexpr int kMost = std::numeric_limits<std::uint16_t>::max();
    return static_cast<std::uint16_t>(std::clamp(reader.integer(), 1, kMost));
}

void readMInsertBlock(RecordReader& reader, MInsertBlockMembers& reference)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 44:
            reference.columnSpacing = reader.real();
            break;
        case 45:
            reference.rowSpacing = reader.real();
            break;
        case 70:
            reference.columns = gridCount(reader);
            break;
        case 71:
            reference.rows = gridCount(reader);
            break;
        default:
            takeBlockReference(reader, reference);
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbBlockReference, BlockReferenceMembers, readBlockReference>()),
    beside(memberReader<KdDbMInsertBlock, MInsertBlockMembers, readMInsertBlock>()),
};

} // namespace

std::span<const MemberReaderRow> insertReaders()
{
    return kRows;
}

} // namespace dxf
