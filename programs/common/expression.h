/// Filters as one readable line: `Circle: Radius > 5 and not Layer = "TEMP*"`.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// One test. A type alone, a property alone, or a property with an operator and a value.
struct Comparison
{
    /// What stands before the operator, cut at the colons outside of quotes: a type, a category, a
    /// name. Which is which follows from the drawing. Never empty.
    std::vector<std::wstring> subject;
    bool namesType = false; ///< the first piece can only be a type, or `*` for all types
    std::wstring op;        ///< "=", "<>", ">", "<" or "*"; empty: everything that has the property
    std::wstring value;
    std::size_t place = 0;      ///< of the subject in the text, counted in characters from 0
    std::size_t valuePlace = 0; ///< of the value
};

struct Expression
{
    enum class Kind
    {
        Comparison,
        Named, ///< `name` stands in the file of filters
        Not,   ///< of one part
        And,
        Or,
    };

    Kind kind = Kind::Comparison;
    Comparison comparison;
    std::wstring name;
    std::size_t place = 0; ///< of `name` in the text
    std::vector<Expression> parts;
};

/// Why a text is no expression.
struct ExpressionProblem
{
    std::size_t place; ///< the character at which it was noticed, counted from 0
    std::string reason;
};

/// Reads an expression:
///
///     either  := both { "or" both }
///     both    := single { "and" single }
///     single  := "not" single | "(" either ")" | "@" name | test
///     test    := [ type ":" ] property [ operator value ] | type
///
/// The words are recognised in any case where they stand alone. Names and values that hold such
/// words, colons, brackets or operators are put between double quotes, a quote inside being
/// doubled. `*` is an operator where blanks surround it.
std::variant<Expression, ExpressionProblem> readExpression(std::wstring_view text);

/// A comparison as it can be typed again.
std::wstring textOf(const Comparison& comparison);

/// The text with a mark under the place, as two lines, for messages.
std::string markedPlace(std::wstring_view text, std::size_t place);

/// A name or a value as it can stand in an expression: between quotes where it has to be.
std::wstring writtenName(std::wstring_view text);
std::wstring writtenValue(std::wstring_view text);
