#include <blocks/block_element_rows.h>

#include <string>

#include <values/value_lists.h>

namespace block_elements {
namespace {

constexpr ResourceText kValueSets[] = {{78088, L"None"}, {78089, L"Increment"}, {78090, L"List"}};

KdString gripCount(const KdDbBlockParameter& parameter)
{
    return KdString(std::to_wstring(parameter.numberOfGrips()));
}

KdString typeName(const KdDbBlockElement& element)
{
    return element.typeName();
}

/// How many grips the parameters of a class have at most.
struct MostGripsRow
{
    KdRxClass* (*rxClass)();
    int most;
};

constexpr MostGripsRow kMostGrips[] = {
    {KdDbBlockPointParameterEntity::desc, 1},      {KdDbBlockRotationParameterEntity::desc, 1},
    {KdDbBlockAlignmentParameterEntity::desc, 1},  {KdDbBlockFlipParameterEntity::desc, 1},
    {KdDbBlockVisibilityParameterEntity::desc, 1}, {KdDbBlockLookupParameterEntity::desc, 1},
    {KdDbBlockLinearParameterEntity::desc, 2},     {KdDbBlockPolarParameterEntity::desc, 2},
};

int mostGrips(const KdDbEntity& entity)
{
    constexpr int kMostOfAll = 4;
    for (const MostGripsRow& row : kMostGrips) {
        if (entity.isKindOf(row.rxClass()))
            return row.most;
    }
    return kMostOfAll;
}

bool gripCounts(const PropertyRequest& request)
{
    if (!request.withChoices)
        return true;
    ResBuf* tail = &request.head;
    for (const int count : {0, 1, 2, 4}) {
        if (count <= mostGrips(request.entity))
            tail = PropListUtil::addElementToArray(tail, std::to_wstring(count).c_str());
    }
    return true;
}

// clang-format off
constexpr PropertyRow kTypeRows[] = {
    {{78071, L"\tProperty Labels:Parameter type"}, derived,  ResBuf::kString,  element<typeName>},
};
constexpr PropertyRow kParameterRows[] = {
    {{78072, L"\tMisc:Show Properties"},           editable, ResBuf::kBool,    element<&KdDbBlockParameter::showProperties>},
    {{78073, L"\tMisc:Chain Actions"},             editable, ResBuf::kBool,    element<&KdDbBlockParameter::chainActions>},
    {{78074, L"\tMisc:Number of Grips"},           editable, ResBuf::kString,  element<gripCount>, gripCounts},
};
constexpr PropertyRow kBaseRows[] = {
    {{78075, L"\tGeometry:\t\t\t\tBase"},          editable, ResBuf::kPoint2d, flatPoint<&KdDbBlockParameter::basePoint>},
};
constexpr PropertyRow kTwoPointRows[] = {
    {{78079, L"\tGeometry:\t\t\t\tStart"},         editable, ResBuf::kPoint2d, flatPoint<&KdDbBlockParameter::basePoint>},
    {{78080, L"\tGeometry:\t\t\t\tEnd"},           editable, ResBuf::kPoint2d, flatPoint<&KdDbBlock2PtParameter::endPoint>},
};
// clang-format on

} // namespace

void storeName(ResBuf& head, ValueKind kind, std::span<const ResourceText> names,
               std::size_t number)
{
    head.setRestype(kind);
    head.setString(number < names.size() ? names[number].text() : KdString());
}

bool chainNames(const PropertyRequest& request, std::span<const ResourceText> names)
{
    if (!request.withChoices)
        return true;
    ResBuf* tail = &request.head;
    for (const ResourceText& name : names)
        tail = PropListUtil::addElementToArray(tail, name.text());
    return true;
}

KdString valueSetName(const KdDbBlockParamValueSet& set)
{
    // A list counts for more than an increment.
    const std::size_t number = set.useValueList() ? 2 : set.useIncrement() ? 1 : 0;
    return kValueSets[number].text();
}

bool valueSetNames(const PropertyRequest& request)
{
    return chainNames(request, kValueSets);
}

std::span<const PropertyRow> typeRows()
{
    return kTypeRows;
}

std::span<const PropertyRow> parameterRows()
{
    return kParameterRows;
}

std::span<const PropertyRow> baseRows()
{
    return kBaseRows;
}

std::span<const PropertyRow> twoPointRows()
{
    return kTwoPointRows;
}

std::span<const PropertyRow> endRows()
{
    return std::span(kTwoPointRows).last(1);
}

} // namespace block_elements
