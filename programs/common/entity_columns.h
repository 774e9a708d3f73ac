/// What is printed of each selected entity.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <common/lookup.h>
#include <common/row_format.h>

/// Reads columns of entities: "File", "Space", "Handle", "Type", "Class", and properties by name or
/// key.
class EntityColumns
{
  public:
    EntityColumns(const Module& module, std::string file, std::vector<std::string> columns);

    void setSpace(std::string space) { m_space = std::move(space); }
    Row row(const quick_select::Entity& entity);
    /// True if an entity of the drawing had the property of every column that names one; otherwise
    /// `missing` is a column that none had.
    bool allFound(std::string& missing) const;

  private:
    Cell cell(const quick_select::Entity& entity, std::size_t column);
    Cell propertyCell(const quick_select::Entity& entity, std::size_t column);
    Cell openKeyCell(const quick_select::Entity& entity, std::size_t column);

    const Module& m_module;
    std::string m_file;
    std::string m_space;
    std::vector<std::string> m_columns;
    std::vector<bool> m_found;
    /// By class, display name and column: the property, if the type has it.
    std::map<std::wstring, std::vector<std::optional<ChosenProperty>>> m_properties;
};

/// The columns without an option: "Handle", "Type" and "Layer", behind "File" and "Space" where
/// there may be several.
std::vector<std::string> defaultColumns(bool withFile, bool withSpace);

/// The value of a property as a cell: of a point with an axis one coordinate.
Cell propertyValueCell(const PropertyEntry& property, int axis);
