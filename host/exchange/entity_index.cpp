#include "entity_index.h"

#include <string>

#include <entities/all.h>

#include "group_values.h"

namespace dxf {

KdDbObjectId LayerNames::lookUp(std::string_view name, std::uint64_t offset, KdDbHandle handle)
{
    const auto known = m_ids.find(name);
    if (known != m_ids.end()) {
        m_recent.note(name, known->second);
        return known->second;
    }
    const KdString text = name.empty() ? KdString(L"0") : m_source.decoder.decode(name);
    auto& table = m_source.database.table<KdDbLayerTable>();
    KdDbObjectId id;
    if (table.getIdAt(text.kwszPtr(), id) != eOk) {
        // Layer "0" is in every drawing and need not be defined.
        if (text.compare(L"0") != 0)
            m_source.findings.add(DrawingFinding::UndefinedLayer, offset, text, handle);
        id = m_maker.findOrMake<KdDbLayerTable>(text)->objectId();
    }
    m_ids.emplace(name, id);
    m_recent.note(name, id);
    return id;
}

struct EntityIndex::Head
{
    std::uint64_t offset = 0;
    StatedHandle handle;
    KdDbHandle owner = 0;
    std::string_view layer;
    ClassHints hints;
    bool paper = false;
    bool hasLayer = false;
    bool hasFlags = false;
};

EntityIndex::EntityIndex(DrawingSource& source, ObjectMaker& maker, BlockIndex& blocks,
                         ReadReport& report)
    : m_source(source),
      m_maker(maker),
      m_blocks(blocks),
      m_report(report),
      m_classes(KdDbEntity::desc(), KdDbProxyEntity::desc()),
      m_layers(source, maker),
      m_columns(source, maker),
      m_textClass(KdDbMText::desc()),
      m_vertexClass(KdDbVertex::desc()),
      m_attributeClass(KdDbAttribute::desc()),
      m_sequenceEndClass(KdDbSequenceEnd::desc()),
      m_blockReferenceClass(KdDbBlockReference::desc())
{
}

void EntityIndex::takeHint(const Group& group, const ClassEntry& entry, Head& head) const
{
    if (group.code == 100) {
        if (const KdRxClass* marked = entry.ofMarker(trimmed(group.text)))
            head.hints.marked = marked;
    } else if (group.code == 70 && !head.hasFlags) {
        head.hints.flags = static_cast<int>(looseIntegerOf(group));
        head.hasFlags = true;
    } else if (group.code == 71 && head.hints.count == 0) {
        head.hints.count = static_cast<int>(looseIntegerOf(group));
    }
}

void EntityIndex::readHead(RecordCursor& cursor, const ClassEntry& entry, Head& head) const
{
    const bool ambiguous = entry.isAmbiguous();
    bool inApplicationGroup = false;
    int markers = 0;
    while (cursor.nextInRecord()) {
        const Group& group = cursor.group();
        switch (group.code) {
        case 5:
            head.handle.take(group);
            break;
        case 8:
            if (!head.hasLayer)
                head.layer = group.text;
            head.hasLayer = true;
            break;
        case 67:
            if (markers <= 1)
                head.paper = looseIntegerOf(group) != 0;
            break;
        case 330:
            if (head.owner == 0 && !inApplicationGroup && markers == 0)
                head.owner = looseHandleOf(group);
            break;
        case 70:
        case 71:
            if (ambiguous)
                takeHint(group, entry, head);
            break;
        case 100:
            ++markers;
            if (ambiguous) {
                takeHint(group, entry, head);
            } else if (markers > 1 && head.hasLayer) { // the rest is the kind's own
                cursor.toNextRecord();
                return;
            }
            break;
        case 102:
            inApplicationGroup = group.text.starts_with('{');
            break;
        case 101:
        case 1001:
            cursor.toNextRecord();
            return;
        default:
            break;
        }
    }
}

bool EntityIndex::belongsToParent(const KdRxClass* rxClass) const
{
    const bool toBlock = m_parent->isA()->isDerivedFrom(m_blockReferenceClass);
    return rxClass == m_sequenceEndClass ||
           (toBlock ? rxClass == m_attributeClass : rxClass->isDerivedFrom(m_vertexClass));
}

void EntityIndex::noteUnknown(std::string_view name, const Head& head)
{
    ++m_report.unknownEntities;
    m_source.findings.add(DrawingFinding::UnknownEntity, head.offset, m_source.decoder.decode(name),
                          head.handle.value);
}

void EntityIndex::readEntity(RecordCursor& cursor)
{
    const std::string_view name = cursor.name();
    const ClassEntry& entry = m_classes.find(name);
    Head head;
    head.offset = cursor.offset();
    head.hints.parent = m_parent ? m_parent->isA() : nullptr;
    readHead(cursor, entry, head);
    if (entry.isUnknown())
        noteUnknown(name, head);
    const SourceRange range = cursor.rangeFrom(head.offset, m_source.findings);
    auto* entity =
        static_cast<KdDbEntity*>(m_maker.make(entry.decide(head.hints), head.handle, range));
    entity->setLayer(m_layers.find(head.layer, head.offset, head.handle.value));
    place(*entity, head, entry.hasParts());
    if (entity->isA() == m_textClass)
        m_columns.note(*entity, range);
}

void EntityIndex::place(KdDbEntity& entity, const Head& head, bool hasParts)
{
    const KdRxClass* const rxClass = entity.isA();
    if (m_parent && belongsToParent(rxClass)) {
        m_maker.builder().setOwner(entity, m_parent->objectId());
        m_parent->appendPart(entity.objectId());
        if (rxClass == m_sequenceEndClass)
            m_parent = nullptr;
        return;
    }
    KdDbBlockTableRecord& block =
        m_blocks.blockOf({head.owner, head.offset, head.handle.value}, head.paper);
    m_maker.builder().setOwner(entity, block.objectId());
    const bool isPart = rxClass == m_sequenceEndClass || rxClass == m_attributeClass ||
                        rxClass->isDerivedFrom(m_vertexClass);
    if (isPart) { // it is kept, but no block shows it
        m_source.findings.add(DrawingFinding::PartWithoutParent, head.offset, {}, entity.handle());
        return;
    }
    ++m_report.entities;
    block.adopt(entity.objectId());
    m_parent = hasParts ? &entity : nullptr;
}

} // namespace dxf
