#include <dialog/value_texts.h>

#include <editor/units.h>

#include <values/linear_text.h>
#include <values/point_text.h>

namespace {

constexpr int kOfDrawing = -1; // units and precision

std::wstring angleText(double value)
{
    KdString text;
    kddbAngToS(value, text, kOfDrawing, kOfDrawing);
    return std::wstring(text.view());
}

std::wstring planePointText(const KdGePoint2d& point)
{
    CStdStr<wchar_t> x;
    CStdStr<wchar_t> y;
    formatLinear(x, point.x);
    formatLinear(y, point.y);
    return x + L", " + y;
}

std::wstring spacePointText(const KdGePoint3d& point)
{
    CStdStr<wchar_t> text;
    point3dToString(point, kOfDrawing, kOfDrawing, text);
    return text;
}

std::wstring listedText(const ResBuf& record)
{
    switch (record.restype()) {
    case ResBuf::kInt16:
        return std::to_wstring(record.getInt16());
    case ResBuf::kInt32:
        return std::to_wstring(record.getInt32());
    case ResBuf::kInt8:
        return std::to_wstring(record.getInt8());
    case ResBuf::kString:
    case ResBuf::kLayerName:
        return std::wstring(record.getString().view());
    default:
        return {};
    }
}

} // namespace

bool isPointKind(int kind)
{
    return kind == ResBuf::kPoint2d || kind == ResBuf::kPoint3d;
}

std::wstring lengthText(double value)
{
    KdString text;
    kddbRToS(value, text, kOfDrawing, kOfDrawing);
    return std::wstring(text.view());
}

std::wstring valueText(const ResBuf& record, bool shownAlone)
{
    switch (record.restype()) {
    case ResBuf::kReal:
        return lengthText(record.getDouble());
    case ResBuf::kAngle:
        return angleText(record.getDouble());
    case ResBuf::kPoint2d:
        return planePointText(record.getPoint2d());
    case ResBuf::kPoint3d:
        return spacePointText(record.getPoint3d());
    default:
        return shownAlone ? std::wstring() : listedText(record);
    }
}

std::vector<std::wstring> choicesBehind(const ResBuf& head)
{
    std::vector<std::wstring> choices;
    for (const ResBuf* record = head.next(); record; record = record->next()) {
        if (record->restype() != head.restype())
            continue;
        std::wstring text = valueText(*record, false);
        if (!text.empty())
            choices.push_back(std::move(text));
    }
    return choices;
}

std::vector<double> coordinatesOf(const ResBuf& point)
{
    if (point.restype() == ResBuf::kPoint2d)
        return {point.getPoint2d().x, point.getPoint2d().y};
    const KdGePoint3d& place = point.getPoint3d();
    return {place.x, place.y, place.z};
}
