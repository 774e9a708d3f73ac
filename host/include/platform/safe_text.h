/// Copying texts into room of a fixed size.
#pragma once

#include <runtime/export.h>

/// Copies up to `count` characters of `source`, or up to its terminator, and terminates the copy.
/// @param destination  room for `size` characters, the terminator included
/// @return  0 if all fitted; ERANGE if the text was cut to fit; EINVAL if `destination` is null or
///          `size` below 1, where nothing happens, or if `source` is null, which leaves an empty
///          text
KW_EXPORT int wcsncpy_s(wchar_t* destination, int size, const wchar_t* source, unsigned long count);
