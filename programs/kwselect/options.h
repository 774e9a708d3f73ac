/// The command line of kwselect.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <common/row_format.h>
#include <common/selection_steps.h>

/// What is asked for. Texts are UTF-8, as the shell gave them.
struct Options
{
    /// A filter that follows the first one.
    struct FurtherStep
    {
        SelectionStep::Over over;
        std::string text;
        bool exclude = false;
    };

    std::vector<std::string> arguments; ///< drawings and lists of drawings, and one expression
    std::string filter;                 ///< the expression, where it is given as an option
    unsigned recent = 0; ///< the filter that was run last but so many, from 1; 0: none
    std::string type;    ///< empty: all types
    std::string property;
    std::string op; ///< empty: "=" if there is a value, otherwise everything
    std::optional<std::string> value;
    bool exclude = false;
    std::vector<FurtherStep> further;
    std::string filterFile; ///< empty: the user's own
    std::optional<double> tolerance;
    std::string space = "model";

    std::string list; ///< what to list, or empty
    bool dump = false;
    bool audit = false;
    bool count = false;
    std::string groupBy;
    std::optional<RowFormat> format;
    std::vector<std::string> columns;
    std::string output; ///< empty: standard output
    std::string write;  ///< the drawing to write the selection to, or empty
    bool overwrite = false;
    bool explain = false;
    std::string why; ///< a handle
    unsigned jobs = 1;

    bool hasPlainFilter() const
    {
        return !type.empty() || !property.empty() || !op.empty() || value.has_value();
    }
};

/// Reads the command line. Returns the exit status if the program is to end at once, after a help
/// text or a wrong option, which it has then told.
std::optional<int> readOptions(int argc, char** argv, Options& options);
