#include "random_drawing.h"

#include <algorithm>
#include <string_view>

#include <entities/all.h>

namespace properties_test {
namespace {

// 0.00004 lies within the tolerance of four decimals, and so do the two values near 2.5.
constexpr const char* kReals[] = {"0.0", "1.0",     "2.5", "2.50004", "-1.25",
                                  "3.0", "0.00004", "0.5", "12.125",  "-40.0"};
constexpr const char* kAngles[] = {"0.0", "30.0", "45.0", "90.0", "135.5", "270.0"};
constexpr const char* kTexts[] = {"A", "Door 7", "50%", "x*y", "a,b", "3"};
constexpr const char* kShorts[] = {"0", "1", "2", "3", "4", "5", "8"};
constexpr const char* kCounts[] = {"0", "1", "2", "3"};
constexpr const char* kLayers[] = {"0", "WALLS", "Doors", "FROZEN"};
constexpr const char* kLinetypes[] = {"ByLayer", "ByBlock", "Continuous", "DASHED"};
constexpr const char* kColors[] = {"0", "1", "5", "256", "30"};
constexpr const char* kLineweights[] = {"-1", "-2", "-3", "0", "25", "50"};
constexpr const char* kRgbColors[] = {"255", "16711680", "8421504"};
// By layer, by block, and two degrees of opacity.
constexpr const char* kTransparencies[] = {"0", "16777216", "33554559", "33554687"};

std::string narrow(const wchar_t* text)
{
    return {text, text + std::wstring_view(text).size()};
}

bool isIn(int code, int first, int last)
{
    return code >= first && code <= last;
}

bool standsAlone(const KdRxClass& rxClass)
{
    return rxClass.isDerivedFrom(KdDbEntity::desc()) && *rxClass.dxfName() &&
           !rxClass.isDerivedFrom(KdDbVertex::desc()) && &rxClass != KdDbSequenceEnd::desc() &&
           &rxClass != KdDbAttribute::desc();
}

} // namespace

std::vector<const KdRxClass*> kindsInDrawings()
{
    std::vector<const KdRxClass*> kinds;
    for (const KdRxClass* rxClass : kdrxAllClasses()) {
        if (standsAlone(*rxClass))
            kinds.push_back(rxClass);
    }
    std::ranges::sort(kinds, {}, [](const KdRxClass* each) { return std::wstring(each->name()); });
    return kinds;
}

std::string RandomDrawing::value(int code)
{
    switch (code) {
    case 2:
        return "LAMP";
    case 3:
    case 7:
        return "Standard";
    case 6:
        return oneOf(kLinetypes);
    case 8:
        return oneOf(kLayers);
    case 62:
        return oneOf(kColors);
    case 370:
        return oneOf(kLineweights);
    case 420:
        return oneOf(kRgbColors);
    case 440:
        return oneOf(kTransparencies);
    default:
        break;
    }
    if (isIn(code, 50, 58))
        return oneOf(kAngles);
    if (isIn(code, 10, 59) || isIn(code, 140, 149) || isIn(code, 210, 239))
        return oneOf(kReals);
    if (isIn(code, 90, 99))
        return oneOf(kCounts);
    if (isIn(code, 290, 299))
        return isLikely(50) ? "1" : "0";
    return code < 10 || isIn(code, 300, 309) ? oneOf(kTexts) : oneOf(kShorts);
}

void RandomDrawing::addSome(Groups& groups, std::initializer_list<int> codes, unsigned percent)
{
    for (const int code : codes) {
        if (isLikely(percent))
            groups.emplace_back(code, value(code));
    }
}

void RandomDrawing::addPoint(Groups& groups, int code)
{
    for (const int coordinate : {code, code + 10, code + 20})
        groups.emplace_back(coordinate, oneOf(kReals));
}

void RandomDrawing::addHead(Groups& groups, const std::string& name)
{
    groups.emplace_back(0, name);
    groups.emplace_back(100, "AcDbEntity");
    groups.emplace_back(8, value(8));
    addSome(groups, {6, 62, 48, 370, 420, 440}, 40);
}

void RandomDrawing::addMembers(Groups& groups)
{
    addSome(groups, {1, 2, 3, 7, 38, 39}, 80);
    for (const int code : {10, 11, 12, 13, 14, 15, 16}) {
        for (unsigned again = 1 + below(3); again > 0; --again)
            addPoint(groups, code);
    }
    addSome(groups, {40, 41, 42, 43, 44, 45, 46, 47, 49, 50, 51, 52, 53}, 80);
    addSome(groups, {70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 90, 91, 92, 93}, 60);
    addSome(groups, {140, 141, 145, 170, 171, 172, 173, 174, 175, 176}, 50);
    addSome(groups, {270, 271, 280, 281, 282, 290, 291, 292, 293, 300, 301, 302}, 50);
    if (isLikely(20)) // the others lie flat
        addPoint(groups, 210);
}

/// Vertices or an attribute, and the end of the sequence.
void RandomDrawing::addParts(Groups& groups, const KdRxClass& rxClass)
{
    const bool isReference = rxClass.isDerivedFrom(KdDbBlockReference::desc());
    for (int part = 0; part < (isReference ? 1 : 3); ++part) {
        addHead(groups, isReference ? "ATTRIB" : "VERTEX");
        addPoint(groups, 10);
        if (isReference)
            addSome(groups, {1, 2, 40, 50}, 100);
        else
            addSome(groups, {40, 41, 42, 50, 71, 72, 73, 74}, 60);
    }
    addHead(groups, "SEQEND");
}

void RandomDrawing::addEntity(Groups& groups, const KdRxClass& rxClass)
{
    const std::string name = narrow(rxClass.dxfName());
    addHead(groups, name);
    std::vector<const KdRxClass*> line;
    for (const KdRxClass* each = &rxClass; each != KdDbEntity::desc(); each = each->myParent())
        line.push_back(each);
    for (auto each = line.rbegin(); each != line.rend(); ++each)
        groups.emplace_back(100, narrow((*each)->name()));
    const bool hasParts = name == "POLYLINE" || (name == "INSERT" && isLikely(50));
    if (hasParts)
        groups.emplace_back(66, "1");
    addMembers(groups);
    if (hasParts)
        addParts(groups, rxClass);
}

Groups RandomDrawing::tables()
{
    Groups groups{{0, "TABLE"}, {2, "LAYER"}};
    for (const char* layer : kLayers) {
        const bool frozen = std::string_view(layer) == "FROZEN";
        groups.insert(groups.end(), {{0, "LAYER"}, {2, layer}, {70, frozen ? "1" : "0"}});
        addSome(groups, {62, 370}, 50);
    }
    groups.insert(groups.end(), {{0, "ENDTAB"}, {0, "TABLE"}, {2, "DIMSTYLE"}});
    groups.insert(groups.end(), {{0, "DIMSTYLE"}, {2, "Standard"}, {70, "0"}});
    addSome(groups, {40, 41, 44, 71, 77, 140, 147, 170, 176, 270, 277, 284}, 60);
    groups.insert(groups.end(), {{0, "ENDTAB"}});
    return groups;
}

Groups RandomDrawing::of(const std::vector<const KdRxClass*>& kinds, int ofEach)
{
    Groups entities;
    for (int i = 0; i < ofEach; ++i) {
        for (const KdRxClass* kind : kinds)
            addEntity(entities, *kind);
    }
    const Groups block{{0, "BLOCK"},  {2, "LAMP"},  {70, "2"},   {0, "ATTDEF"}, {2, "LAMP"},
                       {0, "ENDBLK"}, {0, "BLOCK"}, {2, "DOOR"}, {0, "ENDBLK"}};
    constexpr const char* kPrecisions[] = {"0", "2", "4", "6"};
    const Groups settings{{9, "$ACADVER"}, {1, "AC1024"}, {9, "$LUPREC"}, {70, oneOf(kPrecisions)}};
    return drawing({section("HEADER", settings), section("TABLES", tables()),
                    section("BLOCKS", block), section("ENTITIES", entities)});
}

} // namespace properties_test
