// Prints the hatches of a drawing, one line for each, to be compared with what another reader
// finds.
#include <cstdio>

#include <entities/hatch.h>

#include "print_drawing.h"

namespace {

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

void print(const KdDbDatabase& drawing)
{
    for (const KdDbObject* object : drawing.objects()) {
        const OpenForRead<KdDbHatch> hatch(object->objectId());
        if (hatch)
            print(*hatch);
    }
}

} // namespace

int main(int argc, char** argv)
{
    return printDrawing(argc, argv, print);
}
