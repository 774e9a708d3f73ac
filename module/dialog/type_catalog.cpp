#include <dialog/type_catalog.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include <database/database.h>
#include <database/layer_filters.h>
#include <entities/section.h>
#include <plugin/entity_pe.h>

#include <dialog/value_texts.h>
#include <providers/property_row.h>
#include <values/display_name.h>
#include <values/globals.h>
#include <values/table_walk.h>
#include <values/value_chain.h>

namespace {

std::wstring wide(const ResourceText& text)
{
    return std::wstring(text.text().view());
}

std::wstring shortNameOf(std::wstring_view key)
{
    const std::size_t colon = key.find(L':');
    return std::wstring(colon == std::wstring_view::npos ? key : key.substr(colon + 1));
}

constexpr ResourceText kAllTypes = {78023, L"Multiple"};
constexpr ResourceText kGeneral = {78044, L"\tGeneral:"};
constexpr ResourceText kColor = {78033, L"Color"};
constexpr ResourceText kLayer = {78034, L"Layer"};
constexpr ResourceText kLinetype = {78035, L"Linetype"};
constexpr ResourceText kLinetypeScale = {78036, L"Linetype scale"};
constexpr ResourceText kPlotStyle = {78037, L"Plot style"};
constexpr ResourceText kLineweight = {78038, L"Lineweight"};
constexpr ResourceText kHyperlink = {78039, L"Hyperlink"};
constexpr ResourceText kTransparency = {78040, L"Transparency"};
constexpr ResourceText kMaterial = {77369, L"3D Visualization:Material"};

constexpr ResourceText kSharedProperties[] = {
    kColor, kLayer, kLinetype, kLinetypeScale, kPlotStyle, kLineweight, kTransparency, kHyperlink};

struct SharedValue
{
    ResourceText name;
    bool isList;
    ResBuf::ValueType type;
};

constexpr SharedValue kSharedValues[] = {
    {kLinetype, true, ResBuf::kLinetypeName},
    {kLinetypeScale, false, ResBuf::kLinetypeScale},
    {kLineweight, true, ResBuf::kLineweightName},
    {kHyperlink, false, ResBuf::kString},
    {kTransparency, false, ResBuf::kTransparencyText},
};

struct OperatorLabel
{
    Operators op;
    ResourceText label;
};

constexpr OperatorLabel kOperatorLabels[] = {
    {Operators::Equals, {78027, L"= Equals"}},
    {Operators::NotEqual, {78028, L"<> Not Equal"}},
    {Operators::GreaterThan, {78029, L"> Greater Than"}},
    {Operators::LessThan, {78030, L"< Less Than"}},
    {Operators::SelectAll, {78031, L"Select All"}},
    {Operators::WildcardMatch, {78032, L"* Wildcard Match"}},
};

/// The kinds that have operators of their own; all others take those of the first.
constexpr ResBuf::ValueType kKindsWithOperators[] = {
    ResBuf::kNone,
    ResBuf::kLayerName,
    ResBuf::kLinetypeName,
    ResBuf::kPlotStyleChoice,
    ResBuf::kLineweightName,
    ResBuf::kColor,
    ResBuf::kLinetypeScale,
    ResBuf::kReal,
    ResBuf::kAngle,
    ResBuf::kInt8,
    ResBuf::kInt16,
    ResBuf::kInt32,
    ResBuf::kPoint2d,
    ResBuf::kPoint3d,
    ResBuf::kTransparencyText,
    ResBuf::kString,
};

struct Axis
{
    ResourceText name;
    ResourceText bareName; ///< of sections, whose points have none
    const wchar_t* suffix; ///< of the key, in every language
};

constexpr Axis kAxes[] = {
    {{24000, L" X"}, {78237, L"X"}, L" X"},
    {{24001, L" Y"}, {78238, L"Y"}, L" Y"},
    {{24002, L" Z"}, {78239, L"Z"}, L" Z"},
};

/// Of polylines, whose segments each have a width: there is nothing to choose from.
constexpr ResourceText kNeverListed[] = {{78045, L"Start segment width"},
                                         {78046, L"End segment width"}};

bool isNeverListed(int kind, const std::wstring& shortName)
{
    const auto isName = [&](const ResourceText& name) {
        return name.text().compareNoCase(shortName.c_str()) == 0;
    };
    return isPointKind(kind) || std::ranges::any_of(kNeverListed, isName);
}

KdDbDatabase* workingDatabase()
{
    return kddbHostApplicationServices()->workingDatabase();
}

/// Says for the length of a scope that values are gathered.
class Collecting
{
  public:
    Collecting() { g_bIsIni3DSolidProp = true; }
    ~Collecting() { g_bIsIni3DSolidProp = false; }
    Collecting(const Collecting&) = delete;
    Collecting& operator=(const Collecting&) = delete;
};

} // namespace

/// One type while its properties are read.
struct TypeCatalog::Gathering
{
    const std::wstring& typeName;
    const KdDbEntity& entity;
    KdDbEntityPE& provider;
    std::vector<std::wstring> materials;
    std::vector<std::wstring>& shortNames;
    KdArray<KdString> keys;
};

std::wstring TypeCatalog::compositeKey(const std::wstring& typeName, const std::wstring& shortName)
{
    return typeName + L':' + shortName;
}

void TypeCatalog::InitData()
{
    enterOperators();
    enterSharedProperties();
}

void TypeCatalog::enterOperators()
{
    for (const auto& [op, label] : kOperatorLabels) {
        OperatorNames[op] = wide(label);
        OperatorsByName[wide(label)] = op;
    }
    for (const ResBuf::ValueType kind : kKindsWithOperators) {
        const std::span<const Operators> offered = operatorsOf(kind);
        TypeOperators[kind].assign(offered.begin(), offered.end());
    }
}

void TypeCatalog::enterSharedProperties()
{
    const std::wstring allTypes = wide(kAllTypes);
    for (const auto& [name, isList, type] : kSharedValues) {
        Value value({}, type);
        value.isList = isList;
        PropertyValues[compositeKey(allTypes, wide(name))] = std::move(value);
    }
    UpdateLayerPropertyValues();
    std::vector<std::wstring>& names = TypeProperties[allTypes];
    KdArray<KdString>& keys = TypeKeys[allTypes];
    for (const ResourceText& property : kSharedProperties) {
        const std::wstring name = wide(property);
        const std::wstring key = wide(kGeneral) + name;
        names.push_back(name);
        keys.append(KdString(key));
        PropertyKeys[compositeKey(allTypes, name)] = key;
    }
}

void TypeCatalog::AddNewTypeProperties(CStdStr<wchar_t> typeName, KdDbEntity* entity)
{
    if (!entity || TypeProperties.contains(typeName))
        return;
    std::vector<std::wstring>& shortNames = TypeProperties[typeName];
    KdDbEntityPE* provider = KdDbEntityPE::of(*entity);
    if (!provider)
        return;
    std::vector<CStdStr<wchar_t>> materials;
    UpdateMaterialPropertyValues(materials);
    KdArray<KdString> keys;
    KdArray<bool> flags;
    provider->PropertyCount(entity, keys, flags);
    const Collecting collecting;
    Gathering gathering{typeName,   *entity, *provider, {materials.begin(), materials.end()},
                        shortNames, {}};
    for (int i = 0; i < keys.length(); ++i)
        gather(gathering, keys[i]);
    TypeKeys[typeName] = std::move(gathering.keys);
}

void TypeCatalog::gather(Gathering& gathering, const KdString& key)
{
    const std::wstring shortName = shortNameOf(key);
    ValueChain chain;
    gathering.provider.PropertyValueGet(&gathering.entity, key, chain.head(), false, true);
    const ResBuf& head = *chain.head();
    const bool isKnown = GetValue(gathering.typeName, shortName) != nullptr;
    if (!isPointKind(head.restype()))
        list(gathering, shortName, key);
    if (isKnown)
        return;
    enterValue(gathering, shortName, head);
    if (isPointKind(head.restype()))
        enterCoordinates(gathering, key, shortName, head);
    const auto entered = PropertyValues.find(compositeKey(gathering.typeName, shortName));
    if (entered != PropertyValues.end() && isNeverListed(head.restype(), shortName))
        entered->second.isList = false;
}

void TypeCatalog::list(Gathering& gathering, const std::wstring& shortName, const KdString& key)
{
    gathering.shortNames.push_back(shortName);
    gathering.keys.append(key);
    PropertyKeys[compositeKey(gathering.typeName, shortName)] = key.view();
}

void TypeCatalog::enterValue(const Gathering& gathering, const std::wstring& shortName,
                             const ResBuf& head)
{
    const auto kind = static_cast<ResBuf::ValueType>(head.restype());
    Value value(valueText(head, true), kind);
    if (kind == ResBuf::kBool) {
        value.strings = {wide({78056, L"true"}), wide({78057, L"false"})};
    } else if (kind == ResBuf::kColor) {
        value.colors = {head.getColor()};
    } else if (shortName == shortNameOf(kMaterial.text())) {
        value.strings = gathering.materials;
    } else {
        value.strings = choicesBehind(head);
    }
    value.isList = !value.strings.empty() || kind == ResBuf::kColor;
    if (!value.isList && isPointKind(kind))
        return; // its coordinates stand for it
    // All types share one list of plot styles.
    const bool isShared = !value.strings.empty() && shortName == wide(kPlotStyle);
    const std::wstring& owner = isShared ? wide(kAllTypes) : gathering.typeName;
    PropertyValues[compositeKey(owner, shortName)] = std::move(value);
}

void TypeCatalog::enterCoordinates(Gathering& gathering, const KdString& key,
                                   const std::wstring& shortName, const ResBuf& head)
{
    const bool isBare =
        gathering.entity.isKindOf(KdDbSection::desc()) && head.restype() == ResBuf::kPoint3d;
    const Axis* axis = std::begin(kAxes);
    for (const double coordinate : coordinatesOf(head)) {
        const std::wstring name = isBare ? wide(axis->bareName) : shortName + wide(axis->name);
        list(gathering, name, key + axis->suffix);
        PropertyValues[compositeKey(gathering.typeName, name)] =
            Value(lengthText(coordinate), static_cast<ResBuf::ValueType>(head.restype()));
        ++axis;
    }
}

const TypeCatalog::Value* TypeCatalog::GetValue(const CStdStr<wchar_t>& typeName,
                                                const CStdStr<wchar_t>& shortName) const
{
    auto found = PropertyValues.find(compositeKey(wide(kAllTypes), shortName));
    if (found == PropertyValues.end())
        found = PropertyValues.find(compositeKey(typeName, shortName));
    return found == PropertyValues.end() ? nullptr : &found->second;
}

CStdStr<wchar_t> TypeCatalog::GetLocalNameOfKdDbEntity(KdDbEntity* entity) const
{
    if (!entity)
        return {};
    CStdStr<wchar_t> name = GetLocalNameOfKdDbEntityEx(entity);
    if (!name.empty())
        return name;
    const wchar_t* const dxfName = entity->isA()->dxfName();
    return dxfName && *dxfName ? dxfName : entity->isA()->name();
}

void TypeCatalog::UpdateLayerPropertyValues()
{
    KdArray<KdString> layers;
    if (KdDbDatabase* database = workingDatabase())
        GetLayerList(database, layers);
    Value value({}, ResBuf::kLayerName);
    value.isList = true;
    for (int i = 0; i < layers.length(); ++i)
        value.strings.emplace_back(layers[i].view());
    if (value.strings.empty())
        value.strings.emplace_back(L"0");
    PropertyValues[compositeKey(wide(kAllTypes), wide(kLayer))] = std::move(value);
}

void TypeCatalog::UpdateMaterialPropertyValues(std::vector<CStdStr<wchar_t>>& list) const
{
    KdDbDatabase* database = workingDatabase();
    KdDbDictionary* materials = nullptr;
    if (!database || database->getMaterialDictionary(materials, KdDb::kForRead) != eOk)
        return;
    const std::unique_ptr<KdDbDictionaryIterator> iterator(materials->newIterator());
    for (; iterator && !iterator->done(); iterator->next())
        list.emplace_back(iterator->name().view());
    std::sort(list.begin(), list.end(),
              [](const std::wstring& a, const std::wstring& b) { return a < b; });
    materials->close();
}

void TypeCatalog::GetLayerList(KdDbDatabase* database, KdArray<KdString>& list)
{
    const KdLyLayerFilterManager* manager = kdlyGetLayerFilterManager(database);
    const KdLyLayerFilter* root = nullptr;
    const KdLyLayerFilter* current = nullptr;
    if (!manager || manager->getFilters(root, current) != eOk || !current)
        return;
    std::vector<KdString> names;
    walkRecords<KdDbLayerTable>(database, Dependents::Visit,
                                [&](const KdDbLayerTableRecord& layer) {
                                    if (layer.name() != ConstraintsLayerName.c_str())
                                        names.push_back(layer.name());
                                    return Walk::Continue;
                                });
    std::sort(names.begin(), names.end());
    for (const KdString& name : names)
        list.append(name);
}
