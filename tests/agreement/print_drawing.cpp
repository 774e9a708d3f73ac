#include "print_drawing.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <exchange/drawing_reader.h>

int printDrawing(int argc, char** argv, void (*print)(const KdDbDatabase& drawing))
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <drawing>\n", argv[0]);
        return EXIT_FAILURE;
    }
    std::unique_ptr<KdDbDatabase> drawing;
    ReadReport report;
    if (readDrawing(argv[1], drawing, report) != eOk) {
        std::fprintf(stderr, "%s: %s\n", argv[1], printable(report.error).c_str());
        return EXIT_FAILURE;
    }
    print(*drawing);
    return EXIT_SUCCESS;
}

std::string printable(const KdString& text)
{
    std::string result;
    for (const wchar_t c : text.view()) {
        char escaped[16];
        if (c > L' ' && c < 0x7F && c != L'\\' && c != L'-')
            result.push_back(static_cast<char>(c));
        else if (std::snprintf(escaped, sizeof escaped, "\\u{%x}", static_cast<unsigned>(c)) > 0)
            result += escaped;
    }
    return result.empty() ? "-" : result;
}

KdString recordName(KdDbObjectId id)
{
    if (!id.isKindOf(KdDbSymbolTableRecord::desc()))
        return {};
    const OpenForRead<KdDbSymbolTableRecord> record(id);
    return record ? record->name() : KdString();
}
