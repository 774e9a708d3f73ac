// Walks a whole file record by record during the index pass.
#pragma once

#include <functional>

#include <database/object.h>

#include "file_form.h"

namespace dxf {

/// Stands on one group at a time. A record begins with a group 0; behind the last group, and once
/// the caller has cancelled, there is none.
class RecordCursor
{
  public:
    using Progress = std::function<bool(double)>;

    RecordCursor(const FileForm& form, Findings& findings, const Progress& progress)
        : m_groups(form, form.begin, form.bytes.size(), &findings),
          m_progress(progress),
          m_begin(form.begin),
          m_end(form.bytes.size())
    {
    }

    /// Steps to the next group of any kind.
    bool next()
    {
        m_hasGroup = !m_cancelled && m_groups.next(m_group);
        return m_hasGroup;
    }
    /// Steps to the next group of the record that the cursor is in; false at the next record.
    bool nextInRecord() { return next() && m_group.code != 0; }
    /// Steps on to a group 0, unless the cursor stands on one.
    void toRecord()
    {
        if (m_hasGroup && m_group.code != 0)
            toNextRecord();
    }
    /// Leaves the record in which the cursor stands and steps to the next one.
    void toNextRecord() { m_hasGroup = !m_cancelled && m_groups.nextRecord(m_group); }

    bool atRecord() const { return m_hasGroup && m_group.code == 0; }
    const Group& group() const { return m_group; }
    /// The name of the record at which the cursor stands; empty at the end.
    std::string_view name() const
    {
        return atRecord() ? trimmed(m_group.text) : std::string_view();
    }
    bool isAt(std::string_view recordName) const { return name() == recordName; }
    /// Where the group begins, or the end of the file.
    std::uint64_t offset() const { return m_hasGroup ? m_group.offset : m_end; }
    SourceRange rangeFrom(std::uint64_t begin, Findings& findings) const;

    /// True where a section ends, by its mark or by what can't stand in it.
    bool atSectionEnd() const
    {
        const std::string_view record = name();
        return record.empty() || record == "ENDSEC" || record == "SECTION" || record == "EOF";
    }

    /// Tells the caller how far we are; called once for each record.
    void report()
    {
        if (offset() >= m_nextReport)
            reportNow();
    }
    bool isCancelled() const { return m_cancelled; }

  private:
    void reportNow();

    GroupStream m_groups;
    Group m_group;
    const Progress& m_progress;
    std::uint64_t m_begin;
    std::uint64_t m_end;
    std::uint64_t m_nextReport = 0;
    bool m_hasGroup = false;
    bool m_cancelled = false;
};

} // namespace dxf
