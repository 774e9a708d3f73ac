#include <common/run_request.h>

#include <utility>

namespace {

void takeRequest(void* context, const quick_select::PastRequest* past)
{
    if (!past)
        return;
    const quick_select::Request& from = past->request;
    RunRequest run{from.typeName,
                   from.className,
                   from.propertyKey,
                   from.operatorText,
                   from.valueText,
                   from.axis,
                   from.kind,
                   from.exclude,
                   from.append,
                   from.fromSelection,
                   past->overPicked,
                   {},
                   {}};
    if (from.tolerance)
        run.tolerance = *from.tolerance;
    *static_cast<std::optional<RunRequest>*>(context) = std::move(run);
}

using Subject = std::vector<std::wstring>;

/// Ways to name type and property, the shortest first.
std::vector<Subject> subjectsOf(const RunRequest& request)
{
    const std::wstring type = request.typeName.empty() ? L"*" : request.typeName;
    if (request.key.empty())
        return {{type}};
    const std::size_t colon = request.key.find(L':');
    std::wstring category = colon == std::wstring::npos ? L"" : request.key.substr(0, colon);
    std::erase(category, L'\t');
    const ChosenProperty chosen{{request.key, false, {}, {}}, request.axis};
    const std::wstring name = chosen.listName();
    if (request.typeName.empty())
        return {{name}, {category, name}, {type, name}, {type, category, name}};
    return {{type, name}, {type, category, name}};
}

bool isSame(const ResolvedFilter& filter, const RunRequest& request)
{
    const bool isTyped = filter.type.has_value();
    if (isTyped != !request.typeName.empty() || filter.property.has_value() != !request.key.empty())
        return false;
    if (isTyped && (filter.type->displayName != request.typeName ||
                    filter.type->className != request.className))
        return false;
    return request.key.empty() ||
           (filter.property->property.key == request.key && filter.property->axis == request.axis);
}

/// True if the text of the comparison, read again, asks for the same.
bool findsSame(const Comparison& comparison, const RunRequest& request, Catalog& catalog)
{
    const auto read = readExpression(textOf(comparison));
    const auto* expression = std::get_if<Expression>(&read);
    ResolvedFilter filter;
    FilterProblem problem;
    return expression && expression->kind == Expression::Kind::Comparison &&
           resolve(expression->comparison, catalog, filter, problem) && isSame(filter, request) &&
           filter.op == comparison.op && filter.value == comparison.value;
}

} // namespace

quick_select::Request RunRequest::request() const
{
    return {typeName.c_str(),
            className.c_str(),
            key.c_str(),
            axis,
            kind,
            op.c_str(),
            value.c_str(),
            exclude,
            append,
            fromSelection,
            tolerance ? &*tolerance : nullptr};
}

std::optional<RunRequest> lastRun(const Module& module)
{
    std::optional<RunRequest> run;
    module.lastRequest(takeRequest, &run);
    return run;
}

std::optional<Comparison> comparisonOf(const RunRequest& request, Catalog& catalog)
{
    Comparison comparison;
    comparison.op = request.op;
    if (!request.op.empty())
        comparison.value = request.value;
    std::vector<Subject> subjects = subjectsOf(request);
    // Over a selection the names are those of what is selected then, so only the whole key is safe,
    // and what its types have in common is known to it alone.
    if (request.fromSelection)
        subjects = {subjects.back()};
    const bool isForSelection = request.fromSelection && request.typeName.empty();
    for (Subject& subject : subjects) {
        comparison.subject = std::move(subject);
        if (isForSelection || findsSame(comparison, request, catalog))
            return comparison;
    }
    return std::nullopt;
}

void RunChain::add(const std::wstring& expression)
{
    m_runs.assign(1, {});
    m_runs.front().expression = expression;
}

void RunChain::add(const RunRequest& request, std::size_t selected)
{
    if (request.append && selected == 0) // the outcome is empty, whatever was selected before
        return breakOff();
    if (request.append && request.fromSelection && !request.overPicked && !m_runs.empty())
        return; // what joins the selection is in it already
    if (!request.append && !request.fromSelection)
        m_runs.clear();
    m_runs.push_back(request);
}
