#include <common/filter_file.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <system_error>

#include <common/catalog.h>
#include <common/nearest_name.h>
#include <runtime/safe_file.h>
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

bool canBeName(const std::string& name)
{
    return !name.empty() && name.front() != '#' &&
           name.find_first_of(" \t\r\n()@\"=") == std::string::npos;
}

std::string noName(const std::wstring& name)
{
    return inQuotes(name) + " can't be the name of a filter";
}

/// Reads `name = expression`; an empty answer means success.
std::string readLine(const std::string& line, FilterFile::Filter& filter)
{
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos)
        return "a line is a name, \"=\" and a filter";
    const std::string name = trimmed(line.substr(0, equals));
    filter.name = kdFromUtf8(name);
    if (!canBeName(name))
        return noName(filter.name);
    filter.text = kdFromUtf8(trimmed(line.substr(equals + 1)));
    const auto read = readExpression(filter.text);
    if (const auto* problem = std::get_if<ExpressionProblem>(&read))
        return problem->reason + '\n' + markedPlace(filter.text, problem->place);
    return {};
}

/// The lines of a file, none if it is not there. False: it can't be read.
bool readLines(const std::filesystem::path& file, std::vector<std::string>& lines)
{
    std::error_code noCode;
    if (!std::filesystem::exists(file, noCode))
        return true;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(std::move(line));
    return stream.is_open() && !stream.bad();
}

/// The filters among the lines. What is wrong goes to `problems`.
std::vector<FilterFile::Filter> filtersOf(const std::vector<std::string>& lines,
                                          const std::filesystem::path& file,
                                          FilterFile::Problems& problems)
{
    std::vector<FilterFile::Filter> filters;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string line = trimmed(lines[i]);
        if (line.empty() || line.front() == '#')
            continue;
        FilterFile::Filter filter{{}, {}, i + 1};
        if (const std::string reason = readLine(line, filter); reason.empty())
            filters.push_back(std::move(filter));
        else
            problems.push_back(file.string() + ':' + std::to_string(i + 1) + ": " + reason);
    }
    return filters;
}

std::string unreadable(const std::filesystem::path& file)
{
    return file.string() + ": the filters can't be read";
}

bool isSameName(const std::wstring& a, const std::wstring& b)
{
    return comparable(a) == comparable(b);
}

/// The places behind the "@" where an expression names a filter, the last one first.
void findNames(const Expression& expression, const std::wstring& name,
               std::vector<std::size_t>& places)
{
    if (expression.kind == Expression::Kind::Named && isSameName(expression.name, name))
        places.insert(places.begin(), expression.place);
    for (const Expression& part : expression.parts)
        findNames(part, name, places);
}

std::vector<std::size_t> placesOfName(const std::wstring& text, const std::wstring& name)
{
    std::vector<std::size_t> places;
    findNames(std::get<Expression>(readExpression(text)), name, places);
    return places;
}

/// The filters that an expression names, the last one first.
void findNamed(const Expression& expression, std::vector<const Expression*>& named)
{
    if (expression.kind == Expression::Kind::Named)
        named.insert(named.begin(), &expression);
    for (const Expression& part : expression.parts)
        findNamed(part, named);
}

std::string lineOf(const std::wstring& name, const std::wstring& text)
{
    return kdToUtf8(name) + " = " + kdToUtf8(text);
}

} // namespace

bool FilterFile::read(const std::filesystem::path& file, std::string& problem)
{
    std::vector<std::string> lines;
    if (!readLines(file, lines)) {
        problem = unreadable(file);
        return false;
    }
    Problems problems;
    std::vector<Filter> filters = filtersOf(lines, file, problems);
    if (!problems.empty()) {
        problem = problems.front();
        return false;
    }
    m_path = file;
    m_filters = std::move(filters);
    return true;
}

FilterFile::Problems FilterFile::readAll(const std::filesystem::path& file)
{
    Problems problems;
    std::vector<std::string> lines;
    if (!readLines(file, lines))
        problems.push_back(unreadable(file));
    m_path = file;
    m_filters = filtersOf(lines, file, problems);
    return problems;
}

bool FilterFile::beginChange(std::vector<std::string>& lines, std::string& problem)
{
    problem.clear();
    if (!readLines(m_path, lines))
        problem = unreadable(m_path);
    Problems others;
    m_filters = filtersOf(lines, m_path, others);
    return problem.empty();
}

bool FilterFile::save(const std::wstring& name, const std::wstring& text, std::string& problem)
{
    std::vector<std::string> lines;
    if (!beginChange(lines, problem))
        return false;
    Filter filter{};
    if (!canBeName(kdToUtf8(name)))
        problem = noName(name);
    else if (text.find_first_of(L"\r\n") != std::wstring::npos)
        problem = "a filter stands on one line";
    else
        problem = readLine(lineOf(name, text), filter);
    if (!problem.empty())
        return false;
    if (const Filter* known = find(name))
        lines[known->line - 1] = lineOf(known->name, text);
    else
        lines.push_back(lineOf(name, text));
    return write(lines, problem);
}

bool FilterFile::rename(const std::wstring& name, const std::wstring& newName, std::string& problem)
{
    std::vector<std::string> lines;
    if (!beginChange(lines, problem))
        return false;
    const Filter* renamed = find(name);
    const Filter* other = find(newName);
    if (!renamed)
        problem = "there is no filter " + inQuotes(name);
    else if (!canBeName(kdToUtf8(newName)))
        problem = noName(newName);
    else if (other && other != renamed)
        problem = "there is a filter " + inQuotes(newName) + " already";
    if (!problem.empty())
        return false;
    for (const Filter& filter : m_filters) {
        std::wstring text = filter.text;
        const std::vector<std::size_t> places = placesOfName(text, name);
        for (const std::size_t place : places)
            text.replace(place, name.size(), newName);
        if (&filter == renamed || !places.empty())
            lines[filter.line - 1] = lineOf(&filter == renamed ? newName : filter.name, text);
    }
    return write(lines, problem);
}

bool FilterFile::remove(const std::wstring& name, std::string& problem)
{
    std::vector<std::string> lines;
    if (!beginChange(lines, problem))
        return false;
    const Filter* removed = find(name);
    if (!removed)
        problem = "there is no filter " + inQuotes(name);
    for (const Filter& filter : m_filters) {
        if (removed && &filter != removed && !placesOfName(filter.text, name).empty())
            problem = "the filter " + inQuotes(filter.name) + " names " + inQuotes(name);
    }
    if (!problem.empty())
        return false;
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(removed->line) - 1);
    return write(lines, problem);
}

bool FilterFile::write(const std::vector<std::string>& lines, std::string& problem)
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + '\n';
    std::error_code noCode;
    std::filesystem::create_directories(m_path.parent_path(), noCode);
    KdString error;
    if (kdWriteFile(m_path, bytes, {.overwrite = true}, error) != eOk) {
        problem = m_path.string() + ": " + kdToUtf8(error);
        return false;
    }
    readAll(m_path);
    return true;
}

const FilterFile::Filter* FilterFile::find(const std::wstring& name) const
{
    const auto found = std::find_if(m_filters.begin(), m_filters.end(), [&](const Filter& filter) {
        return isSameName(filter.name, name);
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

std::wstring FilterFile::expandedText(std::wstring text) const
{
    const auto read = readExpression(text);
    const auto* expression = std::get_if<Expression>(&read);
    if (!expression)
        return text;
    std::vector<const Expression*> named;
    findNamed(*expression, named);
    const bool isWhole = expression->kind == Expression::Kind::Named;
    for (const Expression* each : named) {
        const Filter* filter = find(each->name);
        if (!filter)
            continue;
        const std::wstring inner = expandedText(filter->text);
        const std::size_t at = text.rfind(L'@', each->place);
        text.replace(at, each->place + each->name.size() - at,
                     isWhole ? inner : L'(' + inner + L')');
    }
    return text;
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
