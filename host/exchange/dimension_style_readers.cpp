// Dimension styles.
#include "dimension_variables_reader.h"
#include "member_readers.h"
#include "table_flags.h"

namespace dxf {
namespace {

void readDimStyle(RecordReader& reader, DimStyleMembers& style)
{
    bool hasFlags = false;
    while (reader.next()) {
        if (reader.code() == 70 && !hasFlags) { // the second one is a variable
            readTableFlags(reader, style);
            hasFlags = true;
        } else {
            takeDimensionVariable(reader, style.variables);
        }
    }
    takeApplicationVariables(reader, style.variables);
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbDimStyleTableRecord, DimStyleMembers, readDimStyle>(),
};

} // namespace

std::span<const MemberReaderRow> dimensionStyleReaders()
{
    return kRows;
}

} // namespace dxf
