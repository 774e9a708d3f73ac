/// How kwselect ends.
#pragma once

enum ExitStatus : int
{
    kSelected = 0, ///< or, of an audit, nothing found
    kNothingSelected = 1,
    kHasFindings = 1,
    kCannotWork = 2, ///< wrong usage, or a drawing that can't be read or written
    kReadInPart = 3,
    kInterrupted = 130, ///< by Ctrl+C, as shells count it
};
