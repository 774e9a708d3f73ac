#include <kwdraw/texts/style_look.h>

#include <database/tables.h>
#include <kwdraw/texts/symbols.h>

TextLook lookOfStyle(KdDbObjectId id)
{
    const OpenForRead<KdDbTextStyleTableRecord> style(id);
    TextLook look;
    look.height = 1.0;
    look.face = faceOf(style.get());
    if (!style)
        return look;
    look.isDown = isVertical(style.get());
    look.isSymbol = style->typeface().isEmpty() && isSymbolFont(style->fileName());
    look.oblique = style->obliquingAngle();
    if (style->xScale() > 0.0)
        look.widthFactor = style->xScale();
    return look;
}
