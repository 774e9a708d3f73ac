// Prints what a drawing's model holds, one line for each entity, to be compared with what another
// reader finds. Texts are printed with escapes, so that a line is a line whatever they hold.
#include <cstdio>
#include <string>

#include "print_drawing.h"

namespace {

/// The index of the colour, and "rgb:" with six digits for a true colour.
std::string colorText(const KdCmColor& color)
{
    if (color.colorMethod() != KdCmColor::kByColor)
        return std::to_string(color.colorIndex());
    char text[16];
    std::snprintf(text, sizeof text, "rgb:%06x", color.color() & 0xFFFFFFu);
    return text;
}

std::string dxfNameOf(const KdDbEntity& entity)
{
    std::string name;
    for (const wchar_t* c = entity.isA()->dxfName(); *c; ++c)
        name.push_back(static_cast<char>(*c));
    return name.empty() ? "-" : name;
}

void print(const KdDbEntity& entity)
{
    std::printf("%s %llX %s %s %s %d %.12g\n", dxfNameOf(entity).c_str(),
                static_cast<unsigned long long>(entity.handle()), printable(entity.layer()).c_str(),
                colorText(entity.color()).c_str(), printable(entity.linetype()).c_str(),
                entity.lineWeight(), entity.linetypeScale());
}

void print(const KdDbDatabase& drawing)
{
    const OpenForRead<KdDbBlockTableRecord> model(drawing.modelSpaceId());
    if (!model)
        return;
    for (const KdDbObjectId id : model->entityIds()) {
        const OpenForRead<KdDbEntity> entity(id);
        if (entity)
            print(*entity);
    }
}

} // namespace

int main(int argc, char** argv)
{
    return printDrawing(argc, argv, print);
}
