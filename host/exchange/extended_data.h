// Reads extended data: what applications have attached to an object.
#pragma once

#include <database/object.h>

namespace dxf {

class RecordReader;

class ExtendedDataReader
{
  public:
    explicit ExtendedDataReader(RecordReader& reader) : m_reader(reader) {}

    /// Reads from the first 1001 group to the end of the record. Groups that are no extended data
    /// are left out.
    void read(ResbufChain& chain);

  private:
    RecordReader& m_reader;
};

} // namespace dxf
