#include <values/point_text.h>

#include <algorithm>
#include <array>
#include <string_view>

#include <editor/units.h>
#include <values/distance_text.h>
#include <values/number_characters.h>

namespace {

using CoordinateText = std::array<wchar_t, 256>;

int print(double coordinate, int units, int precision, CoordinateText& text)
{
    return kddbRToS(coordinate, units, precision, text.data(), text.size());
}

/// The part of `text` up to its first comma; `text` keeps what follows that.
std::wstring_view takePart(std::wstring_view& text)
{
    const std::size_t length = std::min(text.find(L','), text.size());
    const std::wstring_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return withoutOuterSpace(part);
}

int readCoordinate(std::wstring_view part, int units, double& coordinate)
{
    return stringToDistance(KdString(part), units, coordinate);
}

} // namespace

int point3dToString(const KdGePoint3d& point, int units, int precision, CStdStr<wchar_t>& out)
{
    CoordinateText x;
    CoordinateText y;
    CoordinateText z;
    if (print(point.x, units, precision, x) == RTERROR ||
        print(point.y, units, precision, y) == RTERROR ||
        print(point.z, units, precision, z) == RTERROR)
        return RTERROR;
    out = std::wstring(x.data()) + L"," + y.data() + L"," + z.data();
    return RTNORM;
}

int stringTo3dPoint(const KdString& text, int units, KdGePoint3d& point)
{
    std::wstring_view rest = text.view();
    const std::wstring_view x = takePart(rest);
    const std::wstring_view y = takePart(rest);
    const std::wstring_view z = withoutOuterSpace(rest);

    KdGePoint3d read;
    int status = readCoordinate(x, units, read.x);
    if (status == RTNORM)
        status = readCoordinate(y, units, read.y);
    if (status == RTNORM && !z.empty())
        status = readCoordinate(z, units, read.z);
    if (status == RTNORM)
        point = read;
    return status;
}
