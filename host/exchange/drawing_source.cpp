#include "drawing_source.h"

#include <entities/viewport.h>

namespace dxf {

DrawingSource::DrawingSource(Beside beside)
    : database(beside.other.database),
      other(&beside.other),
      form(beside.other.form),
      version(beside.other.version),
      decoder(beside.other.decoder.another())
{
}

KdDbObjectId DrawingSource::block(const Group& name)
{
    const auto known = blocks.find(name.text);
    if (known != blocks.end())
        return known->second;
    const KdString text = decoder.decode(name.text);
    KdDbObjectId id;
    if (database.table<KdDbBlockTable>().getIdAt(text.kwszPtr(), id) != eOk)
        findings.add(DrawingFinding::UndefinedBlock, name.offset, text, reading);
    blocks.emplace(name.text, id);
    return id;
}

KdDbObjectId DrawingSource::firstViewport(KdDbObjectId block)
{
    const auto [place, isNew] = firstViewports.try_emplace(block);
    if (!isNew)
        return place->second;
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (!record)
        return {};
    for (const KdDbObjectId id : record->entityIds()) {
        if (id.objectClass() == KdDbViewport::desc()) {
            place->second = id;
            break;
        }
    }
    return place->second;
}

const std::vector<KdDbObjectId>* DrawingSource::columnsOf(KdDbObjectId text) const
{
    const auto& all = other ? other->textColumns : textColumns;
    const auto columns = all.find(text);
    return columns != all.end() ? &columns->second : nullptr;
}

} // namespace dxf
