#include "scene_painting.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

#include "clipping.h"
#include "fill_path.h"
#include "grips.h"
#include "halo.h"
#include "layer_filter.h"
#include "shape_painter.h"

namespace {

using Rank = SceneIndex::Rank;

/// Room for wide pens and rounded numbers beside the picture.
constexpr double kClipMargin = 16.0;
/// A halo reaches this far beyond what it is of.
constexpr int kMarkMargin = 8;
/// Of broken lines, in pixels of the widget.
constexpr double kBrokenWidth = 3.0;

PaintStyle styleOf(const ViewRequest& request, const QRect& part)
{
    PaintStyle style;
    style.ground = Ground::of(request.colors, request.scene->isSheet);
    style.lineweights = request.lineweights;
    style.pixelRatio = request.pixelRatio;
    style.viewHeight = request.size.height() * request.pixelRatio;
    style.clip = {part.left() - kClipMargin, part.top() - kClipMargin, part.right() + kClipMargin,
                  part.bottom() + kClipMargin};
    return style;
}

ClipBox meet(const ClipBox& first, const ClipBox& second)
{
    return {std::max(first.left, second.left), std::max(first.top, second.top),
            std::min(first.right, second.right), std::min(first.bottom, second.bottom)};
}

/// Paints a scene and, for a sheet, what its windows show.
class DrawingPainter
{
  public:
    DrawingPainter(QPainter& painter, const ViewRequest& request, PaintStyle style,
                   GlyphStore& glyphs, const std::atomic<bool>& cancelled)
        : m_painter(painter),
          m_request(request),
          m_style(std::move(style)),
          m_shapes(painter, m_style, glyphs),
          m_cancelled(cancelled)
    {
    }

    void paintGround(const PixelFrame& frame)
    {
        const SceneBox& paper = m_request.scene->paper;
        const bool hasEdge = m_request.scene->isSheet && !paper.isEmpty();
        m_painter.fillRect(m_painter.window(),
                           hasEdge ? m_style.ground.surround : m_style.ground.color);
        if (!hasEdge)
            return;
        const ClipBox box = meet(frame.mapped(paper), m_style.clip);
        if (box.left < box.right && box.top < box.bottom)
            m_painter.fillRect(QRectF(QPointF(box.left, box.top), QPointF(box.right, box.bottom)),
                               m_style.ground.color);
    }

    void paint(const SceneIndex& index, const PixelFrame& frame)
    {
        paint(index, frame, frame.scale(), m_style.clip, LayerFilter(*index.scene(), layers()));
    }

  private:
    std::span<const LayerState> layers() const
    {
        return m_request.layers ? std::span<const LayerState>(*m_request.layers)
                                : std::span<const LayerState>();
    }

    void paint(const SceneIndex& index, const PixelFrame& frame, double dashScale,
               const ClipBox& visible, const LayerFilter& filter)
    {
        std::vector<Rank> ranks;
        index.find(frame.unmapped(visible), m_style.viewHeight / frame.scale(), ranks);
        m_shapes.enter(*index.scene(), frame, dashScale);
        std::vector<std::size_t> windows = windowOrder(*index.scene());
        auto window = windows.begin();
        for (const Rank rank : ranks) {
            if (m_cancelled.load(std::memory_order_relaxed))
                return;
            for (; window != windows.end() && isBefore(index, *window, rank); ++window)
                paintWindow(index, *window, frame);
            const SceneShape& shape = index.shape(rank);
            if (filter.shows(index.item(rank), shape))
                m_shapes.paint(shape);
        }
        for (; window != windows.end(); ++window)
            paintWindow(index, *window, frame);
        m_shapes.flush();
    }

    static std::vector<std::size_t> windowOrder(const Scene& scene)
    {
        std::vector<std::size_t> order(scene.windows.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(), [&scene](std::size_t a, std::size_t b) {
            return scene.windows[a].item < scene.windows[b].item;
        });
        return order;
    }

    static bool isBefore(const SceneIndex& index, std::size_t window, Rank rank)
    {
        return index.scene()->windows[window].item <= index.entry(rank).item;
    }

    void paintWindow(const SceneIndex& sheet, std::size_t number, const PixelFrame& frame)
    {
        const SceneWindow& window = sheet.scene()->windows[number];
        const SceneIndex* model =
            number < sheet.models().size() ? sheet.models()[number].get() : nullptr;
        FillPath clip(m_style.clip, Qt::OddEvenFill);
        for (int i = 0; i < window.clip.size(); ++i) {
            const QPointF corner = frame.map(window.clip[i]);
            i == 0 ? clip.moveTo(corner) : clip.lineTo(corner);
        }
        const QPainterPath& shown = clip.finished();
        if (!model || shown.isEmpty())
            return;
        m_shapes.flush();
        m_painter.save();
        m_painter.setClipPath(shown, Qt::IntersectClip);
        LayerFilter filter(*model->scene(), layers());
        filter.freeze(window.frozenLayers);
        const QRectF box = shown.boundingRect();
        const PixelFrame inner = frame.within(window.modelToSheet);
        paint(*model, inner, window.linetypesOfSheet ? frame.scale() : inner.scale(),
              {box.left(), box.top(), box.right(), box.bottom()}, filter);
        m_painter.restore();
        m_shapes.enter(*sheet.scene(), frame, frame.scale());
    }

    QPainter& m_painter;
    const ViewRequest& m_request;
    PaintStyle m_style;
    ShapePainter m_shapes;
    const std::atomic<bool>& m_cancelled;
};

ViewPicture paintDrawing(const ViewRequest& request, const SceneIndex& index, GlyphStore& glyphs,
                         const std::atomic<bool>& cancelled)
{
    ViewPicture picture{QImage(request.pictureSize(), QImage::Format_RGB32), {}, request};
    if (picture.image.isNull())
        return picture;
    QPainter painter(&picture.image);
    const PixelFrame frame = frameOf(request);
    DrawingPainter drawing(painter, request, styleOf(request, picture.image.rect()), glyphs,
                           cancelled);
    drawing.paintGround(frame);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.paint(index, frame);
    return picture;
}

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
    for (const std::uint32_t number : marked.items) {
        const SceneItem& item = scene.items[number];
        if (!filter.shows(item))
            continue;
        for (const QPointF place : gripsOf(scene, item))
            if (const QPointF pixel = frame.map(place); picture.contains(pixel))
                paintGrip(painter, pixel, marked.color, ground.color, request.pixelRatio);
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

} // namespace

PixelFrame frameOf(const ViewRequest& request, QPoint corner)
{
    const QPointF middle(request.size.width() * request.pixelRatio / 2.0 + request.margin,
                         request.size.height() * request.pixelRatio / 2.0 + request.margin);
    return {request.place.center, request.pixelRatio / request.place.unitsPerPixel,
            middle - corner};
}

ViewPicture paintLayer(ViewLayer layer, const ViewRequest& request, const SceneIndex& index,
                       GlyphStore& glyphs, const std::atomic<bool>& cancelled)
{
    return layer == ViewLayer::Drawing ? paintDrawing(request, index, glyphs, cancelled)
                                       : paintMarks(layer, request, index, glyphs, cancelled);
}
