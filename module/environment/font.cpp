#include <environment/font.h>

KdFont::~KdFont() = default;

bool KdFont::isShxFont() const
{
    return true;
}

bool KdFont::isSupportReorder() const
{
    return false;
}

bool KdFont::supportsVerticalMode() const
{
    return false;
}

bool KdFont::isValidLeadByte(unsigned char) const
{
    return false;
}

int KdFont::getFontData(unsigned char*, unsigned int) const
{
    return -1;
}

KdGePoint2d KdFont::lastScale() const
{
    return {1.0, 1.0};
}

void KdFont::calculateCharacterBox(wchar_t, KdGePoint2d& low, KdGePoint2d& high) const
{
    low = KdGePoint2d::kOrigin;
    high = KdGePoint2d::kOrigin;
}

double KdFont::getUnderlinePos(double height) const
{
    return -0.2 * height;
}

double KdFont::getOverlinePos(double height) const
{
    return 1.2 * height;
}

double KdFont::getStrikelinePos(double height) const
{
    return 0.5 * height;
}
