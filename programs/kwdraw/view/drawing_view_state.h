/// What a `DrawingView` remembers; for its own files.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

#include "drawing_view.h"
#include "ground.h"
#include "pick.h"
#include "view_painter.h"
#include "view_zoom.h"

/// What the mouse is doing.
enum class Gesture
{
    None,
    Panning,
    Pressed, ///< the left button went down and did not move yet
    DraggedBox,
    ClickedBox, ///< from one click to the next
};

struct DrawingView::State
{
    explicit State(std::function<void()> ready) : painter(std::move(ready)) {}

    ViewRequest request; ///< what is to be seen, place included
    PaintedView painted;
    SceneBox drawing; ///< around all of the scene, seen or not
    bool showsExtents = true;
    ZoomHistory history;
    QElapsedTimer lastStep; ///< since the wheel zoomed last

    Gesture gesture = Gesture::None;
    QPointF pressed;       ///< pixel
    QPointF cursor;        ///< pixel
    QPointF boxStart;      ///< drawing units, so that the box stays in place when the view moves
    bool isInside = false; ///< the cursor
    bool takesAway = false;
    bool isZoomWindow = false;         ///< the next box is zoomed to
    std::function<void()> whenIndexed; ///< a pick that waits for the index
    QTimer hoverTimer;

    ViewPainter painter;

    /// Of the scene that is shown; null until it is made.
    const SceneIndex* index() const
    {
        const SceneIndex* made = painted.index.get();
        return made && made->scene() == request.scene ? made : nullptr;
    }
    PickView pickView() const
    {
        PickView view{request.place.unitsPerPixel, request.size.height(), {}};
        if (request.layers)
            view.layers = *request.layers;
        return view;
    }
    /// Does it now or as soon as there is an index.
    void withIndex(std::function<void()> action)
    {
        if (index())
            action();
        else if (request.scene)
            whenIndexed = std::move(action);
    }
    Ground ground() const
    {
        return Ground::of(request.colors, request.scene && request.scene->isSheet);
    }
};
