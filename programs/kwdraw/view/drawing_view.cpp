#include "drawing_view.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawing_view_state.h"
#include "layer_filter.h"
#include "picture_showing.h"

namespace {

/// Pixels around the extents.
constexpr double kRoom = 12.0;
/// Pixels that are painted beside the view, so that panning shows them at once.
constexpr double kMargin = 160.0;
constexpr int kHoverDelay = 40;

ViewRequest::Ids shared(const std::vector<KdDbObjectId>& ids)
{
    return ids.empty() ? nullptr : std::make_shared<const std::vector<KdDbObjectId>>(ids);
}

SceneBox extentsOf(const ViewRequest& request)
{
    const Scene& scene = *request.scene;
    SceneBox box = scene.box;
    if (request.layers || box.isEmpty()) {
        const auto states = request.layers ? std::span<const LayerState>(*request.layers)
                                           : std::span<const LayerState>();
        box = visibleBox(scene, LayerFilter(scene, states));
    }
    if (!scene.paper.isEmpty())
        box.add(scene.paper);
    return box;
}

SceneBox boxOf(const Scene& scene, std::vector<KdDbObjectId> ids)
{
    std::sort(ids.begin(), ids.end());
    SceneBox box;
    for (const SceneItem& item : scene.items)
        if (!item.box.isEmpty() && std::binary_search(ids.begin(), ids.end(), item.id))
            box.add(item.box);
    return box;
}

} // namespace

DrawingView::DrawingView(QWidget* parent) : QWidget(parent)
{
    m_state = std::make_unique<State>([this] {
        QMetaObject::invokeMethod(
            this, [this] { takePainted(); }, Qt::QueuedConnection);
    });
    m_state->hoverTimer.setSingleShot(true);
    m_state->hoverTimer.setInterval(kHoverDelay);
    connect(&m_state->hoverTimer, &QTimer::timeout, this, [this] { hover(); });
    setAccessibleName(tr("Drawing"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(64, 64);
}

// The painter, which calls this widget, ends before any part of the widget does.
DrawingView::~DrawingView()
{
    m_state.reset();
}

void DrawingView::setScene(std::shared_ptr<const Scene> scene)
{
    cancelBox();
    ViewRequest& request = m_state->request;
    request.scene = std::move(scene);
    request.layers = nullptr;
    request.highlighted = nullptr;
    request.previewed = nullptr;
    request.hovered.reset();
    m_state->painted = {};
    m_state->whenIndexed = nullptr;
    m_state->history.clear();
    m_state->showsExtents = true;
    m_state->drawing = request.scene ? extentsOf(request) : SceneBox();
    showBox(m_state->drawing);
}

const std::shared_ptr<const Scene>& DrawingView::scene() const
{
    return m_state->request.scene;
}

void DrawingView::setLayerStates(std::vector<LayerState> states)
{
    m_state->request.layers = std::make_shared<const std::vector<LayerState>>(std::move(states));
    refresh();
}

void DrawingView::setHighlighted(const std::vector<KdDbObjectId>& ids)
{
    m_state->request.highlighted = shared(ids);
    refresh();
}

void DrawingView::setPreviewed(const std::vector<KdDbObjectId>& ids)
{
    m_state->request.previewed = shared(ids);
    refresh();
}

void DrawingView::setLineweightsShown(bool shown)
{
    m_state->request.lineweights = shown;
    refresh();
}

ViewPlace DrawingView::place() const
{
    return m_state->request.place;
}

void DrawingView::setPlace(const ViewPlace& place)
{
    m_state->showsExtents = false;
    moveTo(place);
}

void DrawingView::moveTo(const ViewPlace& place)
{
    m_state->request.place = limited(place, m_state->drawing);
    if (m_state->hoverTimer.isActive() || m_state->request.hovered)
        m_state->hoverTimer.start();
    refresh();
    emit placeChanged();
}

void DrawingView::zoomAndRemember(const ViewPlace& place)
{
    m_state->history.remember(m_state->request.place);
    setPlace(place);
}

void DrawingView::showBox(const SceneBox& box)
{
    moveTo(placeAround(box, size(), kRoom));
}

void DrawingView::zoomToExtents()
{
    if (!scene())
        return;
    m_state->history.remember(place());
    m_state->showsExtents = true;
    showBox(extentsOf(m_state->request));
}

void DrawingView::zoomTo(const std::vector<KdDbObjectId>& ids)
{
    const SceneBox box = scene() ? boxOf(*scene(), ids) : SceneBox();
    if (!box.isEmpty())
        zoomAndRemember(placeAround(box, size(), std::min(width(), height()) / 8.0));
}

void DrawingView::center(KdDbObjectId id)
{
    const SceneBox box = scene() ? boxOf(*scene(), {id}) : SceneBox();
    if (box.isEmpty())
        return;
    const ViewPlace whole = placeAround(box, size(), kRoom);
    if (whole.unitsPerPixel > place().unitsPerPixel)
        zoomAndRemember(whole);
    else
        setPlace({whole.center, place().unitsPerPixel});
}

void DrawingView::zoomBy(double factor)
{
    if (factor > 0.0)
        zoomAndRemember({place().center, place().unitsPerPixel / factor});
}

void DrawingView::zoomToPrevious()
{
    if (!m_state->history.isEmpty())
        setPlace(m_state->history.takeLast());
}

QPointF DrawingView::unitsAt(QPointF pixel) const
{
    return ::unitsAt(place(), size(), pixel);
}

void DrawingView::refresh()
{
    ViewRequest& request = m_state->request;
    request.size = size();
    request.pixelRatio = devicePixelRatioF();
    request.margin = static_cast<int>(std::lround(kMargin * request.pixelRatio));
    request.colors = viewColorsOf(palette());
    m_state->painter.submit(request);
    update();
}

void DrawingView::takePainted()
{
    m_state->painted = m_state->painter.painted();
    update();
    if (m_state->whenIndexed && m_state->index())
        std::exchange(m_state->whenIndexed, nullptr)();
}

QImage DrawingView::renderedPicture()
{
    refresh();
    m_state->painted = m_state->painter.finished();
    const double ratio = m_state->request.pixelRatio;
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    QImage picture(pixels, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    paintGround(painter, m_state->request);
    for (const ViewLayer layer : {ViewLayer::Drawing, ViewLayer::Marks})
        showPicture(painter, m_state->painted.pictures[static_cast<std::size_t>(layer)],
                    m_state->request);
    return picture;
}

void DrawingView::paintEvent(QPaintEvent*)
{
    if (m_state->request.pixelRatio != devicePixelRatioF())
        refresh(); // moved to a screen of another scale
    QPainter painter(this);
    paintGround(painter, m_state->request);
    for (const ViewPicture& picture : m_state->painted.pictures)
        if (picture.source.hovered == m_state->request.hovered ||
            &picture != &m_state->painted.pictures.back())
            showPicture(painter, picture, m_state->request);
    if (isDrawingBox()) {
        const QPointF start = pixelAt(place(), size(), m_state->boxStart);
        paintBox(painter, start, m_state->cursor, m_state->ground().isDark);
    }
    if (m_state->request.colors == ViewColors::HighContrast && hasFocus())
        paintFocus(painter, rect(), m_state->ground().highlighted);
}

void DrawingView::resizeEvent(QResizeEvent*)
{
    if (m_state->showsExtents && scene())
        showBox(extentsOf(m_state->request));
    else
        refresh();
}

void DrawingView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        refresh();
}
