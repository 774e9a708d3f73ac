// Prints the dimensions of a drawing's model and sheets, a line for what each measures and one for
// each of its variables, to be compared with what another reader finds.
#include <cstdio>
#include <string>

#include <entities/dimension.h>

#include "print_drawing.h"

namespace {

std::string numberText(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.12g", value);
    return text;
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
    return printable(recordName(std::get<KdDbObjectId>(value)));
}

void print(const KdDbDimension& dimension)
{
    double measured = 0.0;
    const bool measures = dimension.measurement(measured) == eOk;
    std::printf("dimension %llX %s\n", static_cast<unsigned long long>(dimension.handle()),
                printable(dimension.isA()->name()).c_str());
    std::printf("style %s\n", printable(recordName(dimension.dimensionStyle())).c_str());
    std::printf("text %s\n", printable(dimension.dimensionText()).c_str());
    std::printf("measurement %s\n", measures ? numberText(measured).c_str() : "none");
    int number = 0;
    for (const KdDbDimVariable& variable : kddbDimVariables()) {
        const auto& value = dimension.dimensionVariable(static_cast<KdDbDimVar>(number++));
        std::printf("%s %s\n", printable(variable.name).c_str(),
                    valueText(variable, value).c_str());
    }
}

void print(const KdDbDatabase& drawing)
{
    for (const KdDbObject* object : drawing.objects()) {
        if (object->isKindOf(KdDbDimension::desc()))
            print(static_cast<const KdDbDimension&>(*object));
    }
}

} // namespace

int main(int argc, char** argv)
{
    return printDrawing(argc, argv, print);
}
