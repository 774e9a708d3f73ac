#include <common/catalog.h>

#include <common/entity_set.h>
#include <runtime/kd_string.h>

namespace {

constexpr int kPoint2d = 5002;
constexpr int kPoint3d = 5009;
constexpr int kNone = 5000;

CatalogValue copyOf(const quick_select::Value& value)
{
    return {value.restype,
            value.text,
            value.number,
            value.integer,
            {value.point[0], value.point[1], value.point[2]}};
}

void addProperty(void* context, const quick_select::Property& property)
{
    PropertyEntry entry{property.key, property.readOnly, {}, {}};
    for (std::size_t i = 0; i < property.valueCount; ++i)
        entry.values.push_back(copyOf(property.values[i]));
    for (std::size_t i = 0; i < property.choiceCount; ++i)
        entry.choices.push_back(copyOf(property.choices[i]));
    static_cast<std::vector<PropertyEntry>*>(context)->push_back(std::move(entry));
}

void addType(void* context, const quick_select::Type& type)
{
    static_cast<std::vector<TypeEntry>*>(context)->push_back(
        {type.displayName, type.className, type.example, type.count});
}

void addOperator(void* context, const wchar_t* text)
{
    static_cast<std::vector<std::wstring>*>(context)->push_back(text);
}

} // namespace

int PropertyEntry::restype() const
{
    return values.empty() ? kNone : values.front().restype;
}

bool PropertyEntry::isPoint() const
{
    return dimensions() > 0;
}

int PropertyEntry::dimensions() const
{
    return restype() == kPoint3d ? 3 : restype() == kPoint2d ? 2 : 0;
}

std::wstring PropertyEntry::listName() const
{
    std::wstring name = key.substr(key.find(L':') + 1);
    std::erase(name, L'\t');
    return name;
}

std::vector<TypeEntry> typesInSpace(const Module& module)
{
    std::vector<TypeEntry> types;
    module.listTypes(nullptr, addType, &types);
    return types;
}

std::vector<TypeEntry> typesOf(const Module& module, const std::vector<KdDbObjectId>& entities)
{
    std::vector<TypeEntry> types;
    if (entities.empty())
        return types;
    EntitySet set(entities);
    module.listTypes(set.name(), addType, &types);
    return types;
}

std::vector<PropertyEntry> propertiesOf(const Module& module, KdDbObjectId entity, bool withChoices)
{
    std::vector<PropertyEntry> properties;
    module.listProperties(entity, nullptr, withChoices, addProperty, &properties);
    return properties;
}

PropertyEntry propertyOf(const Module& module, KdDbObjectId entity, const std::wstring& key)
{
    std::vector<PropertyEntry> properties;
    module.listProperties(entity, key.c_str(), false, addProperty, &properties);
    return properties.empty() ? PropertyEntry{key, false, {}, {}} : std::move(properties.front());
}

std::vector<std::wstring> operatorsFor(const Module& module, int restype)
{
    std::vector<std::wstring> operators;
    module.listOperators(restype, addOperator, &operators);
    return operators;
}

std::wstring comparable(std::wstring_view name)
{
    std::wstring form;
    for (const wchar_t character : name) {
        if (character != L'\t')
            form += kdFoldCase(character);
    }
    return form;
}
