#include <kwdraw/texts/symbols.h>

#include <algorithm>

#include <runtime/kd_string.h>

namespace {

using enum SymbolStep::Kind;

// clang-format off
constexpr SymbolStep kSteps[] = {
    // angularity
    {'a', Line, {0.0, 0.0, 1.2, 0.0}}, {'a', Line, {0.0, 0.0, 1.0, 0.9}},
    // perpendicularity
    {'b', Line, {0.0, 0.0, 1.2, 0.0}}, {'b', Line, {0.6, 0.0, 0.6, 1.0}},
    // flatness
    {'c', Line, {0.0, 0.1, 0.8, 0.1}}, {'c', Line, {0.8, 0.1, 1.3, 0.9}},
    {'c', Line, {1.3, 0.9, 0.5, 0.9}}, {'c', Line, {0.5, 0.9, 0.0, 0.1}},
    // profile of a surface
    {'d', Line, {0.0, 0.2, 1.2, 0.2}}, {'d', Arc, {0.6, 0.2, 0.6, 0.0, 180.0}},
    // roundness
    {'e', Arc, {0.6, 0.5, 0.5, 0.0, 360.0}},
    // parallelism
    {'f', Line, {0.1, 0.0, 0.6, 1.0}}, {'f', Line, {0.6, 0.0, 1.1, 1.0}},
    // cylindricity
    {'g', Line, {0.0, 0.0, 0.4, 1.0}}, {'g', Line, {0.9, 0.0, 1.3, 1.0}},
    {'g', Arc, {0.65, 0.5, 0.42, 0.0, 360.0}},
    // run-out
    {'h', Line, {0.2, 0.0, 1.0, 1.0}}, {'h', Line, {1.0, 1.0, 0.6, 0.8}},
    {'h', Line, {1.0, 1.0, 0.9, 0.57}},
    // symmetry
    {'i', Line, {0.0, 0.5, 1.2, 0.5}}, {'i', Line, {0.3, 0.8, 0.9, 0.8}},
    {'i', Line, {0.3, 0.2, 0.9, 0.2}},
    // position
    {'j', Line, {0.1, 0.5, 1.1, 0.5}}, {'j', Line, {0.6, 0.0, 0.6, 1.0}},
    {'j', Arc, {0.6, 0.5, 0.35, 0.0, 360.0}},
    // profile of a line
    {'k', Arc, {0.6, 0.2, 0.6, 0.0, 180.0}},
    // least material
    {'l', Letter, {'L'}}, {'l', Arc, {0.65, 0.5, 0.65, 0.0, 360.0}},
    // most material
    {'m', Letter, {'M'}}, {'m', Arc, {0.65, 0.5, 0.65, 0.0, 360.0}},
    // diameter
    {'n', Line, {0.25, -0.1, 0.95, 1.1}}, {'n', Arc, {0.6, 0.5, 0.4, 0.0, 360.0}},
    // square
    {'o', Line, {0.2, 0.1, 1.0, 0.1}}, {'o', Line, {1.0, 0.1, 1.0, 0.9}},
    {'o', Line, {1.0, 0.9, 0.2, 0.9}}, {'o', Line, {0.2, 0.9, 0.2, 0.1}},
    // projected zone
    {'p', Letter, {'P'}}, {'p', Arc, {0.65, 0.5, 0.65, 0.0, 360.0}},
    // centre line
    {'q', Arc, {0.45, 0.65, 0.35, 40.0, 320.0}}, {'q', Line, {0.6, 0.7, 0.6, 0.0}},
    {'q', Line, {0.6, 0.0, 1.0, 0.0}},
    // concentricity
    {'r', Arc, {0.6, 0.5, 0.5, 0.0, 360.0}}, {'r', Arc, {0.6, 0.5, 0.25, 0.0, 360.0}},
    // regardless of size
    {'s', Letter, {'S'}}, {'s', Arc, {0.65, 0.5, 0.65, 0.0, 360.0}},
    // total run-out
    {'t', Line, {0.0, 0.0, 0.6, 0.0}}, {'t', Line, {0.0, 0.0, 0.7, 1.0}},
    {'t', Line, {0.6, 0.0, 1.3, 1.0}}, {'t', Line, {0.7, 1.0, 0.36, 0.8}},
    {'t', Line, {0.7, 1.0, 0.65, 0.6}}, {'t', Line, {1.3, 1.0, 0.96, 0.8}},
    {'t', Line, {1.3, 1.0, 1.25, 0.6}},
    // straightness
    {'u', Line, {0.0, 0.5, 1.2, 0.5}},
    // counterbore
    {'v', Line, {0.0, 0.8, 0.0, 0.2}}, {'v', Line, {0.0, 0.2, 1.2, 0.2}},
    {'v', Line, {1.2, 0.2, 1.2, 0.8}},
    // countersink
    {'w', Line, {0.0, 0.9, 0.6, 0.1}}, {'w', Line, {0.6, 0.1, 1.2, 0.9}},
    // depth
    {'x', Line, {0.2, 1.0, 1.0, 1.0}}, {'x', Line, {0.6, 1.0, 0.6, 0.0}},
    {'x', Line, {0.6, 0.0, 0.3, 0.4}}, {'x', Line, {0.6, 0.0, 0.9, 0.4}},
    // taper
    {'y', Line, {0.2, 0.9, 1.1, 0.5}}, {'y', Line, {1.1, 0.5, 0.2, 0.1}},
    {'y', Line, {0.2, 0.1, 0.2, 0.9}}, {'y', Line, {0.0, 0.5, 1.3, 0.5}},
    // slope
    {'z', Line, {0.0, 0.1, 1.2, 0.1}}, {'z', Line, {1.2, 0.1, 0.0, 0.8}},
    {'z', Line, {0.0, 0.8, 0.0, 0.1}},
};
// clang-format on

} // namespace

bool isSymbolFont(std::wstring_view fileName)
{
    constexpr std::wstring_view kExtension = L".shx";
    const KdNameEqual isEqual;
    if (fileName.size() > kExtension.size() &&
        isEqual(fileName.substr(fileName.size() - kExtension.size()), kExtension))
        fileName.remove_suffix(kExtension.size());
    return isEqual(fileName, L"gdt") || isEqual(fileName, L"amgdt");
}

std::span<const SymbolStep> symbolSteps(char32_t letter)
{
    if (letter < U'a' || letter > U'z')
        return {};
    const auto isOther = [letter](const SymbolStep& step) {
        return static_cast<char32_t>(step.symbol) != letter;
    };
    const auto* first = std::find_if_not(std::begin(kSteps), std::end(kSteps), isOther);
    const auto* last = std::find_if(first, std::end(kSteps), isOther);
    return {first, last};
}
