#include <values/value_lists.h>

#include <algorithm>
#include <iterator>

#include <database/color.h>
#include <values/table_walk.h>

namespace {

struct LineWeightRow
{
    int key;
    const wchar_t* name;
};

// clang-format off
constexpr LineWeightRow kLineWeights[] = {
    {0, L"0.00 mm"},    {5, L"0.05 mm"},    {9, L"0.09 mm"},    {13, L"0.13 mm"},
    {15, L"0.15 mm"},   {18, L"0.18 mm"},   {20, L"0.20 mm"},   {25, L"0.25 mm"},
    {30, L"0.30 mm"},   {35, L"0.35 mm"},   {40, L"0.40 mm"},   {50, L"0.50 mm"},
    {53, L"0.53 mm"},   {60, L"0.60 mm"},   {70, L"0.70 mm"},   {80, L"0.80 mm"},
    {90, L"0.90 mm"},   {100, L"1.00 mm"},  {106, L"1.06 mm"},  {120, L"1.20 mm"},
    {140, L"1.40 mm"},  {158, L"1.58 mm"},
    {200, L"2.0 mm"}, // as intended
    {211, L"2.11 mm"},
    {-1, L"ByLayer"},   {-2, L"ByBlock"},   {-3, L"Default"},
};
// clang-format on

constexpr int kFirstStandardColor = 1;
constexpr int kLastStandardColor = 7;

template <class Table>
void appendNames(std::vector<listUnit>& list, Dependents dependents)
{
    walkRecords<Table>(kddbHostApplicationServices()->workingDatabase(), dependents,
                       [&](const KdDbSymbolTableRecord& record) {
                           listUnit line;
                           record.getName(line.name);
                           list.push_back(std::move(line));
                           return Walk::Continue;
                       });
}

} // namespace

void PropListFiller::fillTextStyle()
{
    appendNames<KdDbTextStyleTable>(textStyles, Dependents::Visit);
}

void PropListFiller::fillLayer()
{
    appendNames<KdDbLayerTable>(layers, Dependents::Skip);
}

void PropListFiller::fillLineType()
{
    appendNames<KdDbLinetypeTable>(lineTypes, Dependents::Skip);
}

void PropListFiller::fillLineWeight()
{
    lineWeights.reserve(lineWeights.size() + std::size(kLineWeights));
    for (const LineWeightRow& row : kLineWeights)
        lineWeights.push_back({row.name, row.key});
}

int PropListUtil::findByString(std::vector<listUnit>* list, KdString& text)
{
    if (!list)
        return 0;
    const auto line = std::ranges::find(*list, text, &listUnit::name);
    return line == list->end() ? 0 : line->key;
}

KdString PropListUtil::findByKey(std::vector<listUnit>* list, int key)
{
    if (!list)
        return {};
    const auto line = std::ranges::find(*list, key, &listUnit::key);
    return line == list->end() ? KdString() : line->name;
}

ResBuf* PropListUtil::addElementToArray(ResBuf*& tail, const KdString& text)
{
    ResBuf* const element = ResBuf::newRb(ResBuf::kString);
    element->setString(text);
    return tail->setNext(element);
}

ResBuf* PropListUtil::addStandartColorList(ResBuf* tail)
{
    for (int index = kFirstStandardColor; index <= kLastStandardColor; ++index) {
        KdCmColor color;
        color.setColorMethod(KdCmColor::kByACI);
        color.setColorIndex(index);
        tail = tail->setNext(ResBuf::newRb(ResBuf::kColor));
        tail->setColor(color);
    }
    return tail;
}

KdDbObjectId PropListUtil::findLineTypeIdByName(KdString& name)
{
    KdDbObjectId found;
    walkRecords<KdDbLinetypeTable>(kddbHostApplicationServices()->workingDatabase(),
                                   Dependents::Skip, [&](const KdDbSymbolTableRecord& record) {
                                       if (record.name().compare(name) != 0)
                                           return Walk::Continue;
                                       found = record.objectId();
                                       return Walk::Stop;
                                   });
    return found;
}
