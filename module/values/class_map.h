/// A map from runtime classes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

class KdRxClass;

/// Keeps something for each class. There are few classes, and one is looked up with every entity of
/// a run, so this does no more than it has to: a multiplication and as a rule one comparison.
template <class Kept>
class ClassMap
{
  public:
    ClassMap() : m_places(kFewest) {}

    /// What is kept for the class, at first in its initial state; valid until the next call with a
    /// class that is new here. Null is no class.
    Kept& at(const KdRxClass* rxClass)
    {
        Place* place = &find(rxClass);
        if (place->rxClass)
            return place->kept;
        if (++m_count * 2 > m_places.size()) {
            grow();
            place = &find(rxClass);
        }
        place->rxClass = rxClass;
        return place->kept;
    }

  private:
    struct Place
    {
        const KdRxClass* rxClass = nullptr;
        Kept kept{};
    };
    static constexpr std::size_t kFewest = 64; ///< a power of two

    Place& find(const KdRxClass* rxClass)
    {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
        const std::size_t mask = m_places.size() - 1;
        auto index = static_cast<std::size_t>(
            reinterpret_cast<std::uintptr_t>(rxClass) * kGoldenRatio >> 32);
        while (m_places[index & mask].rxClass && m_places[index & mask].rxClass != rxClass)
            ++index;
        return m_places[index & mask];
    }
    void grow()
    {
        std::vector<Place> old(m_places.size() * 2);
        old.swap(m_places);
        for (Place& place : old) {
            if (place.rxClass)
                find(place.rxClass) = std::move(place);
        }
    }

    std::vector<Place> m_places;
    std::size_t m_count = 0;
};
