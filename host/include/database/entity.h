/// The base of everything that can be drawn, and so selected.
#pragma once

#include <database/color.h>
#include <database/object.h>
#include <geometry/extents.h>
#include <runtime/kd_array.h>

/// What every entity has; see `ObjectMembers`.
struct KW_EXPORT EntityMembers : ObjectMembers
{
    /// The kind of plot style; only `ByName` uses `plotStyle`.
    enum class PlotStyle : std::uint8_t
    {
        ByLayer = 0,
        ByBlock = 1,
        DictionaryDefault = 2,
        ByName = 3,
    };
    /// Which shadows the entity has; the numbers are those of drawing files.
    enum class Shadows : std::uint8_t
    {
        CastAndReceive = 0,
        Cast = 1,
        Receive = 2,
        Ignore = 3,
    };
    /// What is the same for nearly all entities.
    struct Seldom
    {
        KdDbObjectId plotStyle;
        KdString colorName; ///< "BOOK$COLOR", or a plain colour name
        double linetypeScale = 1.0;
        std::uint32_t transparency = 0; ///< see `KdCmTransparency::fromWord`
    };

    KdDbObjectId linetype; ///< null: by layer
    KdRare<Seldom> seldom;
    std::uint32_t color = 0xC0000000; ///< the word of a `KdCmColor`
    std::int16_t lineweight = -1;     ///< 1/100 mm; -1 by layer, -2 by block, -3 default
    PlotStyle plotStyleKind : 2 = PlotStyle::ByLayer;
    Shadows shadows : 2 = Shadows::CastAndReceive;
    bool invisible : 1 = false;
};

class KW_EXPORT KdDbEntity : public KdDbObject
{
    KD_RX_DECLARE(KdDbEntity)
    KD_DB_MEMBERS(EntityMembers)

    KdDbObjectId layerId() const { return m_layer; }
    /// The layer's name; empty if the layer is not there.
    KdString layer() const;
    /// Puts the entity on a layer; the entity must be open for write or not yet in a database.
    void setLayer(KdDbObjectId layer) { m_layer = layer; }

    KdCmColor color() const;
    KdDbObjectId linetypeId() const { return data().linetype; }
    /// The linetype's name as its table has it; "ByLayer" where the entity names none.
    KdString linetype() const;
    double linetypeScale() const { return data().seldom->linetypeScale; }
    /// 1/100 mm, or -1 by layer, -2 by block, -3 default.
    int lineWeight() const { return data().lineweight; }
    KdCmTransparency transparency() const
    {
        return KdCmTransparency::fromWord(data().seldom->transparency);
    }
    /// "ByLayer", "ByBlock", or the key of the style in the plot style dictionary; empty if it is
    /// not there.
    KdString plotStyleName() const;
    bool isInvisible() const { return data().invisible; }
    /// Whether a rendered view shows the entity's shadow on others, and those of others on it.
    bool castShadows() const;
    bool receiveShadows() const;
    /// Takes over layer, colour, linetype and its scale, lineweight, plot style, transparency,
    /// shadows and visibility. The entity must be open for write or not yet in a database.
    void setPropertiesFrom(const KdDbEntity& other);

    /// The block table record that the entity is part of; for vertices and attributes, that of the
    /// entity that owns them.
    KdDbObjectId blockId() const;

    /// True if the whole entity lies in one plane. Here: false.
    virtual bool isPlanar() const;
    /// The points by which a person takes hold of the entity, in WCS, appended to `points`. Here
    /// and where a kind has none: `eNotApplicable`.
    virtual KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const;
    /// The smallest box around the entity, in WCS. Here, and where a kind has no extents or an
    /// entity no size: `eNotApplicable`, `extents` untouched.
    virtual KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const;
    /// The four corners of a text's frame, in WCS, appended to `points`: those of the lower edge
    /// from left to right, then those of the upper edge from left to right, so that 0, 1, 3, 2 go
    /// round. Here, and for kinds without such a frame: `eNotApplicable`.
    virtual KdErrorStatus getBoundingPoints(KdArray<KdGePoint3d>& points) const;
    /// The corners around what an image shows, in WCS, one after the other along the edge and none
    /// twice, appended to `points`. Here, and for kinds without such an edge: `eNotApplicable`.
    virtual KdErrorStatus getOutline(KdArray<KdGePoint3d>& points) const;

    /// `CLSID_KdadEntity` for every kind that has none of its own.
    KdErrorStatus getClassID(CLSID* classId) const override;

    /// Takes over a vertex, attribute or sequence end that follows this entity in its drawing.
    /// Entities without parts of their own ignore it.
    virtual void appendPart(KdDbObjectId /*part*/) {}

  private:
    KdDbObjectId m_layer;
};
