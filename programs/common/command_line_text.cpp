#include <common/command_line_text.h>

#include <vector>

#include <common/value_text.h>
#include <runtime/utf8.h>

namespace {

/// Why no line gives what the runs gave; empty if one does.
std::string whyNoLine(std::span<const RunRequest> runs)
{
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const RunRequest& run = runs[i];
        if (run.overPicked)
            return "The search was over objects that were picked by hand; this is its filter.";
        if (run.fromSelection && i == 0)
            return "The search was over a selection that was made by hand; this is its filter.";
        if (run.append && i == 0)
            return "The search added to a selection that was made by hand; this is its filter.";
        if (run.tolerance != runs.front().tolerance)
            return "The searches had several tolerances; this is the filter of the last one.";
    }
    return {};
}

/// A file by a name that is neither an option nor a list.
std::string fileArgument(const std::filesystem::path& file)
{
    const std::string name = file.string();
    return name.starts_with('-') || name.starts_with('@') ? "./" + name : name;
}

/// An option with its value in one word, so that a value that begins with a dash is none itself.
std::string option(const std::string& name, const std::string& value)
{
    return value.starts_with('-') ? ' ' + shellWord(name + '=' + value)
                                  : ' ' + name + ' ' + shellWord(value);
}

} // namespace

std::string shellWord(const std::string& word)
{
    constexpr const char* kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                                   "_-./:,+@%=";
    if (!word.empty() && word.find_first_not_of(kPlain) == std::string::npos)
        return word;
    std::string quoted = "'";
    for (const char c : word)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + '\'';
}

CommandLineText commandLineFor(std::span<const RunRequest> runs,
                               const std::filesystem::path& drawing, const std::string& space,
                               Catalog& catalog)
{
    const std::string note = whyNoLine(runs);
    if (!note.empty())
        runs = runs.last(1);
    std::vector<std::string> expressions;
    for (const RunRequest& run : runs) {
        if (!run.expression.empty()) {
            expressions.push_back(kdToUtf8(run.expression));
            continue;
        }
        const auto comparison = comparisonOf(run, catalog);
        if (!comparison)
            return {{}, "No filter that can be typed finds the same in this drawing."};
        expressions.push_back(kdToUtf8(textOf(*comparison)));
    }
    if (!note.empty())
        return {expressions.back(), note};
    std::string line = "kwselect " + shellWord(fileArgument(drawing));
    for (std::size_t i = 0; i < runs.size(); ++i) {
        line += option(i == 0           ? "--filter"
                       : runs[i].append ? "--append"
                                        : "--then",
                       expressions[i]);
        if (runs[i].exclude)
            line += " --exclude";
    }
    if (space != "model")
        line += option("--space", space);
    if (const auto& tolerance = runs.front().tolerance)
        line += option("--tolerance", numberText(*tolerance));
    return {line, {}};
}
