#include "line_splitter.h"

#include <bit>

// Everything up to the end of the first namespace is compiled once for each instruction set; the
// best one that the processor has is chosen at the first call.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "line_splitter.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace dxf::HWY_NAMESPACE {

struct Masks
{
    std::uint64_t feeds = 0;
    std::uint64_t returns = 0;
};

#if HWY_TARGET == HWY_SCALAR

inline Masks masksOf(const char* block)
{
    Masks masks;
    for (unsigned i = 0; i < 64; ++i) {
        masks.feeds |= std::uint64_t{block[i] == '\n'} << i;
        masks.returns |= std::uint64_t{block[i] == '\r'} << i;
    }
    return masks;
}

#else

namespace hn = hwy::HWY_NAMESPACE;

template <class Tag, class Mask>
HWY_INLINE std::uint64_t bitsOf(Tag tag, Mask mask)
{
    std::uint64_t bits = 0;
    hn::StoreMaskBits(tag, mask, reinterpret_cast<std::uint8_t*>(&bits));
    return bits;
}

HWY_INLINE Masks masksOf(const char* block)
{
    const hn::CappedTag<std::uint8_t, 64> tag;
    const auto feed = hn::Set(tag, std::uint8_t{'\n'});
    const auto carriageReturn = hn::Set(tag, std::uint8_t{'\r'});
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(block);
    Masks masks;
    // The bits are put together in registers: to store the parts and load the whole would wait for
    // memory at every block.
    for (std::size_t i = 0; i < 64; i += hn::Lanes(tag)) {
        const auto part = hn::LoadU(tag, bytes + i);
        masks.feeds |= bitsOf(tag, hn::Eq(part, feed)) << i;
        masks.returns |= bitsOf(tag, hn::Eq(part, carriageReturn)) << i;
    }
    return masks;
}

#endif

std::uint64_t lineEndMask(const char* block)
{
    const Masks masks = masksOf(block);
    if (masks.returns == 0)
        return masks.feeds;
    const std::uint64_t feedFollows = masks.feeds >> 1 | std::uint64_t{block[64] == '\n'} << 63;
    return masks.feeds | (masks.returns & ~feedFollows);
}

std::size_t findLineEndsOf(const char* text, std::size_t size, std::uint16_t* ends)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < size; at += 64) {
        std::uint64_t mask = lineEndMask(text + at);
        if (size - at < 64)
            mask &= (std::uint64_t{1} << (size - at)) - 1;
        std::uint16_t* next = ends + count;
        count += static_cast<std::size_t>(std::popcount(mask));
        // Groups of a fixed number: to ask for the end at each place would be guessed wrong in most
        // blocks. What stands behind the last end is written over.
        do {
            HWY_UNROLL(kLineEndsAtOnce)
            for (std::size_t i = 0; i < kLineEndsAtOnce; ++i) {
                next[i] = static_cast<std::uint16_t>(
                    at + static_cast<std::size_t>(std::countr_zero(mask)));
                mask &= mask - 1;
            }
            next += kLineEndsAtOnce;
        } while (mask != 0);
    }
    return count;
}

} // namespace dxf::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace dxf {

HWY_EXPORT(findLineEndsOf);

std::size_t findLineEnds(const char* text, std::size_t size, std::uint16_t* ends)
{
    return HWY_DYNAMIC_DISPATCH(findLineEndsOf)(text, size, ends);
}

} // namespace dxf
#endif
