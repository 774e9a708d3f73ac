/// Collects the shapes of a scene while its entities are walked.
#pragma once

#include <QImage>
#include <QString>

#include <span>
#include <unordered_map>
#include <vector>

#include <geometry/matrix.h>
#include <kwdraw/scene/clip_stack.h>
#include <kwdraw/scene/scene.h>

struct LetterOutline;

/// A path in space, put together step by step.
class ScenePath
{
  public:
    void moveTo(const KdGePoint3d& point);
    void lineTo(const KdGePoint3d& point);
    void cubicTo(const KdGePoint3d& control1, const KdGePoint3d& control2, const KdGePoint3d& end);
    void close();
    /// Part of an ellipse from the current point on, or from its own start if the path is empty:
    /// `center + majorAxis * cos(t) + minorAxis * sin(t)`, `t` in radians from start to end, either
    /// way round. Pieces are so short that no zoom shows a difference to the ellipse.
    void ellipseTo(const KdGePoint3d& center, const KdGeVector3d& majorAxis,
                   const KdGeVector3d& minorAxis, double start, double end);
    void clear();
    bool isEmpty() const { return m_steps.empty(); }
    std::span<const PathStep> steps() const { return m_steps; }
    std::span<const KdGePoint3d> points() const { return m_points; }

  private:
    std::vector<PathStep> m_steps;
    std::vector<KdGePoint3d> m_points;
};

/// Takes shapes in the frame and with the look that are in force; both are set by whoever walks
/// entities and blocks (entity_walk). Shapes with no finite place are left out, and so are empty
/// ones.
class SceneWriter
{
  public:
    explicit SceneWriter(Scene& scene) : m_scene(scene) {}

    /// What is written up to `endItem` belongs to that entity.
    /// @param layer  of the entity itself, in `Scene::layers`
    void beginItem(KdDbObjectId id, std::uint32_t layer);
    void endItem();

    /// The map from the frame in which shapes are given (WCS of the entity, or its block's frame)
    /// to the plane of the scene.
    void setFrame(const KdGeMatrix3d& toScene) { m_frame = toScene; }
    const KdGeMatrix3d& frame() const { return m_frame; }
    /// What comes now is seen only between these corners, which are in the frame in force, and
    /// between those of earlier calls. Fewer than three corners, and corners without an area
    /// between them, hide nothing. Ends with `popClip`.
    void pushClip(std::span<const KdGePoint3d> corners);
    void popClip() { m_clips.pop(); }
    /// How much work clips have made, in points that could have been written instead.
    std::uint64_t clippingWork() const { return m_clips.work(); }

    void setLook(const SceneLook& look, std::uint32_t layer);
    const SceneLook& look() const { return m_look; }
    std::uint32_t layer() const { return m_layer; }

    void stroke(const ScenePath& path);
    void fill(const ScenePath& path);
    /// @param placement  from the gradient's own frame to that of the entity
    void fill(const ScenePath& path, const SceneGradient& gradient, const KdGeMatrix3d& placement);
    void wipeout(const ScenePath& path);
    /// @param placement  from the text's own frame, see `SceneText`, to that of the entity
    void text(const QString& text, const SceneFont& font, const KdGeMatrix3d& placement);
    /// @param picture    null: only its place is known
    /// @param placement  from the unit square to the frame of the entity
    void image(const QImage& picture, const KdGeMatrix3d& placement, const ScenePath& shown);
    void marker(const KdGePoint3d& position, int mode, double size);
    /// @param direction  of any length; one that points at the eye shows nothing
    void ray(const KdGePoint3d& base, const KdGeVector3d& direction, bool bothSides);

  private:
    QPointF placed(const KdGePoint3d& point) const;
    QTransform placed(const KdGeMatrix3d& placement) const;
    /// A shape around what can be seen of a path; null if nothing can, or if the path has no finite
    /// place.
    SceneShape* addPath(SceneShape::Kind kind, const ScenePath& path);
    SceneShape* addPath(SceneShape::Kind kind, const PlanePath& path);
    SceneShape* addClipped(SceneShape::Kind kind, const PlanePath& path);
    void fillLetters(const QString& text, const SceneFont& font, const QTransform& map);
    void fillOutline(const LetterOutline& outline, const QTransform& map);
    /// A shape without a path; null if its box is not finite.
    SceneShape* addPlain(SceneShape::Kind kind, const SceneBox& box);
    SceneShape& addShape(SceneShape::Kind kind, const SceneBox& box);
    std::uint32_t indexOf(const SceneFont& font);

    struct LookHash
    {
        std::size_t operator()(const SceneLook& look) const;
    };

    Scene& m_scene;
    ClipStack m_clips;
    PlanePath m_path; ///< kept for its memory
    KdGeMatrix3d m_frame;
    SceneLook m_look;
    std::uint32_t m_lookIndex = kNoLook;
    std::uint32_t m_layer = 0;
    std::unordered_map<SceneLook, std::uint32_t, LookHash> m_looks;

    /// Nothing has asked for the look in force yet, so the scene need not have it.
    static constexpr std::uint32_t kNoLook = 0xFFFFFFFF;
};
