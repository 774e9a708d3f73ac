#include "dump.h"

#include <iostream>

#include <runtime/utf8.h>

#include "handle_text.h"
#include "value_text.h"

namespace {

using Json = nlohmann::ordered_json;

Json propertyJson(const PropertyEntry& property)
{
    Json json;
    json["key"] = kdToUtf8(property.key);
    json["restype"] = property.restype();
    json["value"] = valuesJson(property.values);
    return json;
}

void dumpEntity(const Module& module, const quick_select::Entity& entity)
{
    Json json;
    json["handle"] = handleText(entity.id.handle());
    json["className"] = kdToUtf8(entity.className);
    json["displayName"] = kdToUtf8(entity.displayName);
    json["properties"] = Json::array();
    for (const PropertyEntry& property : propertiesOf(module, entity.id, false))
        json["properties"].push_back(propertyJson(property));
    std::cout << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

void dumpVisited(void* context, const quick_select::Entity& entity)
{
    dumpEntity(*static_cast<const Module*>(context), entity);
}

} // namespace

void dumpEntities(const Module& module)
{
    module.listEntities(nullptr, dumpVisited, const_cast<Module*>(&module));
}
