/// What a user may put into a variable of the drawing.
#pragma once

#include <database/database.h>

#include <limits>

/// The numbers that a variable takes, both ends included.
struct VariableRange
{
    double lowest = -std::numeric_limits<double>::infinity();
    double highest = std::numeric_limits<double>::infinity();

    bool holds(double value) const { return lowest <= value && value <= highest; }
};

/// The rule of one variable of the drawing; what no rule narrows takes any finite value.
struct VariableRule
{
    VariableRange range;
    bool readOnly = false;
    /// For a text that names something: whether the drawing has it. Null if any text will do.
    bool (*names)(const KdDbDatabase& database, const KdString& name) = nullptr;
};

/// The rule of the header variable of that number.
const VariableRule& ruleOfHeaderVariable(int index);
