// Dictionaries, layouts, and what stands in the named dictionaries.
#include <database/dictionary.h>
#include <database/layout.h>
#include <database/named_objects.h>
#include <entities/draw_order.h>

#include "member_readers.h"

namespace dxf {
namespace {

void readDictionary(RecordReader& reader, DictionaryMembers& dictionary)
{
    KdString name;
    while (reader.next()) {
        switch (reader.code()) {
        case 3:
            name = reader.text();
            break;
        case 350:
        case 360:
            if (const KdDbObjectId id = reader.reference(); !id.isNull())
                dictionary.entries.push_back({name, id});
            break;
        case 340:
            dictionary.defaultId = reader.reference();
            break;
        default:
            break;
        }
    }
}

/// Reals of plot settings by their group codes.
struct PlotReal
{
    int code;
    double& (*place)(PlotSettingsMembers&);
};

template <double PlotSettingsMembers::*Member>
double& memberOf(PlotSettingsMembers& plot)
{
    return plot.*Member;
}

template <KdGePoint2d PlotSettingsMembers::*Member, double KdGePoint2d::*Coordinate>
double& coordinateOf(PlotSettingsMembers& plot)
{
    return plot.*Member.*Coordinate;
}

// clang-format off
constexpr PlotReal kPlotReals[] = {
    {40, memberOf<&PlotSettingsMembers::leftMargin>},
    {41, memberOf<&PlotSettingsMembers::bottomMargin>},
    {42, memberOf<&PlotSettingsMembers::rightMargin>},
    {43, memberOf<&PlotSettingsMembers::topMargin>},
    {44, memberOf<&PlotSettingsMembers::paperWidth>},
    {45, memberOf<&PlotSettingsMembers::paperHeight>},
    {46, coordinateOf<&PlotSettingsMembers::origin, &KdGePoint2d::x>},
    {47, coordinateOf<&PlotSettingsMembers::origin, &KdGePoint2d::y>},
    {48, coordinateOf<&PlotSettingsMembers::windowMinimum, &KdGePoint2d::x>},
    {49, coordinateOf<&PlotSettingsMembers::windowMinimum, &KdGePoint2d::y>},
    {140, coordinateOf<&PlotSettingsMembers::windowMaximum, &KdGePoint2d::x>},
    {141, coordinateOf<&PlotSettingsMembers::windowMaximum, &KdGePoint2d::y>},
    {142, memberOf<&PlotSettingsMembers::scaleNumerator>},
    {143, memberOf<&PlotSettingsMembers::scaleDenominator>},
    {147, memberOf<&PlotSettingsMembers::standardScaleFactor>},
};
// clang-format on

struct PlotText
{
    int code;
    KdString PlotSettingsMembers::*member;
};

constexpr PlotText kPlotTexts[] = {{1, &PlotSettingsMembers::pageSetup},
                                   {2, &PlotSettingsMembers::printer},
                                   {4, &PlotSettingsMembers::paper},
                                   {6, &PlotSettingsMembers::view},
                                   {7, &PlotSettingsMembers::styleSheet}};

struct PlotInteger
{
    int code;
    int PlotSettingsMembers::*member;
};

constexpr PlotInteger kPlotIntegers[] = {{70, &PlotSettingsMembers::flags},
                                         {72, &PlotSettingsMembers::units},
                                         {73, &PlotSettingsMembers::rotation},
                                         {74, &PlotSettingsMembers::area},
                                         {75, &PlotSettingsMembers::standardScale}};

void takePlotSetting(RecordReader& reader, PlotSettingsMembers& plot)
{
    for (const PlotReal& row : kPlotReals) {
        if (row.code == reader.code())
            row.place(plot) = reader.real();
    }
    for (const PlotText& row : kPlotTexts) {
        if (row.code == reader.code())
            plot.*row.member = reader.text();
    }
    for (const PlotInteger& row : kPlotIntegers) {
        if (row.code == reader.code())
            plot.*row.member = reader.integer();
    }
}

void readPlotSettings(RecordReader& reader, PlotSettingsMembers& plot)
{
    while (reader.next())
        takePlotSetting(reader, plot);
}

void readLayout(RecordReader& reader, LayoutMembers& layout)
{
    while (reader.next()) {
        if (!reader.isIn("AcDbLayout")) { // its codes have other meanings
            takePlotSetting(reader, layout);
            continue;
        }
        switch (reader.code()) {
        case 1:
            layout.name = reader.text();
            break;
        case 10:
            layout.limitsMinimum = reader.point2d();
            break;
        case 11:
            layout.limitsMaximum = reader.point2d();
            break;
        case 12:
            layout.insertionBase = reader.point();
            break;
        case 13:
            layout.ucsOrigin = reader.point();
            break;
        case 14:
            layout.extentsMinimum = reader.point();
            break;
        case 15:
            layout.extentsMaximum = reader.point();
            break;
        case 16:
            layout.ucsXAxis = reader.vector();
            break;
        case 17:
            layout.ucsYAxis = reader.vector();
            break;
        case 70:
            layout.layoutFlags = reader.integer();
            break;
        case 71:
            layout.tabOrder = reader.integer();
            break;
        case 146:
            layout.elevation = reader.real();
            break;
        case 330:
            layout.block = reader.reference();
            break;
        case 331:
            layout.lastActiveViewport = reader.handle();
            break;
        case 345:
            layout.ucs = reader.reference();
            break;
        default:
            break;
        }
    }
}

void readScale(RecordReader& reader, ScaleMembers& scale)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 140:
            scale.paperUnits = reader.real();
            break;
        case 141:
            scale.drawingUnits = reader.real();
            break;
        case 290:
            scale.isUnitScale = reader.flag();
            break;
        case 300:
            scale.name = reader.text();
            break;
        default:
            break;
        }
    }
}

void readDictionaryVariable(RecordReader& reader, DictionaryVariableMembers& variable)
{
    while (reader.next()) {
        if (reader.code() == 1)
            variable.value = reader.text();
        else if (reader.code() == 280)
            variable.schema = reader.integer();
    }
}

void readMaterial(RecordReader& reader, MaterialMembers& material)
{
    bool hasName = false;
    while (reader.next()) { // both codes return in what follows
        if (reader.code() == 1 && !hasName) {
            material.name = reader.text();
            hasName = true;
        } else if (reader.code() == 2 && material.description.isEmpty()) {
            material.description = reader.text();
        }
    }
}

void readGroup(RecordReader& reader, GroupMembers& group)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 70:
            group.anonymous = reader.flag();
            break;
        case 71:
            group.selectable = reader.flag();
            break;
        case 300:
            group.description = reader.text();
            break;
        case 340:
            if (const KdDbObjectId id = reader.reference(); !id.isNull())
                group.entities.push_back(id);
            break;
        default:
            break;
        }
    }
}

void readSortentsTable(RecordReader& reader, SortentsTableMembers& table)
{
    while (reader.next()) {
        if (reader.code() == 331)
            table.entries.push_back({reader.reference(), 0});
        else if (reader.code() == 5 && !table.entries.empty()) // the first one is the table's own
            table.entries.back().sortHandle = reader.handle();
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbDictionary, DictionaryMembers, readDictionary>(),
    memberReader<KdDbDictionaryVar, DictionaryVariableMembers, readDictionaryVariable>(),
    memberReader<KdDbGroup, GroupMembers, readGroup>(),
    memberReader<KdDbLayout, LayoutMembers, readLayout>(),
    memberReader<KdDbMaterial, MaterialMembers, readMaterial>(),
    memberReader<KdDbPlotSettings, PlotSettingsMembers, readPlotSettings>(),
    memberReader<KdDbScale, ScaleMembers, readScale>(),
    memberReader<KdDbSortentsTable, SortentsTableMembers, readSortentsTable>(),
};

} // namespace

std::span<const MemberReaderRow> objectReaders()
{
    return kRows;
}

} // namespace dxf
