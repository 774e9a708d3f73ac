#include "reference_cleaner.h"

#include <algorithm>

#include "group_values.h"

namespace dxf {
namespace {

/// A reference of one kind of record. The group that goes with it stands before or behind it.
struct ReferenceRow
{
    std::string_view recordName;
    int code;
    int before = -1;
    int behind = -1;
};

constexpr ReferenceRow kRows[] = {
    {"DICTIONARY", 350, 3},
    {"DICTIONARY", 360, 3},
    {"ACDBDICTIONARYWDFLT", 350, 3},
    {"ACDBDICTIONARYWDFLT", 360, 3},
    {"GROUP", 340},
    {"SORTENTSTABLE", 331, -1, 5},
    {"FIELDLIST", 330},
    {"LAYOUT", 331},
};

const ReferenceRow* rowOf(std::string_view recordName, int code)
{
    const auto* row = std::ranges::find_if(kRows, [=](const ReferenceRow& candidate) {
        return candidate.code == code && candidate.recordName == recordName;
    });
    return row == std::end(kRows) ? nullptr : row;
}

class Cleaning
{
  public:
    Cleaning(const FileForm& form, const Outline::Record& record,
             const std::function<bool(std::uint64_t)>& isDropped)
        : m_groups(form, record.begin, record.end, nullptr),
          m_record(record),
          m_isDropped(isDropped),
          m_keptTo(record.begin)
    {
    }

    std::vector<ByteRange> run()
    {
        while (next()) {
            if (m_group.code == 102 && !isFreeContent() && readApplicationGroup())
                continue;
            m_inFirstPart = m_inFirstPart && m_group.code != 100;
            const ReferenceRow* row = rowOf(m_record.name, m_group.code);
            const bool isOwner = m_group.code == 330 && m_inFirstPart;
            if (row && !isOwner && m_isDropped(looseHandleOf(m_group)))
                leaveOut(*row);
            m_before = m_group;
        }
        keepUpTo(m_record.end);
        return std::move(m_parts);
    }

  private:
    bool next()
    {
        if (m_steppedBack) {
            m_steppedBack = false;
            return true;
        }
        return m_groups.next(m_group);
    }

    /// What follows in a free record is no list, whatever it looks like.
    bool isFreeContent() const { return m_record.name == "XRECORD" && !m_inFirstPart; }

    void keepUpTo(std::uint64_t end)
    {
        if (end > m_keptTo)
            m_parts.push_back({m_keptTo, end});
    }

    void leaveOut(std::uint64_t begin, std::uint64_t end)
    {
        keepUpTo(begin);
        m_keptTo = std::max(m_keptTo, end);
    }

    void leaveOut(const ReferenceRow& row)
    {
        const bool takesBefore = row.before >= 0 && m_before.code == row.before;
        const std::uint64_t begin = takesBefore ? m_before.offset : m_group.offset;
        std::uint64_t end = m_groups.offset();
        if (row.behind >= 0 && m_groups.next(m_group)) {
            if (m_group.code == row.behind)
                end = m_groups.offset();
            else
                m_steppedBack = true;
        }
        leaveOut(begin, end);
    }

    /// Of the lists that name those who use an object: leaves out who is not there any more, and a
    /// list that becomes empty. False for other application groups.
    bool readApplicationGroup()
    {
        const std::string_view name = trimmed(m_group.text);
        const int code = name == "{ACAD_REACTORS" ? 330 : name == "{BLKREFS" ? 331 : -1;
        if (code < 0)
            return false;
        const std::uint64_t begin = m_group.offset;
        std::vector<ByteRange> dropped;
        bool remains = false;
        while (m_groups.next(m_group) && m_group.code != 102 && m_group.code != 100) {
            if (m_group.code == code && m_isDropped(looseHandleOf(m_group)))
                dropped.push_back({m_group.offset, m_groups.offset()});
            else
                remains = true;
        }
        const bool isClosed = m_group.code == 102;
        if (isClosed && !remains && !dropped.empty())
            leaveOut(begin, m_groups.offset());
        else
            for (const ByteRange& range : dropped)
                leaveOut(range.begin, range.end);
        m_steppedBack = m_group.code == 100; // the list was not closed
        return true;
    }

    GroupStream m_groups;
    const Outline::Record& m_record;
    const std::function<bool(std::uint64_t)>& m_isDropped;
    Group m_group;
    Group m_before;
    std::vector<ByteRange> m_parts;
    std::uint64_t m_keptTo;
    bool m_inFirstPart = true;
    bool m_steppedBack = false;
};

} // namespace

std::vector<ByteRange> cleanedParts(const FileForm& form, const Outline::Record& record,
                                    const std::function<bool(std::uint64_t handle)>& isDropped)
{
    return Cleaning(form, record, isDropped).run();
}

} // namespace dxf
