#include "index_pass.h"

#include <algorithm>
#include <iterator>

#include "member_source.h"

namespace dxf {
namespace {

// Sections of which nothing is asked here.
constexpr std::string_view kUnusedSections[] = {"THUMBNAILIMAGE"};

} // namespace

IndexPass::IndexPass(DrawingSource& source, ReadReport& report,
                     const RecordCursor::Progress& progress)
    : m_source(source),
      m_report(report),
      m_cursor(source.form, source.findings, progress),
      m_maker(source),
      m_blocks(source, m_maker),
      m_tables(source, m_maker, m_blocks),
      m_entities(source, m_maker, m_blocks, report),
      m_objects(source, m_maker)
{
}

bool IndexPass::run()
{
    constexpr std::size_t kBytesOfRecord = 256; // a usual one; only what is used takes memory
    m_maker.builder().reserve(m_source.form.bytes.size() / kBytesOfRecord);
    m_report.version = KdString(std::wstring(kOldVersion.begin(), kOldVersion.end()));
    m_cursor.toNextRecord();
    while (m_cursor.atRecord() && !m_cursor.isAt("EOF")) {
        m_cursor.report();
        if (m_cursor.isAt("SECTION")) {
            readSection();
        } else {
            m_source.findings.add(DrawingFinding::RecordOutsideSection, m_cursor.offset());
            m_cursor.toNextRecord();
        }
    }
    if (m_cursor.isCancelled())
        return false;
    if (!m_cursor.isAt("EOF")) {
        m_source.findings.add(DrawingFinding::NoEndOfFile, m_cursor.offset());
    }
    return true;
}

void IndexPass::readSection()
{
    const std::uint64_t begin = m_cursor.offset();
    std::string_view name;
    if (m_cursor.nextInRecord() && m_cursor.group().code == 2)
        name = trimmed(m_cursor.group().text);
    if (name != "HEADER")
        settleEncoding();
    if (name != "HEADER" && name != "CLASSES")
        m_cursor.toRecord();
    readContent(name, begin);
    m_entities.forgetParent();
    m_blocks.end();
    while (!m_cursor.atSectionEnd()) {
        m_cursor.report();
        m_cursor.toNextRecord();
    }
    endSection();
}

void IndexPass::readContent(std::string_view name, std::uint64_t begin)
{
    if (name == "HEADER") {
        readHeader(m_cursor, m_source, m_report.version);
        m_encodingIsKnown = true;
    } else if (name == "CLASSES") {
        readClasses();
    } else if (name == "TABLES") {
        m_tables.read(m_cursor);
    } else if (name == "BLOCKS") {
        readBlocks();
    } else if (name == "ENTITIES") {
        readEntities();
    } else if (name == "OBJECTS") {
        m_objects.read(m_cursor);
    } else if (name == "ACDSDATA") {
        m_source.bodies.setSection(m_cursor.offset());
    } else if (std::ranges::find(kUnusedSections, name) == std::end(kUnusedSections)) {
        m_source.findings.add(DrawingFinding::UnknownSection, begin, m_source.decoder.decode(name));
    }
}

void IndexPass::endSection()
{
    if (m_cursor.isAt("ENDSEC")) {
        m_cursor.toNextRecord();
    } else if (!m_cursor.isCancelled()) {
        m_source.findings.add(DrawingFinding::SectionNotClosed, m_cursor.offset());
    }
}

void IndexPass::settleEncoding()
{
    if (!m_encodingIsKnown)
        chooseEncoding(m_source, {}, m_cursor.offset());
    m_encodingIsKnown = true;
}

void IndexPass::readClasses()
{
    m_cursor.toRecord();
    while (!m_cursor.atSectionEnd()) {
        ForeignClass foreign;
        while (m_cursor.nextInRecord()) {
            if (m_cursor.group().code == 1)
                foreign.dxfName = m_source.decoder.decode(m_cursor.group().text);
            else if (m_cursor.group().code == 2)
                foreign.className = m_source.decoder.decode(m_cursor.group().text);
        }
        m_source.classes.push_back(foreign);
    }
    m_entities.addForeignClasses();
    m_objects.addForeignClasses();
}

void IndexPass::readBlocks()
{
    while (!m_cursor.atSectionEnd()) {
        m_cursor.report();
        if (m_cursor.isAt("BLOCK")) {
            if (m_blocks.isInBlock())
                m_source.findings.add(DrawingFinding::BlockNotClosed, m_cursor.offset());
            m_entities.forgetParent();
            m_blocks.begin(m_cursor);
        } else if (m_cursor.isAt("ENDBLK")) {
            m_entities.forgetParent();
            m_blocks.end();
            m_cursor.toNextRecord();
        } else if (m_blocks.isInBlock()) {
            m_entities.readEntity(m_cursor);
        } else {
            m_source.findings.add(DrawingFinding::RecordOutsideSection, m_cursor.offset());
            m_cursor.toNextRecord();
        }
    }
    if (m_blocks.isInBlock())
        m_source.findings.add(DrawingFinding::BlockNotClosed, m_cursor.offset());
}

void IndexPass::readEntities()
{
    while (!m_cursor.atSectionEnd()) {
        m_cursor.report();
        m_entities.readEntity(m_cursor);
    }
}

void IndexPass::finish()
{
    m_objects.tie();
    m_maker.noteMissingOwners();
    // Blocks say which of them have layouts; the other records may name standard ones.
    readDefinitions(true);
    m_maker.builder().finish();
    readDefinitions(false);
    m_entities.joinColumns();
}

void IndexPass::readDefinitions(bool blocks)
{
    for (const TableIndex::Definition& definition : m_tables.definitions()) {
        KdDbSymbolTableRecord& record = *definition.record;
        if (record.isKindOf(KdDbBlockTableRecord::desc()) == blocks)
            readMembers(m_source, record, definition.range, m_maker.members<ObjectMembers>(record));
    }
}

} // namespace dxf
