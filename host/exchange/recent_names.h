// Remembers what was found for names that come again and again.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace dxf {

/// A few names and what was found for each. A name takes the place of another one now and then, so
/// this stands before a table that knows all of them. The names must stay where they are in memory.
template <class Found>
class RecentNames
{
  public:
    /// What was noted for the name, or null.
    const Found* find(std::string_view name) const
    {
        const std::uint64_t key = keyOf(name);
        const Place& place = m_places[indexOf(key)];
        const bool isSame = place.key == key && place.name.size() == name.size() &&
                            (name.size() <= kInKey || place.name == name);
        return isSame && place.isUsed ? &place.found : nullptr;
    }
    void note(std::string_view name, const Found& found)
    {
        const std::uint64_t key = keyOf(name);
        m_places[indexOf(key)] = {key, name, found, true};
    }
    void clear() { m_places = {}; }

  private:
    static constexpr unsigned kBits = 10;
    static constexpr std::size_t kInKey = 8; ///< shorter names stand in their key as a whole

    struct Place
    {
        std::uint64_t key = 0;
        std::string_view name;
        Found found{};
        bool isUsed = false;
    };

    template <class Word>
    static std::uint64_t wordAt(const char* place)
    {
        Word word;
        std::memcpy(&word, place, sizeof word);
        return word;
    }
    static std::uint64_t keyOf(std::string_view name)
    {
        const std::size_t size = name.size();
        const char* const text = name.data();
        if (size > kInKey)
            return wordAt<std::uint64_t>(text) ^
                   std::rotl(wordAt<std::uint64_t>(text + size - 8), 25);
        if (size == kInKey)
            return wordAt<std::uint64_t>(text);
        if (size >= 4)
            return wordAt<std::uint32_t>(text) | wordAt<std::uint32_t>(text + size - 4) << 32;
        if (size == 0)
            return 0;
        const auto byteAt = [text](std::size_t at) {
            return std::uint64_t{static_cast<unsigned char>(text[at])};
        };
        return byteAt(0) | byteAt(size / 2) << 8 | byteAt(size - 1) << 16;
    }
    static std::size_t indexOf(std::uint64_t key)
    {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
        return static_cast<std::size_t>(key * kGoldenRatio >> (64 - kBits));
    }

    std::array<Place, std::size_t{1} << kBits> m_places{};
};

} // namespace dxf
