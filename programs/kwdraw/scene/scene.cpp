#include <kwdraw/scene/scene.h>

#include <algorithm>

void SceneBox::add(QPointF point)
{
    left = std::min(left, point.x());
    bottom = std::min(bottom, point.y());
    right = std::max(right, point.x());
    top = std::max(top, point.y());
}

void SceneBox::add(const SceneBox& other)
{
    left = std::min(left, other.left);
    bottom = std::min(bottom, other.bottom);
    right = std::max(right, other.right);
    top = std::max(top, other.top);
}

bool SceneBox::meets(const SceneBox& other) const
{
    return left <= other.right && other.left <= right && bottom <= other.top && other.bottom <= top;
}

bool SceneBox::holds(const SceneBox& other) const
{
    return !other.isEmpty() && left <= other.left && other.right <= right &&
           bottom <= other.bottom && other.top <= top;
}
