#include <providers/hatch_provider.h>

#include <cwchar>
#include <limits>
#include <memory>
#include <set>

#include <database/database.h>
#include <runtime/number_text.h>

#include <providers/name_rows.h>
#include <values/value_lists.h>

namespace {

constexpr NameRow kPatternTypes[] = {
    {0, {48460, L"User defined"}},
    {1, {48459, L"Predefined"}},
    {2, {48570, L"Custom"}},
};

constexpr NameRow kStyles[] = {
    {0, {78053, L"Normal"}},
    {1, {78054, L"Outer"}},
    {2, {78055, L"Ignore"}},
};

/// The host's name of a gradient, and the text for it, which has no default.
struct GradientRow
{
    const wchar_t* name;
    ResourceText text;
};

constexpr GradientRow kGradients[] = {
    {L"LINEAR", {78058, nullptr}},        {L"CYLINDER", {78059, nullptr}},
    {L"INVCYLINDER", {78060, nullptr}},   {L"SPHERICAL", {78061, nullptr}},
    {L"HEMISPHERICAL", {78062, nullptr}}, {L"CURVED", {78063, nullptr}},
    {L"INVSPHERICAL", {78064, nullptr}},  {L"INVHEMISPHERICAL", {78065, nullptr}},
    {L"INVCURVED", {78066, nullptr}},
};

bool isGradient(const KdDbHatch& hatch)
{
    return !hatch.isHatch();
}

bool isPattern(const KdDbHatch& hatch)
{
    return hatch.isHatch();
}

/// The key is there for all patterns but those of ISO: as intended.
bool hasPenWidthKey(const KdDbHatch& hatch)
{
    return hatch.isHatch() && hatch.patternName().find(L"ISO") != 0;
}

bool isUserDefined(const KdDbHatch& hatch)
{
    return hatch.patternType() == HatchContent::kUserDefined;
}

bool isNotUserDefined(const KdDbHatch& hatch)
{
    return !isUserDefined(hatch);
}

bool isNotAssociative(const KdDbHatch& hatch)
{
    return !hatch.associative();
}

bool isCentered(const KdDbHatch& hatch)
{
    constexpr float kNear = std::numeric_limits<float>::epsilon();
    const float shift = hatch.gradientShift();
    return shift >= -kNear && shift <= kNear;
}

KdString gradientName(const KdDbHatch& hatch)
{
    for (const GradientRow& row : kGradients) {
        if (::wcscasecmp(row.name, hatch.gradientName().kwszPtr()) == 0)
            return row.text.text();
    }
    return {};
}

bool gradientNames(const PropertyRequest& request)
{
    ResBuf* tail = &request.head;
    for (const GradientRow& row : kGradients) {
        if (request.withChoices)
            tail = PropListUtil::addElementToArray(tail, row.text.text());
    }
    return true;
}

/// A hatch without such a color leaves the record without a value.
template <unsigned Index>
bool gradientColor(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    unsigned count = 0;
    const KdCmColor* colors = nullptr;
    const float* places = nullptr;
    static_cast<const KdDbHatch&>(request.entity).getGradientColors(count, colors, places);
    if (colors && Index < count)
        request.head.setColor(colors[Index]);
    return true;
}

bool area(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    double measured = 0.0;
    try {
        KdDbHatch_Extension().getEntityTotalArea(&request.entity, measured);
    } catch (...) {
        return false; // a host may throw on a boundary that it can't make sense of
    }
    request.head.setDouble(measured);
    return true;
}

/// A tag, and behind it the names that the model's hatches have.
bool patternNames(const PropertyRequest& request)
{
    if (!request.withChoices)
        return true;
    chainTag(request.head, 2);
    KdArray<KdString> names;
    KdDbHatch_Extension::GetHatchPatternNames(names);
    ResBuf* tail = request.head.next();
    for (int i = 0; i < names.length(); ++i)
        tail = PropListUtil::addElementToArray(tail, names[i]);
    return true;
}

using PenWidths = CArray<KdDbHatch_Extension::ISOpWUnit, const KdDbHatch_Extension::ISOpWUnit&>;

/// The pen width whose value the spacing is exactly.
KdString penWidth(const KdDbHatch& hatch)
{
    PenWidths widths;
    KdDbHatch_Extension::FillISOPenWidthList(widths);
    for (int i = 0; i < widths.GetSize(); ++i) {
        if (hatch.patternSpace() == widths.GetAt(i).value)
            return widths.GetAt(i).name;
    }
    return {};
}

bool penWidths(const PropertyRequest& request)
{
    PenWidths widths;
    if (request.withChoices)
        KdDbHatch_Extension::FillISOPenWidthList(widths);
    ResBuf* tail = &request.head;
    for (int i = 0; i < widths.GetSize(); ++i)
        tail = PropListUtil::addElementToArray(tail, widths.GetAt(i).name);
    return true;
}

constexpr auto ifUserDefined = when<KdDbHatch, isUserDefined>;
constexpr auto ifNotUserDefined = when<KdDbHatch, isNotUserDefined>;
constexpr auto ifNotAssociative = when<KdDbHatch, isNotAssociative>;

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                  read-only         kind              value                                            choices, listed
    {{77678, L"Geometry:Elevation"},          editable,         ResBuf::kReal,    value<&KdDbHatch::elevation>},
    {{77613, L"Geometry:Area"},               derived,          ResBuf::kReal,    area},
    {{77683, L"Pattern:Origin"},              editable,         ResBuf::kPoint2d, value<&KdDbHatch::originPoint>},
    {{78047, L"Pattern: Hatch style"},        editable,         ResBuf::kString,  nameOf<&KdDbHatch::hatchStyle, kStyles>,         namesOf<kStyles>},
    {{78048, L"Pattern: Gradient name"},      editable,         ResBuf::kString,  value<gradientName>,                             gradientNames, when<KdDbHatch, isGradient>},
    {{78049, L"Pattern: Gradient angle"},     editable,         ResBuf::kReal,    value<&KdDbHatch::gradientAngle>,                noChoices,     when<KdDbHatch, isGradient>}, // a plain real, as intended
    {{78050, L"Pattern: Gradient color 1"},   editable,         ResBuf::kColor,   gradientColor<0>,                                noChoices,     when<KdDbHatch, isGradient>},
    {{78051, L"Pattern: Gradient color 2"},   editable,         ResBuf::kColor,   gradientColor<1>,                                noChoices,     when<KdDbHatch, isGradient>},
    {{78052, L"Pattern: Gradient shift"},     editable,         ResBuf::kBool,    value<isCentered>,                               noChoices,     when<KdDbHatch, isGradient>},
    {{77679, L"Pattern:Type"},                editable,         ResBuf::kString,  nameOf<&KdDbHatch::patternType, kPatternTypes>,  tag<2>,        when<KdDbHatch, isPattern>},
    {{77680, L"Pattern:Pattern name"},        editable,         ResBuf::kString,  value<&KdDbHatch::patternName>,                  patternNames,  when<KdDbHatch, isPattern>},
    {{78153, L"Pattern:Annotative"},          derived,          ResBuf::kBool,    value<&KdDbObject::isAnnotative>,                noChoices,     when<KdDbHatch, isPattern>},
    {{77681, L"Pattern:Angle"},               editable,         ResBuf::kAngle,   value<&KdDbHatch::patternAngle>,                 noChoices,     when<KdDbHatch, isPattern>},
    {{77682, L"Pattern:Scale"},               ifUserDefined,    ResBuf::kReal,    value<&KdDbHatch::patternScale>,                 noChoices,     when<KdDbHatch, isPattern>},
    {{77684, L"Pattern:Pattern space"},       ifNotUserDefined, ResBuf::kReal,    value<&KdDbHatch::patternSpace>,                 noChoices,     when<KdDbHatch, isPattern>},
    {{77685, L"Pattern:Double"},              ifNotUserDefined, ResBuf::kBool,    value<&KdDbHatch::patternDouble>,                noChoices,     when<KdDbHatch, isPattern>},
    {{78067, L"Geometry:ISO pen width"},      editable,         ResBuf::kString,  value<penWidth>,                                 penWidths,     when<KdDbHatch, hasPenWidthKey>},
    {{77686, L"Pattern:Associative"},         ifNotAssociative, ResBuf::kBool,    value<&KdDbHatch::associative>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbHatch_Extension::rows()
{
    return kRows;
}

int KdDbHatch_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                       KdArray<bool>& flags)
{
    if (!entity || !entity->isKindOf(KdDbHatch::desc()))
        return 0;
    return Table::PropertyCount(entity, names, flags);
}

int KdDbHatch_Extension::getEntityTotalArea(const KdDbEntity* entity, double& area) const
{
    if (entity && entity->isKindOf(KdDbHatch::desc()))
        static_cast<const KdDbHatch*>(entity)->getArea(area);
    return 0;
}

void KdDbHatch_Extension::GetHatchPatternNames(KdArray<KdString>& names)
{
    KdDbDatabase* database = kddbHostApplicationServices()->workingDatabase();
    KdDbBlockTable* table = nullptr;
    if (!database || database->getSymbolTable(table, KdDb::kForRead) != eOk)
        return;
    KdDbObjectId modelId;
    table->getIdAt(kModelSpaceName, modelId);
    table->close();
    KdDbBlockTableRecordIterator* walk = nullptr;
    if (const OpenForRead<KdDbBlockTableRecord> model(modelId);
        !model || model->newIterator(walk) != eOk)
        return;
    const std::unique_ptr<KdDbBlockTableRecordIterator> iterator(walk);
    std::set<KdString> known;
    for (int i = 0; i < names.length(); ++i)
        known.insert(names[i]);
    for (; !iterator->done(); iterator->step()) {
        KdDbObjectId id;
        iterator->getEntityId(id);
        const OpenForRead<KdDbHatch> hatch(id);
        if (hatch && known.insert(hatch->patternName()).second)
            names.append(hatch->patternName());
    }
}

void KdDbHatch_Extension::FillISOPenWidthList(CArray<ISOpWUnit, const ISOpWUnit&>& list)
{
    constexpr int kDecimals = 2;
    for (const int hundredths : {13, 18, 25, 35, 50, 70, 100, 140, 200}) {
        const double width = hundredths * 0.01;
        list.Add({width, KdString(kdPrintFixed(width, kDecimals) + L" mm")});
    }
}
