/// The base of fonts. By itself it is a font of strokes without any letters.
#pragma once

#include <geometry/point.h>
#include <runtime/export.h>

class KW_EXPORT KdFont
{
  public:
    virtual ~KdFont();

    virtual bool isShxFont() const;
    /// Whether letters may stand in another order than they are read.
    virtual bool isSupportReorder() const;
    virtual bool supportsVerticalMode() const;
    /// Whether a byte is the first of a character of two.
    virtual bool isValidLeadByte(unsigned char byte) const;
    /// Copies the font's file; returns its size, here -1 for none.
    virtual int getFontData(unsigned char* buffer, unsigned int size) const;
    /// The factors along x and y at which the font was drawn last.
    virtual KdGePoint2d lastScale() const;
    /// The box around a character; here empty, both corners at the origin.
    virtual void calculateCharacterBox(wchar_t character, KdGePoint2d& low,
                                       KdGePoint2d& high) const;

    // How far above the base line the lines along a text of that height run.
    virtual double getUnderlinePos(double height) const;
    virtual double getOverlinePos(double height) const;
    virtual double getStrikelinePos(double height) const;
};
