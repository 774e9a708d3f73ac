#include <database/arena.h>

#include <algorithm>

namespace {
constexpr std::size_t kBlockSize = std::size_t{1} << 20;

std::byte* alignUp(std::byte* place, std::size_t alignment)
{
    const auto address = reinterpret_cast<std::uintptr_t>(place);
    return place + ((alignment - address % alignment) % alignment);
}
} // namespace

void* KdDbArena::allocate(std::size_t size, std::size_t alignment)
{
    std::byte* place = alignUp(m_next, alignment);
    const auto skipped = static_cast<std::size_t>(place - m_next);
    if (skipped + size > m_left) {
        // New blocks come aligned for every type, so nothing is skipped at their start.
        const std::size_t blockSize = std::max(size, kBlockSize);
        m_blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(blockSize));
        m_reserved += blockSize;
        place = m_blocks.back().get();
        m_left = blockSize - size;
    } else {
        m_left -= skipped + size;
    }
    m_next = place + size;
    return place;
}
