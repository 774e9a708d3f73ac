#include "listing.h"

#include <common/entity_columns.h>
#include <runtime/utf8.h>

#include "value_tally.h"

namespace {

std::string operatorList(const Module& module, int restype)
{
    std::string list;
    for (const std::wstring& op : operatorsFor(module, restype))
        list += (list.empty() ? "" : " ") + (op.empty() ? "all" : kdToUtf8(op));
    return list;
}

void listTypes(const Catalog& catalog, const RowSink& sink)
{
    for (const TypeEntry& type : catalog.types())
        sink({textCell(kdToUtf8(type.displayName)), numberCell(type.count),
              textCell(kdToUtf8(type.className))});
}

/// Name, category, operators; a point has a row for each coordinate.
void listProperties(const Module& module, const std::vector<PropertyEntry>& properties,
                    const RowSink& sink)
{
    for (const PropertyEntry& property : properties) {
        const std::size_t colon = property.key.find(L':');
        std::wstring category = colon == std::wstring::npos ? L"" : property.key.substr(0, colon);
        std::erase(category, L'\t');
        const int axes = property.dimensions();
        for (int axis = axes > 0 ? 1 : 0; axis <= axes; ++axis) {
            const ChosenProperty chosen{property, axis};
            sink({textCell(kdToUtf8(chosen.listName())), textCell(kdToUtf8(category)),
                  textCell(operatorList(module, property.restype()))});
        }
    }
}

/// One operator a row.
void listOperators(const Module& module, const ChosenProperty& chosen, const RowSink& sink)
{
    for (const std::wstring& op : operatorsFor(module, chosen.property.restype()))
        sink({textCell(op.empty() ? "all" : kdToUtf8(op))});
}

struct ValueSearch
{
    const Module& module;
    const ResolvedFilter& filter;
    ValueTally tally;
};

void takeValue(void* context, const quick_select::Entity& entity)
{
    auto& search = *static_cast<ValueSearch*>(context);
    const auto& type = search.filter.type;
    if (type && (type->displayName != entity.displayName || type->className != entity.className))
        return;
    const ChosenProperty& chosen = *search.filter.property;
    const PropertyEntry property = propertyOf(search.module, entity.id, chosen.property.key);
    if (!property.values.empty())
        search.tally.add(propertyValueCell(property, chosen.axis));
}

/// The values that the entities have, with the number of entities that have each.
void listValues(const Module& module, const ResolvedFilter& filter, const RowSink& sink)
{
    ValueSearch search{module, filter, {}};
    module.listEntities(nullptr, takeValue, &search);
    search.tally.visit(ValueTally::Order::ByValue, sink);
}

} // namespace

bool listCatalog(Catalog& catalog, const Options& options, const RowSink& sink,
                 FilterProblem& problem)
{
    if (options.list == "types") {
        listTypes(catalog, sink);
        return true;
    }
    Comparison comparison;
    comparison.namesType = true;
    comparison.subject.push_back(options.type.empty() ? L"*" : kdFromUtf8(options.type));
    if (!options.property.empty())
        comparison.subject.push_back(kdFromUtf8(options.property));
    ResolvedFilter filter;
    if (!resolve(comparison, catalog, filter, problem))
        return false;
    if (options.list == "values")
        listValues(catalog.module(), filter, sink);
    else if (options.list == "operators")
        listOperators(catalog.module(), *filter.property, sink);
    else
        listProperties(
            catalog.module(),
            filter.type ? catalog.propertiesOf(*filter.type) : catalog.commonProperties(), sink);
    return true;
}
