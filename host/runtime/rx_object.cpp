#include <runtime/rx_object.h>

#include <runtime/rx_class.h>

KdRxClass* KdRxObject::desc()
{
    static KdRxClass* const rxClass =
        kdrx::definePlatformClass({L"KdRxObject", L"", nullptr, KdRxFactory{}});
    return rxClass;
}

KdRxClass* KdRxObject::isA() const
{
    return desc();
}

KdRxObject* KdRxObject::clone() const
{
    return nullptr;
}

KdErrorStatus KdRxObject::copyFrom(const KdRxObject*)
{
    return eNotApplicable;
}

bool KdRxObject::isEqualTo(const KdRxObject* other) const
{
    return this == other;
}

KdRx::Ordering KdRxObject::comparedTo(const KdRxObject* other) const
{
    return isEqualTo(other) ? KdRx::kEqual : KdRx::kNotOrderable;
}

KdRxObject* KdRxObject::subQueryX(const KdRxClass*) const
{
    return nullptr;
}

bool KdRxObject::isKindOf(const KdRxClass* rxClass) const
{
    const KdRxClass* own = isA();
    return own && own->isDerivedFrom(rxClass);
}

KdRxObject* KdRxObject::x(const KdRxClass* protocol) const
{
    if (KdRxObject* own = subQueryX(protocol))
        return own;
    const KdRxClass* rxClass = isA();
    return rxClass ? rxClass->queryX(protocol) : nullptr;
}
