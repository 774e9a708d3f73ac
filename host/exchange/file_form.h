// Tells which form of drawing file some bytes are, and reads their groups.
#pragma once

#include <optional>

#include <runtime/kd_string.h>
#include <runtime/status.h>

#include "ascii_groups.h"
#include "binary_groups.h"

namespace dxf {

/// The form of a file, and its bytes.
struct FileForm
{
    std::string_view bytes;
    std::size_t begin = 0; ///< where the first group stands
    bool binary = false;
    CodeWidth width = CodeWidth::TwoBytes; ///< for binary files
};

/// Recognises a drawing file. `eBadDrawing` for anything else, with the reason in `error` and
/// `form` untouched. `bytes` must be readable past the end; see `kReadablePastEnd`.
KdErrorStatus recognise(std::string_view bytes, FileForm& form, KdString& error);

/// The groups of a part of a file, whichever form it has.
class GroupStream
{
  public:
    GroupStream(const FileForm& form, std::size_t begin, std::size_t end, Findings* findings)
    {
        if (form.binary)
            m_binary.emplace(form.bytes.data(), begin, end, form.width, findings);
        else
            m_ascii.emplace(form.bytes.data(), begin, end, findings);
    }

    bool next(Group& group) { return m_ascii ? m_ascii->next(group) : m_binary->next(group); }
    bool nextRecord(Group& group)
    {
        return m_ascii ? m_ascii->nextRecord(group) : m_binary->nextRecord(group);
    }
    std::size_t offset() const { return m_ascii ? m_ascii->offset() : m_binary->offset(); }

  private:
    std::optional<AsciiGroups> m_ascii;
    std::optional<BinaryGroups> m_binary;
};

} // namespace dxf
