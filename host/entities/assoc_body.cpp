#include <entities/assoc_body.h>

KD_RX_DEFINE_ABSTRACT(KdDbAssocActionBody, KdDbObject, L"AcDbAssocActionBody")
KD_RX_DEFINE_ABSTRACT(KdDbAssocActionParam, KdDbObject, L"AcDbAssocActionParam")
KD_RX_DEFINE(KdDbAssocVertexActionParam, KdDbAssocActionParam, L"AcDbAssocVertexActionParam",
             L"ACDBASSOCVERTEXACTIONPARAM")

namespace {

/// The body behind one reactor of an entity; the null id if the reactor is no dependency.
KdDbObjectId bodyBehind(KdDbObjectId reactor)
{
    if (!reactor.isKindOf(KdDbAssocDependency::desc()))
        return {};
    const OpenForRead<KdDbAssocAction> action(reactor.ownerId());
    return action ? action->actionBody() : KdDbObjectId();
}

} // namespace

KdDbObjectId KdDbAssocActionBody::controlling(const KdDbEntity& entity, const KdRxClass* bodyClass)
{
    for (const KdDbObjectId reactor : entity.reactors()) {
        const KdDbObjectId body = bodyBehind(reactor);
        if (body.isKindOf(bodyClass))
            return body;
    }
    return {};
}
