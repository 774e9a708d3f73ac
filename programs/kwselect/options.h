/// The command line of kwselect.
#pragma once

#include <optional>
#include <string>

/// What is asked for. Texts are UTF-8, as the shell gave them.
struct Options
{
    std::string drawing;
    std::string type; ///< empty: all types
    std::string property;
    std::string op; ///< empty: "=" if there is a value, otherwise everything
    std::optional<std::string> value;
    bool exclude = false;
    std::string list; ///< "types", "properties", "values", or empty
    bool dump = false;
    bool audit = false;
    std::string format = "text"; ///< of an audit: "text" or "json"
    std::string write;           ///< the file to write the selection to, or empty
    bool overwrite = false;
};

/// Reads the command line. Returns the exit status if the program is to end at once, after a help
/// text or a wrong option, which it has then told.
std::optional<int> readOptions(int argc, char** argv, Options& options);
