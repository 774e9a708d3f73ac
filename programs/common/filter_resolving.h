/// From a filter as it is written to the module's own terms, by what a drawing holds.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <common/expression.h>
#include <common/lookup.h>

/// What the current space holds, or some entities of it, asked of the module once and kept. A new
/// space or drawing needs a new catalog.
class Catalog
{
  public:
    explicit Catalog(const Module& module) : m_module(module), m_types(typesInSpace(module)) {}
    Catalog(const Module& module, const std::vector<KdDbObjectId>& entities)
        : m_module(module), m_types(typesOf(module, entities))
    {
    }

    const Module& module() const { return m_module; }
    const std::vector<TypeEntry>& types() const { return m_types; }
    /// With what each offers to choose from.
    const std::vector<PropertyEntry>& propertiesOf(const TypeEntry& type);
    /// What a search over all types can ask for: the properties that every type has.
    const std::vector<PropertyEntry>& commonProperties();

  private:
    const Module& m_module;
    std::vector<TypeEntry> m_types;
    std::map<KdDbObjectId, std::vector<PropertyEntry>> m_properties; ///< by example
    std::optional<std::vector<PropertyEntry>> m_common;
};

/// A comparison in the module's terms.
struct ResolvedFilter
{
    std::optional<TypeEntry> type;          ///< none: all types
    std::optional<ChosenProperty> property; ///< none: the type alone counts
    std::wstring op;                        ///< empty: all that have the property
    std::wstring value;

    /// The record for a run; its texts live as long as this object.
    quick_select::Request request() const;
};

/// Why a filter does not fit the drawing.
struct FilterProblem
{
    std::string sentence;
    std::size_t place = 0; ///< in the text of the expression
    /// The drawing holds no such type or property, which another drawing may.
    bool isMissing = false;
};

/// Finds type, property and operator of a comparison. The first piece of the subject is a type if
/// the drawing has one of that name; `*` stands for all types.
/// @return false: `problem` says what would have been right
bool resolve(const Comparison& comparison, Catalog& catalog, ResolvedFilter& filter,
             FilterProblem& problem);
