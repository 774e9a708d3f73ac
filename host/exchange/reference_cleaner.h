// Leaves references out of a record whose targets are left out of the drawing.
#pragma once

#include <functional>
#include <vector>

#include "outline.h"

namespace dxf {

struct ByteRange
{
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

/// The parts of a record that remain. What is left out are reactors, uses of blocks, entries of
/// dictionaries, members of groups, places in orders of drawing and last active viewports: where
/// those lead nowhere, other readers complain. References of any other kind stay as they are.
std::vector<ByteRange> cleanedParts(const FileForm& form, const Outline::Record& record,
                                    const std::function<bool(std::uint64_t handle)>& isDropped);

} // namespace dxf
