#include <common/selection_steps.h>

#include <unordered_set>
#include <utility>

#include <common/entity_set.h>
#include <common/nearest_name.h>
#include <editor/command_line.h>
#include <runtime/utf8.h>

namespace {

using quick_select::Outcome;
using quick_select::Request;
using quick_select::Result;

/// Keeps what the module prints from the user for the length of a scope.
class Silence
{
  public:
    Silence() : m_sink(kdutSetPrintSink([](std::wstring_view) {})) {}
    ~Silence() { kdutSetPrintSink(std::move(m_sink)); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

  private:
    KdutPrintSink m_sink;
};

/// What a property of few or peculiar values takes, as the end of a sentence.
std::string hintOn(const ResolvedFilter& filter)
{
    constexpr int kTruth = 290;
    constexpr int kColor = 5011;
    const int kind = filter.property ? filter.property->property.restype() : 0;
    if (kind == kTruth)
        return "; it is true or false";
    if (kind == kColor)
        return "; it is ByLayer, ByBlock, a name such as red, a number from 1 to 255, or red, "
               "green "
               "and blue as 255,128,0";
    return {};
}

using Members = std::unordered_set<KdDbObjectId>;

/// Those of `from` that are members, or that are not, in the order of `from`.
Ids chosen(const Ids& from, const Members& members, bool wanted)
{
    Ids ids;
    for (const KdDbObjectId id : from) {
        if (members.contains(id) == wanted)
            ids.push_back(id);
    }
    return ids;
}

Request requestForAll()
{
    constexpr int kNoKind = 5000;
    Request request{};
    request.typeName = request.className = request.propertyKey = L"";
    request.operatorText = request.valueText = L"";
    request.kind = kNoKind;
    return request;
}

} // namespace

StepScope::StepScope(Catalog& space, const SelectionStep& step, const Ids& selection)
    : m_space(space)
{
    if (step.over != SelectionStep::Over::Selection)
        return;
    m_selected.emplace(space.module(), selection);
    m_within = &selection;
}

bool Selecting::carryOut(const SelectionStep& step)
{
    StepScope stepScope(m_catalog, step, m_selection);
    const SearchScope scope = stepScope.scope();
    Ids found;
    const bool isOneRun = step.expression.kind == Expression::Kind::Comparison;
    const bool done = isOneRun ? runOne(step.expression.comparison, scope, step.exclude, found)
                      : step.exclude ? excluded(step.expression, scope, found)
                                     : matches(step.expression, scope, found);
    if (!done)
        return false;
    if (step.over == SelectionStep::Over::Append) {
        const Members selected(m_selection.begin(), m_selection.end());
        for (const KdDbObjectId id : chosen(found, selected, false))
            m_selection.push_back(id);
    } else {
        m_selection = std::move(found);
    }
    setPickfirstEntities(m_selection);
    return true;
}

bool Selecting::matches(const Expression& expression, const SearchScope& scope, Ids& found)
{
    switch (expression.kind) {
    case Expression::Kind::Not:
        return excluded(expression.parts.front(), scope, found);
    case Expression::Kind::And:
        return all(expression.parts, scope, found);
    case Expression::Kind::Or:
        return any(expression.parts, scope, found);
    default:
        return runOne(expression.comparison, scope, false, found);
    }
}

const Ids& Selecting::space()
{
    if (!m_space) {
        const Silence silence;
        Result result{};
        m_catalog.module().run(requestForAll(), nullptr, result);
        m_space = pickfirstEntities();
    }
    return *m_space;
}

bool Selecting::runOne(const Comparison& comparison, const SearchScope& scope, bool exclude,
                       Ids& found)
{
    ResolvedFilter filter;
    if (scope.catalog.types().empty()) // no names are known where nothing is
        return true;
    if (!resolve(comparison, scope.catalog, filter, m_problem)) {
        if (!isElsewhereInSpace(comparison, scope))
            return false;
        found = exclude ? *scope.within : Ids();
        return true;
    }
    if (scope.within && scope.within->empty())
        return true;
    const Silence silence;
    if (scope.within)
        setPickfirstEntities(*scope.within);
    Request request = filter.request();
    request.exclude = exclude;
    request.fromSelection = scope.within != nullptr;
    request.tolerance = m_tolerance ? &*m_tolerance : nullptr;
    Result result{};
    m_catalog.module().run(request, nullptr, result);
    if (result.outcome != Outcome::Done)
        return fail(comparison, filter, result.outcome);
    found = pickfirstEntities();
    return true;
}

/// True if only the selection lacks what a comparison names: then nothing of it matches.
bool Selecting::isElsewhereInSpace(const Comparison& comparison, const SearchScope& scope) const
{
    ResolvedFilter filter;
    FilterProblem problem;
    return m_problem.isMissing && &scope.catalog != &m_catalog &&
           resolve(comparison, m_catalog, filter, problem);
}

/// Each part searches what the parts before it have found, by the names of the whole scope.
bool Selecting::all(const std::vector<Expression>& parts, const SearchScope& scope, Ids& found)
{
    if (!matches(parts.front(), scope, found))
        return false;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const Ids soFar = std::exchange(found, {});
        if (!matches(parts[i], {scope.catalog, &soFar}, found))
            return false;
    }
    return true;
}

bool Selecting::any(const std::vector<Expression>& parts, const SearchScope& scope, Ids& found)
{
    Members members;
    for (const Expression& part : parts) {
        Ids some;
        if (!matches(part, scope, some))
            return false;
        members.insert(some.begin(), some.end());
    }
    found = chosen(scope.within ? *scope.within : space(), members, true);
    return true;
}

bool Selecting::excluded(const Expression& expression, const SearchScope& scope, Ids& found)
{
    Ids matching;
    if (!matches(expression, scope, matching))
        return false;
    const Members members(matching.begin(), matching.end());
    found = chosen(scope.within ? *scope.within : space(), members, false);
    return true;
}

bool Selecting::fail(const Comparison& comparison, const ResolvedFilter& filter, Outcome outcome)
{
    m_problem = {{}, comparison.place, false};
    switch (outcome) {
    case Outcome::BadValue:
        m_problem = {inQuotes(comparison.value) + " is no value for the property " +
                         inQuotes(comparison.subject.back()) + hintOn(filter),
                     comparison.valuePlace, false};
        break;
    case Outcome::BadOperator:
        m_problem.sentence = "no operator " + inQuotes(comparison.op) + " for this property";
        break;
    case Outcome::NoDrawing:
        m_problem.sentence = "the space can't be read";
        break;
    case Outcome::Abandoned:
        m_problem.sentence = "an entity has no property provider";
        break;
    default:
        m_problem.sentence = "the space holds no objects";
    }
    return false;
}

void visitEntities(const Module& module, const Ids& ids, quick_select::EntityVisitor visitor,
                   void* context)
{
    if (ids.empty())
        return;
    EntitySet set(ids);
    module.listEntities(set.name(), visitor, context);
}

void tellSelection(const Module& module, const Ids& selection)
{
    setPickfirstEntities(selection);
    Request request = requestForAll();
    request.fromSelection = !selection.empty();
    request.exclude = selection.empty(); // of everything in the space, nothing is left
    Result result{};
    module.run(request, nullptr, result);
}
