#include "options.h"

#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

#include <CLI/CLI.hpp>

#include <common/nearest_name.h>
#include <runtime/utf8.h>

#include "exit_status.h"

namespace {

constexpr const char* kDescription = R"(Selects entities of drawings by their properties.

Examples:
  kwselect plan.dxf 'Circle: Radius > 5'
  kwselect plan.dxf 'Layer = WALLS or Color = red' --format table
  kwselect plan.dxf 'Text: Contents * *TODO*' --columns Handle,Contents --format csv
  kwselect plan.dxf 'Line: Layer = WALLS' --then 'Length > 2500' --count
  kwselect *.dxf 'Block Reference: Name = VALVE-DN50' --format csv --output valves.csv
  kwselect plan.dxf --type Circle --property Radius --operator ">" --value 5
  kwselect plan.dxf --list types
  kwselect plan.dxf --list properties --type Circle
  kwselect plan.dxf 'Layer = PIPES' --write pipes.dxf
  kwselect plan.dxf --audit --format json

A filter is "TYPE: PROPERTY OPERATOR VALUE"; the type may be left out, and so may all that follows
it. The operators are =, <>, >, < and * (wildcard match). Filters are joined by "and", "or", "not"
and brackets; @NAME stands for a filter of the file of filters. Names and values that hold such
words or signs go between double quotes.

An argument is a drawing if there is such a file or its name ends in .dxf; @FILE is a list of
drawings, one a line, and - is such a list on standard input.
)";

constexpr const char* kFooter = R"(
Exit status: 0 something selected, 1 nothing selected, 2 wrong usage or a drawing that can't be
read or written, 3 a drawing that could be read only in part, 130 interrupted while reading.
An audit ends in 0 if nothing is wrong and in 1 if something is and all could be read.
)";

constexpr const char* kGiving = "What to select";
constexpr const char* kShowing = "What to print";

/// Shows what an option takes. What it does not go with is told when somebody tries.
class HelpFormatter : public CLI::Formatter
{
  public:
    std::string make_option_opts(const CLI::Option* option) const override
    {
        return option->get_option_text().empty() ? "" : ' ' + option->get_option_text();
    }
};

class CommandLine
{
  public:
    explicit CommandLine(Options& options) : m_options(options)
    {
        m_app.formatter(std::make_shared<HelpFormatter>());
        m_app.footer(kFooter);
        m_app.set_version_flag("--version", "kwselect " KW_VERSION, "Print the version and exit");
        m_app.add_option("DRAWING", options.arguments, "Drawings, and a filter");
        declareFilters();
        declareWork();
        declareOutput();
    }

    /// Throws a `CLI::ParseError`.
    void parse(int argc, char** argv)
    {
        m_app.parse(argc, argv);
        orderSteps();
        if (!m_format.empty())
            m_options.format = formatNames().at(m_format);
    }

    const CLI::App& app() const { return m_app; }

  private:
    CLI::Option* perUse(CLI::Option* option)
    {
        return option->expected(1)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    }

    /// Says what to put behind each of these options.
    static void name(std::initializer_list<std::pair<CLI::Option*, const char*>> values)
    {
        for (const auto& [option, value] : values)
            option->option_text(value);
    }

    void declareFilters()
    {
        const auto filter =
            m_app.add_option("-f,--filter", m_options.filter, "The filter, as an option");
        const auto recent =
            m_app.add_option("--recent", m_options.recent,
                             "The filter of that place among those that were run last in kwdraw; "
                             "1 is the latest");
        recent->check(CLI::PositiveNumber)->excludes(filter);
        m_type = m_app.add_option("-t,--type", m_options.type,
                                  "Object type; without it all types are searched");
        m_property = m_app.add_option("-p,--property", m_options.property,
                                      "Property, by its name (\"Layer\") or its key "
                                      "(\"General:Layer\"); of a point one coordinate "
                                      "(\"Start X\")");
        m_op = m_app.add_option("-o,--operator", m_options.op,
                                "One of =, <>, >, <, * and all (the default without a value)");
        m_value = m_app.add_option("-v,--value", m_options.value, "Value to compare with");
        m_exclude = m_app.add_flag("--exclude", m_excludeUses,
                                   "Select everything that does not match the filter "
                                   "before this option");
        m_then = perUse(m_app.add_option("--then", m_thenTexts,
                                         "A further filter, over what is selected so far"));
        m_append = perUse(m_app.add_option("--append", m_appendTexts,
                                           "A further filter, whose matches join the selection"));
        const auto tolerance = m_app.add_option("--tolerance", m_options.tolerance,
                                                "Within what numbers count as equal; by default "
                                                "one unit of the drawing's last decimal place");
        tolerance->check(CLI::NonNegativeNumber);
        const auto file = m_app.add_option("--filters", m_options.filterFile,
                                           "The file of filters with names; by default "
                                           "kwqselect/filters.txt in the folder of settings");
        const auto space = m_app.add_option("--space", m_options.space,
                                            "Where to search: model (the default), paper:NAME, "
                                            "block:NAME, or all (the model and every sheet)");
        for (CLI::Option* option : {filter, recent, m_type, m_property, m_op, m_value, m_exclude,
                                    m_then, m_append, tolerance, file, space})
            option->group(kGiving);
        for (CLI::Option* plain : {m_type, m_property, m_op, m_value})
            plain->excludes(filter)->excludes(recent);
        name({{filter, "FILTER"},
              {recent, "NUMBER"},
              {m_type, "TYPE"},
              {m_property, "PROPERTY"},
              {m_op, "OPERATOR"},
              {m_value, "VALUE"},
              {m_then, "FILTER"},
              {m_append, "FILTER"},
              {tolerance, "NUMBER"},
              {file, "FILE"},
              {space, "SPACE"}});
    }

    void declareWork()
    {
        const auto list = m_app
                              .add_option("--list", m_options.list,
                                          "List types, properties, operators, values, filters or "
                                          "recent filters instead")
                              ->check(CLI::IsMember({"types", "properties", "operators", "values",
                                                     "filters", "recent"}));
        const auto dump = m_app.add_flag("--dump", m_options.dump,
                                         "Print every entity with all its properties instead, one "
                                         "JSON object a line");
        const auto count = m_app.add_flag("-c,--count", m_options.count, "Print how many");
        const auto group = m_app.add_option("--group-by", m_options.groupBy,
                                            "Print the values of a property and how many have "
                                            "each");
        const auto why = m_app.add_option("--why", m_options.why,
                                          "Tell why the entity of that handle is selected or not");
        const auto audit = m_app.add_flag("--audit", m_options.audit,
                                          "Print everything that is wrong with the file instead");
        const auto explain = m_app.add_flag("--explain", m_options.explain,
                                            "Give an account of the answer on standard error");
        for (CLI::Option* option : {list, dump, count, group, why, audit, explain})
            option->group(kShowing);
        const auto ways = {list, dump, count, group, why, audit};
        for (CLI::Option* one : ways) {
            for (CLI::Option* other : ways) {
                if (one != other)
                    one->excludes(other);
            }
        }
        for (CLI::Option* filter :
             {m_type, m_property, m_op, m_value, m_exclude, m_then, m_append}) {
            dump->excludes(filter);
            audit->excludes(filter);
        }
        for (CLI::Option* filter : {m_op, m_value, m_exclude, m_then, m_append})
            list->excludes(filter);
        name({{list, "WHAT"}, {group, "PROPERTY"}, {why, "HANDLE"}});
    }

    void declareOutput()
    {
        std::vector<std::string> names;
        for (const auto& [name, format] : formatNames())
            names.push_back(name);
        const auto format =
            m_app.add_option("--format", m_format, "handles, table, tsv, csv, json or jsonl")
                ->check(CLI::IsMember(names));
        const auto columns = m_app.add_option("--columns", m_options.columns,
                                              "What to print of each entity, with commas between: "
                                              "File, Space, Handle, Type, Class, or a property");
        columns->delimiter(',')->expected(1)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
        const auto write = m_app.add_option("--write", m_options.write,
                                            "Write the selected entities as a drawing of their "
                                            "own, which must be new");
        const auto output =
            m_app.add_option("--output", m_options.output, "A file to write to; it must be new");
        const auto overwrite = m_app.add_flag("--overwrite", m_options.overwrite,
                                              "The file to write to may be there already");
        const auto jobs =
            m_app.add_option("-j,--jobs", m_options.jobs, "How many drawings to read at a time");
        jobs->check(CLI::Range(1u, 256u));
        for (CLI::Option* option : {format, columns, write, output, overwrite, jobs})
            option->group(kShowing);
        name({{format, "NAME"},
              {columns, "LIST"},
              {write, "FILE"},
              {output, "FILE"},
              {jobs, "NUMBER"}});
    }

    /// Puts the further filters in the order in which they were typed.
    void orderSteps()
    {
        std::map<const CLI::Option*, std::size_t> used;
        for (const CLI::Option* option : m_app.parse_order()) {
            const std::size_t use = used[option]++;
            if (option == m_then)
                m_options.further.push_back({SelectionStep::Over::Selection, m_thenTexts[use]});
            else if (option == m_append)
                m_options.further.push_back({SelectionStep::Over::Append, m_appendTexts[use]});
            else if (option == m_exclude)
                (m_options.further.empty() ? m_options.exclude : m_options.further.back().exclude) =
                    true;
        }
    }

    Options& m_options;
    CLI::App m_app{kDescription, "kwselect"};
    CLI::Option* m_type = nullptr;
    CLI::Option* m_property = nullptr;
    CLI::Option* m_op = nullptr;
    CLI::Option* m_value = nullptr;
    CLI::Option* m_exclude = nullptr;
    CLI::Option* m_then = nullptr;
    CLI::Option* m_append = nullptr;
    std::vector<std::string> m_thenTexts;
    std::vector<std::string> m_appendTexts;
    std::string m_format;
    int m_excludeUses = 0;
};

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
    CommandLine line(options);
    try {
        line.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool isHelp = error.get_exit_code() == 0;
        if (isHelp)
            return line.app().exit(error);
        std::cerr << "kwselect: " << error.what() << guess(line.app(), argc, argv)
                  << "\nTry: kwselect --help\n";
        return kCannotWork;
    }
    return std::nullopt;
}
