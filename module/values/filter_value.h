/// From the text that a person types to the value that a run compares with.
#pragma once

#include <optional>

#include <database/color.h>
#include <plugin/res_buf.h>
#include <runtime/kd_string.h>

/// What became of a text.
enum class FilterText
{
    Read,       ///< `record` holds the value
    Empty,      ///< the kind needs a text and there is none: nothing to compare with
    NotANumber, ///< an integer with something left over
    Unreadable, ///< the text is no value of the kind
};

struct FilterValue
{
    FilterText text = FilterText::Empty;
    /// Owned by whoever takes it. Beside `Unreadable` there may be a record as well, for callers
    /// that go on with it: 1.0 for reals, false for words that are none, the text for a
    /// transparency, also an empty one.
    ResBuf* record = nullptr;
    /// The kind of the comparison, see `PropertyParameters`.
    int valueType = ResBuf::kNone;
};

/// Reads `text` as a value of `kind`.
/// @param kind  restype of the property's value
/// @param axis  1 X, 2 Y, 3 Z: the coordinate that the text is, for the point kinds
FilterValue readFilterValue(int kind, int axis, const KdString& text);

/// A text that reads as the record beside `Unreadable`; none for kinds that have no such text.
std::optional<KdString> fallbackText(int kind);

/// The value for a colour that was picked and not typed.
FilterValue filterOfColor(const KdCmColor& color);
