// Reads what dimension styles and their users hold of the variables of dimensions.
#pragma once

#include <database/dimension_style.h>

#include "record_reader.h"

namespace dxf {

/// Takes the group if it is the value of a variable in a record of a dimension style.
bool takeDimensionVariable(RecordReader& reader, KdDbDimValues& values);

/// Takes the variables that old versions keep in the extended data of applications. For use behind
/// the last group, when the extended data has been read.
void takeApplicationVariables(RecordReader& reader, KdDbDimValues& values);

/// Takes the group if it names the dimension style of an entity.
bool takeDimensionStyle(RecordReader& reader, DimensionStyleUse& use);

/// Completes a use of a dimension style once all groups have been read: takes what the entity sets
/// apart from its style, and the standard style where it has named none.
void finishDimensionStyleUse(RecordReader& reader, DimensionStyleUse& use);

} // namespace dxf
