// Decides which records of a drawing file go with some of its entities.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <runtime/kd_string.h>

#include "outline.h"
#include "text_decoder.h"

namespace dxf {

class NeededRecords
{
  public:
    NeededRecords(const Outline& outline, const FileForm& form, const TextDecoder& decoder);

    /// Keeps the entities that begin at these places in the file, and all that they need.
    void keep(const std::unordered_set<std::uint64_t>& places);

    bool isKept(std::size_t record) const { return m_kept[record]; }
    /// True for the handle of a record that is left out.
    bool isDropped(std::uint64_t handle) const;

  private:
    enum class Extent : std::uint8_t
    {
        None,
        Frame, ///< its beginning and end, and what is chosen of its content
        Whole,
    };
    struct BlockState
    {
        std::size_t tableRecord = Outline::kNone;
        Extent extent = Extent::None;
        bool isSpace = false;
    };

    void matchBlocks();
    void orderByOwner();
    void keepStandardContent();
    void keepRecord(std::size_t record);
    void keepOwned(std::size_t owner);
    void keepParts(std::size_t entity);
    void dropEmptyGroups();
    void dropUnneededBodies();
    void drop(std::size_t record);
    void keepBlock(std::size_t block, Extent extent);
    void keepBlockNamed(std::string_view name);
    void keepArrowsOfHeader(const Outline::Section& header);
    void follow(std::size_t record);
    void followHandle(std::uint64_t handle, bool bringsEntity);
    bool standsAlone(const Outline::Record& record) const;
    std::size_t blockNamed(std::string_view name);
    std::size_t blockOfTableRecord(std::size_t record) const;

    const Outline& m_outline;
    const FileForm& m_form;
    const TextDecoder& m_decoder;
    std::vector<bool> m_kept;
    std::vector<std::size_t> m_toFollow;
    std::vector<BlockState> m_blocks;
    std::unordered_map<std::size_t, std::size_t> m_blockOfTableRecord;
    std::unordered_map<KdString, std::size_t, KdNameHash, KdNameEqual> m_blocksByName;
    std::unordered_map<std::string_view, std::size_t> m_seenNames;
    std::vector<std::pair<std::size_t, std::size_t>> m_owned; ///< owner and object, in order
};

} // namespace dxf
