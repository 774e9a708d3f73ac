#include <providers/general_rows.h>

#include <memory>
#include <set>

#include <database/database.h>
#include <database/hyperlink.h>
#include <editor/system_variables.h>
#include <editor/units.h>
#include <plugin/entity_pe.h>

#include <providers/row_readers.h>
#include <values/names.h>
#include <values/resource_string.h>
#include <values/value_lists.h>

namespace {

KdDbDatabase* workingDatabase()
{
    return kddbHostApplicationServices()->workingDatabase();
}

/// A plot style can't be set while styles follow from colours.
bool plotStyleFollowsColor(const KdDbEntity*)
{
    resbuf mode{};
    return kdedGetVar(L"PSTYLEMODE", &mode) == RTNORM && mode.resval.rint == 1;
}

KdString lineweightName(const KdDbEntity& entity)
{
    KdString name;
    getLineWeightName(entity.lineWeight(), name);
    return name;
}

bool linetypeScale(const PropertyRequest& request, ValueKind kind)
{
    if (!request.asDisplayText)
        return value<&KdDbEntity::linetypeScale>(request, kind);
    constexpr int kDecimalUnits = 2;
    constexpr int kCurrentPrecision = -1;
    wchar_t buffer[256] = {};
    kddbRToS(request.entity.linetypeScale(), kDecimalUnits, kCurrentPrecision, buffer,
             std::size(buffer));
    request.head.setRestype(ResBuf::kString);
    request.head.setString(buffer);
    return true;
}

/// The share that shines through, in whole percent cut towards zero.
KdString percentText(int alpha)
{
    const auto percent = static_cast<long long>(100 - alpha * 100.0 / 255.0);
    return KdString(std::to_wstring(percent));
}

bool transparency(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    const KdCmTransparency transparency = request.entity.transparency();
    switch (transparency.method()) {
    case KdCmTransparency::kByLayer:
        request.head.setString(L"ByLayer");
        break;
    case KdCmTransparency::kByBlock:
        request.head.setString(L"ByBlock");
        break;
    case KdCmTransparency::kByAlpha:
        request.head.setString(percentText(transparency.alpha()));
        break;
    default:
        break; // a coding that no drawing should hold leaves the record without a value
    }
    return true;
}

KdString firstHyperlink(KdDbEntityHyperlinkPE& links, const KdDbEntity& entity)
{
    bool has = false;
    if (links.hasHyperlink(&entity, has, true) != eOk || !has)
        return {};
    KdDbHyperlinkCollection* collection = nullptr;
    links.getHyperlinkCollection(&entity, collection, true, true);
    const std::unique_ptr<KdDbHyperlinkCollection> owned(collection);
    return owned && owned->count() > 0 ? owned->item(0).name : KdString();
}

bool hyperlink(const PropertyRequest& request, ValueKind kind)
{
    KdRxObject* extension = request.entity.x(KdDbEntityHyperlinkPE::desc());
    if (!extension || !extension->isKindOf(KdDbEntityHyperlinkPE::desc()))
        return false;
    auto& links = static_cast<KdDbEntityHyperlinkPE&>(*extension);
    request.head.setRestype(kind);
    request.head.setString(firstHyperlink(links, request.entity));
    return true;
}

/// Linetypes and lineweights are only offered with their display texts.
bool offersTexts(const PropertyRequest& request)
{
    return request.asDisplayText && request.withChoices;
}

bool linetypeChoices(const PropertyRequest& request)
{
    if (!offersTexts(request))
        return true;
    if (!workingDatabase())
        return false;
    PropListFiller lists;
    lists.fillLineType();
    ResBuf* tail = &request.head;
    for (const listUnit& line : lists.lineTypes)
        tail = PropListUtil::addElementToArray(tail, line.name);
    return true;
}

bool lineweightChoices(const PropertyRequest& request)
{
    if (!offersTexts(request))
        return true;
    CArray<KdDbEntityPE::lwUnit, const KdDbEntityPE::lwUnit&> lines;
    KdDbEntityPE::FillLineWeightList(lines);
    ResBuf* tail = &request.head;
    for (int i = 0; i < lines.GetSize(); ++i)
        tail = PropListUtil::addElementToArray(tail, lines.GetAt(i).name);
    return true;
}

/// The three fixed styles, those of the drawing that are not among them, and "Other...".
std::vector<KdString> plotStyleNames(KdDbDatabase& database)
{
    std::vector<KdString> names{L"ByLayer", L"ByBlock", L"Normal"};
    KdDbDictionary* dictionary = nullptr;
    if (database.getPlotStyleNameDictionary(dictionary, KdDb::kForRead) != eOk || !dictionary)
        return names;
    std::set<KdString> seen(names.begin(), names.end());
    const std::unique_ptr<KdDbDictionaryIterator> iterator(dictionary->newIterator());
    for (; iterator && !iterator->done(); iterator->next()) {
        if (seen.insert(iterator->name()).second)
            names.push_back(iterator->name());
    }
    names.push_back(ResourceText{78014, L"Other..."}.text());
    dictionary->close();
    return names;
}

bool plotStyleChoices(const PropertyRequest& request)
{
    if (!request.withChoices)
        return true;
    KdDbDatabase* database = workingDatabase();
    if (!database)
        return false;
    ResBuf* tail = &request.head;
    for (const KdString& name : plotStyleNames(*database))
        tail = PropListUtil::addElementToArray(tail, name);
    return true;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                  read-only              kind                       value                              choices
    {{76537, L"\tGeneral:Color"},             editable,              ResBuf::kColor,            value<&KdDbEntity::color>},
    {{76538, L"\tGeneral:Layer"},             editable,              ResBuf::kLayerName,        name<&KdDbEntity::layer>},
    {{76539, L"\tGeneral:Linetype"},          editable,              ResBuf::kLinetypeName,     name<&KdDbEntity::linetype>,       linetypeChoices},
    {{76540, L"\tGeneral:Linetype scale"},    editable,              ResBuf::kLinetypeScale,    linetypeScale,                     tag<0>},
    {{76543, L"\tGeneral:Plot style"},        plotStyleFollowsColor, ResBuf::kString,           value<&KdDbEntity::plotStyleName>, plotStyleChoices},
    {{76541, L"\tGeneral:Lineweight"},        editable,              ResBuf::kLineweightName,   name<&lineweightName>,             lineweightChoices},
    {{76556, L"\tGeneral:Transparency"},      editable,              ResBuf::kTransparencyText, transparency},
    {{76542, L"\tGeneral:Hyperlink"},         editable,              ResBuf::kString,           hyperlink,                         tag<2>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> generalRows()
{
    return kRows;
}

bool followsFromLayer(const PropertyRow& row)
{
    return row.read == name<&KdDbEntity::layer>;
}
