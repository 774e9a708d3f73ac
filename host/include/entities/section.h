/// Section planes.
#pragma once

#include <vector>

#include <entities/declare.h>
#include <geometry/point.h>

struct KW_EXPORT SectionMembers : EntityMembers
{
    KdString name;
    KdGeVector3d verticalDirection{0.0, 0.0, 1.0}; ///< WCS
    double topPlane = 0.0;
    double bottomPlane = 0.0;
    double thicknessDepth = 0.0;
    std::vector<KdGePoint3d> vertices; ///< WCS
    std::int32_t state = 1;
    bool slice = false;
};

/// Cuts solids open along a line.
class KW_EXPORT KdDbSection : public KdDbEntity
{
    KD_RX_DECLARE(KdDbSection)
    KD_DB_MEMBERS(SectionMembers)

    /// The numbers are those of drawing files.
    enum State
    {
        kPlane = 1,
        kBoundary = 2,
        kVolume = 4,
    };

    const KdString& getName() const { return data().name; }
    /// A `State`, or what else a damaged drawing holds.
    int state() const { return data().state; }
    /// True for a boundary that was made as a slice of one thickness.
    bool isSlice() const { return data().slice; }
    /// How thick a slice is, in drawing units.
    double thicknessDepth() const { return data().thicknessDepth; }
    /// True if the drawing is shown cut open by this section.
    bool isLiveSectionEnabled() const;
    /// Height and depth from the section line, in drawing units.
    double topPlane() const { return data().topPlane; }
    double bottomPlane() const { return data().bottomPlane; }
    /// How far the plane is shifted from its line; drawings do not keep it, so always 0.
    double sectionPlaneOffset() const { return 0.0; }
    int numVertices() const { return static_cast<int>(data().vertices.size()); }
    /// A point of the section line in WCS. `eInvalidInput` unless `index` is below
    /// `numVertices()`, `vertex` untouched.
    KdErrorStatus getVertex(int index, KdGePoint3d& vertex) const;
};

struct KW_EXPORT SectionManagerMembers : ObjectMembers
{
    std::vector<KdDbObjectId> sections;
    bool live = false;
};

/// Knows the sections of a drawing.
class KW_EXPORT KdDbSectionManager : public KdDbObject
{
    KD_RX_DECLARE(KdDbSectionManager)
    KD_DB_MEMBERS(SectionManagerMembers)

    /// Whether it keeps the drawing cut open by that section.
    bool isLive(KdDbObjectId section) const;
};
