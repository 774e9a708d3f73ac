/// How letters of a text look.
#pragma once

#include <cstdint>

#include <QString>

#include <kwdraw/texts/text_face.h>

/// The word of a `KdCmColor` that leaves letters in the colour of their text.
inline constexpr std::uint32_t kColorOfText = 0xC0000000;

struct TextLook
{
    /// How pieces of less height than their line stand in it.
    enum class Place : std::uint8_t
    {
        Base,
        Middle,
        Top,
    };

    TextFace face;
    double height = 0.0; ///< of capital letters, drawing units
    double widthFactor = 1.0;
    double tracking = 1.0; ///< stretches the distance of letters
    double oblique = 0.0;  ///< radians, to the right
    std::uint32_t color =
        kColorOfText; ///< the word of a `KdCmColor`; by layer or block: the text's
    Place place = Place::Base;
    bool lineBelow = false;
    bool lineAbove = false;
    bool lineThrough = false;
    bool isDown = false;   ///< letters stand one below the other; the base line runs downwards
    bool isSymbol = false; ///< small letters stand for signs (symbols.h)

    bool operator==(const TextLook&) const = default;

    /// Along the base line, for capital letters 1 high.
    double stretch() const { return widthFactor * face.stretch; }
};

/// How far letters reach along the base line, in drawing units. A letter among those that stand one
/// below the other takes the same room whatever it is.
double widthOf(const TextLook& look, const QString& letters);
/// How far these letters reach below the base line, in drawing units: 0 for those that stand on it.
double depthOf(const TextLook& look, const QString& letters);
/// The end of the letter that begins at `at`, with the marks that stand over it.
int letterEnd(const QString& letters, int at);
/// True for letters that are as wide as tall, between any two of which a line may be broken.
bool isIdeograph(char32_t letter);
