/// Watching that what is opened is closed.
#pragma once

#include <runtime/export.h>

/// How often objects of any database were opened and not closed again, also of databases that are
/// gone. A run leaves as many as it found.
KW_EXPORT long long kddbOpensInUse() noexcept;
