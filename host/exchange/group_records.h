// Groups as list records: what extended data and free records are kept as.
#pragma once

#include <database/object.h>

#include "record_reader.h"

namespace dxf {

/// The group at which the reader stands as a record of its code, owned by the caller; null for a
/// code that holds nothing. The coordinates of a point go into one record.
resbuf* recordOfGroup(RecordReader& reader);

/// Builds a chain record by record.
class ChainBuilder
{
  public:
    explicit ChainBuilder(ResbufChain& chain) : m_chain(chain) {}
    /// Takes a record over; null is ignored.
    void append(resbuf* record);

  private:
    ResbufChain& m_chain;
    resbuf* m_last = nullptr;
};

} // namespace dxf
