// Looks through a text in wide blocks: for the ends of its lines, and for the beginning of a
// record.
#pragma once

#include <cstddef>
#include <cstdint>

namespace dxf {

/// So many bytes are looked at together. In a mask each is a bit, the first byte the lowest.
constexpr std::size_t kBlock = 64;

/// Bytes behind the end of a text that must be readable.
constexpr std::size_t kReadablePastEnd = 128;

/// The bytes of a block that end a line: an LF, or a CR that no LF follows. The byte behind the
/// block is looked at, too.
std::uint64_t lineEndsIn(const char* block);

/// Passes groups of the text form until one begins a record.
/// @param begin  where a line with a group code begins
/// @return  where such a line begins again: of group 0, or of the first group that is not written
///          plainly - its code is more than blanks and up to four digits, or one of its lines ends
///          in a CR alone - or of a group near `end`
std::size_t passPlainGroups(const char* text, std::size_t begin, std::size_t end);

} // namespace dxf
