#include <common/lookup.h>

#include <algorithm>

#include <common/nearest_name.h>
#include <runtime/utf8.h>

namespace {

constexpr const wchar_t* kAxes[] = {L"", L" X", L" Y", L" Z"};
constexpr const char* kNoneInDrawing = "; the drawing holds none";

/// The properties as they can be asked for, each coordinate of a point for itself.
std::vector<ChosenProperty> askable(const std::vector<PropertyEntry>& properties, Points points)
{
    std::vector<ChosenProperty> all;
    for (const PropertyEntry& property : properties) {
        const int axes = property.dimensions();
        const int first = axes > 0 && points == Points::ByCoordinate ? 1 : 0;
        for (int axis = first; axis <= axes; ++axis)
            all.push_back({property, axis});
    }
    return all;
}

std::wstring keyOf(const ChosenProperty& choice)
{
    return choice.property.key + kAxes[choice.axis];
}

bool isNamed(const ChosenProperty& choice, const std::wstring& comparableName)
{
    return comparable(choice.listName()) == comparableName ||
           comparable(keyOf(choice)) == comparableName;
}

std::string ambiguous(const std::wstring& name, const std::vector<const ChosenProperty*>& found)
{
    std::string sentence = inQuotes(name) + " names several properties; say one of:";
    for (const ChosenProperty* choice : found) {
        std::wstring key = keyOf(*choice);
        std::erase(key, L'\t');
        sentence += ' ' + inQuotes(key);
    }
    return sentence;
}

} // namespace

std::wstring ChosenProperty::listName() const
{
    return property.listName() + kAxes[axis];
}

Lookup<TypeEntry> findType(const std::vector<TypeEntry>& types, const std::wstring& name)
{
    const std::wstring wanted = comparable(name);
    std::vector<std::wstring> known;
    for (const TypeEntry& type : types) {
        if (comparable(type.displayName) == wanted)
            return {type, {}};
        known.push_back(type.displayName);
    }
    return {std::nullopt, notFound("object type", kdToUtf8(name), known, kNoneInDrawing)};
}

Lookup<ChosenProperty> findProperty(const std::vector<PropertyEntry>& properties,
                                    const std::wstring& name, Points points)
{
    const std::wstring wanted = comparable(name);
    const std::vector<ChosenProperty> all = askable(properties, points);
    std::vector<const ChosenProperty*> found;
    std::vector<std::wstring> known;
    for (const ChosenProperty& choice : all) {
        known.push_back(choice.listName());
        const bool isRepeated = !found.empty() && found.back()->property.key == choice.property.key;
        if (isNamed(choice, wanted) && !isRepeated) // a key may be listed twice
            found.push_back(&choice);
    }
    if (found.empty())
        return {std::nullopt, notFound("property", kdToUtf8(name), known, kNoneInDrawing)};
    if (found.size() > 1)
        return {std::nullopt, ambiguous(name, found)};
    return {*found.front(), {}};
}

Lookup<std::wstring> findOperator(const std::vector<std::wstring>& offered,
                                  const std::wstring& text)
{
    const std::wstring wanted = text == L"all" ? L"" : text;
    if (std::find(offered.begin(), offered.end(), wanted) != offered.end())
        return {wanted, {}};
    std::vector<std::wstring> known = offered;
    std::replace(known.begin(), known.end(), std::wstring(), std::wstring(L"all"));
    return {std::nullopt,
            "no operator " + inQuotes(text) + " for this property. There are: " + commaList(known)};
}
