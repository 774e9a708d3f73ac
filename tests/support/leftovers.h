/// Watches that a test leaves nothing behind: each thing that is counted must be as many after a
/// test, its fixture included, as before it.
#pragma once

/// Something that is counted. Made as a constant of a source file that stands in the test program.
class LeftoverCount
{
  public:
    using Count = long long (*)();

    /// @param what   in the plural, for the message
    LeftoverCount(const char* what, Count count);
};
