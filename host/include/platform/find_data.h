/// What is told of a file that a search has found.
#pragma once

#include <cstdint>

constexpr std::uint32_t FILE_ATTRIBUTE_READONLY = 0x01;
constexpr std::uint32_t FILE_ATTRIBUTE_HIDDEN = 0x02; ///< the name begins with a dot
constexpr std::uint32_t FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr std::uint32_t FILE_ATTRIBUTE_NORMAL = 0x80; ///< none of the others

struct WIN32_FIND_DATAW
{
    std::uint32_t dwFileAttributes = 0;
    std::uint32_t nFileSizeHigh = 0;
    std::uint32_t nFileSizeLow = 0;
    wchar_t cFileName[260] = {}; ///< without its folder; cut if it is longer
};
