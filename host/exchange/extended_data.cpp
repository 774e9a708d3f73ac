#include "extended_data.h"

#include "group_records.h"

namespace dxf {

void ExtendedDataReader::read(ResbufChain& chain)
{
    ChainBuilder builder(chain);
    while (m_reader.advance()) {
        constexpr int kFirstCode = 1000;
        if (m_reader.code() >= kFirstCode)
            builder.append(recordOfGroup(m_reader));
    }
}

} // namespace dxf
