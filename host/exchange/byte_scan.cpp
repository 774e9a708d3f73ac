#include "byte_scan.h"

#include <bit>

// Everything up to the end of the first namespace is compiled once for each instruction set; the
// best one that the processor has is chosen at the first call.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "byte_scan.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace dxf::HWY_NAMESPACE {

using Mask = std::uint64_t;

struct LineMasks
{
    Mask feeds = 0;
    Mask returns = 0;
};

/// What the lines of group codes are made of.
struct CodeMasks
{
    Mask feeds = 0;
    Mask returns = 0;
    Mask blanks = 0;
    Mask digits = 0;
    Mask zeros = 0;
};

#if HWY_TARGET == HWY_SCALAR

inline LineMasks lineMasksOf(const char* block)
{
    LineMasks masks;
    for (unsigned i = 0; i < kBlock; ++i) {
        masks.feeds |= Mask{block[i] == '\n'} << i;
        masks.returns |= Mask{block[i] == '\r'} << i;
    }
    return masks;
}

inline CodeMasks codeMasksOf(const char* block)
{
    const LineMasks lines = lineMasksOf(block);
    CodeMasks masks{lines.feeds, lines.returns};
    for (unsigned i = 0; i < kBlock; ++i) {
        masks.blanks |= Mask{block[i] == ' '} << i;
        masks.digits |= Mask{block[i] >= '0' && block[i] <= '9'} << i;
        masks.zeros |= Mask{block[i] == '0'} << i;
    }
    return masks;
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using Bytes = hn::CappedTag<std::uint8_t, kBlock>;

/// The bits of one part of a block, at their places in the block. They are put together in
/// registers: to store the parts and load the whole would wait for memory at every block.
template <class PartMask>
HWY_INLINE Mask bitsOf(PartMask mask, std::size_t place)
{
    Mask bits = 0;
    hn::StoreMaskBits(Bytes(), mask, reinterpret_cast<std::uint8_t*>(&bits));
    return bits << place;
}

HWY_INLINE LineMasks lineMasksOf(const char* block)
{
    const Bytes tag;
    const auto feed = hn::Set(tag, std::uint8_t{'\n'});
    const auto carriageReturn = hn::Set(tag, std::uint8_t{'\r'});
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(block);
    LineMasks masks;
    for (std::size_t i = 0; i < kBlock; i += hn::Lanes(tag)) {
        const auto part = hn::LoadU(tag, bytes + i);
        masks.feeds |= bitsOf(hn::Eq(part, feed), i);
        masks.returns |= bitsOf(hn::Eq(part, carriageReturn), i);
    }
    return masks;
}

HWY_INLINE CodeMasks codeMasksOf(const char* block)
{
    const Bytes tag;
    const auto feed = hn::Set(tag, std::uint8_t{'\n'});
    const auto carriageReturn = hn::Set(tag, std::uint8_t{'\r'});
    const auto blank = hn::Set(tag, std::uint8_t{' '});
    const auto zero = hn::Set(tag, std::uint8_t{'0'});
    const auto nine = hn::Set(tag, std::uint8_t{9});
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(block);
    CodeMasks masks;
    for (std::size_t i = 0; i < kBlock; i += hn::Lanes(tag)) {
        const auto part = hn::LoadU(tag, bytes + i);
        const auto digit = hn::Sub(part, zero); // above nine for all other characters
        masks.feeds |= bitsOf(hn::Eq(part, feed), i);
        masks.returns |= bitsOf(hn::Eq(part, carriageReturn), i);
        masks.blanks |= bitsOf(hn::Eq(part, blank), i);
        masks.digits |= bitsOf(hn::Eq(hn::Min(digit, nine), digit), i);
        masks.zeros |= bitsOf(hn::Eq(part, zero), i);
    }
    return masks;
}

#endif

Mask lineEndsInBlock(const char* block)
{
    const LineMasks masks = lineMasksOf(block);
    if (masks.returns == 0)
        return masks.feeds;
    const Mask feedFollows = masks.feeds >> 1 | Mask{block[kBlock] == '\n'} << 63;
    return masks.feeds | (masks.returns & ~feedFollows);
}

/// Each bit tells whether an odd number of bits is set below it.
HWY_INLINE Mask parityBelow(Mask mask)
{
    mask <<= 1;
    mask ^= mask << 1;
    mask ^= mask << 2;
    mask ^= mask << 4;
    mask ^= mask << 8;
    mask ^= mask << 16;
    return mask ^ mask << 32;
}

/// The mask of the bytes that stand `distance` behind those of `mask`; `before` is the same mask of
/// the block before.
HWY_INLINE Mask behind(Mask mask, Mask before, int distance = 1)
{
    return mask << distance | before >> (64 - distance);
}

/// Where a group ends its way through `passPlainGroups`: a code that begins with a zero, and all
/// that is not written plainly.
/// @param codes   the lines with codes
/// @param before  the block before
HWY_INLINE Mask stopsIn(const CodeMasks& block, const CodeMasks& before, Mask codes)
{
    const Mask digits = block.digits;
    const Mask behindDigit = behind(digits, before.digits);
    const Mask behindReturn = behind(block.returns, before.returns);
    const Mask twoDigits = digits & behindDigit;
    const Mask threeDigits = twoDigits & behind(digits, before.digits, 2);
    const Mask fiveDigits =
        threeDigits & behind(digits, before.digits, 3) & behind(digits, before.digits, 4);
    const Mask foreign = ~(digits | block.blanks | block.feeds | block.returns);
    const Mask badEnd = (block.blanks & behindDigit) | (block.returns & ~behindDigit) |
                        (block.feeds & ~(behindDigit | behindReturn));
    const Mask firstZero = block.zeros & ~behindDigit;
    return (codes & (foreign | badEnd | fiveDigits | firstZero)) | (behindReturn & ~block.feeds);
}

std::size_t passPlainGroupsOf(const char* text, std::size_t begin, std::size_t end)
{
    std::size_t group = begin;
    Mask values = 0; // all ones where the block before ends within a value
    CodeMasks before;
    before.feeds = ~Mask{0};
    for (std::size_t at = begin; at + kBlock <= end; at += kBlock) {
        const CodeMasks block = codeMasksOf(text + at);
        const Mask inValue = parityBelow(block.feeds) ^ values;
        const Mask stops = stopsIn(block, before, ~inValue);
        const Mask passed = stops == 0 ? ~Mask{0} : (stops & (~stops + 1)) - 1;
        if (const Mask groupEnds = block.feeds & inValue & passed)
            group = at + static_cast<std::size_t>(std::bit_width(groupEnds));
        if (stops != 0)
            break;
        values ^= std::popcount(block.feeds) % 2 != 0 ? ~Mask{0} : Mask{0};
        before = block;
    }
    return group;
}

} // namespace dxf::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dxf {

HWY_EXPORT(lineEndsInBlock);
HWY_EXPORT(passPlainGroupsOf);

std::uint64_t lineEndsIn(const char* block)
{
    return HWY_DYNAMIC_DISPATCH(lineEndsInBlock)(block);
}

std::size_t passPlainGroups(const char* text, std::size_t begin, std::size_t end)
{
    return HWY_DYNAMIC_DISPATCH(passPlainGroupsOf)(text, begin, end);
}

} // namespace dxf
#endif
