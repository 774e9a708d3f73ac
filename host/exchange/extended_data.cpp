#include "extended_data.h"

#include <algorithm>
#include <limits>
#include <string>

#include <runtime/heap.h>

#include "group_values.h"
#include "record_reader.h"

namespace dxf {
namespace {

constexpr short kChunk = 1004;

resbuf* chunkRecord(const Group& group)
{
    const std::string bytes = chunkOf(group);
    constexpr std::size_t kMost = std::numeric_limits<short>::max();
    const std::size_t size = std::min(bytes.size(), kMost);
    resbuf* record = kdutNewRb(kChunk);
    record->resval.rbinary.clen = static_cast<short>(size);
    record->resval.rbinary.buf = static_cast<char*>(kdHeapAlloc(std::max<std::size_t>(size, 1)));
    std::copy_n(bytes.data(), size, record->resval.rbinary.buf);
    return record;
}

} // namespace

void ExtendedDataReader::read(ResbufChain& chain)
{
    resbuf** end = nullptr;
    while (m_reader.advance()) {
        resbuf* record = readRecord();
        if (!record)
            continue;
        if (!end)
            chain.reset(record);
        else
            *end = record;
        end = &record->rbnext;
    }
}

resbuf* ExtendedDataReader::readRecord()
{
    const int code = m_reader.code();
    if (code == kChunk)
        return chunkRecord(m_reader.group());
    if (code < 1000 || code > 1071)
        return nullptr;
    resbuf* record = kdutNewRb(static_cast<short>(code));
    if (code <= 1009) {
        record->resval.rstring = kdutNewString(m_reader.text().kwszPtr());
    } else if (code <= 1019) {
        const KdGePoint3d point = m_reader.coordinates(0.0);
        record->resval.rpoint[0] = point.x;
        record->resval.rpoint[1] = point.y;
        record->resval.rpoint[2] = point.z;
    } else if (code >= 1040 && code <= 1059) {
        record->resval.rreal = m_reader.real();
    } else if (code == 1070) {
        record->resval.rint = m_reader.shortInteger();
    } else if (code == 1071) {
        record->resval.rlong = m_reader.integer();
    } else {
        kdutRelRb(record);
        return nullptr;
    }
    return record;
}

} // namespace dxf
