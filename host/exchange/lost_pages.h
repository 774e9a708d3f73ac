// Pages of mapped files that can't be read any more.
#pragma once

#include <cstddef>

namespace dxf {

/// Handles SIGBUS for the places that are watched: from the first page that can't be read to the
/// end of its place, empty pages take over, so that reading goes on. For all other places the
/// signal does what it did before.
class LostPages
{
  public:
    /// Watches a place; -1 if too many are watched already. May be called in any thread.
    static int watch(const void* begin, std::size_t size);
    /// Ends that; the number may then stand for another place. -1 is ignored.
    static void forget(int number);
    /// True if pages of the place were lost.
    static bool hasLost(int number);
};

} // namespace dxf
