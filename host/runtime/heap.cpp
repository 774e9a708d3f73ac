#include <runtime/heap.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include <sys/single_threaded.h>

namespace {
std::atomic<long long> g_blocksInUse{0};

void countBlocks(long long more) noexcept
{
    if (__libc_single_threaded) // nothing has to be locked
        g_blocksInUse.store(g_blocksInUse.load(std::memory_order_relaxed) + more,
                            std::memory_order_relaxed);
    else
        g_blocksInUse.fetch_add(more, std::memory_order_relaxed);
}
} // namespace

void* kdHeapAlloc(std::size_t size)
{
    void* block = std::malloc(size ? size : 1);
    if (!block)
        throw std::bad_alloc();
    countBlocks(1);
    return block;
}

void kdHeapFree(void* block) noexcept
{
    if (!block)
        return;
    countBlocks(-1);
    std::free(block);
}

long long kdHeapBlocksInUse() noexcept
{
    return g_blocksInUse.load(std::memory_order_relaxed);
}
