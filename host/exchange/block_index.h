// Knows the blocks of a drawing during the index pass, and which of them an entity belongs to.
#pragma once

#include <unordered_map>
#include <unordered_set>

#include "object_maker.h"
#include "record_cursor.h"

namespace dxf {

class BlockIndex
{
  public:
    BlockIndex(DrawingSource& source, ObjectMaker& maker) : m_source(source), m_maker(maker) {}

    /// Enters a block record under the handle by which its entities name it.
    void addHandle(KdDbHandle handle, KdDbBlockTableRecord& record);

    /// Reads the head of a BLOCK record at which the cursor stands, and leaves it at the next
    /// record. The entities that follow go into this block until `end`.
    void begin(RecordCursor& cursor);
    void end() { m_open = nullptr; }
    bool isInBlock() const { return m_open != nullptr; }

    /// The block of an entity, by the section that it stands in, its owner and its space flag.
    KdDbBlockTableRecord& blockOf(const StatedOwner& stated, bool paper);

  private:
    struct Head;

    Head readHead(RecordCursor& cursor) const;
    KdDbBlockTableRecord& recordOf(const Head& head);
    KdDbBlockTableRecord* byHandle(KdDbHandle handle) const;
    KdDbBlockTableRecord& space(KdDbBlockTableRecord*& slot, const wchar_t* name);

    DrawingSource& m_source;
    ObjectMaker& m_maker;
    std::unordered_map<KdDbHandle, KdDbBlockTableRecord*> m_byHandle;
    std::unordered_set<const KdDbBlockTableRecord*> m_begun;
    KdDbBlockTableRecord* m_open = nullptr;
    KdDbBlockTableRecord* m_model = nullptr;
    KdDbBlockTableRecord* m_paper = nullptr;
    KdDbHandle m_lastOwner = 0;
    KdDbBlockTableRecord* m_lastSpace = nullptr;
};

/// The name that a block has in memory: up to R12 the model and the sheet are called otherwise.
KdString standardBlockName(const KdString& name, int version);

} // namespace dxf
