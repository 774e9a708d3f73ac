#include "findings.h"

#include <algorithm>
#include <string>

#include <exchange/drawing_reader.h>

namespace {

struct FindingRow
{
    DrawingFinding kind;
    const wchar_t* sentence;
};

// clang-format off
constexpr FindingRow kSentences[] = {
    {DrawingFinding::BadGroupCode,         L"A group code was expected; the line was left out"},
    {DrawingFinding::BadNumber,            L"A number is malformed; what could be read of it was used"},
    {DrawingFinding::DecimalComma,         L"A number is written with a decimal comma"},
    {DrawingFinding::BadHandle,            L"A handle is malformed; it counts as none"},
    {DrawingFinding::TextTooLong,          L"A text is too long; the rest of it was left out"},
    {DrawingFinding::RecordTooLong,        L"A record is too long; the rest of it was left out"},
    {DrawingFinding::NoEndOfFile,          L"The file ends before its end mark"},
    {DrawingFinding::SectionNotClosed,     L"A section is not closed"},
    {DrawingFinding::RecordOutsideSection, L"A record stands outside of all sections; it was left out"},
    {DrawingFinding::UnknownCodePage,      L"The code page is not known; ANSI_1252 was used"},
    {DrawingFinding::CodePageIsWrong,      L"The texts are UTF-8 and not in the code page of the file; they were read as UTF-8"},
    {DrawingFinding::HandleIsZero,         L"An object has the handle 0; it was given a new one"},
    {DrawingFinding::HandleIsDoubled,      L"A handle is used twice; the second object was given a new one"},
    {DrawingFinding::DoubledName,          L"A name stands twice in a table; the first record counts"},
    {DrawingFinding::MissingName,          L"A table record or block has no name; it was given one"},
    {DrawingFinding::UndefinedLayer,       L"A layer is used and not defined; it was made with defaults"},
    {DrawingFinding::UndefinedLinetype,    L"A linetype is used and not defined; it was made with defaults"},
    {DrawingFinding::UndefinedStyle,       L"A style is used and not defined; it was made with defaults"},
    {DrawingFinding::UndefinedBlock,       L"A block is used and not defined"},
    {DrawingFinding::UnknownEntity,        L"The kind of an entity is not known; its general properties were read"},
    {DrawingFinding::PartWithoutParent,    L"A vertex, attribute or sequence end follows nothing that it could belong to"},
    {DrawingFinding::TableNotClosed,       L"A table is not closed"},
    {DrawingFinding::BlockNotClosed,       L"A block is not closed"},
    {DrawingFinding::BadHeaderVariable,    L"A header variable has no value of its kind; its default was kept"},
};
// clang-format on

} // namespace

const wchar_t* drawingFindingSentence(DrawingFinding kind)
{
    const auto* row = std::ranges::find(kSentences, kind, &FindingRow::kind);
    return row != std::end(kSentences) ? row->sentence : L"";
}

namespace dxf {

std::uint64_t LineNumbers::lineAt(std::uint64_t offset)
{
    offset = std::min<std::uint64_t>(offset, m_bytes.size());
    if (offset < m_offset) {
        m_offset = 0;
        m_line = 1;
    }
    for (; m_offset < offset; ++m_offset) {
        const bool loneReturn = m_bytes[m_offset] == '\r' &&
                                (m_offset + 1 == m_bytes.size() || m_bytes[m_offset + 1] != '\n');
        m_line += m_bytes[m_offset] == '\n' || loneReturn ? 1 : 0;
    }
    return m_line;
}

void Findings::countLinesIn(std::string_view bytes)
{
    m_lines = LineNumbers(bytes);
    m_countLines = true;
}

void Findings::add(DrawingFinding kind, std::uint64_t offset, std::wstring_view detail)
{
    constexpr std::size_t kLongestDetail = 80;
    ++m_total;
    if (m_kept.size() >= ReadReport::kMostFindings)
        return;
    std::wstring sentence = drawingFindingSentence(kind);
    if (!detail.empty())
        sentence.append(L": ").append(detail.substr(0, kLongestDetail));
    m_kept.push_back({static_cast<int>(kind), m_countLines ? m_lines.lineAt(offset) : offset,
                      KdString(sentence)});
}

} // namespace dxf
