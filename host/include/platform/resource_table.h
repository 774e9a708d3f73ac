/// The form of a resource library: what its build step lays out and the platform reads.
#pragma once

#include <cstdint>

#include <runtime/export.h>

/// One slot of the table: a text by number. Number 0 marks a free slot.
struct ResourceSlot
{
    std::uint32_t id;
    std::uint32_t offset; ///< of the first character
    std::uint32_t length; ///< in characters; no terminator follows
};

/// The layout of a dialog.
struct ResourceLayout
{
    const wchar_t* path; ///< "group/name"
    const char* xml;     ///< as Qt Designer writes it, in UTF-8
    std::uint32_t size;  ///< in bytes; no terminator follows
};

/// Grows with every change of the form; a library of another version is not taken.
constexpr std::uint32_t kResourceTableVersion = 2;

/// The texts and layouts of one library. The slots are a hash table with open addressing: a text
/// lies in the slot that `resourceSlot` names or in one of the next, before any free slot.
struct ResourceTable
{
    std::uint32_t version;
    std::uint32_t shift; ///< 32 less the bits of a slot number, so it tells the number of slots
    const ResourceSlot* slots;
    const wchar_t* characters;
    const ResourceLayout* layouts;
    std::uint32_t layoutCount;
};

/// The slot where the search for a number begins.
constexpr std::uint32_t resourceSlot(std::uint32_t id, std::uint32_t shift)
{
    return id * 2654435769u >> shift;
}

/// The one symbol that a resource library exports.
extern "C" KW_EXPORT const ResourceTable kwResourceTable;
