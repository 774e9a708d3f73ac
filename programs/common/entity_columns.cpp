#include <common/entity_columns.h>

#include <algorithm>
#include <utility>

#include <common/handle_text.h>
#include <common/value_text.h>
#include <runtime/utf8.h>

namespace {

bool isFixed(const std::string& column)
{
    constexpr const char* kFixed[] = {"file", "space", "handle", "type", "class"};
    const std::wstring name = comparable(kdFromUtf8(column));
    return std::any_of(std::begin(kFixed), std::end(kFixed),
                       [&](const char* fixed) { return name == kdFromUtf8(fixed); });
}

} // namespace

EntityColumns::EntityColumns(const Module& module, std::string file,
                             std::vector<std::string> columns)
    : m_module(module),
      m_file(std::move(file)),
      m_columns(std::move(columns)),
      m_found(m_columns.size(), false)
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_found[i] = isFixed(m_columns[i]);
}

Row EntityColumns::row(const quick_select::Entity& entity)
{
    Row cells;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        cells.push_back(cell(entity, i));
    return cells;
}

bool EntityColumns::allFound(std::string& missing) const
{
    const auto none = std::find(m_found.begin(), m_found.end(), false);
    if (none == m_found.end())
        return true;
    missing = m_columns[static_cast<std::size_t>(none - m_found.begin())];
    return false;
}

Cell EntityColumns::cell(const quick_select::Entity& entity, std::size_t column)
{
    const std::wstring name = comparable(kdFromUtf8(m_columns[column]));
    if (name == L"file")
        return textCell(m_file);
    if (name == L"space")
        return textCell(m_space);
    if (name == L"handle")
        return textCell(handleText(entity.id.handle()));
    if (name == L"type")
        return textCell(kdToUtf8(entity.displayName));
    if (name == L"class")
        return textCell(kdToUtf8(entity.className));
    return propertyCell(entity, column);
}

Cell EntityColumns::propertyCell(const quick_select::Entity& entity, std::size_t column)
{
    const std::wstring type = std::wstring(entity.className) + L'\n' + entity.displayName;
    const auto [found, isNew] = m_properties.try_emplace(type);
    if (isNew) {
        const auto properties = propertiesOf(m_module, entity.id, false);
        for (const std::string& name : m_columns) {
            Lookup<ChosenProperty> property;
            if (!isFixed(name))
                property = findProperty(properties, kdFromUtf8(name), Points::AlsoWhole);
            found->second.push_back(std::move(property.found));
        }
    }
    const auto& chosen = found->second[column];
    if (!chosen)
        return openKeyCell(entity, column);
    m_found[column] = true;
    return propertyValueCell(propertyOf(m_module, entity.id, chosen->property.key), chosen->axis);
}

/// By the whole key: attributes and the properties of dynamic blocks are listed nowhere.
Cell EntityColumns::openKeyCell(const quick_select::Entity& entity, std::size_t column)
{
    const PropertyEntry property = propertyOf(m_module, entity.id, kdFromUtf8(m_columns[column]));
    if (property.values.empty())
        return {};
    m_found[column] = true;
    return propertyValueCell(property, 0);
}

std::vector<std::string> defaultColumns(bool withFile, bool withSpace)
{
    std::vector<std::string> columns;
    if (withFile)
        columns.push_back("File");
    if (withSpace)
        columns.push_back("Space");
    columns.insert(columns.end(), {"Handle", "Type", "Layer"});
    return columns;
}

Cell propertyValueCell(const PropertyEntry& property, int axis)
{
    PropertyEntry shown = property;
    if (axis > 0) {
        constexpr int kReal = 5001;
        for (CatalogValue& value : shown.values) {
            value.restype = kReal;
            value.number = value.point[axis - 1];
        }
    }
    Cell cell;
    for (const CatalogValue& value : shown.values)
        cell.text += (cell.text.empty() ? "" : " ") + valueText(value);
    cell.json = valuesJson(shown.values);
    return cell;
}
