#include <runtime/heap.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long long> g_blocksInUse{0};
}

void* kdHeapAlloc(std::size_t size)
{
    void* block = std::malloc(size ? size : 1);
    if (!block)
        throw std::bad_alloc();
    g_blocksInUse.fetch_add(1, std::memory_order_relaxed);
    return block;
}

void kdHeapFree(void* block) noexcept
{
    if (!block)
        return;
    g_blocksInUse.fetch_sub(1, std::memory_order_relaxed);
    std::free(block);
}

long long kdHeapBlocksInUse() noexcept
{
    return g_blocksInUse.load(std::memory_order_relaxed);
}
