// Reads the HEADER section.
#pragma once

#include "drawing_source.h"
#include "record_cursor.h"

namespace dxf {

/// The version that counts for a drawing that states none.
constexpr std::string_view kOldVersion = "AC1009";

/// Reads the variables of a drawing; the cursor stands behind the section's name and is left at
/// the record behind the variables. The version goes into `version`, the way to read texts and all
/// other variables into the source.
void readHeader(RecordCursor& cursor, DrawingSource& source, KdString& version);

/// Decides how the texts of a drawing are read, by its version and by `codePage`, which may be
/// empty. `offset` is where it is told.
void chooseEncoding(DrawingSource& source, std::string_view codePage, std::uint64_t offset);

} // namespace dxf
