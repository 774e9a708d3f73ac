#include "view_request.h"

#include <cmath>

namespace {

bool holdsSome(const ViewRequest::Ids& ids)
{
    return ids && !ids->empty();
}

} // namespace

QSize ViewRequest::pictureSize() const
{
    return {static_cast<int>(std::ceil(size.width() * pixelRatio)) + 2 * margin,
            static_cast<int>(std::ceil(size.height() * pixelRatio)) + 2 * margin};
}

bool ViewRequest::marksSomething(ViewLayer layer) const
{
    return layer == ViewLayer::Marks   ? holdsSome(highlighted) || holdsSome(previewed)
           : layer == ViewLayer::Hover ? hovered.has_value()
                                       : false;
}

bool sameButForPlace(ViewLayer layer, const ViewRequest& first, const ViewRequest& second)
{
    const bool sameDrawing = first.scene == second.scene && first.size == second.size &&
                             first.pixelRatio == second.pixelRatio &&
                             first.margin == second.margin && first.colors == second.colors &&
                             first.lineweights == second.lineweights &&
                             first.layers == second.layers;
    switch (layer) {
    case ViewLayer::Drawing:
        return sameDrawing;
    case ViewLayer::Marks:
        return sameDrawing && first.highlighted == second.highlighted &&
               first.previewed == second.previewed;
    case ViewLayer::Hover:
        return sameDrawing && first.hovered == second.hovered;
    }
    return false;
}

bool samePicture(ViewLayer layer, const ViewRequest& first, const ViewRequest& second)
{
    if (!sameButForPlace(layer, first, second))
        return false;
    const bool nothing = layer != ViewLayer::Drawing && !first.marksSomething(layer);
    return nothing || first.place == second.place;
}
