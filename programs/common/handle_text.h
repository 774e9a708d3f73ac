/// Handles as the drawing file spells them.
#pragma once

#include <iterator>
#include <string>

#include <database/object_id.h>

/// Upper-case hexadecimal digits without leading zeros.
inline std::string handleText(KdDbHandle handle)
{
    char digits[16];
    std::size_t count = 0;
    do {
        digits[count++] = "0123456789ABCDEF"[handle & 0xF];
        handle >>= 4;
    } while (handle != 0);
    return std::string(std::make_reverse_iterator(digits + count),
                       std::make_reverse_iterator(digits));
}
