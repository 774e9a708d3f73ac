#include <kwdraw/panels/property_merge.h>

#include <algorithm>
#include <utility>

#include <common/open_keys.h>
#include <common/value_text.h>

namespace {

constexpr int kPoint2d = 5002;
constexpr int kPoint3d = 5009;

bool isEqual(const CatalogValue& a, const CatalogValue& b)
{
    return a.restype == b.restype && a.text == b.text && a.number == b.number &&
           a.integer == b.integer &&
           std::equal(std::begin(a.point), std::end(a.point), std::begin(b.point));
}

/// Numbers beyond the precision of the drawing look alike, and count as the same.
bool looksEqual(const CatalogValue& a, const CatalogValue& b)
{
    return isEqual(a, b) || shownText(a) == shownText(b);
}

void compareAxes(MergedProperty& merged, const CatalogValue& value)
{
    constexpr int kReal = 5001;
    for (int i = 0; i < merged.dimensions(); ++i) {
        const CatalogValue mine{kReal, {}, merged.values.front().point[i], 0, {}};
        const CatalogValue other{kReal, {}, value.point[i], 0, {}};
        merged.axisVaries[i] = merged.axisVaries[i] || !looksEqual(mine, other);
    }
}

void addValues(MergedProperty& merged, const std::vector<CatalogValue>& values)
{
    ++merged.entities;
    if (!merged.varies)
        merged.varies = !std::equal(merged.values.begin(), merged.values.end(), values.begin(),
                                    values.end(), looksEqual);
    if (!merged.varies || !merged.isPoint())
        return;
    if (values.size() == 1 && values.front().restype == merged.values.front().restype)
        compareAxes(merged, values.front());
    else
        std::fill(std::begin(merged.axisVaries), std::end(merged.axisVaries), true);
}

/// The property of that key. Entities of a type list theirs in one order as a rule, so the place
/// of the one before is a good guess.
template <class Properties>
auto findKey(Properties& properties, const std::wstring& key, std::size_t guess)
    -> decltype(properties.data())
{
    if (guess < properties.size() && properties[guess].key == key)
        return &properties[guess];
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [&](const MergedProperty& p) { return p.key == key; });
    return found == properties.end() ? nullptr : &*found;
}

/// @param listed  how many of the entries are no open keys; they come first
void addEntity(MergedType& type, std::vector<PropertyEntry> entries, std::size_t listed)
{
    std::size_t guess = 0;
    ++type.entities;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        PropertyEntry& entry = entries[i];
        if (MergedProperty* known = findKey(type.properties, entry.key, guess)) {
            guess = static_cast<std::size_t>(known - type.properties.data()) + 1;
            if (known->entities < type.entities) // a key may be listed twice
                addValues(*known, entry.values);
        } else if (type.entities == 1) { // what the first one lacks they don't have in common
            type.properties.push_back({std::move(entry.key),
                                       std::move(entry.values),
                                       entry.readOnly,
                                       i >= listed,
                                       false,
                                       {},
                                       1});
            guess = type.properties.size();
        }
    }
}

/// Two merged properties become one.
void join(MergedProperty& merged, const MergedProperty& other)
{
    addValues(merged, other.values);
    merged.entities += other.entities - 1;
    merged.readOnly = merged.readOnly || other.readOnly;
    merged.varies = merged.varies || other.varies;
    for (int i = 0; i < 3; ++i)
        merged.axisVaries[i] = merged.axisVaries[i] || other.axisVaries[i];
}

bool isOfAll(const MergedProperty& property, const MergedType& type)
{
    return property.entities == type.entities;
}

} // namespace

int MergedProperty::dimensions() const
{
    const int kind = values.empty() ? 0 : values.front().restype;
    return kind == kPoint3d ? 3 : kind == kPoint2d ? 2 : 0;
}

std::wstring MergedProperty::category() const
{
    const std::size_t colon = key.find(L':');
    std::wstring text = colon == std::wstring::npos ? L"" : key.substr(0, colon);
    std::erase(text, L'\t');
    return text;
}

std::wstring MergedProperty::name() const
{
    return PropertyEntry{key, false, {}, {}}.listName();
}

void PropertyMerge::start(std::vector<KdDbObjectId> entities)
{
    m_visit = SlicedVisit(m_module, std::move(entities));
    m_types.clear();
    m_typeByName.clear();
}

void PropertyMerge::readOn(std::chrono::milliseconds time)
{
    m_visit.goOn(time, take, this);
}

void PropertyMerge::take(void* context, const quick_select::Entity& entity)
{
    auto& self = *static_cast<PropertyMerge*>(context);
    std::vector<PropertyEntry> entries = propertiesOf(self.m_module, entity.id, false);
    const std::size_t listed = entries.size();
    appendOpenKeysOf(self.m_module, entity.id, entries);
    addEntity(self.typeOf(entity), std::move(entries), listed);
}

MergedType& PropertyMerge::typeOf(const quick_select::Entity& entity)
{
    const std::wstring name = std::wstring(entity.className) + L'\n' + entity.displayName;
    const auto [found, isNew] = m_typeByName.try_emplace(name, m_types.size());
    if (isNew)
        m_types.push_back({entity.displayName, entity.className, 0, {}});
    return m_types[found->second];
}

std::vector<MergedProperty> PropertyMerge::common(const MergedType* type) const
{
    if (m_types.empty())
        return {};
    const MergedType& first = type ? *type : m_types.front();
    std::vector<MergedProperty> merged;
    std::copy_if(first.properties.begin(), first.properties.end(), std::back_inserter(merged),
                 [&](const MergedProperty& property) { return isOfAll(property, first); });
    if (type)
        return merged;
    for (std::size_t i = 1; i < m_types.size(); ++i) {
        std::vector<MergedProperty> shared;
        for (MergedProperty& property : merged) {
            const auto* other = findKey(m_types[i].properties, property.key, shared.size());
            if (!other || !isOfAll(*other, m_types[i]))
                continue;
            join(property, *other);
            shared.push_back(std::move(property));
        }
        merged = std::move(shared);
    }
    return merged;
}
