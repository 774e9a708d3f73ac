/// What a drawing holds, as the module tells it: types, properties, operators.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <common/module.h>

struct TypeEntry
{
    std::wstring displayName;
    std::wstring className;
    KdDbObjectId example;
    std::size_t count = 0;
};

/// One value, see `quick_select::Value`.
struct CatalogValue
{
    int restype = 0;
    std::wstring text;
    double number = 0.0;
    long long integer = 0;
    double point[3] = {};
};

struct PropertyEntry
{
    std::wstring key;
    bool readOnly = false;
    std::vector<CatalogValue> values; ///< empty if nothing answers for the property
    std::vector<CatalogValue> choices;

    int restype() const;
    bool isPoint() const;
    int dimensions() const; ///< coordinates of a point, otherwise 0
    /// The part of the key behind its first colon, without tabs; the whole key if it has none.
    std::wstring listName() const;
};

std::vector<TypeEntry> typesInSpace(const Module& module);
/// The types of these entities, which may be none.
std::vector<TypeEntry> typesOf(const Module& module, const std::vector<KdDbObjectId>& entities);
std::vector<PropertyEntry> propertiesOf(const Module& module, KdDbObjectId entity,
                                        bool withChoices);
/// One property by its whole key; without values if nothing answers.
PropertyEntry propertyOf(const Module& module, KdDbObjectId entity, const std::wstring& key);
/// The operators that values of a kind offer; the one that selects all is the empty text.
std::vector<std::wstring> operatorsFor(const Module& module, int restype);

/// Without tabs, in lower case: the form in which names are compared.
std::wstring comparable(std::wstring_view name);
