// Prints the faces, images, multilines and lights of a drawing, one a line, for a comparison with
// another reader: the handle, the kind, and numbers.
#include <iomanip>
#include <iostream>
#include <vector>

#include <entities/all.h>

#include "print_drawing.h"

namespace {

using Numbers = std::vector<double>;

template <class Point>
void append(Numbers& numbers, const Point& point)
{
    numbers.insert(numbers.end(), {point.x, point.y, point.z});
}

Numbers numbersOf(const KdDbFace& face)
{
    Numbers numbers;
    for (int i = 0; i < kCornersOfFace; ++i) {
        KdGePoint3d vertex;
        bool visible = false;
        face.getVertexAt(i, vertex);
        face.isEdgeVisibleAt(i, visible);
        append(numbers, vertex);
        numbers.push_back(visible);
    }
    return numbers;
}

Numbers numbersOf(const KdDbFilledFace& face)
{
    Numbers numbers{face.thickness()};
    for (int i = 0; i < kCornersOfFace; ++i) {
        KdGePoint3d point;
        face.getPointAt(i, point);
        append(numbers, point);
    }
    return numbers;
}

Numbers numbersOf(const KdDbRasterImage& image)
{
    KdGePoint3d origin;
    KdGeVector3d u;
    KdGeVector3d v;
    image.getOrientation(origin, u, v);
    Numbers numbers{image.imageSize().x, image.imageSize().y,
                    static_cast<double>(image.brightness()), static_cast<double>(image.contrast()),
                    static_cast<double>(image.fade())};
    append(numbers, origin);
    append(numbers, u);
    append(numbers, v);
    KdArray<KdGePoint3d> outline;
    if (image.isClipped() && image.getOutline(outline) == eOk) {
        for (int i = 0; i < outline.length(); ++i)
            append(numbers, outline[i]);
    }
    return numbers;
}

Numbers numbersOf(const KdDbMline& mline)
{
    Numbers numbers{mline.scale(), static_cast<double>(mline.justification()),
                    static_cast<double>(mline.closedMline()),
                    static_cast<double>(mline.style().handle())};
    for (int i = 0; i < mline.numVertices(); ++i) {
        KdGePoint3d vertex;
        mline.getVertexAt(i, vertex);
        append(numbers, vertex);
    }
    return numbers;
}

Numbers numbersOf(const KdDbLight& light)
{
    Numbers numbers{static_cast<double>(light.lightType()), light.intensity(), light.hotspotAngle(),
                    light.falloffAngle(), static_cast<double>(light.isOn())};
    append(numbers, light.position());
    append(numbers, light.targetLocation());
    return numbers;
}

template <class Kind>
bool print(const KdDbObject& object)
{
    const auto* entity = dynamic_cast<const Kind*>(&object);
    if (!entity)
        return false;
    std::cout << std::hex << std::uppercase << entity->handle() << std::dec;
    for (const double number : numbersOf(*entity))
        std::cout << ' ' << number;
    std::cout << '\n';
    return true;
}

void print(const KdDbDatabase& drawing)
{
    std::cout << std::setprecision(17);
    for (const KdDbObject* object : drawing.objects()) {
        print<KdDbFace>(*object) || print<KdDbFilledFace>(*object) ||
            print<KdDbRasterImage>(*object) || print<KdDbMline>(*object) ||
            print<KdDbLight>(*object);
    }
}

} // namespace

int main(int argc, char** argv)
{
    return printDrawing(argc, argv, print);
}
