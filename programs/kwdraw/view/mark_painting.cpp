#include "mark_painting.h"

#include <QPainter>

#include <algorithm>

#include "grips.h"
#include "halo.h"
#include "layer_filter.h"
#include "scene_painting.h"

namespace {

/// A halo reaches this far beyond what it is of.
constexpr int kMarkMargin = 10;
/// Of broken lines, in pixels of the widget.
constexpr double kBrokenWidth = 3.0;

enum class MarkForm
{
    Halo,   ///< a soft border
    Broken, ///< wide broken lines
    Grips,  ///< the same with grips
};

/// Items that are marked in one way.
struct MarkedItems
{
    std::vector<std::uint32_t> items;
    QColor color;
    MarkForm form = MarkForm::Halo;
};

/// Broken lines and grips of more items than this can't be told from each other and take long.
constexpr std::size_t kMostWithForm = 5000;

MarkForm formOf(const ViewRequest& request, const std::vector<std::uint32_t>& items, MarkForm form)
{
    const bool hasForm =
        request.colors == ViewColors::HighContrast && items.size() <= kMostWithForm;
    return hasForm ? form : MarkForm::Halo;
}

std::vector<MarkedItems> marksOf(ViewLayer layer, const ViewRequest& request,
                                 const SceneIndex& index)
{
    const Ground ground = Ground::of(request.colors, request.scene->isSheet);
    std::vector<MarkedItems> marks;
    if (layer == ViewLayer::Hover && request.hovered &&
        *request.hovered < request.scene->items.size())
        marks.push_back({{*request.hovered}, ground.hovered});
    const auto add = [&](const ViewRequest::Ids& ids, const QColor& color, MarkForm form) {
        if (layer != ViewLayer::Marks || !ids)
            return;
        std::vector<std::uint32_t> items = index.itemsOf(*ids);
        form = formOf(request, items, form);
        marks.push_back({std::move(items), color, form});
    };
    add(request.highlighted, ground.highlighted, MarkForm::Grips);
    add(request.previewed, ground.previewed, MarkForm::Broken);
    return marks;
}

/// The part of the picture in which marks are.
QRect reachOf(const std::vector<MarkedItems>& marks, const SceneIndex& index,
              const ViewRequest& request)
{
    const Scene& scene = *index.scene();
    const QRect whole(QPoint(0, 0), request.pictureSize());
    SceneBox around;
    for (const MarkedItems& marked : marks)
        for (const std::uint32_t item : marked.items)
            for (const SceneShape& shape : scene.shapesOf(scene.items[item])) {
                if (shape.kind == SceneShape::Kind::Ray || shape.kind == SceneShape::Kind::Marker)
                    return whole;
                if (!shape.box.isEmpty())
                    around.add(shape.box);
            }
    if (around.isEmpty())
        return {};
    const ClipBox box = meet(frameOf(request).mapped(around),
                             {0.0, 0.0, double(whole.width()), double(whole.height())});
    if (!(box.left <= box.right && box.top <= box.bottom))
        return {};
    const QRect part(QPoint(static_cast<int>(box.left), static_cast<int>(box.top)),
                     QPoint(static_cast<int>(box.right), static_cast<int>(box.bottom)));
    const int margin = static_cast<int>(kMarkMargin * request.pixelRatio);
    return part.adjusted(-margin, -margin, margin, margin).intersected(whole);
}

void paintMarked(QPainter& painter, const MarkedItems& marked, const MarkStyle& mark,
                 const SceneIndex& index, QPoint corner, const ViewRequest& request,
                 GlyphStore& glyphs, const std::atomic<bool>& cancelled)
{
    PaintStyle style = styleOf(request, painter.window());
    const Scene& scene = *index.scene();
    const LayerFilter filter(scene, request.layers ? std::span<const LayerState>(*request.layers)
                                                   : std::span<const LayerState>());
    const PixelFrame frame = frameOf(request, corner);
    const SceneBox visible = frame.unmapped(style.clip);
    style.marked = mark;
    ShapePainter shapes(painter, style, glyphs);
    shapes.enter(scene, frame, frame.scale());
    for (const std::uint32_t number : marked.items) {
        if (cancelled.load(std::memory_order_relaxed))
            return;
        const SceneItem& item = scene.items[number];
        if (!filter.shows(item))
            continue;
        for (const SceneShape& shape : scene.shapesOf(item)) {
            const bool endless =
                shape.kind == SceneShape::Kind::Ray || shape.kind == SceneShape::Kind::Marker;
            if (filter.shows(shape) && (endless || shape.box.meets(visible)))
                shapes.paint(shape);
        }
    }
    shapes.flush();
}

void paintGrips(QPainter& painter, const MarkedItems& marked, const SceneIndex& index,
                QPoint corner, const ViewRequest& request)
{
    const Scene& scene = *index.scene();
    const Ground ground = Ground::of(request.colors, scene.isSheet);
    const LayerFilter filter(scene, request.layers ? std::span<const LayerState>(*request.layers)
                                                   : std::span<const LayerState>());
    const PixelFrame frame = frameOf(request, corner);
    const QRectF picture = painter.window();
    const double reach = kGripReach * request.pixelRatio;
    for (const std::uint32_t number : marked.items) {
        const SceneItem& item = scene.items[number];
        if (!filter.shows(item))
            continue;
        for (const Grip& grip : gripsOf(scene, item)) {
            const QPointF pixel = frame.map(grip.place) + grip.outward * reach;
            if (picture.contains(pixel))
                paintGrip(painter, pixel, marked.color, ground.color, request.pixelRatio);
        }
    }
}

/// Lines in the colour of the ground, so that nothing is seen through the gaps of those above.
void paintWithForm(QPainter& painter, const MarkedItems& marked, const SceneIndex& index,
                   QPoint corner, const ViewRequest& request, GlyphStore& glyphs,
                   const std::atomic<bool>& cancelled)
{
    const Ground ground = Ground::of(request.colors, index.scene()->isSheet);
    const double width = kBrokenWidth * request.pixelRatio;
    for (const MarkStyle& style :
         {MarkStyle{ground.color, false, width}, MarkStyle{marked.color, true, width}})
        paintMarked(painter, marked, style, index, corner, request, glyphs, cancelled);
    if (marked.form == MarkForm::Grips)
        paintGrips(painter, marked, index, corner, request);
}

} // namespace

ViewPicture paintMarks(ViewLayer layer, const ViewRequest& request, const SceneIndex& index,
                       GlyphStore& glyphs, const std::atomic<bool>& cancelled)
{
    ViewPicture picture{{}, {}, request};
    const std::vector<MarkedItems> marks = marksOf(layer, request, index);
    const QRect part = reachOf(marks, index, request);
    if (part.isEmpty())
        return picture;
    picture.corner = part.topLeft();
    for (const MarkedItems& marked : marks) {
        if (marked.items.empty())
            continue;
        QImage strokes(part.size(), QImage::Format_ARGB32_Premultiplied);
        strokes.fill(Qt::transparent);
        {
            QPainter painter(&strokes);
            painter.setRenderHint(QPainter::Antialiasing);
            if (marked.form == MarkForm::Halo)
                paintMarked(painter, marked, {marked.color}, index, picture.corner, request, glyphs,
                            cancelled);
            else
                paintWithForm(painter, marked, index, picture.corner, request, glyphs, cancelled);
        }
        if (marked.form == MarkForm::Halo)
            addHalo(strokes, marked.color, request.pixelRatio);
        if (picture.image.isNull())
            picture.image = strokes;
        else
            QPainter(&picture.image).drawImage(0, 0, strokes);
    }
    return picture;
}
