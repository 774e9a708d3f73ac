#include <database/dimension_style.h>

#include <algorithm>

#include <database/database.h>

KD_RX_DEFINE(KdDbDimStyleTable, KdDbSymbolTable, L"AcDbDimStyleTable", L"TABLE")
KD_RX_DEFINE(KdDbDimStyleTableRecord, KdDbSymbolTableRecord, L"AcDbDimStyleTableRecord",
             L"DIMSTYLE")

namespace {

constexpr short kApplicationName = 1001;

constexpr const wchar_t* kStandardArrows[] = {
    L"NONE",     L"CLOSED",      L"DOT",        L"CLOSEDFILLED", L"CLOSEDBLANK",
    L"OBLIQUE",  L"ARCHTICK",    L"OPEN",       L"ORIGIN",       L"ORIGIN2",
    L"OPEN90",   L"OPEN30",      L"DOTBLANK",   L"DOTSMALL",     L"BOXFILLED",
    L"BOXBLANK", L"DATUMFILLED", L"DATUMBLANK", L"INTEGRAL",     L"SMALL",
};

} // namespace

DimStyleMembers& KdDbDimStyleTableRecord::edit()
{
    m_xData.clear();
    return static_cast<DimStyleMembers&>(editMembers());
}

const KdDbDimValue& KdDbDimStyleTableRecord::dimensionVariable(KdDbDimVar variable) const
{
    const KdDbDimValue* found = data().variables.find(variable);
    const KdDbDimValue& value = found ? *found : kddbDimVariable(variable).initial;
    if (variable == KdDbDimVar::dimtxsty && std::get<KdDbObjectId>(value).isNull())
        return standardTextStyle();
    return value;
}

const KdDbDimValue& KdDbDimStyleTableRecord::standardTextStyle() const
{
    KdDbObjectId style;
    if (database())
        database()->table<KdDbTextStyleTable>().getIdAt(L"Standard", style);
    return m_standardTextStyle = style;
}

resbuf* KdDbDimStyleTableRecord::xData(const wchar_t* application) const
{
    const resbuf* end = nullptr;
    const resbuf* first = application ? extendedData(application, end) : nullptr;
    if (!first)
        return nullptr;
    const auto known = std::ranges::find_if(m_xData, [application](const ResbufChain& list) {
        return KdNameEqual()(list->resval.rstring, application);
    });
    if (known != m_xData.end())
        return known->get();
    ResbufChain list(kdutNewRb(kApplicationName));
    list->resval.rstring = kdutNewString(application);
    list->rbnext = kdutCopyRb(first, end);
    m_xData.push_back(std::move(list));
    return m_xData.back().get();
}

const KdDbDimValue& DimensionStyleUse::variable(KdDbDimVar variable) const
{
    if (const KdDbDimValue* own = overrides.find(variable))
        return *own;
    if (style.isKindOf(KdDbDimStyleTableRecord::desc())) {
        // A closed record may still be read, and so may what it gave.
        if (const OpenForRead<KdDbDimStyleTableRecord> record(style); record)
            return record->dimensionVariable(variable);
    }
    return kddbDimVariable(variable).initial;
}

KdString KdDmUtil::arrowName(KdDbObjectId block)
{
    if (block.isNull())
        return L"CLOSEDFILLED";
    if (!block.isKindOf(KdDbBlockTableRecord::desc()))
        return {};
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (!record)
        return {};
    const KdString& name = record->name();
    if (!name.view().starts_with(L'_'))
        return name;
    const KdString bare = name.substr(1);
    return isStandardArrow(bare) ? bare : name;
}

bool KdDmUtil::isStandardArrow(const KdString& name)
{
    return std::ranges::any_of(
        kStandardArrows, [&name](const wchar_t* arrow) { return name.compareNoCase(arrow) == 0; });
}
