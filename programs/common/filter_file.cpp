#include <common/filter_file.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <system_error>

#include <common/catalog.h>
#include <common/nearest_name.h>
#include <runtime/utf8.h>

namespace {

constexpr const char* kBlanks = " \t\r";

std::string trimmed(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(kBlanks);
    return begin == std::string::npos
               ? std::string()
               : text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

/// Reads `name = expression`; an empty answer means success.
std::string readLine(const std::string& line, FilterFile::Filter& filter)
{
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos)
        return "a line is a name, \"=\" and a filter";
    const std::string name = trimmed(line.substr(0, equals));
    if (name.empty() || name.find_first_of(" \t()@\"") != std::string::npos)
        return "\"" + name + "\" can't be the name of a filter";
    filter.name = kdFromUtf8(name);
    filter.text = kdFromUtf8(trimmed(line.substr(equals + 1)));
    const auto read = readExpression(filter.text);
    if (const auto* problem = std::get_if<ExpressionProblem>(&read))
        return problem->reason + '\n' + markedPlace(filter.text, problem->place);
    return {};
}

} // namespace

bool FilterFile::read(const std::filesystem::path& file, std::string& problem)
{
    std::error_code noCode;
    std::vector<Filter> filters;
    if (std::filesystem::exists(file, noCode)) {
        std::ifstream stream(file);
        std::size_t number = 0;
        for (std::string line; std::getline(stream, line);) {
            ++number;
            line = trimmed(line);
            if (line.empty() || line.front() == '#')
                continue;
            Filter& filter = filters.emplace_back();
            filter.line = number;
            if (const std::string reason = readLine(line, filter); !reason.empty()) {
                problem = file.string() + ':' + std::to_string(number) + ": " + reason;
                return false;
            }
        }
        if (!stream.is_open() || stream.bad()) {
            problem = file.string() + ": the filters can't be read";
            return false;
        }
    }
    m_path = file;
    m_filters = std::move(filters);
    return true;
}

const FilterFile::Filter* FilterFile::find(const std::wstring& name) const
{
    const auto found = std::find_if(m_filters.begin(), m_filters.end(), [&](const Filter& filter) {
        return comparable(filter.name) == comparable(name);
    });
    return found == m_filters.end() ? nullptr : &*found;
}

bool FilterFile::expand(Expression& expression, std::string& problem) const
{
    std::vector<const Filter*> open;
    return expand(expression, open, problem);
}

bool FilterFile::expand(Expression& expression, std::vector<const Filter*>& open,
                        std::string& problem) const
{
    if (expression.kind != Expression::Kind::Named) {
        return std::all_of(expression.parts.begin(), expression.parts.end(),
                           [&](Expression& part) { return expand(part, open, problem); });
    }
    const Filter* filter = find(expression.name);
    if (!filter) {
        std::vector<std::wstring> known;
        for (const Filter& other : m_filters)
            known.push_back(other.name);
        problem = notFound("filter", kdToUtf8(expression.name), known,
                           "; " + m_path.string() + " holds none");
        return false;
    }
    if (std::find(open.begin(), open.end(), filter) != open.end()) {
        problem = "the filter \"" + kdToUtf8(filter->name) + "\" names itself";
        return false;
    }
    open.push_back(filter);
    expression = std::get<Expression>(readExpression(filter->text));
    const bool done = expand(expression, open, problem);
    open.pop_back();
    return done;
}

std::filesystem::path userFilterFile()
{
    const char* settings = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    std::filesystem::path folder = settings && *settings
                                       ? std::filesystem::path(settings)
                                       : std::filesystem::path(home ? home : "") / ".config";
    return folder / "kwqselect" / "filters.txt";
}
