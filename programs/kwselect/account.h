/// Tells how an answer came about.
#pragma once

#include <ostream>
#include <string>

#include <common/selection_steps.h>

#include "plan.h"

/// What the account begins and ends with.
struct AccountFrame
{
    std::string title;
    std::size_t unread = 0; ///< entities of the drawing that could not be read
};

/// How many of the space are selected, and of each comparison how many match, how many of its type
/// lack the property, and within what numbers count as equal.
void tellAccount(std::ostream& stream, const AccountFrame& frame, const Plan& plan,
                 Catalog& catalog, Selecting& selecting);

enum class WhyAnswer
{
    NotHere, ///< the space has no such entity, and nothing was told
    Selected,
    NotSelected,
};

/// Tells for one entity which comparisons it passes, and what its values are.
/// @param handle  hexadecimal digits
WhyAnswer tellWhy(std::ostream& stream, const std::string& handle, const Plan& plan,
                  Catalog& catalog, Selecting& selecting);
