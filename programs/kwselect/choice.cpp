#include "choice.h"

#include <algorithm>
#include <iostream>

namespace {

bool fail(const Options& options, const std::string& problem)
{
    std::cerr << "kwselect: " << options.drawing << ": " << problem << '\n';
    return false;
}

/// What a search over all types can ask for: the properties that every type has.
std::vector<PropertyEntry> commonProperties(const Module& module,
                                            const std::vector<TypeEntry>& types)
{
    std::vector<PropertyEntry> common = propertiesOf(module, types.front().example, true);
    for (const TypeEntry& type : types) {
        const auto own = propertiesOf(module, type.example, false);
        std::erase_if(common, [&](const PropertyEntry& property) {
            return std::none_of(own.begin(), own.end(),
                                [&](const PropertyEntry& o) { return o.key == property.key; });
        });
    }
    return common;
}

} // namespace

bool choose(const Module& module, const Options& options, Choice& choice)
{
    const std::vector<TypeEntry> types = typesInSpace(module);
    if (!options.type.empty()) {
        const Lookup<TypeEntry> type = findType(types, options.type);
        if (!type.found)
            return fail(options, type.problem);
        choice.type = type.found;
        choice.properties = propertiesOf(module, type.found->example, true);
    } else if (!types.empty()) {
        choice.properties = commonProperties(module, types);
    }
    if (options.property.empty())
        return true;
    const Lookup<ChosenProperty> property = findProperty(choice.properties, options.property);
    if (!property.found)
        return fail(options, property.problem);
    choice.property = property.found;
    return true;
}
