// A drawing that is large enough to be mapped.
#pragma once

#include <string>

#include "file_bytes.h"
#include "made_drawing.h"

/// A drawing of lines in the model. Every line has the same number of bytes.
inline std::string largeDrawing()
{
    const std::string head = "0\nSECTION\n2\nENTITIES\n";
    const std::string line = "0\nLINE\n8\n0\n10\n1.5\n20\n2.5\n11\n3.5\n21\n4.5\n48\n2.0\n";
    std::string text = head;
    while (text.size() < 2 * dxf::FileBytes::kMappedFrom)
        text += line;
    return text + "0\nENDSEC\n0\nEOF\n";
}
