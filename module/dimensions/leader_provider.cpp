#include <dimensions/dimension_values.h>
#include <dimensions/leader_providers.h>
#include <providers/name_rows.h>
#include <values/arrow_names.h>
#include <values/value_lists.h>

namespace {

const KdDbLeader& leaderOf(const PropertyRequest& request)
{
    return static_cast<const KdDbLeader&>(request.entity);
}

/// All vertices, a record for each, whatever was asked for.
bool vertices(const PropertyRequest& request, ValueKind kind)
{
    const KdDbLeader& leader = leaderOf(request);
    request.head.setRestype(kind);
    ResBuf* tail = &request.head;
    for (int i = 0; i < leader.numVertices(); ++i) {
        if (i > 0)
            tail = tail->setNext(ResBuf::newRb(kind));
        tail->setPoint3d(leader.vertexAt(i));
    }
    return true;
}

bool dimensionStyle(const PropertyRequest& request, ValueKind kind)
{
    return readDimensionStyle(request, kind, leaderOf(request).dimensionStyle());
}

int typeOf(const KdDbLeader& leader)
{
    return (leader.isSplined() ? 2 : 0) + (leader.hasArrowHead() ? 0 : 1);
}

constexpr NameRow kTypes[] = {
    {0, {77978, L"Polyline with Arrow"}},
    {1, {77979, L"Polyline only"}},
    {2, {77980, L"Spline with Arrow"}},
    {3, {77981, L"Spline only"}},
};

// One fewer than for dimensions, as intended.
constexpr NameRow kVerticalPositions[] = {
    {0, {77829, L"Center"}},
    {1, {77830, L"Above"}},
    {2, {77831, L"Outside"}},
    {3, {77832, L"JIS"}},
};

KdString arrow(const KdDbLeader& leader)
{
    return arrowText(leader.dimldrblk());
}

KdString lineweight(const KdDbLeader& leader)
{
    return lineweightText(leader.dimlwd());
}

/// Offered without a display text, too, unlike those of dimensions: as intended.
bool lineweightChoices(const PropertyRequest& request)
{
    if (request.withChoices)
        chainLineweights(request.head);
    return true;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                          read-only  kind                    value                              choices
    {{77110, L"\tGeneral:Associative"},               derived,   ResBuf::kString,        value<associativeText>},
    {{77111, L"Geometry:Vertex"},                     editable,  ResBuf::kPoint3d,       vertices},
    {{76638, L"Geometry:Normal"},                     derived,   ResBuf::kPoint3d,       value<&KdDbLeader::normal>},
    {{77112, L"Misc:Dim style"},                      editable,  ResBuf::kString,        dimensionStyle},
    {{77113, L"Misc:Type"},                           editable,  ResBuf::kString,        nameOf<typeOf, kTypes>,            namesOf<kTypes>},
    {{77114, L"Misc:Annotative"},                     derived,   ResBuf::kBool,          value<&KdDbObject::isAnnotative>},
    {{77610, L"Lines & Arrows:Arrow"},                editable,  ResBuf::kPlotStyleName, name<arrow>},
    {{77611, L"Lines & Arrows:Arrow size"},           editable,  ResBuf::kReal,          value<&KdDbLeader::dimasz>},
    {{77115, L"Lines & Arrows:Dim line lineweight"},  editable,  ResBuf::kString,        value<lineweight>,                 lineweightChoices},
    {{77116, L"Lines & Arrows:Dim line color"},       editable,  ResBuf::kColor,         value<&KdDbLeader::dimclrd>},
    {{77117, L"Fit:Dim scale overall"},               editable,  ResBuf::kReal,          value<&KdDbLeader::dimscale>},
    {{77118, L"Text:Text offset"},                    editable,  ResBuf::kReal,          value<&KdDbLeader::dimgap>},
    {{77119, L"Text:Text pos vert"},                  editable,  ResBuf::kString,        nameOf<&KdDbLeader::dimtad, kVerticalPositions>, namesOf<kVerticalPositions>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbLeader_Extension::rows()
{
    return kRows;
}

void KdDbLeader_Extension::setBLKArray(ResBuf*& result, KdString name)
{
    if (name.isEmpty())
        name = ArrowNameTable.front().key;
    result->setRestype(ResBuf::kString);
    ResBuf* tail = result;
    for (const ArrowName& row : ArrowNameTable) {
        const ResourceText text{row.id, L"ArrowName"};
        if (row.key.compare(name) == 0)
            result->setString(text.text());
        tail = PropListUtil::addElementToArray(tail, text.text());
    }
}
