#include <kwdraw/panels/select_similar.h>

#include <cmath>
#include <numbers>
#include <set>
#include <tuple>
#include <utility>

#include <common/nearest_name.h>
#include <common/selection_steps.h>
#include <common/value_text.h>
#include <database/entity.h>
#include <database/tables.h>
#include <platform/resources.h>
#include <runtime/utf8.h>

namespace {

constexpr unsigned int kLayerKey = 76538;
constexpr int kLayerName = 8;
constexpr int kAngle = 5004;

/// The whole key of the layer, in the language of the module's texts.
std::wstring layerKey()
{
    constexpr int kLongest = 64;
    wchar_t text[kLongest] = {};
    LoadStringW(LoadResourceDll(L"KwQselectUtilRes.dll"), kLayerKey, text, kLongest);
    return text;
}

/// A whole turn is typed in radians, since in the units of the drawing it is written as none.
std::string typedText(const CatalogValue& value)
{
    const bool isWholeTurn =
        value.restype == kAngle && value.number >= 2.0 * std::numbers::pi - 1.0e-9;
    return isWholeTurn ? numberText(value.number) + 'r' : valueText(value);
}

bool isComparable(const MergedProperty& property, int axis)
{
    const bool varies = axis > 0 ? property.axisVaries[axis - 1] : property.varies;
    if (varies || property.values.size() != 1 || property.isPoint() != (axis > 0))
        return false;
    const CatalogValue& value = property.values.front();
    return std::isfinite(axis > 0 ? value.point[axis - 1] : value.number);
}

/// What entities of one type on one layer have in common.
using Likeness = std::tuple<std::wstring, std::wstring, KdDbObjectId>;

Likeness likenessOf(const quick_select::Entity& entity)
{
    const OpenForRead<KdDbEntity> opened(entity.id);
    return {entity.displayName, entity.className, opened ? opened->layerId() : KdDbObjectId()};
}

bool isFrozen(KdDbObjectId layer)
{
    const OpenForRead<KdDbLayerTableRecord> record(layer);
    return record && record->isFrozen();
}

void takeLikeness(void* context, const quick_select::Entity& entity)
{
    static_cast<std::set<Likeness>*>(context)->insert(likenessOf(entity));
}

struct LikeSearch
{
    const std::set<Likeness>& wanted;
    Ids found;
};

void takeIfLike(void* context, const quick_select::Entity& entity)
{
    auto& search = *static_cast<LikeSearch*>(context);
    if (search.wanted.contains(likenessOf(entity)))
        search.found.push_back(entity.id);
}

RunRequest requestFor(const Likeness& likeness)
{
    const auto& [displayName, className, layer] = likeness;
    const OpenForRead<KdDbLayerTableRecord> record(layer);
    RunRequest request;
    request.typeName = displayName;
    request.className = className;
    request.key = layerKey();
    request.op = L"=";
    request.value = record ? record->name().kwszPtr() : L"";
    request.kind = kLayerName;
    return request;
}

} // namespace

std::optional<RunRequest> similarRequest(const MergedType* type, const MergedProperty& property,
                                         int axis)
{
    if (!isComparable(property, axis))
        return std::nullopt;
    const CatalogValue& value = property.values.front();
    RunRequest request;
    if (type) {
        request.typeName = type->displayName;
        request.className = type->className;
    }
    request.key = property.key;
    request.axis = axis;
    request.kind = value.restype;
    request.op = L"=";
    request.value = kdFromUtf8(axis > 0 ? numberText(value.point[axis - 1]) : typedText(value));
    return request;
}

bool isGeneral(const MergedProperty& property)
{
    const std::wstring key = layerKey();
    const std::size_t colon = key.find(L':');
    return colon != std::wstring::npos && property.key.starts_with(key.substr(0, colon + 1));
}

std::wstring filterText(const RunRequest& request)
{
    const ChosenProperty property{{request.key, false, {}, {}}, request.axis};
    std::wstring category = request.key.substr(0, request.key.find(L':'));
    std::erase(category, L'\t');
    Comparison comparison;
    comparison.subject = {request.typeName.empty() ? L"*" : request.typeName, category,
                          property.listName()};
    comparison.op = request.op;
    comparison.value = request.value;
    return textOf(comparison);
}

bool carryOut(const Module& module, const RunRequest& request, std::string& problem)
{
    using quick_select::Outcome;
    quick_select::Result result{};
    module.run(request.request(), nullptr, result);
    switch (result.outcome) {
    case Outcome::Done:
        return true;
    case Outcome::BadValue:
        problem = inQuotes(request.value) + " can't be searched for";
        return false;
    case Outcome::BadOperator:
        problem = "values of this kind can't be compared by " + inQuotes(request.op);
        return false;
    case Outcome::NoObjects:
        problem = "the space holds no objects";
        return false;
    default:
        problem = "the space can't be searched";
        return false;
    }
}

bool selectSimilar(const Module& module, const std::vector<KdDbObjectId>& entities,
                   std::string& problem)
{
    std::set<Likeness> wanted;
    visitEntities(module, entities, takeLikeness, &wanted);
    std::erase_if(wanted, [](const Likeness& like) { return isFrozen(std::get<2>(like)); });
    if (wanted.empty()) {
        problem = "nothing is selected";
        return false;
    }
    if (wanted.size() == 1)
        return carryOut(module, requestFor(*wanted.begin()), problem);
    // As many runs would take their time over a large drawing.
    LikeSearch search{wanted, {}};
    module.listEntities(nullptr, takeIfLike, &search);
    tellSelection(module, search.found);
    return true;
}
