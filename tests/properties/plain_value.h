// What a property is and what a filter says of it, told in plain numbers and texts: a second,
// simple evaluation of filters that shares nothing with the module's own.
#pragma once

#include <array>
#include <string>
#include <vector>

#include <database/entity.h>

namespace properties_test {

/// One value record. Only what its kind holds is filled; all else is neutral.
struct PlainValue
{
    int kind = 5000;
    double number = 0.0;
    long long integer = 0;
    std::wstring text;
    std::array<double, 3> point{};
};

/// The answer of an entity's provider: the head, and of a point the whole chain.
using PlainValues = std::vector<PlainValue>;
PlainValues readPlainly(const KdDbEntity& entity, const std::wstring& key);

enum class Test
{
    Equal,
    NotEqual,
    Greater,
    Less,
    All,
    LikeIt,    ///< a pattern that only the value itself matches
    LikeBegin, ///< a pattern for all that begin with the same character
};

/// What a filter compares with.
struct Wanted
{
    int kind = 5000; ///< of the property, as the first entity of a type has it
    int axis = 0;    ///< 1 X, 2 Y, 3 Z of a point
    PlainValue value;
    double tolerance = 0.0;
};

bool satisfies(const PlainValues& values, Test test, const Wanted& wanted);

/// True if exactly one of equal, greater and less holds for every value.
bool isInOrder(const Wanted& wanted);

/// The value as a person types it for the property; a pattern for the two pattern tests.
std::wstring typed(const Wanted& wanted, Test test);

bool isPoint(int kind);
int coordinates(int kind);

} // namespace properties_test
