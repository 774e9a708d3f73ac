/// Making list records of the platform, which have nothing to do with the module's own records.
#pragma once

#include <runtime/resbuf.h>

/// A cleared list record of the platform, owned by the caller, who frees it with `kdutRelRb`.
/// `restype` is narrowed to 16 bits.
KW_EXPORT resbuf* KdadNewResbuf(int restype);
