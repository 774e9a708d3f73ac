// Finds what one application has attached to an object, while the object is being read.
#pragma once

#include <string_view>

#include <database/object.h>

namespace dxf {

/// The records of an application (its name in any case) out of extended data, from the first behind
/// its name up to the next application's.
class ApplicationData
{
  public:
    ApplicationData(const ResbufChain& chain, std::wstring_view application);

    /// The record at the front; null at the end.
    const resbuf* front() const { return m_record; }
    void step();
    /// The next record of that code, which is stepped over; null if there is none.
    const resbuf* take(short code);

  private:
    const resbuf* m_record;
};

} // namespace dxf
