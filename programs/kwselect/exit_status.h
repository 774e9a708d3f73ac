/// How kwselect ends.
#pragma once

enum ExitStatus : int
{
    kSelected = 0,
    kNothingSelected = 1,
    kCannotWork = 2, ///< wrong usage, or a drawing that can't be read
    kReadInPart = 3,
};
