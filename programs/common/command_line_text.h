/// Runs as command lines of kwselect.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include <common/run_request.h>

struct CommandLineText
{
    /// The line, ready for a shell, without an end of line; the expression alone where no line can
    /// give the same selection.
    std::string text;
    std::string note; ///< why `text` is no line, or not all of it; otherwise empty
};

/// The line that gives the same selection as some runs in turn.
/// @param runs     from one that replaced the selection to the last one; not empty
/// @param drawing  the file
/// @param space    as kwselect names it: "model", "paper:NAME", "block:NAME"
/// @param catalog  of that space
CommandLineText commandLineFor(std::span<const RunRequest> runs,
                               const std::filesystem::path& drawing, const std::string& space,
                               Catalog& catalog);

/// A word between single quotes where the shell would take it apart, otherwise as it is.
std::string shellWord(const std::string& word);
