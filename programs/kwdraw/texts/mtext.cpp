// Texts of several lines, as entities and as parts of others.
#include <algorithm>
#include <cmath>
#include <numbers>

#include <database/tables.h>
#include <kwdraw/texts/frames.h>
#include <kwdraw/texts/mtext_layout.h>
#include <kwdraw/texts/style_look.h>
#include <kwdraw/texts/text_pen.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

using Align = ParagraphFormat::Align;

/// 0, 1 or 2 from the left and from the top; a damaged drawing may give any number.
struct Attachment
{
    explicit Attachment(const MTextData& text)
    {
        const int number = text.attachment;
        const bool isKnown = number >= KdDb::kTopLeft && number <= KdDb::kBottomRight;
        column = isKnown ? (number - 1) % 3 : 0;
        row = isKnown ? (number - 1) / 3 : 0;
    }
    int column = 0;
    int row = 0;
};

MTextSetting settingOf(const MTextData& text, bool isDown)
{
    constexpr Align kAligns[] = {Align::Left, Align::Center, Align::Right};
    constexpr double kLeastSpacing = 0.1;
    constexpr double kMostSpacing = 10.0;
    constexpr int kMostColumns = 1000;
    const Attachment attachment(text);
    MTextSetting setting;
    setting.textHeight = text.textHeight;
    const bool hasEnd = !isDown && text.flow != KdDb::kTopToBottom; // lines that run down have none
    setting.width = hasEnd ? std::max(0.0, text.width) : 0.0;
    setting.exactSpacing = text.lineSpacingStyle == KdDb::kExactly;
    if (text.lineSpacingFactor > 0.0)
        setting.lineSpacingFactor = std::clamp(text.lineSpacingFactor, kLeastSpacing, kMostSpacing);
    setting.isDown = isDown;
    setting.align = kAligns[isDown ? attachment.row : attachment.column];
    setting.hasColumns =
        !isDown && text.columns.type != KdDb::kNoColumns && text.columns.width > 0.0;
    if (setting.hasColumns) {
        setting.width = text.columns.width;
        setting.gutter = text.columns.gutter;
        setting.columnHeight = text.height;
        setting.columnHeights = text.columns.heights;
        setting.columnCount = std::clamp<int>(text.columns.count, 1, kMostColumns);
        // With other fonts a text whose columns end where its writer has put them may be longer.
        const bool isFixed =
            text.columns.type == KdDb::kStaticColumns || !text.columns.heights.empty();
        const int heights = static_cast<int>(text.columns.heights.size());
        setting.mostColumns = isFixed ? std::max(setting.columnCount, heights) : 0;
    }
    return setting;
}

/// Drawings tell how much room their texts took in the fonts that were meant. Where a replacement
/// is so wide that lines break at other places, letters are drawn narrower.
MTextLayout fittedLayout(MTextItems& items, const MTextSetting& setting, double knownHeight)
{
    constexpr double kNarrower = 0.94;
    constexpr int kMostTries = 5;
    MTextLayout layout = layoutOf(items, setting);
    const double enough = knownHeight + setting.textHeight;
    for (int i = 0; i < kMostTries && knownHeight > 0.0 && layout.height > enough; ++i) {
        for (TextLook& look : items.looks)
            look.face.stretch *= kNarrower;
        layout = layoutOf(items, setting);
    }
    return layout;
}

void writeGround(const MTextData& text, const SceneBox& letters, TextPen& pen)
{
    if (!text.fill && !text.frame)
        return;
    const double margin = std::max(0.0, text.fillFactor - 1.0) * text.textHeight;
    const SceneBox ground{letters.left - margin, letters.bottom - margin, letters.right + margin,
                          letters.top + margin};
    if (text.fill && text.fillWithBackground)
        pen.wipeout(ground);
    else if (text.fill)
        pen.fill(text.fillColor, ground);
    if (text.frame)
        pen.box(kColorOfText, ground);
}

/// Letters of TrueType fonts stay side by side in lines that should run down.
bool runsDown(const MTextData& text, bool isDownByStyle)
{
    if (text.flow != KdDb::kTopToBottom)
        return text.flow == KdDb::kFlowByStyle && isDownByStyle;
    const OpenForRead<KdDbTextStyleTableRecord> style(text.style);
    return !isTrueType(style.get());
}

KdGeMatrix3d frameOf(const MTextData& text, bool isDown)
{
    const KdGeMatrix3d frame = textFrame(text.location, text.direction, text.normal);
    return isDown ? frame * turnedFrame({}, -std::numbers::pi / 2.0) : frame;
}

} // namespace

void writeMText(const KdDbMText& text, SceneWriter& writer)
{
    writeMText(text.textData(), writer);
}

void writeMText(const MTextData& text, SceneWriter& writer)
{
    if (!(text.textHeight > 0.0) || text.contents.isEmpty())
        return;
    TextLook look = lookOfStyle(text.style);
    look.height = text.textHeight;
    look.isDown = runsDown(text, look.isDown);
    MTextItems items = mtextItems(text.contents, look);
    const MTextSetting setting = settingOf(text, look.isDown);
    const MTextLayout layout = fittedLayout(items, setting, look.isDown ? 0.0 : text.actualHeight);

    const Attachment attachment(text);
    const double left = -layout.width * (look.isDown ? attachment.row : attachment.column) / 2.0;
    const double top = look.isDown ? -layout.height * attachment.column / 2.0
                                   : layout.height * attachment.row / 2.0;
    const double below = look.isDown ? top : top - layout.height;
    TextPen pen(writer, frameOf(text, look.isDown));
    writeGround(text, {left, below, left + layout.width, below + layout.height}, pen);
    pen.pieces(layout.pieces, items.looks, left, top);
}
