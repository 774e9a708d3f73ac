// Reads the flags that all records of symbol tables have.
#pragma once

#include <database/symbol_table.h>

#include "record_reader.h"

namespace dxf {

/// Takes what concerns all records; the kind's own bits are the reader's.
inline int readTableFlags(RecordReader& reader, SymbolTableRecordMembers& record)
{
    constexpr int kDependent = 16;
    const int flags = reader.integer();
    record.dependent = (flags & kDependent) != 0;
    return flags;
}

} // namespace dxf
