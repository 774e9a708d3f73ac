#include <common/selection_steps.h>

#include <unordered_set>
#include <utility>

#include <common/nearest_name.h>
#include <database/object.h>
#include <editor/command_line.h>
#include <editor/selection_sets.h>
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

/// A set of the host, freed at the end of the scope.
class Set
{
  public:
    Set() = default;
    explicit Set(const Ids& ids)
    {
        kdedSSAdd(nullptr, nullptr, name);
        for (const KdDbObjectId id : ids) {
            kds_name member;
            if (kddbGetKdsName(member, id) == eOk)
                kdedSSAdd(member, name, name);
        }
    }
    ~Set() { kdedSSFree(name); }
    Set(const Set&) = delete;
    Set& operator=(const Set&) = delete;

    kds_name name = {0, 0};
};

Ids pickfirst()
{
    Ids ids;
    Set set;
    long length = 0;
    if (kdedSSGetFirst(set.name) != RTNORM || kdedSSLength(set.name, &length) != RTNORM)
        return ids;
    ids.reserve(static_cast<std::size_t>(length));
    for (long i = 0; i < length; ++i) {
        kds_name member;
        KdDbObjectId id;
        if (kdedSSName(set.name, i, member) == RTNORM && kddbGetObjectId(id, member) == eOk)
            ids.push_back(id);
    }
    return ids;
}

void setPickfirst(const Ids& ids)
{
    const Set set(ids);
    kdedSSSetFirst(set.name, nullptr);
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

bool Selecting::carryOut(const SelectionStep& step)
{
    using Over = SelectionStep::Over;
    const Ids* within = step.over == Over::Selection ? &m_selection : nullptr;
    Ids found;
    const bool isOneRun = step.expression.kind == Expression::Kind::Comparison;
    const bool done = isOneRun ? runOne(step.expression.comparison, within, step.exclude, found)
                      : step.exclude ? excluded(step.expression, within, found)
                                     : matches(step.expression, within, found);
    if (!done)
        return false;
    if (step.over == Over::Append) {
        const Members selected(m_selection.begin(), m_selection.end());
        for (const KdDbObjectId id : chosen(found, selected, false))
            m_selection.push_back(id);
    } else {
        m_selection = std::move(found);
    }
    setPickfirst(m_selection);
    return true;
}

bool Selecting::matches(const Expression& expression, const Ids* within, Ids& found)
{
    switch (expression.kind) {
    case Expression::Kind::Not:
        return excluded(expression.parts.front(), within, found);
    case Expression::Kind::And:
        return all(expression.parts, within, found);
    case Expression::Kind::Or:
        return any(expression.parts, within, found);
    default:
        return runOne(expression.comparison, within, false, found);
    }
}

const Ids& Selecting::space()
{
    if (!m_space) {
        const Silence silence;
        Result result{};
        m_catalog.module().run(requestForAll(), nullptr, result);
        m_space = pickfirst();
    }
    return *m_space;
}

bool Selecting::runOne(const Comparison& comparison, const Ids* within, bool exclude, Ids& found)
{
    ResolvedFilter filter;
    if (!resolve(comparison, m_catalog, filter, m_problem))
        return false;
    if (within && within->empty())
        return true;
    const Silence silence;
    if (within)
        setPickfirst(*within);
    Request request = filter.request();
    request.exclude = exclude;
    request.fromSelection = within != nullptr;
    request.tolerance = m_tolerance ? &*m_tolerance : nullptr;
    Result result{};
    m_catalog.module().run(request, nullptr, result);
    if (result.outcome != Outcome::Done)
        return fail(comparison, result.outcome);
    found = pickfirst();
    return true;
}

/// Each part searches what the parts before it have found.
bool Selecting::all(const std::vector<Expression>& parts, const Ids* within, Ids& found)
{
    if (!matches(parts.front(), within, found))
        return false;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const Ids soFar = std::exchange(found, {});
        if (!matches(parts[i], &soFar, found))
            return false;
    }
    return true;
}

bool Selecting::any(const std::vector<Expression>& parts, const Ids* within, Ids& found)
{
    Members members;
    for (const Expression& part : parts) {
        Ids some;
        if (!matches(part, within, some))
            return false;
        members.insert(some.begin(), some.end());
    }
    found = chosen(within ? *within : space(), members, true);
    return true;
}

bool Selecting::excluded(const Expression& expression, const Ids* within, Ids& found)
{
    Ids matching;
    if (!matches(expression, within, matching))
        return false;
    const Members members(matching.begin(), matching.end());
    found = chosen(within ? *within : space(), members, false);
    return true;
}

bool Selecting::fail(const Comparison& comparison, Outcome outcome)
{
    m_problem = {{}, comparison.place, false};
    switch (outcome) {
    case Outcome::BadValue:
        m_problem = {inQuotes(comparison.value) + " is no value for the property " +
                         inQuotes(comparison.subject.back()),
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
    Set set(ids);
    module.listEntities(set.name, visitor, context);
}

void tellSelection(const Module& module, const Ids& selection)
{
    setPickfirst(selection);
    Request request = requestForAll();
    request.fromSelection = !selection.empty();
    request.exclude = selection.empty(); // of everything in the space, nothing is left
    Result result{};
    module.run(request, nullptr, result);
}
