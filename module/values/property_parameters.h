/// What one comparison of a property is about.
#pragma once

#include <plugin/res_buf.h>
#include <runtime/kd_string.h>

/// Passed by value: the callee has texts of its own, which costs no allocation.
struct PropertyParameters
{
    KdString propertyKey;  ///< the whole key of the property, without an axis
    KdString operatorText; ///< "=", "<>", ">", "<", "*", or empty for Select All
    /// The kind of comparison, one of `ResBuf::ValueType`. It may differ from the restype of the
    /// records: names are compared as `kString`, linetype scales and angles as `kReal`.
    int valueType = ResBuf::kNone;
    int axis = 0; ///< which coordinate of a point: 1 X, 2 Y, 3 Z; 0 for everything else
};
