// Prints the hatches of a drawing, one line for each, to be compared with what another reader
// finds.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <entities/hatch.h>
#include <exchange/drawing_reader.h>

namespace {

std::string printable(const KdString& text)
{
    std::string result;
    for (const wchar_t c : text.view())
        result.push_back(c > L' ' && c < 0x7F ? static_cast<char>(c) : '?');
    return result.empty() ? "-" : result;
}

void print(const KdDbHatch& hatch)
{
    double area = 0.0;
    hatch.getArea(area);
    KdGeExtents3d box;
    hatch.getGeomExtents(box);
    std::printf("%llX %s %d %d %d %d %d %d %.12g %.12g %.12g %.12g %.12g %s %.12g\n",
                static_cast<unsigned long long>(hatch.handle()),
                printable(hatch.patternName()).c_str(), hatch.patternType(),
                static_cast<int>(hatch.hatchStyle()), hatch.isSolidFill(), hatch.associative(),
                hatch.isGradient(), hatch.numLoops(), hatch.patternAngle(), hatch.patternScale(),
                hatch.patternSpace(), hatch.elevation(), area,
                printable(hatch.gradientName()).c_str(), hatch.gradientAngle());
}

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    if (argc != 2 || readDrawing(argv[1], database, report) != eOk) {
        std::fprintf(stderr, "usage: print_hatches <drawing that can be read>\n");
        return EXIT_FAILURE;
    }
    for (const KdDbObject* object : database->objects()) {
        const OpenForRead<KdDbHatch> hatch(object->objectId());
        if (hatch)
            print(*hatch);
    }
    return EXIT_SUCCESS;
}
