#include "utf8.h"

#include <cstdint>
#include <cstring>

#include "code_pages.h"

namespace dxf {
namespace {

struct Lead
{
    unsigned length; ///< of the whole character; 0 if the byte begins none
    std::uint32_t bits;
    std::uint32_t least; ///< smaller values have a shorter form
};

Lead leadOf(unsigned char byte)
{
    if (byte < 0x80)
        return {1, byte, 0};
    if (byte >= 0xC2 && byte <= 0xDF)
        return {2, byte & 0x1Fu, 0x80};
    if (byte >= 0xE0 && byte <= 0xEF)
        return {3, byte & 0x0Fu, 0x800};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {4, byte & 0x07u, 0x10000};
    return {0, 0, 0};
}

bool isCharacter(std::uint32_t value, std::uint32_t least)
{
    return value >= least && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

} // namespace

wchar_t nextUtf8(std::string_view bytes, std::size_t& at, bool& wellFormed)
{
    const Lead lead = leadOf(static_cast<unsigned char>(bytes[at++]));
    wellFormed = false;
    if (lead.length == 0)
        return kReplacement;
    std::uint32_t value = lead.bits;
    for (unsigned i = 1; i < lead.length; ++i) {
        const auto next = at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0u;
        if ((next & 0xC0u) != 0x80)
            return kReplacement;
        value = value << 6 | (next & 0x3Fu);
        ++at;
    }
    wellFormed = isCharacter(value, lead.least);
    return wellFormed ? static_cast<wchar_t>(value) : kReplacement;
}

void decodeUtf8(std::string_view bytes, std::wstring& text)
{
    bool wellFormed = true;
    for (std::size_t at = 0; at < bytes.size();)
        text.push_back(nextUtf8(bytes, at, wellFormed));
}

std::size_t asciiEnd(std::string_view bytes, std::size_t at)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080u;
    for (; at + 64 <= bytes.size(); at += 64) {
        std::uint64_t words[8];
        std::memcpy(words, bytes.data() + at, sizeof words);
        std::uint64_t all = 0;
        for (const std::uint64_t word : words)
            all |= word;
        if (all & kHighBits)
            break;
    }
    while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80)
        ++at;
    return at;
}

Utf8Evidence findUtf8(std::string_view bytes)
{
    Utf8Evidence evidence;
    for (std::size_t at = asciiEnd(bytes, 0); at < bytes.size() && evidence.wellFormed;
         at = asciiEnd(bytes, at)) {
        nextUtf8(bytes, at, evidence.wellFormed);
        evidence.characters += evidence.wellFormed ? 1 : 0;
    }
    return evidence;
}

} // namespace dxf
