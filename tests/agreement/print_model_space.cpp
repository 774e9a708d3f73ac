// Prints what a drawing's model holds, one line for each entity, to be compared with what another
// reader finds. Texts are printed with escapes, so that a line is a line whatever they hold.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <exchange/drawing_reader.h>

namespace {

/// As UTF-8, with backslashes and control characters escaped.
std::string printable(const KdString& text)
{
    std::string result;
    for (const wchar_t c : text.view()) {
        char escaped[16];
        if (c > L' ' && c < 0x7F && c != L'\\')
            result.push_back(static_cast<char>(c));
        else if (std::snprintf(escaped, sizeof escaped, "\\u{%x}", static_cast<unsigned>(c)) > 0)
            result += escaped;
    }
    return result.empty() ? "-" : result;
}

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

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: print_model_space <drawing>\n");
        return EXIT_FAILURE;
    }
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    if (readDrawing(argv[1], database, report) != eOk) {
        std::fprintf(stderr, "%s\n", printable(report.error).c_str());
        return EXIT_FAILURE;
    }
    const OpenForRead<KdDbBlockTableRecord> model(database->modelSpaceId());
    if (!model)
        return EXIT_FAILURE;
    for (const KdDbObjectId id : model->entityIds()) {
        const OpenForRead<KdDbEntity> entity(id);
        if (entity)
            print(*entity);
    }
    return EXIT_SUCCESS;
}
