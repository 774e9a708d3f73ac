// Centre marks and centre lines.
#include <memory>

#include <entities/center_object.h>

#include <blocks/key_getter.h>
#include <providers/row_readers.h>

namespace {

using Provider = KdDbBlockReference_Extension;
using Wrapper = KdDbSmartCenterObjectWrapper;
using Mark = KdDbCenterMarkObjectWrapper;
using Line = KdDbCenterLineObjectWrapper;

enum Kinds : unsigned
{
    kMark = 1,
    kLine = 2,
};

// clang-format off
constexpr KeyGetter kKeys[] = {
    {{78284, L"General:Associative"},                 &Provider::getCenterObjectAssociation,            kMark | kLine},
    {{78285, L"Geometry:Start Point"},                &Provider::getCenterLineStartPoint,               kLine},
    {{78286, L"Geometry:End Point"},                  &Provider::getCenterLineEndPoint,                 kLine},
    {{78287, L"Geometry:Start Extension"},            &Provider::getCenterLineStartExtension,           kLine},
    {{78288, L"Geometry:End Extension"},              &Provider::getCenterLineEndExtension,             kLine},
    {{78289, L"Geometry:Cross Size"},                 &Provider::getCenterMarkCrossHairLength,          kMark},
    {{78290, L"Geometry:Cross Gap"},                  &Provider::getCenterMarkCrossHairGap,             kMark},
    {{78391, L"Geometry:Horizontal Start Extension"}, &Provider::getCenterMarkHorizontalStartExtension, kMark}, // out of the run, as intended
    {{78292, L"Geometry:Horizontal End Extension"},   &Provider::getCenterMarkHorizontalEndExtension,   kMark},
    {{78293, L"Geometry:Vertical Start Extension"},   &Provider::getCenterMarkVerticalEndExtension,     kMark}, // crossed with the next, as intended
    {{78294, L"Geometry:Vertical End Extension"},     &Provider::getCenterMarkVerticalStartExtension,   kMark},
    {{78295, L"Geometry:Extension Lines Visibility"}, &Provider::getCenterMarkExtensionLinesVisibility, kMark},
    {{78296, L"Misc:Rotation"},                       &Provider::getCenterMarkRotation,                 kMark},
};
// clang-format on

/// The centre object that a reference is, or stands for while it is in no drawing; null for any
/// other reference.
std::unique_ptr<Wrapper> wrapperOf(const KdDbBlockReference* reference)
{
    if (!reference || !reference->isKindOf(KdDbBlockReference::desc()))
        return nullptr;
    KdDbObjectId id = reference->database() ? reference->objectId() : KdDbObjectId();
    if (id.isNull())
        id = KdSmartCenterDbxUtils::getSmartCenterObjIdFromObj(reference);
    switch (Wrapper::getCenterType(id)) {
    case Wrapper::kCenterMark:
        return std::make_unique<Mark>(id);
    case Wrapper::kCenterLine:
        return std::make_unique<Line>(id);
    default:
        return nullptr;
    }
}

constexpr int typeOf(const Mark*)
{
    return Wrapper::kCenterMark;
}
constexpr int typeOf(const Line*)
{
    return Wrapper::kCenterLine;
}

/// Stores what `Read` says of a centre object of its kind, otherwise the neutral value.
template <auto Read>
int storeValue(const KdDbBlockReference* reference, ResBuf& head, ValueKind kind)
{
    using Kind = typename row_readers::HostOf<decltype(Read)>::Type;
    const std::unique_ptr<Wrapper> wrapper = wrapperOf(reference);
    const bool isOfKind = wrapper && Wrapper::getCenterType(wrapper->objectId()) ==
                                         typeOf(static_cast<Kind*>(nullptr));
    using Value = decltype(std::invoke(Read, static_cast<const Kind&>(*wrapper)));
    head.setRestype(kind);
    store(head, isOfKind ? std::invoke(Read, static_cast<const Kind&>(*wrapper)) : Value());
    return 0;
}

KdGePoint3d startOf(const Line& line)
{
    CenterLineSegment segment;
    line.getCenterLineGeometry(segment, true);
    return segment.start;
}

KdGePoint3d endOf(const Line& line)
{
    CenterLineSegment segment;
    line.getCenterLineGeometry(segment, true);
    return segment.end;
}

bool isAssociative(const Wrapper& wrapper)
{
    switch (Wrapper::getCenterType(wrapper.objectId())) {
    case Wrapper::kCenterMark:
        return static_cast<const Mark&>(wrapper).isFullyAssociative();
    case Wrapper::kCenterLine:
        return static_cast<const Line&>(wrapper).isAssociative();
    default:
        return false;
    }
}

} // namespace

void KdDbBlockReference_Extension::fillCenterGetters(Getters& getters)
{
    fillGetters(kKeys, getters);
}

void KdDbBlockReference_Extension::centerMarkPropertyCount(const KdDbBlockReference*,
                                                           KdArray<KdString>& names,
                                                           KdArray<bool>& flags)
{
    listKeys(kKeys, kMark, names, flags);
}

void KdDbBlockReference_Extension::centerlinePropertyCount(const KdDbBlockReference*,
                                                           KdArray<KdString>& names,
                                                           KdArray<bool>& flags)
{
    listKeys(kKeys, kLine, names, flags);
}

int KdDbBlockReference_Extension::getCenterObjectAssociation(KdDbBlockReference* reference,
                                                             ResBuf*& result)
{
    const std::unique_ptr<Wrapper> wrapper = wrapperOf(reference);
    result->setRestype(ResBuf::kBool);
    result->setBool(wrapper && isAssociative(*wrapper));
    return 0;
}

// The other getters differ in the value that they read and its kind alone.
// clang-format off
#define KW_CENTER_VALUE(getter, kind, read)                                                        \
    int KdDbBlockReference_Extension::getter(KdDbBlockReference* reference, ResBuf*& result)       \
    {                                                                                              \
        return storeValue<read>(reference, *result, kind);                                         \
    }
KW_CENTER_VALUE(getCenterLineStartPoint,               ResBuf::kPoint3d, startOf)
KW_CENTER_VALUE(getCenterLineEndPoint,                 ResBuf::kPoint3d, endOf)
KW_CENTER_VALUE(getCenterLineStartExtension,           ResBuf::kReal,    &Line::startOvershoot)
KW_CENTER_VALUE(getCenterLineEndExtension,             ResBuf::kReal,    &Line::endOvershoot)
KW_CENTER_VALUE(getCenterMarkCrossHairLength,          ResBuf::kString,  &Mark::crossHairLengthExpression)
KW_CENTER_VALUE(getCenterMarkCrossHairGap,             ResBuf::kString,  &Mark::crossHairGapExpression)
KW_CENTER_VALUE(getCenterMarkHorizontalStartExtension, ResBuf::kReal,    &Mark::horizontalStartOvershoot)
KW_CENTER_VALUE(getCenterMarkHorizontalEndExtension,   ResBuf::kReal,    &Mark::horizontalEndOvershoot)
KW_CENTER_VALUE(getCenterMarkVerticalStartExtension,   ResBuf::kReal,    &Mark::verticalStartOvershoot)
KW_CENTER_VALUE(getCenterMarkVerticalEndExtension,     ResBuf::kReal,    &Mark::verticalEndOvershoot)
KW_CENTER_VALUE(getCenterMarkExtensionLinesVisibility, ResBuf::kBool,    &Mark::getExtensionLinesVisibility)
KW_CENTER_VALUE(getCenterMarkRotation,                 ResBuf::kAngle,   &Mark::rotation)
#undef KW_CENTER_VALUE
// clang-format on
