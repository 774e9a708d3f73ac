#include "options.h"

#include <algorithm>
#include <iostream>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include <runtime/utf8.h>

#include "exit_status.h"
#include "nearest_name.h"

namespace {

constexpr const char* kDescription =
    R"(Selects the entities of a drawing whose property passes a test and prints their handles.

Examples:
  kwselect plan.dxf --type Circle --property Radius --operator ">" --value 5
  kwselect plan.dxf --type Line --property Layer --value WALLS --exclude
  kwselect plan.dxf --property Color --value red
  kwselect plan.dxf --list types
  kwselect plan.dxf --list properties --type Circle
  kwselect plan.dxf --dump
  kwselect plan.dxf --type Circle --write circles.dxf
  kwselect plan.dxf --audit --format json

Exit status: 0 something selected, 1 nothing selected, 2 wrong usage or a drawing that can't be
read or written, 3 a drawing that could be read only in part, 130 interrupted while reading.
An audit ends in 0 if nothing is wrong and in 1 if something is and all could be read.
)";

void declare(CLI::App& app, Options& options)
{
    app.set_version_flag("--version", "kwselect " KW_VERSION, "Print the version and exit");
    app.add_option("DRAWING", options.drawing, "The drawing, a DXF file")->required();
    const auto type =
        app.add_option("-t,--type", options.type, "Object type; without it all types are searched");
    const auto property = app.add_option(
        "-p,--property", options.property,
        "Property, by its name (\"Layer\") or its key (\"General:Layer\"); of a point "
        "one coordinate (\"Start X\")");
    const auto op = app.add_option("-o,--operator", options.op,
                                   "One of =, <>, >, <, * (wildcard match) and all (the default "
                                   "without a value)");
    const auto value = app.add_option("-v,--value", options.value, "Value to compare with");
    const auto exclude =
        app.add_flag("--exclude", options.exclude, "Select everything that does not match");
    const auto list = app.add_option("--list", options.list, "List what can be asked for and exit")
                          ->check(CLI::IsMember({"types", "properties", "values"}));
    const auto dump =
        app.add_flag("--dump", options.dump,
                     "Print every entity with all its properties, one JSON object a line");
    const auto write = app.add_option("--write", options.write,
                                      "Write the selected entities as a drawing of their own");
    const auto overwrite =
        app.add_flag("--overwrite", options.overwrite, "Let --write replace an existing file");
    const auto audit = app.add_flag("--audit", options.audit,
                                    "Print everything that is wrong with the file and exit");
    const auto format = app.add_option("--format", options.format, "How --audit prints: text, json")
                            ->check(CLI::IsMember({"text", "json"}));
    overwrite->needs(write);
    format->needs(audit);
    for (CLI::Option* other : {type, property, op, value, exclude, list, write})
        dump->excludes(other);
    for (CLI::Option* other : {op, value, exclude, write})
        list->excludes(other);
    for (CLI::Option* other : {type, property, op, value, exclude, list, dump, write})
        audit->excludes(other);
}

/// The option that an unknown one may have been meant to be, as a question.
std::string guess(const CLI::App& app, int argc, char** argv)
{
    std::vector<std::wstring> known;
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& name : option->get_lnames())
            known.push_back(kdFromUtf8("--" + name));
    }
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const std::wstring word = kdFromUtf8(argument.substr(0, argument.find('=')));
        const bool isKnown = std::find(known.begin(), known.end(), word) != known.end();
        const std::wstring* nearest = nearestName(word, known);
        if (word.starts_with(L"--") && !isKnown && nearest)
            return "; did you mean " + kdToUtf8(*nearest) + '?';
    }
    return {};
}

} // namespace

std::optional<int> readOptions(int argc, char** argv, Options& options)
{
    CLI::App app(kDescription, "kwselect");
    declare(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool isHelp = error.get_exit_code() == 0;
        if (isHelp)
            return app.exit(error);
        std::cerr << "kwselect: " << error.what() << guess(app, argc, argv)
                  << "\nTry: kwselect --help\n";
        return kCannotWork;
    }
    return std::nullopt;
}
