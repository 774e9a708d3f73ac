#include "handle_set.h"

namespace dxf {

HandleSet::Place& HandleSet::find(std::uint64_t key)
{
    Place& last = m_places[m_last];
    if (last.bits != 0 && last.key == key)
        return last;
    const std::size_t mask = m_places.size() - 1;
    constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
    // The upper bits of the product depend on all bits of the key.
    std::size_t index = static_cast<std::size_t>(key * kGoldenRatio >> 32) & mask;
    while (m_places[index].bits != 0 && m_places[index].key != key)
        index = (index + 1) & mask;
    m_last = index;
    return m_places[index];
}

bool HandleSet::insert(std::uint64_t handle)
{
    const std::uint64_t key = handle >> 6;
    const std::uint64_t bit = std::uint64_t{1} << (handle & 63);
    Place& place = find(key);
    if (place.bits & bit)
        return false;
    m_used += place.bits == 0 ? 1 : 0;
    place.key = key;
    place.bits |= bit;
    if (m_used * 2 > m_places.size())
        grow();
    return true;
}

void HandleSet::grow()
{
    std::vector<Place> old(m_places.size() * 2);
    old.swap(m_places);
    m_last = 0;
    for (const Place& place : old) {
        if (place.bits != 0)
            find(place.key) = place;
    }
}

} // namespace dxf
