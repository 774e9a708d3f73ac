/// Where code comes from.
#pragma once

#include <filesystem>

#include <runtime/export.h>

/// The file of the program or library that an address lies in, without symbolic links; empty if
/// that is not known.
KW_EXPORT std::filesystem::path kdFileOfCode(const void* address);
