/// The root of all runtime objects.
#pragma once

#include <runtime/export.h>
#include <runtime/status.h>

class KdRxClass;

namespace KdRx {
enum Ordering
{
    kLessThan = -1,
    kEqual = 0,
    kGreaterThan = 1,
    kNotOrderable = 2,
};
}

/// Base of everything that has a runtime class. Binary interface: the order of the virtual
/// operations is fixed (destructor pair, `isA`, `clone`, `copyFrom`, `isEqualTo`, `comparedTo`,
/// `subQueryX`).
class KW_EXPORT KdRxObject
{
  public:
    virtual ~KdRxObject() = default;

    /// The runtime class of the object; may be null for an object whose class is not registered.
    virtual KdRxClass* isA() const;
    /// A copy owned by the caller, or null where copying is not supported (as here).
    virtual KdRxObject* clone() const;
    /// Takes over the content of `other`; here `eNotApplicable`.
    virtual KdErrorStatus copyFrom(const KdRxObject* other);
    /// Here: the same object.
    virtual bool isEqualTo(const KdRxObject* other) const;
    virtual KdRx::Ordering comparedTo(const KdRxObject* other) const;
    /// An extension that belongs to this object and not to its class; here null.
    virtual KdRxObject* subQueryX(const KdRxClass* protocol) const;

    static KdRxClass* desc();

    /// True if the object's class is `rxClass` or derives from it.
    bool isKindOf(const KdRxClass* rxClass) const;
    /// The protocol extension of the object, or of its class or nearest ancestor; null if none.
    KdRxObject* x(const KdRxClass* protocol) const;

  protected:
    KdRxObject() = default;
    KdRxObject(const KdRxObject&) = default;
    KdRxObject& operator=(const KdRxObject&) = default;
};
