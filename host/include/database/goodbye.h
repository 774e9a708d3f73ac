/// How a drawing goes in another thread than the one that worked on it.
#pragma once

#include <runtime/export.h>

class KdDbDatabase;

/// Has everybody who keeps something of the drawing let go of it now, in this thread. The drawing
/// may then be destroyed in any thread; its destructor asks nobody again.
KW_EXPORT void kddbSayGoodbye(KdDbDatabase& database);
