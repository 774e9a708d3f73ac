/// What commands say to the user. For the main thread.
#pragma once

#include <functional>
#include <string_view>

#include <runtime/export.h>

/// Prints a text on the command line. A text that begins with a line feed starts a line of its own.
/// @param format  as for `std::swprintf`: wide texts are `%ls`; numbers are printed with a dot,
///                whatever the process's locale
/// @return        `RTNORM`; `RTERROR`, with nothing printed, if `format` is null or can't be filled
///                in or the text would be longer than a million characters
KW_EXPORT int kdutPrintf(const wchar_t* format, ...);

/// Takes each printed text as it is.
using KdutPrintSink = std::function<void(std::wstring_view text)>;

/// Sends everything printed from now on to `sink`, which is called inside `kdutPrintf`; an empty
/// one brings back the default. Returns the sink so far, empty for the default.
///
/// The default writes UTF-8 to standard error and leaves no line half finished where it can: the
/// line feed in front of a text comes out behind it, and an unfinished line is ended at exit.
KW_EXPORT KdutPrintSink kdutSetPrintSink(KdutPrintSink sink);
