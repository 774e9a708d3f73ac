#include <command/request.h>

#include <algorithm>
#include <optional>

#include <command/last_request.h>
#include <command/selection_run.h>
#include <values/compare.h>
#include <values/filter_value.h>
#include <values/operators.h>

namespace {

using quick_select::Outcome;
using quick_select::Request;
using quick_select::Result;

/// A filter that is there before the run begins. Owns the filter's records.
class GivenFilter : public FilterSource
{
  public:
    explicit GivenFilter(const Request& request)
    {
        m_parameters.include = !request.exclude;
        m_parameters.append = request.append;
        m_parameters.entireDrawing = !request.fromSelection;
        if (request.typeName && *request.typeName) {
            m_parameters.objectTypeName = request.typeName;
            m_parameters.objectClassName = CStdStr<wchar_t>(request.className);
        }
        m_parameters.propertyParameters.propertyKey = request.propertyKey;
        m_parameters.propertyParameters.operatorText = request.operatorText;
        m_parameters.propertyParameters.axis = request.axis;
    }
    ~GivenFilter() override { ResBuf::relRb(m_parameters.filter); }
    GivenFilter(const GivenFilter&) = delete;
    GivenFilter& operator=(const GivenFilter&) = delete;

    void setValue(const FilterValue& value)
    {
        m_parameters.filter = value.record;
        m_parameters.propertyParameters.valueType = value.valueType;
    }

    bool ask(const Candidates&, FilterChoice& choice) override
    {
        choice.parameters = &m_parameters;
        return true;
    }

  private:
    DialogParameters m_parameters;
};

/// The operator of the request, if its kind offers it.
std::optional<Operators> offeredOperator(const Request& request)
{
    const std::optional<Operators> wanted = operatorOf(KdString(request.operatorText));
    const std::span<const Operators> offered = operatorsOf(request.kind);
    const bool isOffered =
        wanted && std::find(offered.begin(), offered.end(), *wanted) != offered.end();
    return isOffered ? wanted : std::nullopt;
}

/// Puts the value of the request into the filter; false if its text is no value.
bool readValue(const Request& request, Operators op, GivenFilter& filter)
{
    if (op == Operators::SelectAll)
        return true;
    FilterValue value = readFilterValue(request.kind, request.axis, request.valueText);
    if (value.text != FilterText::Read) {
        ResBuf::relRb(value.record);
        return false;
    }
    filter.setValue(value);
    return true;
}

Outcome outcomeOf(RunEnd end)
{
    switch (end) {
    case RunEnd::NoDrawing:
        return Outcome::NoDrawing;
    case RunEnd::NoObjects:
        return Outcome::NoObjects;
    case RunEnd::Abandoned:
        return Outcome::Abandoned;
    default:
        return Outcome::Done;
    }
}

} // namespace

Result runRequest(const Request& request, const long* ss)
{
    const std::optional<Operators> op = offeredOperator(request);
    if (!op)
        return {Outcome::BadOperator, 0};
    GivenFilter filter(request);
    if (!readValue(request, *op, filter))
        return {Outcome::BadValue, 0};
    std::optional<ScopedTolerance> tolerance;
    if (request.tolerance)
        tolerance.emplace(*request.tolerance);
    Result result{Outcome::Done, 0};
    result.outcome = outcomeOf(runSelection(ss, filter, result.matches));
    if (result.outcome == Outcome::Done)
        rememberRequest(RememberedRequest::of(request));
    return result;
}
