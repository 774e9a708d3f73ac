#include <kwdraw/panels/property_rows.h>

#include <algorithm>
#include <utility>

#include <QCoreApplication>

#include <common/value_text.h>
#include <database/color.h>
#include <database/color_palette.h>

namespace {

constexpr int kColor = 5011;
constexpr int kReal = 5001;
using Kind = PropertyRow::Kind;

QString translated(const char* text)
{
    return QCoreApplication::translate("PropertyPanel", text);
}

QString varying()
{
    return translated(QT_TRANSLATE_NOOP("PropertyPanel", "*Varies*"));
}

void setValue(PropertyRow& row, const QString& text)
{
    row.whole = text;
    row.value = text.simplified();
}

QString shown(const CatalogValue& value)
{
    const QString text = QString::fromStdString(shownText(value));
    constexpr const char* kNames[] = {
        QT_TRANSLATE_NOOP("PropertyPanel", "red"),   QT_TRANSLATE_NOOP("PropertyPanel", "yellow"),
        QT_TRANSLATE_NOOP("PropertyPanel", "green"), QT_TRANSLATE_NOOP("PropertyPanel", "cyan"),
        QT_TRANSLATE_NOOP("PropertyPanel", "blue"),  QT_TRANSLATE_NOOP("PropertyPanel", "magenta"),
        QT_TRANSLATE_NOOP("PropertyPanel", "white")};
    const KdCmColor color(static_cast<std::uint32_t>(value.integer));
    const int index = color.colorIndex();
    const bool hasName = value.restype == kColor && color.colorMethod() == KdCmColor::kByACI &&
                         index >= 1 && index <= static_cast<int>(std::size(kNames));
    return hasName ? QString("%1 (%2)").arg(text, translated(kNames[index - 1])) : text;
}

QColor swatchOf(const CatalogValue& value)
{
    if (value.restype != kColor)
        return {};
    const KdCmColor color(static_cast<std::uint32_t>(value.integer));
    switch (color.colorMethod()) {
    case KdCmColor::kByACI:
        return QColor(QRgb(kdcmPaletteRgb(color.colorIndex())));
    case KdCmColor::kByColor:
        return QColor(color.red(), color.green(), color.blue());
    default:
        return {};
    }
}

PropertyRow& addRow(PropertyRow& parent, Kind kind, const QString& name)
{
    auto row = std::make_unique<PropertyRow>();
    row->kind = kind;
    row->name = name;
    row->parent = &parent;
    row->place = static_cast<int>(parent.rows.size());
    return *parent.rows.emplace_back(std::move(row));
}

void addCoordinates(PropertyRow& row)
{
    constexpr const char* kNames[] = {"X", "Y", "Z"};
    const MergedProperty& point = row.property;
    for (int i = 0; i < point.dimensions(); ++i) {
        PropertyRow& coordinate = addRow(row, Kind::Coordinate, kNames[i]);
        coordinate.property = point;
        coordinate.axis = i + 1;
        coordinate.varies = point.axisVaries[i];
        setValue(coordinate, coordinate.varies
                                 ? varying()
                                 : shown({kReal, {}, point.values.front().point[i], 0, {}}));
    }
}

void addPoints(PropertyRow& row)
{
    int number = 0;
    for (const CatalogValue& value : row.property.values) {
        PropertyRow& point = addRow(row, Kind::Point, QString::number(++number));
        point.property = row.property;
        setValue(point, shown(value));
    }
}

void addProperty(PropertyRow& category, const MergedProperty& property)
{
    PropertyRow& row = addRow(category, Kind::Property, QString::fromStdWString(property.name()));
    row.property = property;
    row.varies = property.varies;
    const std::vector<CatalogValue>& values = property.values;
    if (property.varies) {
        setValue(row, varying());
    } else if (values.size() > 1) {
        const auto count = static_cast<int>(values.size());
        setValue(row, QCoreApplication::translate("PropertyPanel", "%n values", nullptr, count));
        addPoints(row);
    } else if (!values.empty()) {
        setValue(row, shown(values.front()));
        row.swatch = swatchOf(values.front());
    }
    if (property.isPoint())
        addCoordinates(row);
}

QString categoryOf(const MergedProperty& property)
{
    const std::wstring name = property.category();
    return name.empty() ? translated(QT_TRANSLATE_NOOP("PropertyPanel", "Other"))
                        : QString::fromStdWString(name);
}

} // namespace

std::vector<std::unique_ptr<PropertyRow>> propertyRows(const std::vector<MergedProperty>& merged)
{
    std::vector<std::unique_ptr<PropertyRow>> categories;
    for (const MergedProperty& property : merged) {
        const QString name = categoryOf(property);
        const auto known =
            std::find_if(categories.begin(), categories.end(),
                         [&](const auto& category) { return category->name == name; });
        if (known != categories.end()) {
            addProperty(**known, property);
            continue;
        }
        auto category = std::make_unique<PropertyRow>();
        category->name = name;
        category->place = static_cast<int>(categories.size());
        addProperty(*category, property);
        categories.push_back(std::move(category));
    }
    return categories;
}
