/// Display names of object types.
#pragma once

#include <database/object_id.h>
#include <platform/com.h>
#include <runtime/rx_class.h>

/// The display name of a class, owned by the caller: that of the class or else of its nearest
/// ancestor that has one, from the library of type names. Where neither the classes nor the library
/// have a name it is the class's name in DXF, and failing that the class name. Null when memory is
/// exhausted.
BSTR typeDisplayName(const KdRxClass& rxClass);
/// The display name of an object's type, in the same way. Associative arrays, centre marks and
/// centre lines have names of their own, although they are block references by class. `id` must not
/// be null.
BSTR typeDisplayName(KdDbObjectId id);
