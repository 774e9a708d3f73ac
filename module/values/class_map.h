/// Maps from runtime classes, and from other things that are known by their place in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

class KdRxClass;

/// Keeps something for each key, which is a pointer or as good as one. Keys are looked up with
/// every entity of a run, so this does no more than it has to: a multiplication and as a rule one
/// comparison.
template <class Key, class Kept>
class PlaceMap
{
  public:
    PlaceMap() : m_places(kFewest) {}

    /// What is kept for the key, at first in its initial state; valid until the next call with a
    /// key that is new here.
    Kept& at(Key key)
    {
        Place* place = &find(key);
        if (place->isTaken)
            return place->kept;
        if (++m_count * 2 > m_places.size()) {
            grow();
            place = &find(key);
        }
        place->key = key;
        place->isTaken = true;
        return place->kept;
    }

  private:
    struct Place
    {
        Key key{};
        Kept kept{};
        bool isTaken = false;
    };
    static constexpr std::size_t kFewest = 64; ///< a power of two

    Place& find(Key key)
    {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
        const std::size_t mask = m_places.size() - 1;
        auto index = static_cast<std::size_t>(std::hash<Key>()(key) * kGoldenRatio >> 32);
        while (m_places[index & mask].isTaken && m_places[index & mask].key != key)
            ++index;
        return m_places[index & mask];
    }
    void grow()
    {
        std::vector<Place> old(m_places.size() * 2);
        old.swap(m_places);
        for (Place& place : old) {
            if (place.isTaken)
                find(place.key) = std::move(place);
        }
    }

    std::vector<Place> m_places;
    std::size_t m_count = 0;
};

/// Keeps something for each class.
template <class Kept>
using ClassMap = PlaceMap<const KdRxClass*, Kept>;
