/// The heap of the platform's own value types.
#pragma once

#include <cstddef>

#include <runtime/export.h>

/// Allocates `size` bytes, aligned for any type. Throws `std::bad_alloc` when memory is exhausted.
KW_EXPORT void* kdHeapAlloc(std::size_t size);

/// Frees what `kdHeapAlloc` gave; null is allowed.
KW_EXPORT void kdHeapFree(void* block) noexcept;

/// Blocks that are allocated and not yet freed; tests use it to find leaks.
KW_EXPORT long long kdHeapBlocksInUse() noexcept;
