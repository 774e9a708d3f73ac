// Indexes the TABLES section.
#pragma once

#include <vector>

#include "block_index.h"

namespace dxf {

class TableIndex
{
  public:
    TableIndex(DrawingSource& source, ObjectMaker& maker, BlockIndex& blocks)
        : m_source(source), m_maker(maker), m_blocks(blocks)
    {
    }

    /// Makes the records of all tables, so far with their names alone. The cursor stands at the
    /// first record of the section and is left at its end.
    void read(RecordCursor& cursor);

    /// A record and where it is defined.
    struct Definition
    {
        KdDbSymbolTableRecord* record;
        SourceRange range;
    };
    /// To be read once all handles are known.
    const std::vector<Definition>& definitions() const { return m_definitions; }

  private:
    void readTable(RecordCursor& cursor);
    void readEntry(RecordCursor& cursor, bool inTable);

    DrawingSource& m_source;
    ObjectMaker& m_maker;
    BlockIndex& m_blocks;
    std::vector<Definition> m_definitions;
};

} // namespace dxf
