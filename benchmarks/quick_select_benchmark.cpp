#include "suites.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <common/catalog.h>

#include "sample_drawing.h"

namespace {

/// A filter as a person would set it; an empty type is all types.
struct Filter
{
    const char* name;
    const wchar_t* type;
    const wchar_t* property;
    const wchar_t* operatorText;
    const wchar_t* value;
    int axis = 0; ///< of a point: 1 X, 2 Y, 3 Z
    bool exclude = false;
    bool append = false;
};

constexpr Filter kFilters[] = {
    {"circles by radius", L"Circle", L"Radius", L">", L"50"},
    {"lines by length", L"Line", L"Length", L"<", L"40"},
    {"texts by contents", L"Text", L"Contents", L"*", L"*Valve*"},
    {"everything by layer", L"", L"Layer", L"=", L"PIPE-003"},
    {"everything", L"", L"Layer", L"", L""},
    {"everything but circles by radius", L"Circle", L"Radius", L">", L"50", 0, true},
};

/// Over a selection of everything: both have to do with a million members.
constexpr Filter kAppending = {
    "circles joining everything", L"Circle", L"Radius", L">", L"50", 0, false, true};

/// What a program that counts while a person types asks, one after the other.
constexpr Filter kFiltersAsAPersonTypes[] = {
    {"a number", L"Line", L"Length", L"<", L"40"},
    {"a name", L"Text", L"Contents", L"*", L"*Valve*"},
    {"a layer", L"", L"Layer", L"=", L"PIPE-003"},
    {"a color", L"", L"Color", L"=", L"1,2,3"},
    {"a point", L"Polyline", L"Vertex", L">", L"1000000", 1},
};

/// Over drawings in which nothing stands twice.
constexpr Filter kDistinctFilters[] = {
    {"layer", L"", L"Layer", L"=", L"LAYER-0000001"},
    {"contents", L"Text", L"Contents", L"=", L"Pump 0000001"},
    {"block", L"Block Reference", L"Name", L"=", L"PART-0000001"},
};

/// The same kinds of test, with values that no entity has: nothing is handed over.
constexpr Filter kFruitlessFilters[] = {
    {"circles by radius", L"Circle", L"Radius", L">", L"1000000"},
    {"lines by start", L"Line", L"Start", L">", L"1000000", 1},
    {"lines by angle", L"Line", L"Angle", L">", L"359.99999"},
    {"lines by layer", L"Line", L"Layer", L"=", L"NOWHERE"},
    {"lines by color", L"Line", L"Color", L"=", L"1,2,3"},
    {"lines by linetype", L"Line", L"Linetype", L"=", L"NOWHERE"},
    {"lines by linetype scale", L"Line", L"Linetype scale", L">", L"1000000"},
    {"polylines by vertex", L"Polyline", L"Vertex", L">", L"1000000", 1},
    {"polylines by length", L"Polyline", L"Length", L">", L"1000000"},
    {"texts by contents", L"Text", L"Contents", L"*", L"*Nothing*"},
    {"hatches by area", L"Hatch", L"Area", L">", L"1000000"},
    {"everything by layer", L"", L"Layer", L"=", L"NOWHERE"},
};

/// A filter in the module's terms. Owns the texts that the request points to.
class Search
{
  public:
    /// Finds type and property in the working drawing.
    Search(const Module& module, const Filter& filter) : m_filter(filter)
    {
        const std::vector<TypeEntry> types = typesInSpace(module);
        const auto wanted = [&](const TypeEntry& type) {
            return !*filter.type || type.displayName == filter.type;
        };
        const auto type = std::find_if(types.begin(), types.end(), wanted);
        if (type == types.end())
            return;
        m_className = *filter.type ? type->className : L"";
        m_example = type->example;
        const std::vector<PropertyEntry> properties = propertiesOf(module, type->example, false);
        const auto property =
            std::find_if(properties.begin(), properties.end(), [&](const PropertyEntry& entry) {
                return entry.listName() == filter.property;
            });
        m_isFound = property != properties.end();
        if (m_isFound)
            m_property = *property;
    }

    bool isFound() const { return m_isFound; }
    /// An entity of the type; null if there is none.
    KdDbObjectId example() const { return m_example; }

    quick_select::Request request() const
    {
        quick_select::Request request{};
        request.typeName = m_filter.type;
        request.className = m_className.c_str();
        request.propertyKey = m_property.key.c_str();
        request.axis = m_filter.axis;
        request.exclude = m_filter.exclude;
        request.append = m_filter.append;
        request.kind = m_property.restype();
        request.operatorText = m_filter.operatorText;
        request.valueText = m_filter.value;
        return request;
    }

  private:
    Filter m_filter;
    bool m_isFound = false;
    std::wstring m_className;
    KdDbObjectId m_example;
    PropertyEntry m_property;
};

bool fail(benchmark::State& state, const char* problem)
{
    state.SkipWithError(problem);
    return false;
}

/// One run, whatever it finds. False, with the benchmark ended, if the module refuses.
bool runWhatever(benchmark::State& state, const Module& module, const Search& search)
{
    if (!search.isFound())
        return fail(state, "the drawing lacks the type or the property");
    quick_select::Result result{};
    module.run(search.request(), nullptr, result);
    if (result.outcome != quick_select::Outcome::Done)
        return fail(state, "the module refused the filter");
    state.counters["matches"] = result.matches;
    return true;
}

/// One run. False, with the benchmark ended, unless the outcome is as wished.
bool run(benchmark::State& state, const Module& module, const Search& search, bool shouldMatch)
{
    if (!runWhatever(state, module, search))
        return false;
    if ((state.counters["matches"] > 0) != shouldMatch)
        return fail(state, shouldMatch ? "nothing matched" : "something matched");
    return true;
}

void countEntity(void* context, const quick_select::Entity&)
{
    ++*static_cast<long*>(context);
}

/// Gathering alone, by the module's listing of all entities.
Measurement gather(const Module& module)
{
    return [&module](benchmark::State& state, long entities) {
        const WorkingDrawing drawing(state, entities, {});
        long listed = 0;
        for (auto _ : state) {
            listed = 0;
            module.listEntities(nullptr, countEntity, &listed);
        }
        if (listed != entities)
            state.SkipWithError("not all entities were gathered");
    };
}

/// Runs over a drawing whose members have all been read.
Measurement repeatedRuns(const Module& module, const Filter& filter, bool shouldMatch)
{
    return [&module, filter, shouldMatch](benchmark::State& state, long entities) {
        ReadOptions options;
        options.readAllMembers = true;
        const WorkingDrawing drawing(state, entities, options);
        const Search search(module, filter);
        for (auto _ : state)
            if (!run(state, module, search, shouldMatch))
                break;
    };
}

/// Runs over a drawing that is held, so that all but the first find it gathered.
Measurement runsInHeldDrawing(const Module& module, const Filter& filter)
{
    return [&module, filter](benchmark::State& state, long entities) {
        ReadOptions options;
        options.readAllMembers = true;
        const WorkingDrawing drawing(state, entities, options);
        module.holdDrawing(true);
        const Search search(module, filter);
        for (auto _ : state)
            if (!runWhatever(state, module, search))
                break;
        module.holdDrawing(false);
    };
}

void countType(void* context, const quick_select::Type&)
{
    ++*static_cast<long*>(context);
}

/// The types of a drawing, for which each block reference is asked for its display name.
Measurement listTypes(const Module& module)
{
    return [&module](benchmark::State& state, long entities) {
        const WorkingDrawing drawing(state, entities, {});
        long listed = 0;
        for (auto _ : state) {
            listed = 0;
            module.listTypes(nullptr, countType, &listed);
        }
        state.counters["matches"] = static_cast<double>(listed);
        if (listed == 0)
            state.SkipWithError("no types were listed");
    };
}

void countChoices(void* context, const quick_select::Property& property)
{
    *static_cast<std::size_t*>(context) += property.choiceCount;
}

/// The values that one property offers, such as the names of all blocks.
Measurement listValues(const Module& module, const Filter& filter)
{
    return [&module, filter](benchmark::State& state, long entities) {
        const WorkingDrawing drawing(state, entities, {});
        const Search search(module, filter);
        std::size_t listed = 0;
        for (auto _ : state) {
            listed = 0;
            module.listProperties(search.example(), search.request().propertyKey, true,
                                  countChoices, &listed);
        }
        state.counters["matches"] = static_cast<double>(listed);
        if (listed < static_cast<std::size_t>(entities) / 2)
            state.SkipWithError("not all values were listed");
    };
}

/// Runs that add to a selection of everything.
Measurement appendingRuns(const Module& module)
{
    return [&module](benchmark::State& state, long entities) {
        ReadOptions options;
        options.readAllMembers = true;
        const WorkingDrawing drawing(state, entities, options);
        const Search everything(module, {"everything", L"", L"Layer", L"", L""});
        const Search search(module, kAppending);
        if (!run(state, module, everything, true))
            return;
        for (auto _ : state)
            if (!run(state, module, search, true))
                break;
    };
}

/// The first run after loading, which reads the members that it needs.
Measurement firstRun(const Module& module, const Filter& filter)
{
    return [&module, filter](benchmark::State& state, long entities) {
        std::optional<WorkingDrawing> drawing;
        for (auto _ : state) {
            state.PauseTiming();
            drawing.reset();
            drawing.emplace(state, entities, ReadOptions{});
            const Search search(module, filter);
            state.ResumeTiming();
            if (!run(state, module, search, true))
                break;
        }
    };
}

} // namespace

void registerDistinct(const Module& module, long entities)
{
    registerMeasurement("distinct/gather", entities, gather(module));
    registerMeasurement("distinct/types", entities, listTypes(module));
    registerMeasurement("distinct/values of block", entities,
                        listValues(module, {"", L"Block Reference", L"Name", L"", L""}));
    for (const Filter& filter : kDistinctFilters)
        registerMeasurement(std::string("distinct/") + filter.name, entities,
                            repeatedRuns(module, filter, true));
}

void registerQuickSelect(const Module& module, long entities)
{
    registerMeasurement("gather", entities, gather(module));
    for (const Filter& filter : kFruitlessFilters)
        registerMeasurement(std::string("match/") + filter.name, entities,
                            repeatedRuns(module, filter, false));
    for (const Filter& filter : kFilters)
        registerMeasurement(std::string("run/") + filter.name, entities,
                            repeatedRuns(module, filter, true));
    for (const Filter& filter : kFiltersAsAPersonTypes)
        registerMeasurement(std::string("again/") + filter.name, entities,
                            runsInHeldDrawing(module, filter));
    registerMeasurement(std::string("run/") + kAppending.name, entities, appendingRuns(module));
    for (const Filter& filter : kFilters)
        registerMeasurement(std::string("first run/") + filter.name, entities,
                            firstRun(module, filter));
}
