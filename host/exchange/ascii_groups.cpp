#include "ascii_groups.h"

namespace dxf {
namespace {

constexpr std::size_t placeOf(const char (&characters)[3])
{
    std::size_t place = 0;
    for (int i = 2; i >= 0; --i)
        place = place << 5 | (static_cast<unsigned char>(characters[i]) & 0x1Fu);
    return place;
}

/// Enters the number at all places that it may have among three characters.
constexpr void enter(ShortCodes& codes, int number, int digits)
{
    for (int first = 0; first + digits <= 3; ++first) {
        char characters[3] = {' ', ' ', ' '};
        int rest = number;
        for (int i = first + digits - 1; i >= first; --i, rest /= 10)
            characters[i] = static_cast<char>('0' + rest % 10);
        codes[placeOf(characters)] = static_cast<std::int16_t>(number);
    }
}

constexpr ShortCodes makeShortCodes()
{
    ShortCodes codes;
    codes.fill(-1);
    for (int number = 0; number < 1000; ++number) {
        for (int digits = number < 10 ? 1 : number < 100 ? 2 : 3; digits <= 3; ++digits)
            enter(codes, number, digits);
    }
    return codes;
}

} // namespace

constexpr ShortCodes kShortCodes = makeShortCodes();

bool AsciiGroups::nextOfAnyForm(Group& group)
{
    std::string_view line;
    for (;;) {
        group.offset = m_lines.offset();
        if (!m_lines.next(line))
            return false;
        if (!parseCode(line, group.code)) {
            noteBadCode(line, group.offset);
            continue;
        }
        if (!m_lines.next(group.text))
            return false;
        if (group.code != kComment)
            return true;
    }
}

bool AsciiGroups::parseCode(std::string_view line, int& code)
{
    const char* at = line.data();
    const char* const end = at + line.size();
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    const bool negative = at != end && *at == '-';
    at += negative ? 1 : 0;
    unsigned value = 0;
    const char* const digits = at;
    for (; at != end && static_cast<unsigned>(*at - '0') < 10 && value < 100000; ++at)
        value = value * 10 + static_cast<unsigned>(*at - '0');
    if (at == digits)
        return false;
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    code = negative ? -static_cast<int>(value) : static_cast<int>(value);
    return at == end && value < 32768;
}

void AsciiGroups::noteBadCode(std::string_view line, std::uint64_t offset) const
{
    // Blank lines are harmless where they do no more than end a file.
    if (m_findings && !trimmed(line).empty())
        m_findings->add(DrawingFinding::BadGroupCode, offset);
}

} // namespace dxf
