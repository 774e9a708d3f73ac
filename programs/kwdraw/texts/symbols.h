/// Signs of geometric tolerances. Drawings have them as the small letters of a font of their own,
/// which nobody else has, so they are drawn as strokes.
#pragma once

#include <span>
#include <string_view>

/// A part of a sign, in heights of a capital letter from the left end of the base line.
struct SymbolStep
{
    enum class Kind : char
    {
        Line,   ///< x1, y1, x2, y2
        Arc,    ///< centre x and y, radius, and from which to which angle in degrees
        Letter, ///< `numbers[0]` is a capital letter, to be written small into a circle
    };
    char symbol = 0;
    Kind kind = Kind::Line;
    double numbers[5] = {};
};

/// True for the name of a font of signs: "gdt", "amgdt.shx".
bool isSymbolFont(std::wstring_view fileName);
/// What draws the sign of a letter; empty if the letter stands for none.
std::span<const SymbolStep> symbolSteps(char32_t letter);
/// How wide each sign is, the gap behind it included.
inline constexpr double kSymbolAdvance = 1.5;
/// And the gap before it, in which no step draws.
inline constexpr double kSymbolGap = 0.1;
