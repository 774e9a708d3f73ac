#include "listing.h"

#include <iostream>
#include <map>

#include <runtime/utf8.h>

#include "choice.h"
#include "exit_status.h"
#include "value_text.h"

namespace {

constexpr const char* kAxisSuffixes[] = {"", " X", " Y", " Z"};

std::string operatorList(const Module& module, int restype)
{
    std::string list;
    for (const std::wstring& op : operatorsFor(module, restype))
        list += (list.empty() ? "" : " ") + (op.empty() ? "all" : kdToUtf8(op));
    return list;
}

int listTypes(const Module& module)
{
    for (const TypeEntry& type : typesInSpace(module))
        std::cout << kdToUtf8(type.displayName) << '\t' << type.count << '\t'
                  << kdToUtf8(type.className) << '\n';
    return kSelected;
}

/// Name, category, operators; a point has a line for each coordinate.
int listProperties(const Module& module, const Choice& choice)
{
    for (const PropertyEntry& property : choice.properties) {
        const std::size_t colon = property.key.find(L':');
        std::wstring category = colon == std::wstring::npos ? L"" : property.key.substr(0, colon);
        std::erase(category, L'\t');
        const int axes = property.dimensions();
        for (int axis = axes > 0 ? 1 : 0; axis <= axes; ++axis) {
            std::cout << kdToUtf8(property.listName()) << kAxisSuffixes[axis] << '\t'
                      << kdToUtf8(category) << '\t' << operatorList(module, property.restype())
                      << '\n';
        }
    }
    return kSelected;
}

struct ValueCount
{
    const Module& module;
    const Choice& choice;
    std::map<std::string, std::size_t> counts;
};

void countValues(void* context, const quick_select::Entity& entity)
{
    auto& count = *static_cast<ValueCount*>(context);
    if (count.choice.type && (count.choice.type->displayName != entity.displayName ||
                              count.choice.type->className != entity.className))
        return;
    const int axis = count.choice.property->axis;
    for (const PropertyValue& value :
         propertyOf(count.module, entity.id, count.choice.property->property.key).values) {
        PropertyValue shown = value;
        if (axis > 0) {
            constexpr int kReal = 5001;
            shown.restype = kReal;
            shown.number = value.point[axis - 1];
        }
        ++count.counts[valueText(shown)];
    }
}

/// The values that the entities have, with the number of entities that have each.
int listValues(const Module& module, const Choice& choice)
{
    ValueCount count{module, choice, {}};
    module.listEntities(nullptr, countValues, &count);
    for (const auto& [text, number] : count.counts)
        std::cout << text << '\t' << number << '\n';
    return kSelected;
}

} // namespace

int listCatalog(const Module& module, const Options& options)
{
    if (options.list == "types")
        return listTypes(module);
    Choice choice;
    if (!choose(module, options, choice))
        return kCannotWork;
    if (options.list == "properties")
        return listProperties(module, choice);
    if (!choice.property) {
        std::cerr << "kwselect: --list values needs --property\n";
        return kCannotWork;
    }
    return listValues(module, choice);
}
