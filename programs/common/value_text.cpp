#include <common/value_text.h>

#include <charconv>
#include <cmath>

#include <database/color.h>
#include <editor/units.h>
#include <runtime/utf8.h>

namespace {

using Json = nlohmann::ordered_json;

enum Kind : int
{
    kReal = 5001,
    kPoint2d = 5002,
    kInt16 = 5003,
    kAngle = 5004,
    kPoint3d = 5009,
    kInt32 = 5010,
    kColor = 5011,
    kLinetypeScale = 48,
    kInt8 = 280,
    kBool = 290,
};

constexpr int kOfDrawing = -1; // units and precision

/// In the units of the drawing, as angles are typed.
std::string angleText(double radians, int decimals)
{
    KdString text;
    kddbAngToS(radians, text, kOfDrawing, decimals);
    return kdToUtf8(text);
}

std::string lengthText(double value)
{
    KdString text;
    const bool isPrinted = kddbRToS(value, text, kOfDrawing, kOfDrawing) == RTNORM;
    return isPrinted ? kdToUtf8(text) : numberText(value);
}

Json colorJson(long long word)
{
    const KdCmColor color(static_cast<std::uint32_t>(word));
    switch (color.colorMethod()) {
    case KdCmColor::kByLayer:
        return "ByLayer";
    case KdCmColor::kByBlock:
        return "ByBlock";
    case KdCmColor::kByACI:
        return color.colorIndex();
    default:
        return std::to_string(color.red()) + ',' + std::to_string(color.green()) + ',' +
               std::to_string(color.blue());
    }
}

Json numberJson(double number)
{
    return std::isfinite(number) ? Json(number) : Json(nullptr);
}

Json pointJson(const CatalogValue& value, int dimensions)
{
    Json point = Json::array();
    for (int i = 0; i < dimensions; ++i)
        point.push_back(numberJson(value.point[i]));
    return point;
}

} // namespace

std::string numberText(double number)
{
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
    return std::string(buffer, end);
}

Json valueJson(const CatalogValue& value)
{
    switch (value.restype) {
    case kReal:
    case kAngle:
    case kLinetypeScale:
        return numberJson(value.number);
    case kInt8:
    case kInt16:
    case kInt32:
        return value.integer;
    case kBool:
        return value.integer != 0;
    case kColor:
        return colorJson(value.integer);
    case kPoint2d:
        return pointJson(value, 2);
    case kPoint3d:
        return pointJson(value, 3);
    default:
        return kdToUtf8(value.text);
    }
}

Json valuesJson(const std::vector<CatalogValue>& values)
{
    if (values.empty())
        return nullptr;
    if (values.size() == 1)
        return valueJson(values.front());
    Json all = Json::array();
    for (const CatalogValue& value : values)
        all.push_back(valueJson(value));
    return all;
}

std::string valueText(const CatalogValue& value)
{
    constexpr int kDecimals = 8;
    if (value.restype == kAngle)
        return angleText(value.number, kDecimals);
    const Json json = valueJson(value);
    if (json.is_string())
        return json.get<std::string>();
    if (json.is_number_float())
        return numberText(json.get<double>());
    if (!json.is_array())
        return json.dump();
    std::string text;
    for (const Json& coordinate : json)
        text += (text.empty() ? "" : ",") +
                numberText(coordinate.is_null() ? NAN : coordinate.get<double>());
    return text;
}

std::string shownText(const CatalogValue& value)
{
    switch (value.restype) {
    case kReal:
        return lengthText(value.number);
    case kAngle:
        return angleText(value.number, kOfDrawing);
    case kPoint2d:
        return lengthText(value.point[0]) + ", " + lengthText(value.point[1]);
    case kPoint3d:
        return lengthText(value.point[0]) + ", " + lengthText(value.point[1]) + ", " +
               lengthText(value.point[2]);
    default:
        return valueText(value);
    }
}
