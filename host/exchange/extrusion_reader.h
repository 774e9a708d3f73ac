// Reads what flat entities share.
#pragma once

#include <entities/extrusion.h>

#include "record_reader.h"

namespace dxf {

/// Takes the group if it is the thickness or the direction of extrusion.
inline bool takeExtrusion(RecordReader& reader, Extrusion& extrusion)
{
    switch (reader.code()) {
    case 39:
        extrusion.setThickness(reader.real());
        return true;
    case 210:
        extrusion.setDirection(reader.vector());
        return true;
    default:
        return false;
    }
}

} // namespace dxf
