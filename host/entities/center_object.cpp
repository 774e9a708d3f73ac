#include <entities/center_object.h>

#include <algorithm>

#include <database/block_table.h>
#include <entities/line.h>

KD_RX_DEFINE_ABSTRACT(KdDbSmartCenterActionBody, KdDbAssocActionBody, L"AcDbSmartCenterActionBody")
KD_RX_DEFINE(KdDbCenterMarkActionBody, KdDbSmartCenterActionBody, L"AcDbCenterMarkActionBody",
             L"ACDBCENTERMARKACTIONBODY")
KD_RX_DEFINE(KdDbCenterLineActionBody, KdDbSmartCenterActionBody, L"AcDbCenterLineActionBody",
             L"ACDBCENTERLINEACTIONBODY")

namespace {

bool isThere(KdDbObjectId id)
{
    return !id.isNull() && !id.isErased();
}

KdDbObjectId bodyOf(KdDbObjectId reference)
{
    const OpenForRead<KdDbBlockReference> opened(reference);
    return opened ? KdDbAssocActionBody::controlling(*opened, KdDbSmartCenterActionBody::desc())
                  : KdDbObjectId();
}

/// What `get` says of the data of a body, or its neutral value without a body.
template <class Body, class Get>
auto read(KdDbObjectId id, Get get)
{
    const OpenForRead<Body> body(id);
    return body ? get(*body) : decltype(get(*body))();
}

template <class Get>
auto readMark(KdDbObjectId id, Get get)
{
    return read<KdDbCenterMarkActionBody>(
        id, [&](const KdDbCenterMarkActionBody& body) { return get(body.mark()); });
}

template <class Get>
auto readLine(KdDbObjectId id, Get get)
{
    return read<KdDbCenterLineActionBody>(
        id, [&](const KdDbCenterLineActionBody& body) { return get(body.line()); });
}

/// The longest line of the block that a reference shows.
std::optional<CenterLineSegment> shownLine(KdDbObjectId reference)
{
    const OpenForRead<KdDbBlockReference> opened(reference);
    if (!opened)
        return {};
    const OpenForRead<KdDbBlockTableRecord> block(opened->blockTableRecord());
    if (!block)
        return {};
    const KdGeMatrix3d toWorld = opened->blockTransform();
    std::optional<CenterLineSegment> longest;
    for (const KdDbObjectId id : block->entityIds()) {
        const OpenForRead<KdDbLine> line(id);
        if (!line)
            continue;
        const CenterLineSegment shown{toWorld * line->startPoint(), toWorld * line->endPoint()};
        if (!longest || shown.start.distanceTo(shown.end) > longest->start.distanceTo(longest->end))
            longest = shown;
    }
    return longest;
}

void drawOut(CenterLineSegment& segment, double atStart, double atEnd)
{
    const KdGeVector3d direction = (segment.end - segment.start).normal();
    segment.start = segment.start + direction * -atStart;
    segment.end = segment.end + direction * atEnd;
}

} // namespace

int KdDbSmartCenterObjectWrapper::getCenterType(KdDbObjectId id)
{
    const KdDbObjectId body = bodyOf(id);
    if (body.isNull())
        return kNone;
    const bool isMark = body.isKindOf(KdDbCenterMarkActionBody::desc());
    return (isMark ? kCenterMark : kCenterLine) | (body.isErased() ? kDetached : 0);
}

KdDbObjectId KdDbSmartCenterObjectWrapper::bodyId() const
{
    return bodyOf(m_reference);
}

std::vector<KdDbObjectId> KdDbSmartCenterObjectWrapper::sources() const
{
    const OpenForRead<KdDbAssocAction> action(bodyId().ownerId());
    if (!action)
        return {};
    std::vector<KdDbObjectId> found;
    for (const KdDbObjectId id : action->dependencies()) {
        const OpenForRead<KdDbAssocDependency> dependency(id);
        if (dependency && dependency->dependentOnObject() != m_reference)
            found.push_back(dependency->dependentOnObject());
    }
    return found;
}

bool KdDbCenterMarkObjectWrapper::isFullyAssociative() const
{
    const std::vector<KdDbObjectId> followed = sources();
    return !followed.empty() && std::ranges::all_of(followed, isThere);
}

KdString KdDbCenterMarkObjectWrapper::crossHairLengthExpression() const
{
    return readMark(bodyId(), [](const CenterMarkMembers& mark) { return mark.crossHairLength; });
}

KdString KdDbCenterMarkObjectWrapper::crossHairGapExpression() const
{
    return readMark(bodyId(), [](const CenterMarkMembers& mark) { return mark.crossHairGap; });
}

double KdDbCenterMarkObjectWrapper::horizontalStartOvershoot() const
{
    return readMark(bodyId(), [](const CenterMarkMembers& mark) { return mark.horizontal.start; });
}

double KdDbCenterMarkObjectWrapper::horizontalEndOvershoot() const
{
    return readMark(bodyId(), [](const CenterMarkMembers& mark) { return mark.horizontal.end; });
}

double KdDbCenterMarkObjectWrapper::verticalStartOvershoot() const
{
    return readMark(bodyId(), [](const CenterMarkMembers& mark) { return mark.vertical.start; });
}

double KdDbCenterMarkObjectWrapper::verticalEndOvershoot() const
{
    return readMark(bodyId(), [](const CenterMarkMembers& mark) { return mark.vertical.end; });
}

bool KdDbCenterMarkObjectWrapper::getExtensionLinesVisibility() const
{
    return readMark(bodyId(),
                    [](const CenterMarkMembers& mark) { return mark.extensionLinesVisible; });
}

double KdDbCenterMarkObjectWrapper::rotation() const
{
    const OpenForRead<KdDbBlockReference> reference(objectId());
    if (!reference)
        return 0.0;
    return readMark(bodyId(), [&](const CenterMarkMembers& mark) {
        return mark.rotation.value_or(reference->rotation());
    });
}

bool KdDbCenterLineObjectWrapper::isAssociative() const
{
    return std::ranges::any_of(sources(), isThere);
}

KdErrorStatus KdDbCenterLineObjectWrapper::getCenterLineGeometry(CenterLineSegment& segment,
                                                                 bool withoutOvershoots) const
{
    const auto stated =
        readLine(bodyId(), [](const CenterLineMembers& line) { return line.segment; });
    // A block shows the line with its overshoots.
    std::optional<CenterLineSegment> found = stated ? stated : shownLine(objectId());
    if (!found)
        return eNotApplicable;
    if (stated && !withoutOvershoots)
        drawOut(*found, startOvershoot(), endOvershoot());
    else if (!stated && withoutOvershoots)
        drawOut(*found, -startOvershoot(), -endOvershoot());
    segment = *found;
    return eOk;
}

double KdDbCenterLineObjectWrapper::startOvershoot() const
{
    return readLine(bodyId(), [](const CenterLineMembers& line) { return line.startOvershoot; });
}

double KdDbCenterLineObjectWrapper::endOvershoot() const
{
    return readLine(bodyId(), [](const CenterLineMembers& line) { return line.endOvershoot; });
}

KdDbObjectId KdSmartCenterDbxUtils::getSmartCenterObjIdFromObj(const KdDbBlockReference* reference)
{
    if (!reference)
        return {};
    for (const KdDbObjectId reactor : reference->reactors()) {
        const OpenForRead<KdDbAssocDependency> dependency(reactor);
        if (!dependency)
            continue;
        const KdDbObjectId candidate = dependency->dependentOnObject();
        if (KdDbSmartCenterObjectWrapper::getCenterType(candidate) !=
            KdDbSmartCenterObjectWrapper::kNone)
            return candidate;
    }
    return {};
}
