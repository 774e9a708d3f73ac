#include <providers/viewport_provider.h>

#include <algorithm>

#include <providers/name_rows.h>
#include <values/value_lists.h>

namespace {

using StandardScaleType = KdDbViewport::StandardScaleType;

struct ScaleRow
{
    const wchar_t* name;
    int type;
};

/// In the order of a list for people. The blanks differ from name to name: as intended.
constexpr ScaleRow kScales[] = {
    {L"100:1", 18},        {L"10:1", 17},
    {L"1:1", 2},           {L"1:10", 7},
    {L"1:100", 13},        {L"1/128\"= 1'", 19},
    {L"1:16", 8},          {L"1/16\"= 1'", 22},
    {L"1:2", 3},           {L"1:20", 9},
    {L"1/2\" = 1'", 28},   {L"1:30", 10},
    {L"1/32\"= 1'", 21},   {L"1:4", 4},
    {L"1:40", 11},         {L"1/4\" = 1'", 26},
    {L"1:50", 12},         {L"1/64\"= 1'", 20},
    {L"1:8", 6},           {L"1/8\" = 1'", 24},
    {L"1' = 1'", 34},      {L"1\" = 1'", 30},
    {L"2:1", 14},          {L"3/16\"= 1'", 25},
    {L"3/32\"= 1'", 23},   {L"3/4\" = 1'", 29},
    {L"3/8\" = 1'", 27},   {L"3\" = 1'", 32},
    {L"4:1", 15},          {L"6\" = 1'", 33},
    {L"8:1", 16},          {L"Scale is not a standard scale", 1},
    {L"Scaled to Fit", 0},
};

constexpr int kNameByType = 0;
constexpr int kTypeByName = 1;

bool standardScale(const PropertyRequest& request, ValueKind)
{
    KdDbViewport_Extension::StandardScaleFiller filler;
    ResBuf* head = &request.head;
    return filler.fillSTypeGetProps(&static_cast<const KdDbViewport&>(request.entity), head) == 1;
}

/// A shade plot by visual style, 4, has no name.
constexpr NameRow kShadePlots[] = {
    {0, {77961, L"As displayed"}}, {1, {78251, L"Wireframe"}}, {2, {77962, L"Geometric Hidden"}},
    {3, {77963, L"Shaded"}},       {5, {77963, L"Shaded"}},
};

/// The last one is offered, but no viewport answers it: as intended.
constexpr ResourceText kShadePlotChoices[] = {
    {77961, L"As displayed"}, {78251, L"Wireframe"}, {77962, L"Geometric Hidden"},
    {77963, L"Shaded"},       {78200, L"Hidden"},
};

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text              read-only kind              value                                        choices
    {{77549, L"Geometry:Center"},         editable, ResBuf::kPoint3d, value<&KdDbViewport::centerPoint>},
    {{77550, L"Geometry:Height"},         editable, ResBuf::kReal,    value<&KdDbViewport::height>},
    {{77551, L"Geometry:Width"},          editable, ResBuf::kReal,    value<&KdDbViewport::width>},
    {{77552, L"Misc:On"},                 editable, ResBuf::kBool,    value<&KdDbViewport::isOn>},
    {{77554, L"Misc:Display locked"},     editable, ResBuf::kBool,    value<&KdDbViewport::isLocked>},
    {{77556, L"Misc:Standard scale"},     editable, ResBuf::kString,  standardScale}, // all names follow, asked for or not: as intended
    {{77557, L"Misc:Custom scale"},       editable, ResBuf::kReal,    value<&KdDbViewport::customScale>},
    {{77558, L"Misc:UCS per viewport"},   derived,  ResBuf::kBool,    value<&KdDbViewport::isUcsSavedWithViewport>},
    {{77561, L"Misc:Shade plot"},         derived,  ResBuf::kString,  nameOf<&KdDbViewport::shadePlot, kShadePlots>, namesOf<kShadePlotChoices>},
};
// clang-format on

} // namespace

KdDbViewport_Extension::StandardScaleFiller::StandardScaleFiller()
{
    static_assert(std::size(kScales) == std::tuple_size_v<decltype(m_lines)>);
    std::ranges::transform(kScales, m_lines.begin(), [](const ScaleRow& row) {
        return Line{static_cast<StandardScaleType>(row.type), row.name};
    });
}

void KdDbViewport_Extension::StandardScaleFiller::FillScaleByInternalTable(int mode,
                                                                           StandardScaleType& type,
                                                                           KdString& name) const
{
    if (mode == kNameByType) {
        const auto line = std::ranges::find(m_lines, type, &Line::type);
        if (line != m_lines.end())
            name = line->name;
    } else if (mode == kTypeByName) {
        const auto line = std::ranges::find(m_lines, name, &Line::name);
        if (line != m_lines.end())
            type = line->type;
    }
}

void KdDbViewport_Extension::StandardScaleFiller::findScaleNameByType(StandardScaleType type,
                                                                      KdString& name) const
{
    FillScaleByInternalTable(kNameByType, type, name);
}

void KdDbViewport_Extension::StandardScaleFiller::findScaleTypeByName(StandardScaleType& type,
                                                                      KdString name) const
{
    FillScaleByInternalTable(kTypeByName, type, name);
}

int KdDbViewport_Extension::StandardScaleFiller::getScaleName(KdString& name)
{
    if (m_position >= m_lines.size())
        return 0;
    name = m_lines[m_position++].name;
    return 1;
}

int KdDbViewport_Extension::StandardScaleFiller::fillSTypeGetProps(const KdDbViewport* viewport,
                                                                   ResBuf*& result)
{
    if (!viewport)
        return 0;
    KdString name;
    findScaleNameByType(viewport->standardScale(), name);
    result->setRestype(ResBuf::kString);
    result->setString(name);
    resetListName();
    for (ResBuf* tail = result; getScaleName(name) == 1;)
        tail = PropListUtil::addElementToArray(tail, name);
    return 1;
}

int KdDbViewport_Extension::StandardScaleFiller::sTypeSetProps(KdDbViewport* viewport,
                                                               ResBuf*& value) const
{
    if (!viewport)
        return 0;
    StandardScaleType type = viewport->standardScale();
    findScaleTypeByName(type, value->getString());
    viewport->setStandardScale(type);
    return 1;
}

std::span<const PropertyRow> KdDbViewport_Extension::rows()
{
    return kRows;
}
