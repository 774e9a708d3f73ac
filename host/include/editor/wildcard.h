/// Wildcard patterns as users type them. For the main thread.
#pragma once

#include <runtime/export.h>

/// Compares a whole text with a pattern, with regard to case.
///
/// | In the pattern | Stands for                                                                  |
/// |----------------|-----------------------------------------------------------------------------|
/// | `*`            | any run of characters, also none                                            |
/// | `?`            | any one character                                                           |
/// | `#`            | one digit                                                                   |
/// | `@`            | one letter                                                                  |
/// | `.`            | one character that is neither letter nor digit                              |
/// | `[abc]`        | one of these; `a-z` in it is a range, `-` at an end stands for itself       |
/// | `[~abc]`       | one character that is none of these                                         |
/// | `~` in front   | a text that the rest of the alternative does not match                      |
/// | `,`            | parts two alternatives; one that matches is enough                          |
/// | back quote     | takes the next character as it is; at the end of the pattern, a back quote  |
///
/// A `[` without a `]` behind it stands for itself, and so does `]` without a `[`. `[]` matches no
/// character, `[~]` any. Letters and digits are those of Unicode, whatever the process's locale.
/// The time is at most the product of the two lengths, and nothing is allocated.
///
/// @return `RTNORM` on a match, otherwise `RTERROR`; also if `text` or `pattern` is null
KW_EXPORT int kdutWcMatch(const wchar_t* text, const wchar_t* pattern);
