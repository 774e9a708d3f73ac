#include "account.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include <common/entity_columns.h>
#include <common/value_text.h>
#include <database/database.h>
#include <editor/current_space.h>
#include <editor/system_variables.h>
#include <runtime/utf8.h>

namespace {

using Comparisons = std::vector<const Comparison*>;

void collect(const Expression& expression, Comparisons& comparisons)
{
    if (expression.kind == Expression::Kind::Comparison)
        comparisons.push_back(&expression.comparison);
    for (const Expression& part : expression.parts)
        collect(part, comparisons);
}

Comparisons comparisonsOf(const SelectionStep& step)
{
    Comparisons comparisons;
    collect(step.expression, comparisons);
    return comparisons;
}

Expression asExpression(const Comparison& comparison)
{
    Expression expression;
    expression.comparison = comparison;
    return expression;
}

bool isOfType(const quick_select::Entity& entity, const ResolvedFilter& filter)
{
    return !filter.type || (filter.type->displayName == entity.displayName &&
                            filter.type->className == entity.className);
}

struct Holders
{
    const Module& module;
    const ResolvedFilter& filter;
    std::size_t ofType = 0;
    std::size_t lacking = 0;
};

void countHolder(void* context, const quick_select::Entity& entity)
{
    auto& holders = *static_cast<Holders*>(context);
    if (!isOfType(entity, holders.filter))
        return;
    ++holders.ofType;
    const auto& property = holders.filter.property;
    if (property && propertyOf(holders.module, entity.id, property->property.key).values.empty())
        ++holders.lacking;
}

std::string precisionText(const Plan& plan)
{
    if (plan.options.tolerance)
        return "--tolerance";
    resbuf precision{};
    return kdedGetVar(L"LUPREC", &precision) == RTNORM
               ? "LUPREC " + std::to_string(precision.resval.rint)
               : std::string("no LUPREC");
}

/// Within what reals count as equal, with the range where the value is a plain number.
std::string toleranceText(const Plan& plan, const Module& module, const ResolvedFilter& filter)
{
    constexpr int kReal = 5001;
    const int kind = filter.property ? filter.property->property.restype() : 0;
    const bool isReal = kind == kReal || (filter.property && filter.property->axis > 0);
    if (!isReal || filter.op.empty())
        return {};
    const double tolerance = plan.options.tolerance.value_or(module.tolerance());
    const std::string value = kdToUtf8(filter.value);
    double number = 0.0;
    const auto read = std::from_chars(value.data(), value.data() + value.size(), number);
    std::string text = "; equal within " + numberText(tolerance);
    if (read.ec == std::errc() && read.ptr == value.data() + value.size())
        text = "; " + value + " equals " + numberText(number - tolerance) + " to " +
               numberText(number + tolerance);
    return text + " (" + precisionText(plan) + ')';
}

void tellComparison(std::ostream& stream, const Comparison& comparison, const Plan& plan,
                    const SearchScope& scope, Selecting& selecting)
{
    stream << "  " << kdToUtf8(textOf(comparison)) << ": ";
    ResolvedFilter filter;
    FilterProblem problem;
    Ids matching;
    if (scope.catalog.types().empty()) {
        stream << "nothing is selected to search in\n";
        return;
    }
    if (!resolve(comparison, scope.catalog, filter, problem) ||
        !selecting.matches(asExpression(comparison), scope, matching)) {
        stream << "not known here\n"; // the search has told why
        return;
    }
    const Module& module = scope.catalog.module();
    Holders holders{module, filter};
    visitEntities(module, scope.within ? *scope.within : selecting.space(), countHolder, &holders);
    stream << matching.size() << " of " << holders.ofType << " match";
    if (filter.property)
        stream << ", " << holders.lacking << " lack the property";
    stream << toleranceText(plan, module, filter) << '\n';
}

std::optional<KdDbHandle> readHandle(const std::string& text)
{
    KdDbHandle handle = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, handle, 16);
    return read.ec == std::errc() && read.ptr == end ? std::optional(handle) : std::nullopt;
}

bool isIn(const Ids& ids, KdDbObjectId id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

/// Looks at one entity for the answer to "why".
class Why
{
  public:
    Why(std::ostream& stream, const SearchScope& scope, Selecting& selecting)
        : m_stream(stream), m_scope(scope), m_selecting(selecting)
    {
    }

    void tell(const quick_select::Entity& entity, const Comparison& comparison)
    {
        ResolvedFilter filter;
        FilterProblem problem;
        Ids found;
        const Ids within{entity.id};
        std::string reason;
        if (m_scope.within && !isIn(*m_scope.within, entity.id)) {
            reason = "it is not selected by the filters before";
        } else if (!resolve(comparison, m_scope.catalog, filter, problem)) {
            reason = problem.sentence;
        } else if (!m_selecting.matches(asExpression(comparison), {m_scope.catalog, &within},
                                        found)) {
            reason = m_selecting.problem().sentence;
        } else {
            reason = reasonOf(entity, filter);
        }
        m_stream << (found.empty() ? "  no   " : "  yes  ") << kdToUtf8(textOf(comparison)) << ": "
                 << reason << '\n';
    }

  private:
    std::string reasonOf(const quick_select::Entity& entity, const ResolvedFilter& filter) const
    {
        if (!isOfType(entity, filter))
            return "it is a " + kdToUtf8(entity.displayName);
        if (!filter.property)
            return "every " + kdToUtf8(filter.type ? entity.displayName : L"entity") + " is";
        const PropertyEntry property =
            propertyOf(m_scope.catalog.module(), entity.id, filter.property->property.key);
        if (property.values.empty())
            return "it lacks the property";
        return kdToUtf8(filter.property->listName()) + " is " +
               propertyValueCell(property, filter.property->axis).text;
    }

    std::ostream& m_stream;
    SearchScope m_scope;
    Selecting& m_selecting;
};

struct Sought
{
    Why& why;
    const Comparisons& comparisons;
    KdDbObjectId id;
};

void tellSought(void* context, const quick_select::Entity& entity)
{
    auto& sought = *static_cast<Sought*>(context);
    for (const Comparison* comparison : sought.comparisons)
        sought.why.tell(entity, *comparison);
}

} // namespace

void tellAccount(std::ostream& stream, const AccountFrame& frame, const Plan& plan,
                 Catalog& catalog, Selecting& selecting)
{
    std::size_t candidates = 0;
    for (const TypeEntry& type : catalog.types())
        candidates += type.count;
    stream << frame.title << ": " << selecting.selection().size() << " of "
           << selecting.space().size() << " selected\n";
    Selecting again = selecting;
    again.setSelection({});
    for (const SelectionStep& step : plan.steps) {
        StepScope scope(catalog, step, again.selection());
        for (const Comparison* comparison : comparisonsOf(step))
            tellComparison(stream, *comparison, plan, scope.scope(), again);
        again.carryOut(step);
    }
    stream << "  " << candidates - selecting.space().size() << " on frozen layers are left out, "
           << frame.unread << " could not be read\n";
}

WhyAnswer tellWhy(std::ostream& stream, const std::string& handle, const Plan& plan,
                  Catalog& catalog, Selecting& selecting)
{
    KdDbObjectId id;
    const std::optional<KdDbHandle> number = readHandle(handle);
    const KdDbDatabase* drawing = kddbHostApplicationServices()->workingDatabase();
    if (!number || drawing->getObjectId(id, *number) != eOk)
        return WhyAnswer::NotHere;
    const OpenForRead<KdDbEntity> entity(id);
    if (!entity || entity->blockId() != kdedCurrentSpaceId())
        return WhyAnswer::NotHere;
    Selecting again = selecting;
    for (const SelectionStep& step : plan.steps)
        selecting.carryOut(step);
    const bool isSelected = plan.steps.empty() || isIn(selecting.selection(), id);
    stream << handle << " on layer " << kdToUtf8(entity->layer().kwszPtr()) << " is "
           << (isSelected ? "" : "not ") << "selected\n";
    if (!isIn(selecting.space(), id))
        stream << "  its layer is frozen, or it can't be selected\n";
    for (const SelectionStep& step : plan.steps) {
        StepScope scope(catalog, step, again.selection());
        Why why(stream, scope.scope(), again);
        const Comparisons comparisons = comparisonsOf(step);
        Sought sought{why, comparisons, id};
        visitEntities(catalog.module(), {id}, tellSought, &sought);
        again.carryOut(step);
    }
    return isSelected ? WhyAnswer::Selected : WhyAnswer::NotSelected;
}
