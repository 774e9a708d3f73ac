/// The widget that shows a drawing and lets the user pick in it.
#pragma once

#include <QWidget>

#include <memory>
#include <vector>

#include <kwdraw/scene/scene.h>
#include <kwdraw/view/view_place.h>

/// Shows a scene. Painting runs in a thread of its own: the widget always has a picture to show,
/// moved and scaled to the place that is asked for until the next one is ready.
///
/// The wheel zooms at the cursor, the middle button pans, double-clicked it zooms to the extents.
/// The left button picks: an entity, or from an empty place a box, by dragging or by two clicks;
/// from left to right it takes what lies inside (window), from right to left also what it touches
/// (crossing). Plus, minus and the arrow keys zoom and pan. What the view highlights is what it is
/// told; it selects nothing by itself.
class DrawingView : public QWidget
{
    Q_OBJECT
  public:
    explicit DrawingView(QWidget* parent = nullptr);
    ~DrawingView() override;

    /// Shows another scene, zoomed to its extents, which stay in view while the widget changes its
    /// size and nobody zooms or pans. Null shows nothing. Highlights and layer states are
    /// forgotten.
    void setScene(std::shared_ptr<const Scene> scene);
    const std::shared_ptr<const Scene>& scene() const;
    /// One for each layer of the scene; layers without are as the drawing has them.
    void setLayerStates(std::vector<LayerState> states);
    void setHighlighted(const std::vector<KdDbObjectId>& ids);
    /// Shown in another way than the highlighted ones, before the user decides.
    void setPreviewed(const std::vector<KdDbObjectId>& ids);
    void setLineweightsShown(bool shown);

    ViewPlace place() const;
    /// As far as numbers allow; a place too near or too far is brought back.
    void setPlace(const ViewPlace& place);
    void zoomToExtents();
    /// Shows these entities with some room around them; does nothing if none has a size or place.
    void zoomTo(const std::vector<KdDbObjectId>& ids);
    /// Moves an entity into the middle and zooms out if it is larger than the view.
    void center(KdDbObjectId id);
    void zoomBy(double factor);
    /// The next box that the user draws is zoomed to and selects nothing.
    void beginZoomWindow();
    /// The place before the last zoom.
    void zoomToPrevious();

    /// True while the user is drawing a box.
    bool isDrawingBox() const;
    /// Ends a box that the user is drawing or a zoom window that was asked for; false if there was
    /// neither.
    bool cancelBox();

    /// The picture as it is painted now, waited for: for tests, copies and prints.
    QImage renderedPicture();

  signals:
    /// The cursor's place in drawing units.
    void cursorMoved(QPointF place);
    /// The user picked entities, to add to the selection or, with Shift, to take away.
    void picked(const std::vector<KdDbObjectId>& ids, bool takeAway);
    /// The right button was clicked; `global` is its place on the screen. While the user is drawing
    /// a box, the click gives up the box instead.
    void rightClicked(QPoint global);
    void placeChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct State;

    QPointF unitsAt(QPointF pixel) const;
    void refresh();
    void takePainted();
    void moveTo(const ViewPlace& place);
    void zoomAndRemember(const ViewPlace& place);
    void zoomInSteps(QPointF pixel, double factor);
    void showBox(const SceneBox& box);
    void pressLeft(QPointF pixel, bool takeAway);
    void dragLeft(QPointF pixel);
    void releaseLeft();
    void pickAtPress();
    void finishBox(QPointF pixel);
    void pickBox(QPointF pixel);
    void hover();
    void forgetHover();

    std::unique_ptr<State> m_state;
};
