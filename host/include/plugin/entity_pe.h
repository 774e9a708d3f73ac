/// The entity property protocol: which properties an entity has, and what their values are.
#pragma once

#include <database/entity.h>
#include <plugin/res_buf.h>
#include <runtime/c_array.h>
#include <runtime/kd_array.h>
#include <runtime/rx_class.h>

/// The protocol extension that answers for the properties of entities. One object for each host
/// class is attached under `desc()`; providers keep no state. Binary interface: the order of the
/// virtual operations is fixed.
class KW_EXPORT KdDbEntityPE : public KdRxObject
{
  public:
    /// One line of the lineweight list.
    struct lwUnit
    {
        int value; ///< 1/100 mm, or -1 by layer, -2 by block, -3 default
        KdString name;
    };

    static KdRxClass* gpDesc;
    /// The runtime class, or null while it is not registered.
    static KdRxClass* desc();
    KdRxClass* isA() const override;
    /// Registers the runtime class; harmless when it is registered already.
    static void rxInit();

    /// The provider of an entity: its own or that of its nearest ancestor class; null without one.
    static KdDbEntityPE* of(const KdDbEntity& entity);

    /// Appends the key of each property to `names` and beside it a flag to `flags`: true for a
    /// value that can't be set. `entity` may be null; then what depends on it is not listed.
    /// Returns a status, 0 unless a provider says otherwise.
    virtual int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                              KdArray<bool>& flags);

    /// Gives the value of the property with the key `name`. `result` is a record of the caller made
    /// by `ResBuf::newRb(5000)`; it receives restype and value, and the caller owns what is chained
    /// behind it. `asDisplayText` asks for a text, `withChoices` for the allowed values as well.
    /// Returns 1 if the property was recognised; otherwise 0, and the record stays as it was.
    virtual int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                                 bool asDisplayText, bool withChoices);

    /// Length in drawing units. Returns 0 on success; here always 1, not available.
    virtual int getEntityTotalLength(const KdDbEntity* entity, double& length) const;
    /// Area in square drawing units. Returns 0 on success; here always 1, not available.
    virtual int getEntityTotalArea(const KdDbEntity* entity, double& area) const;

    /// Puts the layer's name into `result`, as a text or as a layer name. Null `entity`: nothing.
    void GetLayer(const KdDbEntity* entity, ResBuf*& result, bool asDisplayText) const;
    /// Appends the 24 lineweights in the units of LWUNITS, then ByLayer, ByBlock and Default.
    static void FillLineWeightList(CArray<lwUnit, const lwUnit&>& list);
};

/// The root of all providers.
class KW_EXPORT KdDbEntity_Extension : public KdDbEntityPE
{
  public:
    static KdRxClass* gpDesc;
    static KdRxClass* desc();
    KdRxClass* isA() const override;
    static void rxInit();
};
