#include "table_index.h"

#include <algorithm>

#include "group_values.h"

namespace dxf {
namespace {

struct TableRow
{
    std::string_view entryName;
    KdRxClass* (*recordClass)();
    KdDbSymbolTable& (*table)(KdDbDatabase&);
    int handleCode = 5;
};

template <class Table>
KdDbSymbolTable& tableOf(KdDbDatabase& database)
{
    return database.table<Table>();
}

template <class Table>
constexpr TableRow rowOf(std::string_view entryName, int handleCode = 5)
{
    return {entryName, Table::Record::desc, tableOf<Table>, handleCode};
}

constexpr TableRow kTables[] = {
    rowOf<KdDbLayerTable>("LAYER"),
    rowOf<KdDbBlockTable>("BLOCK_RECORD"),
    rowOf<KdDbLinetypeTable>("LTYPE"),
    rowOf<KdDbTextStyleTable>("STYLE"),
    rowOf<KdDbDimStyleTable>("DIMSTYLE", 105), // 5 is the name of an arrow here
    rowOf<KdDbRegAppTable>("APPID"),
    rowOf<KdDbUCSTable>("UCS"),
    rowOf<KdDbViewportTable>("VPORT"),
};

// Tables of which nothing is asked here.
constexpr std::string_view kUnusedTables[] = {"VIEW", "VX"};

const TableRow* findRow(std::string_view name)
{
    const auto* row = std::ranges::find(kTables, name, &TableRow::entryName);
    return row == std::end(kTables) ? nullptr : row;
}

/// What names a table entry.
struct EntryHead
{
    StatedHandle handle;
    KdDbHandle owner = 0;
    KdString name;
};

EntryHead readHead(RecordCursor& cursor, const TableRow& row, const TextDecoder& decoder)
{
    EntryHead head;
    bool hasName = false;
    bool inFirstPart = true;
    bool inApplicationGroup = false;
    while (cursor.nextInRecord()) {
        const Group& group = cursor.group();
        inFirstPart = inFirstPart && group.code != 100;
        if (group.code == row.handleCode) {
            head.handle.take(group);
        } else if (group.code == 102) {
            inApplicationGroup = group.text.starts_with('{');
        } else if (group.code == 330 && inFirstPart && !inApplicationGroup) {
            head.owner = looseHandleOf(group);
        } else if (group.code == 2 && !hasName) {
            head.name = decoder.decode(group.text);
            hasName = true;
        } else if (group.code == 1001) {
            cursor.toNextRecord();
            break;
        }
    }
    return head;
}

} // namespace

void TableIndex::read(RecordCursor& cursor)
{
    bool isOpen = false;
    for (; !cursor.atSectionEnd(); cursor.report()) {
        if (cursor.isAt("TABLE") || cursor.isAt("ENDTAB")) {
            const bool opens = cursor.isAt("TABLE");
            if (opens && isOpen)
                m_source.findings.add(DrawingFinding::TableNotClosed, cursor.offset());
            isOpen = opens;
            if (opens)
                readTable(cursor);
            else
                cursor.toNextRecord();
        } else {
            readEntry(cursor, isOpen);
        }
    }
    if (isOpen)
        m_source.findings.add(DrawingFinding::TableNotClosed, cursor.offset());
}

void TableIndex::readTable(RecordCursor& cursor)
{
    const std::uint64_t begin = cursor.offset();
    StatedHandle handle;
    const TableRow* row = nullptr;
    while (cursor.nextInRecord()) {
        if (cursor.group().code == 2 && !row)
            row = findRow(trimmed(cursor.group().text));
        else if (cursor.group().code == 5)
            handle.take(cursor.group());
    }
    if (!row || !handle.isThere)
        return; // up to R12 tables have no handles
    KdDbSymbolTable& table = row->table(m_source.database);
    if (table.handle() == 0)
        m_maker.identify(table, handle, cursor.rangeFrom(begin, m_source.findings));
}

void TableIndex::readEntry(RecordCursor& cursor, bool inTable)
{
    // The entry says what it is, also in a table that does not.
    const TableRow* row = findRow(cursor.name());
    if (!row) {
        if (std::ranges::find(kUnusedTables, cursor.name()) == std::end(kUnusedTables))
            m_source.findings.add(DrawingFinding::UnknownTable, cursor.offset(),
                                  m_source.decoder.decode(cursor.name()));
        cursor.toNextRecord();
        return;
    }
    const std::uint64_t begin = cursor.offset();
    EntryHead head = readHead(cursor, *row, m_source.decoder);
    const SourceRange range = cursor.rangeFrom(begin, m_source.findings);
    if (!inTable)
        m_source.findings.add(DrawingFinding::RecordOutsideTable, begin, {}, head.handle.value);
    if (head.owner != 0)
        m_maker.checkOwnerLater({head.owner, begin, head.handle.value});
    KdDbSymbolTable& table = row->table(m_source.database);
    const bool isBlock = row->recordClass() == KdDbBlockTableRecord::desc();
    const bool mayBeNameless = row->recordClass() == KdDbTextStyleTableRecord::desc();
    if (isBlock)
        head.name = standardBlockName(head.name, m_source.version);
    if (head.name.isEmpty() && !mayBeNameless) {
        m_source.findings.add(DrawingFinding::MissingName, begin, {}, head.handle.value);
        head.name = m_maker.freeName(table);
    }
    KdDbSymbolTableRecord* record =
        m_maker.define(table, row->recordClass(), head.name, head.handle, range);
    m_definitions.push_back({record, range});
    if (isBlock)
        m_blocks.addHandle(head.handle.value, static_cast<KdDbBlockTableRecord&>(*record));
}

} // namespace dxf
