// Texts that are computed.
#include <entities/special_text.h>
#include <kwdraw/texts/frames.h>
#include <kwdraw/texts/mtext_layout.h>
#include <kwdraw/texts/style_look.h>
#include <kwdraw/texts/text_pen.h>
#include <kwdraw/texts/text_shapes.h>

void writeRText(const KdDbRText& text, SceneWriter& writer)
{
    if (!(text.height() > 0.0))
        return;
    TextLook look = lookOfStyle(text.textStyle());
    look.height = text.height();
    look.isDown = false;
    const MTextItems items = mtextItems(text.contents(), look);
    const MTextLayout layout = layoutOf(items, {.textHeight = look.height});
    TextPen pen(writer,
                textFrame(text.position(), {}, text.normal()) * turnedFrame({}, text.rotation()));
    pen.pieces(layout.pieces, items.looks, 0.0, look.height);
}
