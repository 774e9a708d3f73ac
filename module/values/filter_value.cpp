#include <values/filter_value.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>

#include <database/database.h>
#include <runtime/number_text.h>

#include <values/angle_text.h>
#include <values/distance_text.h>
#include <values/names.h>
#include <values/number_characters.h>
#include <values/resource_string.h>
#include <values/text_utilities.h>

namespace {

constexpr int kAnyPrecision = -1;

FilterValue made(ResBuf* record, int valueType, FilterText text = FilterText::Read)
{
    return {text, record, valueType};
}

FilterValue textRecord(int restype, const KdString& text)
{
    return made(ResBuf::newRb(restype, text.kwszPtr()), ResBuf::kString);
}

/// A number that can't be read stays 1.0, which the caller is told.
double readDistance(const KdString& text, FilterText& outcome)
{
    double distance = 1.0;
    const bool read = stringToDistance(text, kAnyPrecision, distance) == RTNORM;
    // A quotient of two overlong numbers is none, and would count as equal to everything.
    outcome = read && std::isfinite(distance) ? FilterText::Read : FilterText::Unreadable;
    return distance;
}

FilterValue readReal(int kind, int, const KdString& text)
{
    FilterText outcome = FilterText::Read;
    ResBuf* record = ResBuf::newRb(kind);
    record->setDouble(readDistance(text, outcome));
    return made(record, ResBuf::kReal, outcome);
}

FilterValue readAngle(int kind, int, const KdString& text)
{
    constexpr int kAbsolute = 0;
    double angle = 1.0;
    const bool read = stringToAngle(kAbsolute, text, kAnyPrecision, angle) == RTNORM;
    ResBuf* record = ResBuf::newRb(kind);
    record->setDouble(angle);
    return made(record, ResBuf::kReal, read ? FilterText::Read : FilterText::Unreadable);
}

FilterValue readCoordinate(int kind, int axis, const KdString& text)
{
    FilterText outcome = FilterText::Read;
    const double coordinate = readDistance(text, outcome);
    KdGePoint3d point;
    double* const coordinates[] = {&point.x, &point.y, &point.z};
    *coordinates[axis - 1] = coordinate;
    ResBuf* record = ResBuf::newRb(kind);
    if (kind == ResBuf::kPoint2d)
        record->setPoint2d({point.x, point.y});
    else
        record->setPoint3d(point);
    return made(record, kind, outcome);
}

FilterValue readInteger(int kind, int, const KdString& text)
{
    wchar_t* rest = nullptr;
    const long number = std::wcstol(text.kwszPtr(), &rest, 10);
    if (*rest != L'\0')
        return {FilterText::NotANumber};
    ResBuf* record = ResBuf::newRb(kind);
    record->setInt8(static_cast<signed char>(number));
    record->setInt16(static_cast<short>(number));
    record->setInt32(static_cast<int>(number));
    return made(record, kind);
}

FilterValue readBool(int kind, int, const KdString& text)
{
    const bool isTrue = text.compare(__ResourceString(78056, L"true")) == 0;
    const bool isWord = isTrue || text.compare(__ResourceString(78057, L"false")) == 0;
    ResBuf* record = ResBuf::newRb(kind);
    record->setBool(isTrue);
    return made(record, kind, isWord ? FilterText::Read : FilterText::Unreadable);
}

KdString upper(const wchar_t* text)
{
    return KdString(text).makeUpper();
}

struct TransparencyWord
{
    const wchar_t* stored;
    int id;
    const wchar_t* defaultText;
};
constexpr TransparencyWord kTransparencyWords[] = {
    {L"BYLAYER", 76557, L"ByLayer"},
    {L"BYBLOCK", 76558, L"ByBlock"},
};

FilterValue readTransparency(int kind, int, const KdString& text)
{
    const KdString wanted = upper(text.kwszPtr());
    const auto is = [&](const wchar_t* word, int id, const wchar_t* defaultText) {
        return wanted == word || wanted == upper(__ResourceString(id, defaultText));
    };
    for (const auto& [word, id, defaultText] : kTransparencyWords) {
        if (is(word, id, defaultText))
            return made(ResBuf::newRb(kind, word), kind);
    }
    const bool isNumber =
        !wanted.isEmpty() && wanted.view().find_first_not_of(L"0123456789") == wanted.view().npos;
    return made(ResBuf::newRb(kind, wanted.kwszPtr()), kind,
                isNumber ? FilterText::Read : FilterText::Unreadable);
}

FilterValue readName(int kind, int, const KdString& text)
{
    return textRecord(kind, text);
}

/// No record is of the kind of the choices; plot styles are compared as texts.
FilterValue readPlotStyle(int, int, const KdString& text)
{
    return textRecord(ResBuf::kString, text);
}

/// The spelling that the drawing's table has for the name, since names are compared exactly.
template <class Table>
FilterValue readTableName(int kind, int, const KdString& text)
{
    const KdDbDatabase* database = kddbHostApplicationServices()->workingDatabase();
    KdDbObjectId id;
    if (!database || database->table<Table>().getIdAt(text.kwszPtr(), id) != eOk)
        return textRecord(kind, text);
    const OpenForRead<KdDbSymbolTableRecord> record(id);
    return textRecord(kind, record ? record->name() : text);
}

/// Reads millimetres, with or without their unit, as 1/100 mm. False for anything else, and for
/// more than any pen draws.
bool readMillimetres(std::wstring_view text, int& weight)
{
    constexpr std::wstring_view kUnit = L"mm";
    constexpr double kUnitsInMillimetre = 100.0;
    constexpr double kWidest = 1000.0;
    std::wstring_view number = withoutOuterSpace(text);
    if (number.ends_with(kUnit))
        number = withoutOuterSpace(number.substr(0, number.size() - kUnit.size()));
    if (number.find_first_of(L"0123456789") == std::wstring_view::npos ||
        number.find_first_not_of(L"0123456789.") != std::wstring_view::npos ||
        std::count(number.begin(), number.end(), L'.') > 1)
        return false;
    const double millimetres = kdReadReal(number);
    if (millimetres > kWidest)
        return false;
    weight = static_cast<int>(millimetres * kUnitsInMillimetre + 0.5);
    return true;
}

/// Words in any case and lengths become the text that the value has.
FilterValue readLineweight(int kind, int, const KdString& text)
{
    for (const int word : {-1, -2, -3}) {
        KdString name;
        getLineWeightName(word, name);
        if (name.compareNoCase(text) == 0)
            return textRecord(kind, name);
    }
    int weight = 0;
    if (!readMillimetres(text, weight))
        return textRecord(kind, text);
    KdString name;
    getLineWeightName(weight, name);
    return textRecord(kind, name);
}

/// "red,green,blue", each from 0 to 255.
bool readRgb(const KdString& text, KdCmColor& color)
{
    unsigned parts[3] = {};
    int used = 0;
    const int read =
        std::swscanf(text.kwszPtr(), L"%3u,%3u,%3u%n", &parts[0], &parts[1], &parts[2], &used);
    if (read != 3 || static_cast<std::size_t>(used) != text.length())
        return false;
    for (const unsigned part : parts) {
        if (part > 255)
            return false;
    }
    color.setRGB(static_cast<std::uint8_t>(parts[0]), static_cast<std::uint8_t>(parts[1]),
                 static_cast<std::uint8_t>(parts[2]));
    return true;
}

/// The reader of colour words takes what it does not know for by block, or for white, and of a
/// number what it begins with.
bool isColorWord(const KdString& text, short index)
{
    if (text.view().find_first_of(L"0123456789") != std::wstring_view::npos)
        return std::to_wstring(index) == text.view();
    if (index != 0)
        return true;
    return strisameW(text.kwszPtr(), L"BYBLOCK") ||
           strisameW(text.kwszPtr(), __ResourceString(35492, L"byb")) ||
           strisameW(text.kwszPtr(), __ResourceString(34341, L"BYBlock"));
}

FilterValue readColor(int, int, const KdString& text)
{
    KdCmColor color;
    const short index = Color2Number(text.kwszPtr());
    if (!readRgb(text, color)) {
        if (!isColorWord(text, index))
            return {FilterText::Unreadable};
        color.setColorIndex(index);
    }
    return filterOfColor(color);
}

struct KindReader
{
    int kind;
    bool takesEmpty; ///< an empty text is a value of the kind
    FilterValue (*read)(int kind, int axis, const KdString& text);
};

constexpr KindReader kReaders[] = {
    {ResBuf::kReal, false, readReal},
    {ResBuf::kLinetypeScale, false, readReal},
    {ResBuf::kAngle, false, readAngle},
    {ResBuf::kPoint2d, false, readCoordinate},
    {ResBuf::kPoint3d, false, readCoordinate},
    {ResBuf::kInt8, false, readInteger},
    {ResBuf::kInt16, false, readInteger},
    {ResBuf::kInt32, false, readInteger},
    {ResBuf::kBool, false, readBool},
    {ResBuf::kTransparencyText, true, readTransparency},
    {ResBuf::kString, true, readName},
    {ResBuf::kLayerName, true, readTableName<KdDbLayerTable>},
    {ResBuf::kLinetypeName, false, readTableName<KdDbLinetypeTable>},
    {ResBuf::kPlotStyleChoice, false, readPlotStyle},
    {ResBuf::kPlotStyleName, false, readName},
    {ResBuf::kLineweightName, false, readLineweight},
    {ResBuf::kColor, false, readColor},
};

bool axisFits(int kind, int axis)
{
    if (kind == ResBuf::kPoint2d)
        return axis == 1 || axis == 2;
    return kind != ResBuf::kPoint3d || (axis >= 1 && axis <= 3);
}

} // namespace

FilterValue readFilterValue(int kind, int axis, const KdString& text)
{
    for (const KindReader& reader : kReaders) {
        if (reader.kind != kind)
            continue;
        if (text.isEmpty() && !reader.takesEmpty)
            return {FilterText::Empty};
        return axisFits(kind, axis) ? reader.read(kind, axis, text)
                                    : FilterValue{FilterText::Unreadable};
    }
    return {FilterText::Unreadable};
}

std::optional<KdString> fallbackText(int kind)
{
    switch (kind) {
    case ResBuf::kReal:
    case ResBuf::kLinetypeScale:
    case ResBuf::kPoint2d:
    case ResBuf::kPoint3d:
        return KdString(L"1");
    case ResBuf::kAngle:
        return KdString(L"1r");
    case ResBuf::kBool:
        return KdString(__ResourceString(78057, L"false"));
    default:
        return std::nullopt;
    }
}

FilterValue filterOfColor(const KdCmColor& color)
{
    ResBuf* record = ResBuf::newRb(ResBuf::kColor);
    record->setColor(color);
    return made(record, ResBuf::kColor);
}
