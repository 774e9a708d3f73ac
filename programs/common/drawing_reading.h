/// Reading drawings of both kinds of file: DXF by the host, DWG through a converter.
#pragma once

#include <exchange/drawing_reader.h>

/// Reads a drawing as `readDrawing` does. A DWG drawing is first turned into DXF by the program
/// `dwg2dxf`, if there is one on the path, in a folder that is removed afterwards; the first half
/// of the progress stands for that, and cancelling ends the converter. Byte places in the report
/// are those of the DXF file then.
///
/// Where the converter is missing or fails, `report.error` says what to do about it
/// (`eBadDrawing`).
KdErrorStatus readDrawingOrConvert(const std::filesystem::path& file,
                                   std::unique_ptr<KdDbDatabase>& database, ReadReport& report,
                                   const ReadOptions& options = {});
