#include "scene_painting.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

#include "clipping.h"
#include "fill_path.h"
#include "layer_filter.h"
#include "mark_painting.h"
#include "shape_painter.h"

namespace {

using Rank = SceneIndex::Rank;

/// Room for wide pens and rounded numbers beside the picture.
constexpr double kClipMargin = 16.0;

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

} // namespace

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
