/// Which font stands for one that a drawing names and this computer may not have.
#pragma once

#include <string_view>

#include <kwdraw/scene/scene.h>

class KdDbTextStyleTableRecord;

struct TextFace
{
    SceneFont font;
    /// Letters are drawn as much wider, so that a replacement fills the room of the font meant.
    double stretch = 1.0;

    bool operator==(const TextFace&) const = default;
};

/// The face of a text style, which may name a TrueType face or a shape font; null stands for the
/// plain face.
TextFace faceOf(const KdDbTextStyleTableRecord* style);
/// The face of a TrueType font by the name of its family.
TextFace faceOfFamily(std::wstring_view family, bool bold, bool italic);
/// The face that stands for a shape font or a font file: "romans", "simplex.shx", "arialbd.ttf".
TextFace faceOfFile(std::wstring_view fileName);
bool isTrueType(const KdDbTextStyleTableRecord* style);
/// True for a style whose letters stand one below the other, which shape fonts alone can.
bool isVertical(const KdDbTextStyleTableRecord* style);
