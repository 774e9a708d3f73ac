#include "group_records.h"

#include <algorithm>
#include <limits>
#include <string>

#include <runtime/heap.h>

#include "group_values.h"

namespace dxf {
namespace {

void takeText(RecordReader& reader, resbuf& record)
{
    record.resval.rstring = kdutNewString(reader.text().kwszPtr());
}

void takePoint(RecordReader& reader, resbuf& record)
{
    const KdGeVector3d point = reader.vector();
    record.resval.rpoint[0] = point.x;
    record.resval.rpoint[1] = point.y;
    record.resval.rpoint[2] = point.z;
}

void takeReal(RecordReader& reader, resbuf& record)
{
    record.resval.rreal = reader.real();
}

void takeShort(RecordReader& reader, resbuf& record)
{
    record.resval.rint = reader.shortInteger();
}

void takeLong(RecordReader& reader, resbuf& record)
{
    record.resval.rlong = reader.integer();
}

void takeWide(RecordReader& reader, resbuf& record)
{
    record.resval.rint64 = looseIntegerOf(reader.group());
}

void takeChunk(RecordReader& reader, resbuf& record)
{
    const std::string bytes = chunkOf(reader.group());
    constexpr std::size_t kMost = std::numeric_limits<short>::max();
    const std::size_t size = std::min(bytes.size(), kMost);
    record.resval.rbinary.clen = static_cast<short>(size);
    record.resval.rbinary.buf = static_cast<char*>(kdHeapAlloc(std::max<std::size_t>(size, 1)));
    std::copy_n(bytes.data(), size, record.resval.rbinary.buf);
}

struct KindRow
{
    int first;
    int last;
    void (*take)(RecordReader&, resbuf&);
};

// The kinds of values by code, in the order of the codes. Those in between hold nothing.
constexpr KindRow kKinds[] = {
    {0, 9, takeText},        {10, 19, takePoint},     {20, 59, takeReal},
    {60, 79, takeShort},     {90, 99, takeLong},      {100, 105, takeText},
    {110, 112, takePoint},   {113, 149, takeReal},    {160, 169, takeWide},
    {170, 179, takeShort},   {210, 210, takePoint},   {211, 239, takeReal},
    {270, 299, takeShort},   {300, 309, takeText},    {310, 319, takeChunk},
    {320, 369, takeText},    {370, 389, takeShort},   {390, 399, takeText},
    {400, 409, takeShort},   {410, 419, takeText},    {420, 429, takeLong},
    {430, 439, takeText},    {440, 459, takeLong},    {460, 469, takeReal},
    {470, 481, takeText},    {1000, 1003, takeText},  {1004, 1004, takeChunk},
    {1005, 1009, takeText},  {1010, 1019, takePoint}, {1040, 1059, takeReal},
    {1060, 1070, takeShort}, {1071, 1071, takeLong},
};

} // namespace

resbuf* recordOfGroup(RecordReader& reader)
{
    const int code = reader.code();
    const auto* const kind = std::ranges::find_if(
        kKinds, [=](const KindRow& row) { return row.first <= code && code <= row.last; });
    if (kind == std::end(kKinds))
        return nullptr;
    resbuf* record = kdutNewRb(static_cast<short>(code));
    kind->take(reader, *record);
    return record;
}

void ChainBuilder::append(resbuf* record)
{
    if (!record)
        return;
    if (m_last)
        m_last->rbnext = record;
    else
        m_chain.reset(record);
    m_last = record;
}

} // namespace dxf
