/// What a space of a drawing looks like, flattened and ready to be painted.
///
/// A scene knows the drawing's objects by their ids alone and never changes once it is built, so it
/// can be painted in a thread of its own. Coordinates are drawing units in the plane that the space
/// is looked at, y upwards; for the model that is the XY plane of the WCS.
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <database/object_id.h>

/// A box that may be a point or a line, which `QRectF` takes for nothing. It begins empty.
struct SceneBox
{
    double left = 1e300;
    double bottom = 1e300;
    double right = -1e300;
    double top = -1e300;

    bool isEmpty() const { return left > right; }
    double width() const { return right - left; }
    double height() const { return top - bottom; }
    QPointF center() const { return {(left + right) / 2.0, (bottom + top) / 2.0}; }
    void add(QPointF point);
    void add(const SceneBox& other);
    bool meets(const SceneBox& other) const;
    bool holds(const SceneBox& other) const;
    bool operator==(const SceneBox&) const = default;
};

/// Dashes of a linetype in drawing units: above 0 drawn, below 0 left out, 0 a dot.
struct SceneLinetype
{
    std::vector<double> dashes;
    double length = 0.0; ///< of one repetition
};

/// How a shape is painted, with all that comes from layers and blocks resolved.
struct SceneLook
{
    QRgb color = 0xFFFFFFFF;     ///< with the transparency in its alpha
    bool isForeground = false;   ///< colour 7: white on dark ground, black on light ground
    std::int16_t lineweight = 0; ///< hundredths of a millimetre, not below 0
    std::int32_t linetype = -1;  ///< in `Scene::linetypes`; -1: without breaks
    double linetypeScale = 1.0;

    bool operator==(const SceneLook&) const = default;
};

/// Steps of a path. Each takes as many points from the scene's list as it says.
enum class PathStep : std::uint8_t
{
    Move = 1,  ///< 1 point: starts a line somewhere else
    Line = 2,  ///< 1 point
    Cubic = 3, ///< 3 points: a Bezier curve by its two control points and its end
    Close = 0, ///< no point: back to the last `Move`
};

struct SceneText
{
    QString text;
    std::uint32_t font = 0; ///< in `Scene::fonts`
    /// From the text's own frame: base line along x from the origin, y upwards, capital letters 1
    /// high.
    QTransform placement;
    double advance = 0.0; ///< width in the text's own frame
};

struct SceneFont
{
    QString family;
    bool bold = false;
    bool italic = false;

    bool operator==(const SceneFont&) const = default;
};

/// Colours that run into each other across a filled path.
struct SceneGradient
{
    enum class Form : std::uint8_t
    {
        Linear, ///< along the x axis of its own frame, from 0 to 1
        Radial, ///< from the origin of its own frame outwards, to the distance 1
    };
    struct Stop
    {
        double place = 0.0; ///< from 0 to 1, rising; outside of all stops the nearest one counts
        QRgb color = 0xFF000000;
    };
    Form form = Form::Linear;
    QTransform placement; ///< from its own frame
    std::vector<Stop> stops;
};

struct SceneImage
{
    QImage picture;       ///< null: only its frame is known
    QTransform placement; ///< from the unit square, lower left corner in the origin, y upwards
};

/// A point entity, drawn in the form that the drawing asks for.
struct SceneMarker
{
    QPointF position;
    int mode = 0; ///< "PDMODE": 0 dot, 1 nothing, 2 plus, 3 cross, 4 tick; +32 circle, +64 square
    double size =
        0.0; ///< drawing units; 0 or below: a part of the view's height, in percent, 0 for 5
};

/// A line without end, to one side or to both.
struct SceneRay
{
    QPointF base;
    QPointF direction; ///< of length 1
    bool bothSides = false;
};

struct SceneShape
{
    enum class Kind : std::uint8_t
    {
        Stroke,   ///< a path as a line
        Fill,     ///< the inside of a path, by the odd-even rule
        Gradient, ///< the same in running colours; `index` in `Scene::gradients`
        Text,     ///< `index` in `Scene::texts`
        Image,    ///< `index` in `Scene::images`; its path is what shows of it
        Marker,   ///< `index` in `Scene::markers`
        Ray,      ///< `index` in `Scene::rays`
        Wipeout,  ///< the inside of a path in the colour of the ground
    };
    Kind kind = Kind::Stroke;
    std::uint32_t look = 0;  ///< in `Scene::looks`
    std::uint32_t layer = 0; ///< in `Scene::layers`
    std::uint32_t index = 0;
    std::uint32_t firstStep = 0; ///< of the path, in `Scene::steps`
    std::uint32_t stepCount = 0;
    std::uint32_t firstPoint = 0; ///< of the path, in `Scene::points`
    std::uint32_t pointCount = 0;
    SceneBox box; ///< around all that is painted, lineweight apart; a ray has its base
};

/// One entity of the space, with all that belongs to it: of a block reference the block's contents
/// and the attributes, of a dimension its block.
struct SceneItem
{
    KdDbObjectId id;
    std::uint32_t layer = 0; ///< of the entity itself; frozen, it hides all shapes of the item
    std::uint32_t firstShape = 0;
    std::uint32_t shapeCount = 0;
    SceneBox box; ///< around all shapes
};

struct SceneLayer
{
    KdDbObjectId id;
    QString name;
    QRgb color = 0xFFFFFFFF;
    bool isForeground = false;
    bool on = true;
    bool frozen = false;
    bool locked = false;
};

struct Scene;

/// A window of a sheet through which the model is seen.
struct SceneWindow
{
    std::uint32_t item = 0; ///< its own item, whose shape is the frame
    QPolygonF clip;         ///< in the sheet
    QTransform modelToSheet;
    std::vector<std::uint32_t> frozenLayers; ///< in this window alone
    /// True if dashes of linetypes are as long on the sheet as elsewhere on it, whatever the scale
    /// of the window.
    bool linetypesOfSheet = false;
    std::shared_ptr<const Scene> model;
};

struct Scene
{
    std::vector<SceneItem> items;   ///< in the order in which they are painted
    std::vector<SceneShape> shapes; ///< those of an item stand together
    std::vector<PathStep> steps;
    std::vector<QPointF> points;
    std::vector<SceneLook> looks;
    std::vector<SceneLayer> layers; ///< all layers of the drawing; the same in all its scenes
    std::vector<SceneLinetype> linetypes;
    std::vector<SceneText> texts;
    std::vector<SceneFont> fonts;
    std::vector<SceneGradient> gradients;
    std::vector<SceneImage> images;
    std::vector<SceneMarker> markers;
    std::vector<SceneRay> rays;
    std::vector<SceneWindow> windows;
    SceneBox box;         ///< around all that is on layers that are on and thawed, rays apart
    bool isSheet = false; ///< shown on white paper, in whatever colours the windows are
    SceneBox paper;       ///< of a sheet; empty: of unknown size

    std::span<const SceneShape> shapesOf(const SceneItem& item) const
    {
        return std::span(shapes).subspan(item.firstShape, item.shapeCount);
    }
};
