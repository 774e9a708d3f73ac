#include <database/arena.h>

#include <algorithm>
#include <cstdint>

#include <sys/mman.h>

namespace {
constexpr std::size_t kFirstBlock = std::size_t{1} << 16;
constexpr std::size_t kLargestBlock = std::size_t{1} << 24;

using Block = std::unique_ptr<std::byte[]>;

/// Pages of a large block are given out by the system in large pieces where it can: with small ones
/// a third of the time that an object takes would go into them.
Block makeBlock(std::size_t size)
{
    Block block = std::make_unique_for_overwrite<std::byte[]>(size);
    constexpr std::uintptr_t kPage = 4096;
    const auto begin = (reinterpret_cast<std::uintptr_t>(block.get()) + kPage - 1) / kPage * kPage;
    const auto end = (reinterpret_cast<std::uintptr_t>(block.get()) + size) / kPage * kPage;
    if (size >= kLargestBlock)
        madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE); // no loss if refused
    return block;
}

std::byte* alignUp(std::byte* place, std::size_t alignment)
{
    const auto address = reinterpret_cast<std::uintptr_t>(place);
    return place + (-address & (alignment - 1));
}
} // namespace

void* KdDbArena::allocate(std::size_t size, std::size_t alignment)
{
    std::byte* place = alignUp(m_next, alignment);
    const auto skipped = static_cast<std::size_t>(place - m_next);
    if (skipped + size > m_left) {
        // New blocks come aligned for every type, so nothing is skipped at their start.
        // As large as all before together, so that a small drawing takes little.
        const std::size_t blockSize =
            std::max(size, std::clamp(m_reserved, kFirstBlock, kLargestBlock));
        m_blocks.push_back(makeBlock(blockSize));
        m_reserved += blockSize;
        place = m_blocks.back().get();
        m_left = blockSize - size;
    } else {
        m_left -= skipped + size;
    }
    m_next = place + size;
    return place;
}
