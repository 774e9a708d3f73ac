/// How kwselect ends.
#pragma once

#include <span>

enum ExitStatus : int
{
    kSelected = 0, ///< or, of an audit, nothing found
    kNothingSelected = 1,
    kHasFindings = 1,
    kCannotWork = 2, ///< wrong usage, or a drawing that can't be read or written
    kReadInPart = 3,
    kInterrupted = 130, ///< by Ctrl+C, as shells count it
};

/// The one of two ends that stands first in a list of ends, the gravest first.
inline ExitStatus graver(std::span<const ExitStatus> byGravity, ExitStatus a, ExitStatus b)
{
    for (const ExitStatus status : byGravity) {
        if (status == a || status == b)
            return status;
    }
    return a;
}
