/// Centre marks and centre lines: block references that an action draws over circles and lines.
#pragma once

#include <optional>

#include <entities/assoc_body.h>
#include <entities/block_reference.h>

class KW_EXPORT KdDbSmartCenterActionBody : public KdDbAssocActionBody
{
    KD_RX_DECLARE(KdDbSmartCenterActionBody)
};

/// What a drawing does not say about a mark keeps these values. The names under which drawings keep
/// the rest are not known, so that marks from a file have them, too.
struct KW_EXPORT CenterMarkMembers : AssocActionBodyMembers
{
    struct Overshoots
    {
        double start = 0.0;
        double end = 0.0;
    };
    KdString crossHairLength; ///< an expression such as "0.1x": a share of the circle's size
    KdString crossHairGap;
    Overshoots horizontal;
    Overshoots vertical;
    bool extensionLinesVisible = true;
    std::optional<double> rotation; ///< radians; none: that of the reference
};

class KW_EXPORT KdDbCenterMarkActionBody : public KdDbSmartCenterActionBody
{
    KD_RX_DECLARE(KdDbCenterMarkActionBody)
    KD_DB_MEMBERS(CenterMarkMembers)

    const CenterMarkMembers& mark() const { return data(); }
};

struct KW_EXPORT CenterLineSegment
{
    KdGePoint3d start; ///< WCS
    KdGePoint3d end;
};

struct KW_EXPORT CenterLineMembers : AssocActionBodyMembers
{
    std::optional<CenterLineSegment> segment; ///< without overshoots; none: what the block shows
    double startOvershoot = 0.0;
    double endOvershoot = 0.0;
};

class KW_EXPORT KdDbCenterLineActionBody : public KdDbSmartCenterActionBody
{
    KD_RX_DECLARE(KdDbCenterLineActionBody)
    KD_DB_MEMBERS(CenterLineMembers)

    const CenterLineMembers& line() const { return data(); }
};

/// Looks at a block reference as a centre object. A wrapper for something else answers what one
/// without values would.
class KW_EXPORT KdDbSmartCenterObjectWrapper
{
  public:
    enum CenterType
    {
        kNone = 0,
        kCenterMark = 1,
        kCenterLine = 2,
        kDetached = 16, ///< added to the others where the action was erased
    };

    explicit KdDbSmartCenterObjectWrapper(KdDbObjectId reference) : m_reference(reference) {}
    virtual ~KdDbSmartCenterObjectWrapper() = default;

    /// The kind of an object, a `CenterType`; `kNone` for the null id and for all that is none.
    static int getCenterType(KdDbObjectId id);

    KdDbObjectId objectId() const { return m_reference; }

  protected:
    /// What the centre object follows, erased or not.
    std::vector<KdDbObjectId> sources() const;
    KdDbObjectId bodyId() const;

  private:
    KdDbObjectId m_reference;
};

class KW_EXPORT KdDbCenterMarkObjectWrapper : public KdDbSmartCenterObjectWrapper
{
  public:
    using KdDbSmartCenterObjectWrapper::KdDbSmartCenterObjectWrapper;

    /// True if all that the mark follows is still there.
    bool isFullyAssociative() const;
    KdString crossHairLengthExpression() const;
    KdString crossHairGapExpression() const;
    double horizontalStartOvershoot() const;
    double horizontalEndOvershoot() const;
    double verticalStartOvershoot() const;
    double verticalEndOvershoot() const;
    bool getExtensionLinesVisibility() const;
    /// Radians.
    double rotation() const;
};

class KW_EXPORT KdDbCenterLineObjectWrapper : public KdDbSmartCenterObjectWrapper
{
  public:
    using KdDbSmartCenterObjectWrapper::KdDbSmartCenterObjectWrapper;

    /// True if anything that the line follows is still there.
    bool isAssociative() const;
    /// The line, in WCS; `eNotApplicable`, `segment` untouched, if there is none.
    /// @param withoutOvershoots  false: drawn out at both ends
    KdErrorStatus getCenterLineGeometry(CenterLineSegment& segment, bool withoutOvershoots) const;
    double startOvershoot() const;
    double endOvershoot() const;
};

namespace KdSmartCenterDbxUtils {

/// The centre object of the drawing behind a reference that is in no drawing itself, such as a copy
/// that follows the cursor; the null id if there is none.
KW_EXPORT KdDbObjectId getSmartCenterObjIdFromObj(const KdDbBlockReference* reference);

} // namespace KdSmartCenterDbxUtils
