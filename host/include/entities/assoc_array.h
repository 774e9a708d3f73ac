/// Associative arrays: block references that an action fills with copies of their sources.
#pragma once

#include <string_view>

#include <entities/assoc_body.h>

class KdDbBlockReference;
class KdGeCurve3d;

/// A piece of geometry that an array refers to.
class KW_EXPORT KdDbGeomRef : public KdRxObject
{
    KD_RX_DECLARE(KdDbGeomRef)
};

/// A point, in WCS.
class KW_EXPORT KdDbVertexRef : public KdDbGeomRef
{
    KD_RX_DECLARE(KdDbVertexRef)

    KdDbVertexRef() = default;
    explicit KdDbVertexRef(const KdGePoint3d& point) : m_point(point) {}
    KdGePoint3d point() const { return m_point; }

  private:
    KdGePoint3d m_point;
};

/// A curve, in WCS.
class KW_EXPORT KdDbEdgeRef : public KdDbGeomRef
{
    KD_RX_DECLARE(KdDbEdgeRef)

    KdDbEdgeRef() = default;
    explicit KdDbEdgeRef(std::shared_ptr<const KdGeCurve3d> curve) : m_curve(std::move(curve)) {}
    /// Null for a reference that has lost its curve.
    const KdGeCurve3d* curve() const { return m_curve.get(); }

  private:
    std::shared_ptr<const KdGeCurve3d> m_curve;
};

/// The status of a value parameter that an array does not have.
constexpr auto eNoValueParam = static_cast<KdErrorStatus>(261);

/// What determines an array. Its named quantities are "Items", "ItemSpacing", "Rows", "RowSpacing",
/// "RowElevation", "Levels" and "LevelSpacing" for all kinds, and others by kind.
class KW_EXPORT KdDbAssocArrayParameters : public KdRxObject
{
    KD_RX_DECLARE(KdDbAssocArrayParameters)

    /// Gives a quantity.
    /// @param expression  the formula behind the value; empty for a plain value
    /// @param evaluator   the language of the formula; always empty here
    /// @param unit        0 none, 1 distance in drawing units, 2 angle in radians
    /// @return            `eNoValueParam`, with nothing changed, for a name that the array lacks
    KdErrorStatus getValueParam(std::wstring_view name, KdDbEvalVariant& value,
                                KdString& expression, KdString& evaluator, int& unit) const;
    /// Sets a quantity, or adds it.
    void setValueParam(const AssocValueParameter& parameter);
    void setValueParam(const wchar_t* name, const KdDbEvalVariant& value)
    {
        setValueParam({name, {}, 0, {value}});
    }

    /// Gives a piece of geometry. `reference` belongs to the parameters; `id` receives the object
    /// that brings it, or the null id. `eKeyNotFound`, with nothing changed, for another name.
    KdErrorStatus getGeomParam(std::wstring_view name, const KdDbGeomRef*& reference,
                               KdDbObjectId& id) const;
    void setGeomParam(const wchar_t* name, std::shared_ptr<const KdDbGeomRef> reference,
                      KdDbObjectId id = {});

  private:
    struct Geometry
    {
        KdString name;
        std::shared_ptr<const KdDbGeomRef> reference;
        KdDbObjectId id;
    };
    std::vector<AssocValueParameter> m_values;
    std::vector<Geometry> m_geometry;
};

class KW_EXPORT KdDbAssocArrayRectangularParameters : public KdDbAssocArrayParameters
{
    KD_RX_DECLARE(KdDbAssocArrayRectangularParameters)
};

/// Has "Radius", "Direction" (0 clockwise), "FillAngle", "AlignItems" and the vertex "Origin".
class KW_EXPORT KdDbAssocArrayPolarParameters : public KdDbAssocArrayParameters
{
    KD_RX_DECLARE(KdDbAssocArrayPolarParameters)
};

/// Has "Method" (0 divide, 1 measure), "FillPath", "StartOffset", "AlignItems" and the edge "Path".
class KW_EXPORT KdDbAssocArrayPathParameters : public KdDbAssocArrayParameters
{
    KD_RX_DECLARE(KdDbAssocArrayPathParameters)

    /// The path; null for an array without one.
    const KdDbEdgeRef* path() const;
};

struct KW_EXPORT AssocArrayActionBodyMembers : AssocActionBodyMembers
{
    std::unique_ptr<KdDbAssocArrayParameters> array;
    KdGePoint3d sourceBasePoint; ///< WCS
};

class KW_EXPORT KdDbAssocArrayActionBody : public KdDbAssocActionBody
{
    KD_RX_DECLARE(KdDbAssocArrayActionBody)
    KD_DB_MEMBERS(AssocArrayActionBodyMembers)

    /// The body that fills an array; the null id for an entity that is none.
    /// @param item  null: items are not told apart
    static KdDbObjectId getControllingActionBody(const KdDbEntity* entity, const void* item);

    /// Null if it is not known what determines the array.
    const KdDbAssocArrayParameters* arrayParameters() const { return data().array.get(); }
    /// Where the base of the first item stands, in WCS.
    /// @param source  the vertex that gives the point, if the sources have one; here left as it is
    KdErrorStatus getSourceBasePoint(KdDbVertexRef& source, KdGePoint3d& point) const;
};

/// What determines the array that a reference is; null for any other reference. Stays valid while
/// the action body is not changed.
KW_EXPORT const KdDbAssocArrayParameters*
kddbGetAssocArrayParametersConst(const KdDbBlockReference* reference);
