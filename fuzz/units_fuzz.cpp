/// Feeds any text to the readers of distances, angles and points, and what they accept to the
/// printers and back.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include <editor/units.h>
#include <values/angle_text.h>
#include <values/distance_text.h>
#include <values/point_text.h>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Bytes as characters of the same number, up to a zero; the degree sign is one of them.
std::wstring wideText(const std::uint8_t* data, std::size_t size)
{
    std::wstring text(data, data + size);
    text.resize(std::min(text.find(L'\0'), text.size()));
    return text;
}

bool isStatus(int status)
{
    return status == RTNORM || status == RTERROR || status == RTREJ;
}

/// What was accepted can be printed in all units, and each of those texts is accepted again.
void printDistance(double distance)
{
    const double magnitude = std::fabs(distance);
    if (!(magnitude == 0.0 || (magnitude > 1.3e-304 && magnitude < 1.2e304)))
        return; // the architectural reader has no limits, the one for exponents has
    for (int units = 1; units <= 5; ++units) {
        KdString text;
        require(kddbRToS(distance, text, units, 8) == RTNORM);
        double read = 0.0;
        require(stringToDistance(text, units, read) == RTNORM);
        require(std::fabs(read - distance) <= 0.5 / 256.0 + magnitude * 1e-7);
    }
}

void readDistance(const std::wstring& text)
{
    double distance = 0.0;
    require(isStatus(ConvertStringToDistance(text.c_str(), -1, &distance, true)));
    if (ConvertStringToDistance(text.c_str(), -1, &distance, false) == RTNORM)
        printDistance(distance);
    std::wstring copy = text;
    require(isStatus(parse_as_decimal(copy.data(), &distance)));
    require(isStatus(parse_as_architectural(copy.data(), &distance)));
    require(copy == text);
    KdGePoint3d point;
    require(isStatus(stringTo3dPoint(KdString(std::wstring_view(text)), -1, point)));
}

void trim(const std::wstring& text)
{
    for (const wchar_t* modes : {L"b", L"e", L"m", L"bem"}) {
        std::wstring copy = text;
        trimWhiteSpace(copy.data(), modes);
        require(std::char_traits<wchar_t>::length(copy.c_str()) <= text.size());
    }
}

void printAngle(double angle)
{
    for (int units = 0; units <= 4; ++units) {
        KdString text;
        require(kddbAngToS(angle, text, units, 8) == RTNORM);
        double read = 0.0;
        require(stringToAngle(0, text, units, read) == RTNORM);
        require(std::fabs(std::remainder(read - angle, 2.0 * std::acos(-1.0))) < 1e-5);
    }
}

void readAngle(const std::wstring& text)
{
    for (int units = -1; units <= 5; ++units) {
        for (int flags = 0; flags < 8; ++flags) {
            double angle = std::numeric_limits<double>::quiet_NaN();
            const int status = ConvertAngleToFloat(flags, text.c_str(), units, &angle);
            require(status == RTNORM ? std::isfinite(angle) : std::isnan(angle));
            if (status == RTNORM && flags == 0)
                printAngle(angle);
        }
    }
    std::wstring copy = text;
    double radians = 0.0;
    require(isStatus(ConvertToRadians(copy.data(), &radians)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring text = wideText(data, size);
    trim(text);
    readDistance(text);
    readAngle(text);
    return 0;
}
