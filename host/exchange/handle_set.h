// The handles that a drawing uses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dxf {

/// A set of handles. Handles come in long ascending runs, so 64 neighbours share one place, and the
/// place used last is looked at first.
class HandleSet
{
  public:
    HandleSet() : m_places(kFirstSize) {}

    /// False if the handle is in the set already.
    bool insert(std::uint64_t handle);

  private:
    struct Place
    {
        std::uint64_t key = 0;
        std::uint64_t bits = 0; ///< 0: the place is free
    };
    static constexpr std::size_t kFirstSize = 1024;

    Place& find(std::uint64_t key);
    void grow();

    std::vector<Place> m_places; ///< a power of two of them
    std::size_t m_last = 0;
    std::size_t m_used = 0;
};

} // namespace dxf
