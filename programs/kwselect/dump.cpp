#include "dump.h"

#include <common/handle_text.h>
#include <common/value_text.h>
#include <runtime/utf8.h>

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

Json entityJson(const Module& module, const quick_select::Entity& entity)
{
    Json json;
    json["handle"] = handleText(entity.id.handle());
    json["className"] = kdToUtf8(entity.className);
    json["displayName"] = kdToUtf8(entity.displayName);
    json["properties"] = Json::array();
    for (const PropertyEntry& property : propertiesOf(module, entity.id, false))
        json["properties"].push_back(propertyJson(property));
    return json;
}

struct Context
{
    const Module& module;
    const RowSink& sink;
};

void dumpEntity(void* untyped, const quick_select::Entity& entity)
{
    const auto& context = *static_cast<Context*>(untyped);
    const Json json = entityJson(context.module, entity);
    context.sink({{json.dump(-1, ' ', false, Json::error_handler_t::replace), json}});
}

} // namespace

void dumpEntities(const Module& module, const RowSink& sink)
{
    Context context{module, sink};
    module.listEntities(nullptr, dumpEntity, &context);
}
