// Indexes entities: of each its class, handle, owner, layer and place in the file.
#pragma once

#include <exchange/drawing_reader.h>

#include "block_index.h"
#include "class_table.h"
#include "recent_names.h"
#include "text_columns.h"

namespace dxf {

/// Finds layers by their undecoded names.
class LayerNames
{
  public:
    LayerNames(DrawingSource& source, ObjectMaker& maker) : m_source(source), m_maker(maker) {}

    /// `offset` and `handle` are those of the entity that names the layer.
    KdDbObjectId find(std::string_view name, std::uint64_t offset, KdDbHandle handle)
    {
        const KdDbObjectId* const known = m_recent.find(name);
        return known ? *known : lookUp(name, offset, handle);
    }

  private:
    KdDbObjectId lookUp(std::string_view name, std::uint64_t offset, KdDbHandle handle);

    DrawingSource& m_source;
    ObjectMaker& m_maker;
    std::unordered_map<std::string_view, KdDbObjectId> m_ids;
    RecentNames<KdDbObjectId> m_recent;
};

class EntityIndex
{
  public:
    EntityIndex(DrawingSource& source, ObjectMaker& maker, BlockIndex& blocks, ReadReport& report);

    void addForeignClasses() { m_classes.addForeign(m_source.classes); }
    /// Indexes the entity at which the cursor stands and leaves it at the next record.
    void readEntity(RecordCursor& cursor);
    /// What follows belongs to no entity before: called between blocks and sections.
    void forgetParent() { m_parent = nullptr; }
    /// Joins texts that stand in columns; called when all handles are known.
    void joinColumns() { m_report.entities -= m_columns.tie(); }

  private:
    struct Head;

    void readHead(RecordCursor& cursor, const ClassEntry& entry, Head& head) const;
    void takeHint(const Group& group, const ClassEntry& entry, Head& head) const;
    bool belongsToParent(const KdRxClass* rxClass) const;
    void place(KdDbEntity& entity, const Head& head, bool hasParts);
    void noteUnknown(std::string_view name, const Head& head);

    DrawingSource& m_source;
    ObjectMaker& m_maker;
    BlockIndex& m_blocks;
    ReadReport& m_report;
    ClassTable m_classes;
    LayerNames m_layers;
    TextColumns m_columns;
    KdDbEntity* m_parent = nullptr; ///< the entity whose vertices or attributes may follow
    // Looked up once: a class descriptor is asked for with every entity.
    const KdRxClass* m_textClass;
    const KdRxClass* m_vertexClass;
    const KdRxClass* m_attributeClass;
    const KdRxClass* m_sequenceEndClass;
    const KdRxClass* m_blockReferenceClass;
};

} // namespace dxf
