/// Storage for the objects of a drawing: given out in one direction, freed all at once.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <runtime/export.h>

/// Hands out aligned storage from large blocks. Does not run destructors: whoever builds an object
/// here destroys it before the arena goes.
class KW_EXPORT KdDbArena
{
  public:
    KdDbArena() = default;
    KdDbArena(const KdDbArena&) = delete;
    KdDbArena& operator=(const KdDbArena&) = delete;

    /// `size` bytes aligned to `alignment`, a power of two of at most 16.
    void* allocate(std::size_t size, std::size_t alignment);

    /// A `T` built in the arena.
    template <class T>
    T* make()
    {
        return new (allocate(sizeof(T), alignof(T))) T;
    }

    std::size_t bytesReserved() const { return m_reserved; }

  private:
    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_next = nullptr;
    std::size_t m_left = 0;
    std::size_t m_reserved = 0;
};
