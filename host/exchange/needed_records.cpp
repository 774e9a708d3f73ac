#include "needed_records.h"

#include <algorithm>

#include "group_values.h"
#include "text_columns.h"

namespace dxf {
namespace {

constexpr std::size_t kNone = Outline::kNone;

bool isPart(std::string_view recordName)
{
    return recordName == "VERTEX" || recordName == "ATTRIB" || recordName == "SEQEND";
}

bool isHandleCode(int code)
{
    return (code >= 320 && code <= 369) || (code >= 390 && code <= 399) || code == 480 ||
           code == 481 || code == 1005;
}

/// What such a group names can't be missed by its owner.
bool isHardReference(int code)
{
    return code >= 340 && code <= 369;
}

/// Groups that may name a block: of references, dimensions and tables, and in extended data. That
/// of another meaning may happen to be a block's name; then a block too many comes along.
bool mayNameBlock(int code, std::string_view recordName)
{
    const bool isArrow = recordName == "DIMSTYLE" && code >= 5 && code <= 7;
    return code == 2 || code == 1000 || isArrow;
}

} // namespace

NeededRecords::NeededRecords(const Outline& outline, const FileForm& form,
                             const TextDecoder& decoder)
    : m_outline(outline),
      m_form(form),
      m_decoder(decoder),
      m_kept(outline.records.size(), false),
      m_blocks(outline.blocks.size())
{
    matchBlocks();
    orderByOwner();
}

void NeededRecords::matchBlocks()
{
    for (std::size_t block = 0; block < m_blocks.size(); ++block) {
        const std::string_view name = m_outline.blocks[block].name;
        m_blocks[block].isSpace = isSpaceName(name);
        m_blocksByName.try_emplace(m_decoder.decode(name), block);
    }
    for (std::size_t i = 0; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        if (record.section != SectionKind::Tables || record.name != "BLOCK_RECORD")
            continue;
        GroupStream groups(m_form, record.begin, record.end, nullptr);
        Group group;
        while (groups.next(group) && group.code != 2) {
        }
        const std::size_t block = group.code == 2 ? blockNamed(group.text) : kNone;
        if (block == kNone)
            continue;
        m_blockOfTableRecord.emplace(i, block);
        if (m_blocks[block].tableRecord == kNone)
            m_blocks[block].tableRecord = i;
    }
}

void NeededRecords::orderByOwner()
{
    for (std::size_t i = 0; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        if (record.section == SectionKind::Objects && record.owner != 0)
            m_owned.emplace_back(m_outline.find(record.owner), i);
    }
    std::ranges::sort(m_owned);
}

std::size_t NeededRecords::blockNamed(std::string_view name)
{
    const auto [place, isNew] = m_seenNames.try_emplace(name, kNone);
    if (isNew) {
        const auto found = m_blocksByName.find(m_decoder.decode(name));
        if (found != m_blocksByName.end())
            place->second = found->second;
    }
    return place->second;
}

std::size_t NeededRecords::blockOfTableRecord(std::size_t record) const
{
    const auto found = m_blockOfTableRecord.find(record);
    return found == m_blockOfTableRecord.end() ? kNone : found->second;
}

bool NeededRecords::isDropped(std::uint64_t handle) const
{
    const std::size_t record = m_outline.find(handle);
    return record != kNone && !m_kept[record];
}

/// Objects go with their owner, where that may be left out.
bool NeededRecords::standsAlone(const Outline::Record& record) const
{
    const std::size_t owner = m_outline.find(record.owner);
    if (owner == kNone)
        return true;
    const Outline::Record& owning = m_outline.records[owner];
    return owning.section == SectionKind::Tables && blockOfTableRecord(owner) == kNone;
}

void NeededRecords::keepStandardContent()
{
    for (std::size_t i = 0; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        const bool isFree = record.section == SectionKind::Tables
                                ? blockOfTableRecord(i) == kNone
                                : record.section == SectionKind::Objects && standsAlone(record);
        if (isFree || record.section == SectionKind::Other)
            keepRecord(i);
    }
    for (std::size_t block = 0; block < m_blocks.size(); ++block) {
        if (m_blocks[block].isSpace)
            keepBlock(block, Extent::Frame);
    }
    for (const Outline::Section& section : m_outline.sections) {
        if (section.kind == SectionKind::Header)
            keepArrowsOfHeader(section);
    }
}

void NeededRecords::keepArrowsOfHeader(const Outline::Section& header)
{
    GroupStream groups(m_form, header.begin, header.content, nullptr);
    Group group;
    std::string_view variable;
    while (groups.next(group)) {
        if (group.code == 9)
            variable = trimmed(group.text);
        else if (group.code == 1 && variable.starts_with("$DIM") && !group.text.empty()) {
            keepBlockNamed(group.text);
            // The header leaves out the underscore that names of standard arrows begin with.
            const auto standard = m_blocksByName.find(L"_" + m_decoder.decode(group.text));
            if (standard != m_blocksByName.end())
                keepBlock(standard->second, Extent::Whole);
        }
    }
}

void NeededRecords::keep(const std::unordered_set<std::uint64_t>& places)
{
    keepStandardContent();
    for (std::size_t i = 0; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        if (!places.contains(record.begin))
            continue;
        keepRecord(i);
        keepParts(i);
        if (record.block != 0)
            keepBlock(record.block - 1, Extent::Frame);
    }
    while (!m_toFollow.empty()) {
        const std::size_t record = m_toFollow.back();
        m_toFollow.pop_back();
        follow(record);
        keepOwned(record);
    }
    dropEmptyGroups();
    dropUnneededBodies();
}

void NeededRecords::dropEmptyGroups()
{
    constexpr int kMember = 340;
    for (std::size_t i = 0; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        if (!m_kept[i] || record.section != SectionKind::Objects || record.name != "GROUP")
            continue;
        GroupStream groups(m_form, record.begin, record.end, nullptr);
        Group group;
        bool hadMembers = false;
        bool hasMembers = false;
        while (groups.next(group)) {
            if (group.code != kMember)
                continue;
            hadMembers = true;
            hasMembers = hasMembers || !isDropped(looseHandleOf(group));
        }
        if (hadMembers && !hasMembers)
            drop(i);
    }
}

/// The data of solids go with them.
void NeededRecords::dropUnneededBodies()
{
    constexpr int kSolid = 320;
    for (std::size_t i = 0; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        if (record.section != SectionKind::Bodies)
            continue;
        GroupStream groups(m_form, record.begin, record.end, nullptr);
        Group group;
        m_kept[i] = true;
        while (groups.next(group)) {
            if (group.code == kSolid && isDropped(looseHandleOf(group)))
                m_kept[i] = false;
        }
    }
}

void NeededRecords::drop(std::size_t record)
{
    std::vector<std::size_t> toDrop{record};
    while (!toDrop.empty()) {
        const std::size_t owner = toDrop.back();
        toDrop.pop_back();
        if (!m_kept[owner])
            continue;
        m_kept[owner] = false;
        auto at = std::ranges::lower_bound(m_owned, std::pair<std::size_t, std::size_t>(owner, 0));
        for (; at != m_owned.end() && at->first == owner; ++at)
            toDrop.push_back(at->second);
    }
}

void NeededRecords::keepRecord(std::size_t record)
{
    if (m_kept[record])
        return;
    m_kept[record] = true;
    m_toFollow.push_back(record);
}

void NeededRecords::keepOwned(std::size_t owner)
{
    auto at = std::ranges::lower_bound(m_owned, std::pair<std::size_t, std::size_t>(owner, 0));
    for (; at != m_owned.end() && at->first == owner; ++at)
        keepRecord(at->second);
}

void NeededRecords::keepParts(std::size_t entity)
{
    const std::string_view name = m_outline.records[entity].name;
    if (name != "INSERT" && name != "POLYLINE")
        return;
    const Outline::Record& first = m_outline.records[entity];
    for (std::size_t i = entity + 1; i < m_outline.records.size(); ++i) {
        const Outline::Record& record = m_outline.records[i];
        if (!isPart(record.name) || record.section != first.section || record.block != first.block)
            return;
        keepRecord(i);
        if (record.name == "SEQEND")
            return;
    }
}

void NeededRecords::keepBlock(std::size_t block, Extent extent)
{
    BlockState& state = m_blocks[block];
    // What stands in the model or on a sheet comes along only if it is chosen.
    if (state.isSpace)
        extent = Extent::Frame;
    if (state.extent >= extent)
        return;
    state.extent = extent;
    if (state.tableRecord != kNone)
        keepRecord(state.tableRecord);
    const Outline::Block& place = m_outline.blocks[block];
    for (std::size_t i = place.firstRecord; i < place.lastRecord; ++i) {
        const std::string_view name = m_outline.records[i].name;
        if (extent == Extent::Whole || name == "BLOCK" || name == "ENDBLK")
            keepRecord(i);
    }
}

void NeededRecords::keepBlockNamed(std::string_view name)
{
    const std::size_t block = name.empty() ? kNone : blockNamed(name);
    if (block != kNone)
        keepBlock(block, Extent::Whole);
}

void NeededRecords::follow(std::size_t index)
{
    const Outline::Record& record = m_outline.records[index];
    // A block's own beginning and table record tell its name and who uses it.
    const bool isFrame = record.name == "BLOCK" || record.name == "BLOCK_RECORD";
    GroupStream groups(m_form, record.begin, record.end, nullptr);
    Group group;
    // Objects, such as groups, only look on.
    const bool isEntity =
        record.section == SectionKind::Entities || record.section == SectionKind::Blocks;
    bool inApplicationGroup = false;
    bool inFirstPart = true;
    ColumnNames columns;
    while (groups.next(group)) {
        const bool isColumn = record.name == "MTEXT" && columns.take(group);
        if (group.code == 102)
            inApplicationGroup =
                group.text.starts_with('{') && (inFirstPart || record.name != "XRECORD");
        else if (group.code == 100)
            inFirstPart = false;
        const bool isOwner = group.code == 330 && inFirstPart;
        if (isHandleCode(group.code) && !isOwner && !inApplicationGroup)
            followHandle(looseHandleOf(group),
                         isEntity && (isColumn || isHardReference(group.code)));
        else if (!isFrame && mayNameBlock(group.code, record.name))
            keepBlockNamed(group.text);
    }
}

void NeededRecords::followHandle(std::uint64_t handle, bool bringsEntity)
{
    const std::size_t target = handle != 0 ? m_outline.find(handle) : kNone;
    if (target == kNone)
        return;
    const Outline::Record& record = m_outline.records[target];
    if (const std::size_t block = blockOfTableRecord(target); block != kNone)
        keepBlock(block, Extent::Whole);
    else if (record.name == "BLOCK" && record.block != 0)
        keepBlock(record.block - 1, Extent::Whole);
    else if (bringsEntity && record.section == SectionKind::Entities) {
        keepRecord(target);
        keepParts(target);
    }
}

} // namespace dxf
