/// What a view wants to have painted.
#pragma once

#include <QImage>
#include <QPoint>
#include <QSizeF>

#include <memory>
#include <optional>
#include <vector>

#include <kwdraw/scene/scene.h>

#include "ground.h"
#include "view_place.h"

/// The pictures that lie on each other in a view, the lowest first.
enum class ViewLayer
{
    Drawing,
    Marks, ///< what is highlighted and previewed
    Hover, ///< what is under the cursor
};
inline constexpr std::size_t kViewLayers = 3;

struct ViewRequest
{
    using Ids = std::shared_ptr<const std::vector<KdDbObjectId>>;

    std::shared_ptr<const Scene> scene;
    ViewPlace place;
    QSizeF size;             ///< of the widget, in its own pixels
    double pixelRatio = 1.0; ///< pixels of the picture for one of the widget
    int margin = 0;          ///< around the widget, in pixels of the picture
    ViewColors colors = ViewColors::Light;
    bool lineweights = false;
    std::shared_ptr<const std::vector<LayerState>> layers; ///< null: as the drawing has them
    Ids highlighted;                                       ///< null: none
    Ids previewed;
    std::optional<std::uint32_t> hovered; ///< number of an item

    QSize pictureSize() const;
    bool marksSomething(ViewLayer layer) const;
};

/// True if one picture serves both requests.
bool samePicture(ViewLayer layer, const ViewRequest& first, const ViewRequest& second);
/// True if it would, were it not for the place.
bool sameButForPlace(ViewLayer layer, const ViewRequest& first, const ViewRequest& second);

/// A picture that was painted.
struct ViewPicture
{
    QImage image;       ///< null: nothing to show
    QPoint corner;      ///< its place in the picture that was asked for, which may be larger
    ViewRequest source; ///< what it shows
};
