/// Display names of object types.
#pragma once

#include <platform/com.h>
#include <runtime/rx_class.h>

/// The display name of a class, owned by the caller: that of the class or else of its nearest
/// ancestor that has one, from the library of type names. Where neither the classes nor the library
/// have a name it is the class's name in DXF, and failing that the class name. Null when memory is
/// exhausted.
BSTR typeDisplayName(const KdRxClass& rxClass);
