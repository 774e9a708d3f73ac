#include "lookup.h"

#include <algorithm>
#include <utility>

#include <runtime/utf8.h>

#include "nearest_name.h"

namespace {

constexpr const wchar_t* kAxes[] = {L" X", L" Y", L" Z"};

std::string quoted(const std::wstring& text)
{
    return '"' + kdToUtf8(text) + '"';
}

std::string joined(const std::vector<std::wstring>& names)
{
    std::string list;
    for (const std::wstring& name : names)
        list += (list.empty() ? "" : ", ") + kdToUtf8(name);
    return list;
}

/// "no WHAT "NAME"; did you mean "NEAREST"? There are: ..."
std::string notFound(const std::string& what, const std::string& name,
                     const std::vector<std::wstring>& known)
{
    std::string sentence = "no " + what + " \"" + name + '"';
    if (known.empty())
        return sentence + "; the drawing holds none";
    const std::wstring* nearest = nearestName(kdFromUtf8(name), known);
    sentence += nearest ? "; did you mean " + quoted(*nearest) + '?' : ";";
    return sentence + " There are: " + joined(known);
}

/// Every name under which a property can be asked for.
std::vector<std::pair<std::wstring, ChosenProperty>>
spellings(const std::vector<PropertyEntry>& properties)
{
    std::vector<std::pair<std::wstring, ChosenProperty>> names;
    for (const PropertyEntry& property : properties) {
        const int axes = property.dimensions();
        for (int axis = axes > 0 ? 1 : 0; axis <= axes; ++axis) {
            const std::wstring suffix = axis > 0 ? kAxes[axis - 1] : L"";
            names.push_back({property.listName() + suffix, {property, axis}});
            names.push_back({property.key + suffix, {property, axis}});
        }
    }
    return names;
}

std::string ambiguous(const std::string& name, const std::vector<const ChosenProperty*>& found)
{
    std::string sentence = '"' + name + "\" names several properties; say one of:";
    for (const ChosenProperty* choice : found) {
        std::wstring key = choice->property.key;
        std::erase(key, L'\t');
        sentence += ' ' + quoted(key + (choice->axis > 0 ? kAxes[choice->axis - 1] : L""));
    }
    return sentence;
}

} // namespace

Lookup<TypeEntry> findType(const std::vector<TypeEntry>& types, const std::string& name)
{
    const std::wstring wanted = comparable(kdFromUtf8(name));
    std::vector<std::wstring> known;
    for (const TypeEntry& type : types) {
        if (comparable(type.displayName) == wanted)
            return {type, {}};
        known.push_back(type.displayName);
    }
    return {std::nullopt, notFound("object type", name, known)};
}

Lookup<ChosenProperty> findProperty(const std::vector<PropertyEntry>& properties,
                                    const std::string& name)
{
    const std::wstring wanted = comparable(kdFromUtf8(name));
    const auto names = spellings(properties);
    std::vector<const ChosenProperty*> found;
    std::vector<std::wstring> known;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto& [spelling, choice] = names[i];
        const bool isKey = i % 2 == 1;
        const bool isNew = found.empty() || found.back()->property.key != choice.property.key;
        if (comparable(spelling) == wanted && isNew)
            found.push_back(&choice);
        if (!isKey)
            known.push_back(spelling);
    }
    if (found.empty())
        return {std::nullopt, notFound("property", name, known)};
    if (found.size() > 1)
        return {std::nullopt, ambiguous(name, found)};
    return {*found.front(), {}};
}

Lookup<std::wstring> findOperator(const std::vector<std::wstring>& offered, const std::string& text)
{
    const std::wstring wanted = kdFromUtf8(text == "all" ? "" : text);
    if (std::find(offered.begin(), offered.end(), wanted) != offered.end())
        return {wanted, {}};
    std::vector<std::wstring> known = offered;
    std::replace(known.begin(), known.end(), std::wstring(), std::wstring(L"all"));
    return {std::nullopt,
            "no operator \"" + text + "\" for this property. There are: " + joined(known)};
}
