#include <common/filter_resolving.h>

#include <algorithm>

#include <common/nearest_name.h>
#include <common/open_keys.h>
#include <runtime/utf8.h>

namespace {

constexpr int kNoKind = 5000;

std::wstring joinedFrom(const std::vector<std::wstring>& pieces, std::size_t first)
{
    std::wstring text;
    for (std::size_t i = first; i < pieces.size(); ++i)
        text += (i > first ? L":" : L"") + pieces[i];
    return text;
}

bool fail(FilterProblem& problem, std::string sentence, std::size_t place, bool isMissing)
{
    problem = {std::move(sentence), place, isMissing};
    return false;
}

/// Which pieces name the type and which the property. The answer is the number of pieces before the
/// property.
std::size_t takeType(const Comparison& comparison, const Catalog& catalog, ResolvedFilter& filter)
{
    if (comparison.subject.front() == L"*")
        return 1;
    filter.type = findType(catalog.types(), comparison.subject.front()).found;
    return filter.type ? 1 : 0;
}

/// What is wrong with a subject that names no type and no property that all types have.
std::string unknownSubject(const Comparison& comparison, Catalog& catalog,
                           const std::string& propertyProblem)
{
    const std::wstring& first = comparison.subject.front();
    const std::string typeProblem = findType(catalog.types(), first).problem;
    std::vector<std::wstring> categories;
    for (const PropertyEntry& property : catalog.commonProperties())
        categories.push_back(comparable(property.key.substr(0, property.key.find(L':'))));
    const bool isKey =
        std::find(categories.begin(), categories.end(), comparable(first)) != categories.end();
    if (comparison.subject.size() > 1)
        return isKey ? propertyProblem : typeProblem;
    return comparison.op.empty() ? typeProblem : propertyProblem;
}

bool takeProperty(const Comparison& comparison, Catalog& catalog, std::size_t first,
                  ResolvedFilter& filter, FilterProblem& problem)
{
    const std::wstring name = joinedFrom(comparison.subject, first);
    const auto& properties =
        filter.type ? catalog.propertiesOf(*filter.type) : catalog.commonProperties();
    Lookup<ChosenProperty> property = findProperty(properties, name);
    if (!property.found) {
        const bool typeIsKnown = first > 0;
        return fail(problem,
                    typeIsKnown ? property.problem
                                : unknownSubject(comparison, catalog, property.problem),
                    comparison.place, true);
    }
    filter.property = std::move(property.found);
    return true;
}

bool takeOperator(const Comparison& comparison, const Module& module, ResolvedFilter& filter,
                  FilterProblem& problem)
{
    const int kind = filter.property->property.restype();
    const Lookup<std::wstring> op = findOperator(operatorsFor(module, kind), comparison.op);
    if (!op.found)
        return fail(problem, op.problem, comparison.valuePlace, false);
    filter.op = *op.found;
    filter.value = comparison.value;
    return true;
}

} // namespace

const std::vector<PropertyEntry>& Catalog::propertiesOf(const TypeEntry& type)
{
    const auto [entry, isNew] = m_properties.try_emplace(type.example);
    if (isNew) {
        entry->second = ::propertiesOf(m_module, type.example, true);
        appendOpenKeys(m_module, type, entry->second);
    }
    return entry->second;
}

const std::vector<PropertyEntry>& Catalog::commonProperties()
{
    if (m_common)
        return *m_common;
    m_common.emplace();
    if (!m_types.empty())
        *m_common = propertiesOf(m_types.front());
    for (const TypeEntry& type : m_types) {
        const auto& own = propertiesOf(type);
        std::erase_if(*m_common, [&](const PropertyEntry& property) {
            return std::none_of(own.begin(), own.end(),
                                [&](const PropertyEntry& o) { return o.key == property.key; });
        });
    }
    return *m_common;
}

quick_select::Request ResolvedFilter::request() const
{
    quick_select::Request request{};
    request.typeName = type ? type->displayName.c_str() : L"";
    request.className = type ? type->className.c_str() : L"";
    request.propertyKey = property ? property->property.key.c_str() : L"";
    request.axis = property ? property->axis : 0;
    request.kind = property ? property->property.restype() : kNoKind;
    request.operatorText = op.c_str();
    request.valueText = value.c_str();
    return request;
}

bool resolve(const Comparison& comparison, Catalog& catalog, ResolvedFilter& filter,
             FilterProblem& problem)
{
    const std::size_t first = takeType(comparison, catalog, filter);
    if (first == 0 && comparison.namesType)
        return fail(problem, findType(catalog.types(), comparison.subject.front()).problem,
                    comparison.place, true);
    if (first == comparison.subject.size())
        return comparison.op.empty() ||
               fail(problem, "a property is needed before \"" + kdToUtf8(comparison.op) + '"',
                    comparison.place, false);
    return takeProperty(comparison, catalog, first, filter, problem) &&
           takeOperator(comparison, catalog.module(), filter, problem);
}
