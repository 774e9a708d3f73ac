// One group of a drawing file: a code and a value. Both file forms are read as a row of groups.
#pragma once

#include <cstdint>
#include <string_view>

namespace dxf {

struct Group
{
    enum class Form : std::uint8_t
    {
        Text,    ///< `text`; in a text file this is the form of numbers, too
        Integer, ///< `integer`
        Real,    ///< `real`
        Chunk,   ///< raw bytes in `text`
    };

    int code = 0;
    Form form = Form::Text;
    std::string_view text; ///< undecoded, inside the file's bytes
    std::int64_t integer = 0;
    double real = 0.0;
    std::uint64_t offset = 0; ///< of the group in the file
};

constexpr std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

} // namespace dxf
