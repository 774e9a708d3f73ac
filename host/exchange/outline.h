// The records and sections of a drawing file, without any meaning: what a writer copies from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "file_form.h"

namespace dxf {

enum class SectionKind : std::uint8_t
{
    Header,
    Tables,
    Blocks,
    Entities,
    Objects,
    Bodies,  ///< data of solids, by the handles of their entities
    Preview, ///< a picture of the whole drawing
    Other,
};

struct Outline
{
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    struct Record
    {
        std::uint64_t begin = 0;
        std::uint64_t end = 0;
        std::uint64_t handle = 0;
        std::uint64_t owner = 0; ///< as the record says, 0 if it does not
        std::string_view name;
        std::uint32_t block = 0; ///< from 1, among `blocks`; 0: in none
        SectionKind section = SectionKind::Other;
    };
    struct Section
    {
        SectionKind kind = SectionKind::Other;
        std::uint64_t begin = 0;
        std::uint64_t content = 0; ///< where the first record begins
        std::uint64_t end = 0;     ///< behind the last record
        std::size_t firstRecord = 0;
        std::size_t lastRecord = 0; ///< one behind
    };
    /// A block with all its records, from BLOCK to ENDBLK.
    struct Block
    {
        std::string_view name; ///< undecoded
        std::size_t firstRecord = 0;
        std::size_t lastRecord = 0; ///< one behind
        bool isClosed = false;
    };

    std::uint64_t begin = 0; ///< of the first section; comments may stand before it
    std::vector<Section> sections;
    std::vector<Record> records;
    std::vector<Block> blocks;
    std::unordered_map<std::uint64_t, std::size_t> byHandle; ///< the first record of each handle

    /// The record of a handle, or `kNone`.
    std::size_t find(std::uint64_t handle) const
    {
        const auto found = byHandle.find(handle);
        return found == byHandle.end() ? kNone : found->second;
    }
};

/// Splits a file. Of one that breaks off, the last record ends with its last whole group.
Outline outlineOf(const FileForm& form);

/// True for the name of the model or of a sheet, up to R12 as well.
bool isSpaceName(std::string_view name);

} // namespace dxf
