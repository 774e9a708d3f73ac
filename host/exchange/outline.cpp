#include "outline.h"

#include <algorithm>

#include "group_values.h"
#include "record_cursor.h"

namespace dxf {
namespace {

struct SectionName
{
    std::string_view name;
    SectionKind kind;
};

constexpr SectionName kSectionNames[] = {
    {"HEADER", SectionKind::Header},         {"TABLES", SectionKind::Tables},
    {"BLOCKS", SectionKind::Blocks},         {"ENTITIES", SectionKind::Entities},
    {"OBJECTS", SectionKind::Objects},       {"ACDSDATA", SectionKind::Bodies},
    {"THUMBNAILIMAGE", SectionKind::Preview}};

SectionKind kindOf(std::string_view name)
{
    const auto* row = std::ranges::find(kSectionNames, name, &SectionName::name);
    return row == std::end(kSectionNames) ? SectionKind::Other : row->kind;
}

bool beginsWithoutCase(std::string_view text, std::string_view upperCaseBeginning)
{
    if (text.size() < upperCaseBeginning.size())
        return false;
    return std::ranges::equal(
        text.substr(0, upperCaseBeginning.size()), upperCaseBeginning, [](char a, char b) {
            return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b;
        });
}

class Scan
{
  public:
    explicit Scan(const FileForm& form) : m_form(form), m_cursor(form, m_ignored, m_noProgress)
    {
        m_outline.begin = form.bytes.size();
    }

    Outline run()
    {
        m_cursor.toNextRecord();
        while (m_cursor.atRecord() && !m_cursor.isAt("EOF")) {
            if (m_cursor.isAt("SECTION"))
                readSection();
            else
                m_cursor.toNextRecord();
        }
        return std::move(m_outline);
    }

  private:
    void readSection()
    {
        Outline::Section section;
        section.begin = m_cursor.offset();
        m_outline.begin = std::min(m_outline.begin, section.begin);
        section.firstRecord = m_outline.records.size();
        if (m_cursor.nextInRecord() && m_cursor.group().code == 2)
            section.kind = kindOf(trimmed(m_cursor.group().text));
        m_cursor.toRecord();
        section.content = endOf(section.begin);
        m_block = 0;
        while (!m_cursor.atSectionEnd())
            readRecord(section.kind);
        section.lastRecord = m_outline.records.size();
        const bool isEmpty = section.firstRecord == section.lastRecord;
        section.end = isEmpty ? section.content : m_outline.records.back().end;
        m_outline.sections.push_back(section);
        if (m_cursor.isAt("ENDSEC"))
            m_cursor.toNextRecord();
    }

    void readRecord(SectionKind kind)
    {
        Outline::Record record;
        record.begin = m_cursor.offset();
        record.name = m_cursor.name();
        record.section = kind;
        std::string_view name;
        readHead(record, name);
        record.end = endOf(record.begin);
        if (kind == SectionKind::Blocks)
            placeInBlock(record, name);
        if (record.handle != 0)
            m_outline.byHandle.try_emplace(record.handle, m_outline.records.size());
        m_outline.records.push_back(record);
    }

    /// Reads the handle, the owner and, of a block, the name.
    void readHead(Outline::Record& record, std::string_view& name)
    {
        const int handleCode = record.name == "DIMSTYLE" ? 105 : 5;
        const bool isBlock = record.name == "BLOCK";
        bool inApplicationGroup = false;
        bool inFirstPart = true;
        while (m_cursor.nextInRecord()) {
            const Group& group = m_cursor.group();
            if (group.code == handleCode && record.handle == 0) {
                record.handle = looseHandleOf(group);
            } else if (group.code == 102) {
                inApplicationGroup = group.text.starts_with('{');
            } else if (group.code == 330 && inFirstPart && !inApplicationGroup &&
                       record.owner == 0) {
                record.owner = looseHandleOf(group);
            } else if (group.code == 2 && isBlock && name.empty()) {
                name = group.text;
            } else if (group.code == 100) {
                inFirstPart = false;
                if (!isBlock) {
                    m_cursor.toNextRecord();
                    return;
                }
            }
        }
    }

    void placeInBlock(Outline::Record& record, std::string_view name)
    {
        const std::size_t index = m_outline.records.size();
        if (record.name == "BLOCK") {
            m_outline.blocks.push_back({name, index, index, false});
            m_block = static_cast<std::uint32_t>(m_outline.blocks.size());
        }
        record.block = m_block;
        if (m_block == 0)
            return;
        Outline::Block& block = m_outline.blocks[m_block - 1];
        block.lastRecord = index + 1;
        if (record.name == "ENDBLK") {
            block.isClosed = true;
            m_block = 0;
        }
    }

    /// The end of a record that began at `begin` and behind which the cursor stands now.
    std::uint64_t endOf(std::uint64_t begin) const
    {
        if (m_cursor.atRecord())
            return m_cursor.offset();
        GroupStream groups(m_form, begin, m_form.bytes.size(), nullptr);
        Group group;
        std::uint64_t end = begin;
        while (groups.next(group))
            end = groups.offset();
        return end;
    }

    const FileForm& m_form;
    Findings m_ignored;
    RecordCursor::Progress m_noProgress;
    RecordCursor m_cursor;
    Outline m_outline;
    std::uint32_t m_block = 0;
};

} // namespace

Outline outlineOf(const FileForm& form)
{
    return Scan(form).run();
}

bool isSpaceName(std::string_view name)
{
    return beginsWithoutCase(name, "*MODEL_SPACE") || beginsWithoutCase(name, "*PAPER_SPACE") ||
           beginsWithoutCase(name, "$MODEL_SPACE") || beginsWithoutCase(name, "$PAPER_SPACE");
}

} // namespace dxf
