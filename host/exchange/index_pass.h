// The first look at a drawing: splits the file into records and makes the objects.
#pragma once

#include "entity_index.h"
#include "header_reader.h"
#include "object_index.h"
#include "table_index.h"

namespace dxf {

class IndexPass
{
  public:
    IndexPass(DrawingSource& source, ReadReport& report, const RecordCursor::Progress& progress);

    /// Reads all sections; false if cancelled.
    bool run();
    /// What remains once all handles are known: owners, layouts, the standard content and the
    /// members of table records. The database must know its source by now.
    void finish();

  private:
    void readSection();
    void readContent(std::string_view name, std::uint64_t begin);
    void readClasses();
    void readBlocks();
    void readEntities();
    void endSection();
    void settleEncoding();
    void readDefinitions(bool blocks);

    DrawingSource& m_source;
    ReadReport& m_report;
    RecordCursor m_cursor;
    ObjectMaker m_maker;
    BlockIndex m_blocks;
    TableIndex m_tables;
    EntityIndex m_entities;
    ObjectIndex m_objects;
    bool m_encodingIsKnown = false;
};

} // namespace dxf
