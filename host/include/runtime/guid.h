/// Identifiers of 16 bytes, as object models name their classes and interfaces.
#pragma once

#include <cstdint>

struct GUID
{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];

    bool operator==(const GUID&) const = default;
};

using CLSID = GUID;
using IID = GUID;
