/// The operators of a comparison, and which of them each kind of value offers.
#pragma once

#include <optional>
#include <span>
#include <string_view>

/// Numbered as the dialog numbers them.
enum class Operators : int
{
    Equals = 0,
    NotEqual = 1,
    GreaterThan = 2,
    LessThan = 3,
    SelectAll = 4,
    WildcardMatch = 5,
};

/// The operators that values of a kind offer, in the order of the list. A kind without a row of its
/// own has those of an empty record.
std::span<const Operators> operatorsOf(int restype);

/// The text by which a comparison knows the operator; empty for `SelectAll`.
const wchar_t* operatorText(Operators op);
/// The reverse; none for a text that is no operator.
std::optional<Operators> operatorOf(std::wstring_view text);
