// Prints the dimensions of a drawing's model and sheets, a line for what each measures and one for
// each of its variables, to be compared with what another reader finds.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <entities/dimension.h>
#include <exchange/drawing_reader.h>

namespace {

/// As ASCII, with all other characters escaped, so that a line is a line.
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
    return result;
}

std::string numberText(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.12g", value);
    return text;
}

std::string recordName(KdDbObjectId id)
{
    if (!id.isKindOf(KdDbSymbolTableRecord::desc()))
        return {};
    const OpenForRead<KdDbSymbolTableRecord> record(id);
    return record ? printable(record->name()) : std::string();
}

std::string valueText(const KdDbDimVariable& variable, const KdDbDimValue& value)
{
    if (variable.kind == KdDbDimKind::Color)
        return numberText(kddbDimValueAs<KdDbDimKind::Color>(value).colorIndex());
    if (const auto* integer = std::get_if<std::int32_t>(&value))
        return numberText(*integer);
    if (const auto* real = std::get_if<double>(&value))
        return numberText(*real);
    if (const auto* text = std::get_if<KdString>(&value))
        return printable(*text);
    return recordName(std::get<KdDbObjectId>(value));
}

void print(const KdDbDimension& dimension)
{
    double measured = 0.0;
    const bool measures = dimension.measurement(measured) == eOk;
    std::printf("dimension %llX %s\n", static_cast<unsigned long long>(dimension.handle()),
                printable(dimension.isA()->name()).c_str());
    std::printf("style %s\n", recordName(dimension.dimensionStyle()).c_str());
    std::printf("text %s\n", printable(dimension.dimensionText()).c_str());
    std::printf("measurement %s\n", measures ? numberText(measured).c_str() : "none");
    int number = 0;
    for (const KdDbDimVariable& variable : kddbDimVariables()) {
        const auto& value = dimension.dimensionVariable(static_cast<KdDbDimVar>(number++));
        std::printf("%s %s\n", printable(variable.name).c_str(),
                    valueText(variable, value).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: print_dimensions <drawing>\n");
        return EXIT_FAILURE;
    }
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    if (readDrawing(argv[1], database, report) != eOk) {
        std::fprintf(stderr, "%s\n", printable(report.error).c_str());
        return EXIT_FAILURE;
    }
    for (std::size_t i = 0; i < database->objects().size(); ++i) {
        const KdDbObject* object = database->objects()[i];
        if (object->isKindOf(KdDbDimension::desc()))
            print(static_cast<const KdDbDimension&>(*object));
    }
    return EXIT_SUCCESS;
}
