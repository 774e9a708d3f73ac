#include "findings.h"

#include <algorithm>
#include <string>

#include <exchange/drawing_reader.h>

namespace {

struct FindingRow
{
    DrawingFinding kind;
    bool losesContent;
    const wchar_t* sentence;
};

constexpr bool lost = true;
constexpr bool kept = false;

// clang-format off
constexpr FindingRow kSentences[] = {
    {DrawingFinding::BadGroupCode,         lost, L"A group code was expected; the line was left out"},
    {DrawingFinding::BadNumber,            lost, L"A number is malformed; what could be read of it was used"},
    {DrawingFinding::DecimalComma,         kept, L"A number is written with a decimal comma"},
    {DrawingFinding::BadHandle,            lost, L"A handle is malformed; it counts as none"},
    {DrawingFinding::TextTooLong,          lost, L"A text is too long; the rest of it was left out"},
    {DrawingFinding::RecordTooLong,        lost, L"A record is too long; the rest of it was left out"},
    {DrawingFinding::NoEndOfFile,          lost, L"The file ends before its end mark"},
    {DrawingFinding::SectionNotClosed,     lost, L"A section is not closed"},
    {DrawingFinding::RecordOutsideSection, lost, L"A record stands outside of all sections; it was left out"},
    {DrawingFinding::UnknownCodePage,      kept, L"The code page is not known; ANSI_1252 was used"},
    {DrawingFinding::CodePageIsWrong,      kept, L"The texts are UTF-8 and not in the code page of the file; they were read as UTF-8"},
    {DrawingFinding::HandleIsZero,         kept, L"An object has the handle 0; it was given a new one"},
    {DrawingFinding::HandleIsDoubled,      kept, L"A handle is used twice; the second object was given a new one"},
    {DrawingFinding::DoubledName,          kept, L"A name stands twice in a table; the first record counts"},
    {DrawingFinding::MissingName,          kept, L"A table record or block has no name; it was given one"},
    {DrawingFinding::UndefinedLayer,       kept, L"A layer is used and not defined; it was made with defaults"},
    {DrawingFinding::UndefinedLinetype,    kept, L"A linetype is used and not defined; it was made with defaults"},
    {DrawingFinding::UndefinedStyle,       kept, L"A style is used and not defined; it was made with defaults"},
    {DrawingFinding::UndefinedBlock,       kept, L"A block is used and not defined"},
    {DrawingFinding::UnknownEntity,        kept, L"The kind of an entity is not known; its general properties were read"},
    {DrawingFinding::PartWithoutParent,    lost, L"A vertex, attribute or sequence end follows nothing that it could belong to"},
    {DrawingFinding::TableNotClosed,       kept, L"A table is not closed"},
    {DrawingFinding::BlockNotClosed,       kept, L"A block is not closed"},
    {DrawingFinding::BadHeaderVariable,    lost, L"A header variable has no value of its kind; its default was kept"},
    {DrawingFinding::HandleIsMissing,      kept, L"An object has no handle; it was given a new one"},
    {DrawingFinding::OwnerIsMissing,       kept, L"The owner that an object names is not in the drawing"},
    {DrawingFinding::BlockHoldsItself,     kept, L"A block holds a reference that leads back to the block itself"},
    {DrawingFinding::UnknownVersion,       kept, L"The version of the drawing is not known"},
    {DrawingFinding::UnknownSection,       lost, L"A section of that name is not known; it was left out"},
    {DrawingFinding::RecordOutsideTable,   kept, L"A table record stands outside of its table; it was read all the same"},
    {DrawingFinding::UnknownTable,         lost, L"A table record of that kind is not known; it was left out"},
};
// clang-format on

const FindingRow* rowOf(DrawingFinding kind)
{
    const auto* row = std::ranges::find(kSentences, kind, &FindingRow::kind);
    return row != std::end(kSentences) ? row : nullptr;
}

} // namespace

const wchar_t* drawingFindingSentence(DrawingFinding kind)
{
    const FindingRow* row = rowOf(kind);
    return row ? row->sentence : L"";
}

bool drawingFindingLosesContent(DrawingFinding kind)
{
    const FindingRow* row = rowOf(kind);
    return row && row->losesContent;
}

namespace dxf {

std::uint64_t LineNumbers::lineEndsIn(std::uint64_t begin, std::uint64_t end) const
{
    std::uint64_t count = 0;
    for (std::uint64_t i = begin; i < end; ++i) {
        const bool loneReturn =
            m_bytes[i] == '\r' && (i + 1 == m_bytes.size() || m_bytes[i + 1] != '\n');
        count += m_bytes[i] == '\n' || loneReturn ? 1 : 0;
    }
    return count;
}

std::uint64_t LineNumbers::lineAt(std::uint64_t offset)
{
    offset = std::min<std::uint64_t>(offset, m_bytes.size());
    const std::uint64_t block = offset / kBlock;
    while (m_lines.size() <= block) {
        const std::uint64_t end = m_lines.size() * kBlock;
        m_lines.push_back(m_lines.back() + lineEndsIn(end - kBlock, end));
    }
    const bool goesOn = m_lastOffset <= offset && m_lastOffset >= block * kBlock;
    const std::uint64_t from = goesOn ? m_lastOffset : block * kBlock;
    m_lastLine = (goesOn ? m_lastLine : m_lines[block]) + lineEndsIn(from, offset);
    m_lastOffset = offset;
    return m_lastLine;
}

void Findings::countLinesIn(std::string_view bytes)
{
    m_lines = LineNumbers(bytes);
    m_countLines = true;
}

void Findings::add(DrawingFinding kind, std::uint64_t offset, std::wstring_view detail,
                   KdDbHandle handle)
{
    constexpr std::size_t kLongestDetail = 80;
    ++m_total;
    m_loseContent = m_loseContent || drawingFindingLosesContent(kind);
    const bool isKept = m_kept.size() < ReadReport::kMostFindings;
    if (!isKept && !m_sink)
        return;
    std::wstring sentence = drawingFindingSentence(kind);
    if (!detail.empty())
        sentence.append(L": ").append(detail.substr(0, kLongestDetail));
    const ReadFinding finding{static_cast<int>(kind),
                              m_countLines ? m_lines.lineAt(offset) : offset, handle,
                              KdString(sentence)};
    if (isKept)
        m_kept.push_back(finding);
    if (m_sink)
        m_sink(finding);
}

} // namespace dxf
