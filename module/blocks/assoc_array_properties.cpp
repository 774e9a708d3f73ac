// Associative arrays. The getters answer for any reference; only what is listed goes by its kind.
#include <editor/ucs.h>
#include <entities/assoc_array.h>
#include <geometry/curve.h>

#include <blocks/key_getter.h>
#include <providers/row_readers.h>
#include <values/value_lists.h>

namespace {

using Provider = KdDbBlockReference_Extension;

enum Kinds : unsigned
{
    kRect = 1,
    kPolar = 2,
    kPath = 4,
    kRound = kPolar | kPath,
    kAll = kRect | kPolar | kPath,
};

// clang-format off
constexpr KeyGetter kKeys[] = {
    {{78167, L"Geometry:Base X"},               &Provider::getAssocArrayBasePointX,      kAll},
    {{78168, L"Geometry:Base Y"},               &Provider::getAssocArrayBasePointY,      kAll},
    {{78169, L"Geometry:Base Z"},               &Provider::getAssocArrayBasePointZ,      kAll},
    {{78171, L"Misc:Columns"},                  &Provider::getAssocArrayColumns,         kRect},
    {{78172, L"Misc:Columns Spacing"},          &Provider::getAssocArrayColumnsSpace,    kRect},
    {{78179, L"Geometry:Center X"},             &Provider::getAssocArrayCenterPointX,    kPolar},
    {{78180, L"Geometry:Center Y"},             &Provider::getAssocArrayCenterPointY,    kPolar},
    {{78181, L"Geometry:Center Z"},             &Provider::getAssocArrayCenterPointZ,    kPolar},
    {{78182, L"Geometry:Radius"},               &Provider::getAssocArrayRadius,          kPolar},
    {{78183, L"Misc:Direction"},                &Provider::getAssocArrayDirection,       kPolar},
    {{78188, L"Geometry:Path Length"},          &Provider::getAssocArrayPathLength,      kPath},
    {{78189, L"Misc:Method"},                   &Provider::getAssocArrayMethod,          kPath},
    {{78190, L"Misc:Fill Entire Path"},         &Provider::getAssocArrayFillWholePath,   kPath},
    {{78184, L"Misc:Items"},                    &Provider::getAssocArrayItemCount,       kRound},
    {{78185, L"Misc:Angle Between Items"},      &Provider::getAssocArrayItemSpaceAngle,  kPolar},
    {{78186, L"Misc:Fill Angle"},               &Provider::getAssocArrayFillAngle,       kPolar},
    {{78192, L"Misc:Item Spacing"},             &Provider::getAssocArrayItemSpace,       kPath},
    {{78193, L"Misc:Start Offset"},             &Provider::getAssocArrayStartPointOffset, kPath},
    {{78173, L"Misc:Rows"},                     &Provider::getAssocArrayRows,            kAll},
    {{78174, L"Misc:Rows Spacing"},             &Provider::getAssocArrayRowsSpace,       kAll},
    {{78175, L"Misc:Rows Elevation Increment"}, &Provider::getAssocArrayRowEleDelta,     kAll},
    {{78176, L"Misc:Levels"},                   &Provider::getAssocArrayLevel,           kAll},
    {{78177, L"Misc:Level Spacing"},            &Provider::getAssocArrayInterlayerSpace, kAll},
    {{78178, L"Misc:Included Axis Angle"},      &Provider::getAssocArrayShaftangle,      kRect},
    {{78187, L"Misc:Rotate Items"},             &Provider::getAssocArrayAlignItem,       kPolar},
    {{78194, L"Misc:Align Items"},              &Provider::getAssocArrayAlignItem,       kPath},
};

constexpr ResourceText kDirections[] = {{78197, L"Clockwise"}, {78198, L"Counter-clockwise"}};
constexpr ResourceText kMethods[] = {{78195, L"Divide"}, {78196, L"Measure"}};
// clang-format on

int storeReal(ResBuf& head, double value)
{
    head.setRestype(ResBuf::kReal);
    head.setDouble(value);
    return 0;
}

/// Puts a quantity into the record, `local` if the array does not say.
template <class Number>
int storeQuantity(Provider& provider, KdDbBlockReference* reference, ResBuf& head, ValueKind kind,
                  const wchar_t* name, Number local = {})
{
    KdDbEvalVariant variant;
    if (provider.getAssocArrayVal(reference, name, variant) == eOk)
        variant.getValue(local);
    head.setRestype(kind);
    store(head, local);
    return 0;
}

/// The name for false or true, and always both of them behind it.
int storeName(ResBuf& head, const ResourceText (&names)[2], bool second)
{
    head.setRestype(ResBuf::kString);
    head.setString(names[second].text());
    ResBuf* tail = &head;
    for (const ResourceText& name : names)
        tail = PropListUtil::addElementToArray(tail, name.text());
    return 0;
}

double lengthOf(const KdGeCurve3d& curve)
{
    const KdGeInterval interval = curve.interval();
    return curve.length(interval.lower, interval.upper, KdGeContext::gTol.equalPoint);
}

} // namespace

void KdDbBlockReference_Extension::fillArrayGetters(Getters& getters)
{
    fillGetters(kKeys, getters);
}

void KdDbBlockReference_Extension::assocArrayRectPropertyCount(const KdDbBlockReference*,
                                                               KdArray<KdString>& names,
                                                               KdArray<bool>& flags)
{
    listKeys(kKeys, kRect, names, flags);
}

void KdDbBlockReference_Extension::assocArrayPolarPropertyCount(const KdDbBlockReference*,
                                                                KdArray<KdString>& names,
                                                                KdArray<bool>& flags)
{
    listKeys(kKeys, kPolar, names, flags);
}

void KdDbBlockReference_Extension::assocArrayPathPropertyCount(const KdDbBlockReference*,
                                                               KdArray<KdString>& names,
                                                               KdArray<bool>& flags)
{
    listKeys(kKeys, kPath, names, flags);
}

int KdDbBlockReference_Extension::getAssocArrayVal(KdDbBlockReference* reference,
                                                   const KdString& name, KdDbEvalVariant& value)
{
    const KdDbAssocArrayParameters* parameters = kddbGetAssocArrayParametersConst(reference);
    if (!parameters)
        return 0;
    KdString expression;
    KdString evaluator;
    int unit = 0;
    return parameters->getValueParam(name, value, expression, evaluator, unit);
}

void KdDbBlockReference_Extension::getAssocArrayBasePoint(KdDbBlockReference* reference,
                                                          KdGePoint3d& point)
{
    const OpenForRead<KdDbAssocArrayActionBody> body(
        KdDbAssocArrayActionBody::getControllingActionBody(reference, nullptr));
    KdDbVertexRef source;
    if (body && body->getSourceBasePoint(source, point) == eOk)
        kddbWcs2Ucs(point, point, false);
}

void KdDbBlockReference_Extension::getAssocArrayCenterPoint(KdDbBlockReference* reference,
                                                            KdGePoint3d& point)
{
    const KdDbAssocArrayParameters* parameters = kddbGetAssocArrayParametersConst(reference);
    if (!parameters || !parameters->isKindOf(KdDbAssocArrayPolarParameters::desc()))
        return;
    const KdDbGeomRef* center = nullptr;
    KdDbObjectId id;
    if (parameters->getGeomParam(L"Origin", center, id) != eOk || !center ||
        center->isA() != KdDbVertexRef::desc())
        return;
    point = static_cast<const KdDbVertexRef*>(center)->point();
    kddbWcs2Ucs(point, point, false);
}

int KdDbBlockReference_Extension::getAssocArrayBasePointX(KdDbBlockReference* reference,
                                                          ResBuf*& result)
{
    KdGePoint3d point;
    getAssocArrayBasePoint(reference, point);
    return storeReal(*result, point.x);
}

int KdDbBlockReference_Extension::getAssocArrayBasePointY(KdDbBlockReference* reference,
                                                          ResBuf*& result)
{
    KdGePoint3d point;
    getAssocArrayBasePoint(reference, point);
    return storeReal(*result, point.y);
}

int KdDbBlockReference_Extension::getAssocArrayBasePointZ(KdDbBlockReference* reference,
                                                          ResBuf*& result)
{
    KdGePoint3d point;
    getAssocArrayBasePoint(reference, point);
    return storeReal(*result, point.z);
}

int KdDbBlockReference_Extension::getAssocArrayCenterPointX(KdDbBlockReference* reference,
                                                            ResBuf*& result)
{
    KdGePoint3d point;
    getAssocArrayCenterPoint(reference, point);
    return storeReal(*result, point.x);
}

int KdDbBlockReference_Extension::getAssocArrayCenterPointY(KdDbBlockReference* reference,
                                                            ResBuf*& result)
{
    KdGePoint3d point;
    getAssocArrayCenterPoint(reference, point);
    return storeReal(*result, point.y);
}

int KdDbBlockReference_Extension::getAssocArrayCenterPointZ(KdDbBlockReference* reference,
                                                            ResBuf*& result)
{
    KdGePoint3d point;
    getAssocArrayCenterPoint(reference, point);
    return storeReal(*result, point.z);
}

/// The columns of a rectangular array are what the other kinds call items.
int KdDbBlockReference_Extension::getAssocArrayColumns(KdDbBlockReference* reference,
                                                       ResBuf*& result)
{
    return getAssocArrayItemCount(reference, result);
}

int KdDbBlockReference_Extension::getAssocArrayColumnsSpace(KdDbBlockReference* reference,
                                                            ResBuf*& result)
{
    return getAssocArrayItemSpace(reference, result);
}

int KdDbBlockReference_Extension::getAssocArrayDirection(KdDbBlockReference* reference,
                                                         ResBuf*& result)
{
    KdDbEvalVariant variant(0);
    if (getAssocArrayVal(reference, L"Direction", variant) == eNoValueParam)
        return 1;
    int direction = 0;
    variant.getValue(direction);
    return storeName(*result, kDirections, direction != 0);
}

int KdDbBlockReference_Extension::getAssocArrayMethod(KdDbBlockReference* reference,
                                                      ResBuf*& result)
{
    KdDbEvalVariant variant;
    int method = -1;
    if (getAssocArrayVal(reference, L"Method", variant) == eOk)
        variant.getValue(method);
    return storeName(*result, kMethods, method != 0);
}

int KdDbBlockReference_Extension::getAssocArrayPathLength(KdDbBlockReference* reference,
                                                          ResBuf*& result)
{
    const KdDbAssocArrayParameters* parameters = kddbGetAssocArrayParametersConst(reference);
    const bool isPath = parameters && parameters->isKindOf(KdDbAssocArrayPathParameters::desc());
    const KdDbEdgeRef* path =
        isPath ? static_cast<const KdDbAssocArrayPathParameters*>(parameters)->path() : nullptr;
    return storeReal(*result, path && path->curve() ? lengthOf(*path->curve()) : 0.0);
}

int KdDbBlockReference_Extension::getAssocArrayFillWholePath(KdDbBlockReference* reference,
                                                             ResBuf*& result)
{
    constexpr double kNothing = 1e-10;
    KdDbEvalVariant variant;
    double fill = 1.0;
    if (getAssocArrayVal(reference, L"FillPath", variant) == eOk)
        variant.getValue(fill);
    result->setRestype(ResBuf::kBool);
    result->setBool(fill > kNothing || fill < -kNothing);
    return 0;
}

int KdDbBlockReference_Extension::getAssocArrayAlignItem(KdDbBlockReference* reference,
                                                         ResBuf*& result)
{
    KdDbEvalVariant variant;
    int align = 1;
    if (getAssocArrayVal(reference, L"AlignItems", variant) == eOk)
        variant.getValue(align);
    result->setRestype(ResBuf::kBool);
    result->setBool(align != 0);
    return 0;
}

// What is nothing but a quantity: the getter, its kind and the quantity's name.
// clang-format off
#define KW_QUANTITY(getter, Number, kind, name)                                                    \
    int KdDbBlockReference_Extension::getter(KdDbBlockReference* reference, ResBuf*& result)       \
    {                                                                                              \
        return storeQuantity<Number>(*this, reference, *result, kind, name);                       \
    }
KW_QUANTITY(getAssocArrayItemCount,        int,    ResBuf::kInt32, L"Items")
KW_QUANTITY(getAssocArrayRows,             int,    ResBuf::kInt32, L"Rows")
KW_QUANTITY(getAssocArrayLevel,            int,    ResBuf::kInt32, L"Levels")
KW_QUANTITY(getAssocArrayItemSpace,        double, ResBuf::kReal,  L"ItemSpacing")
KW_QUANTITY(getAssocArrayItemSpaceAngle,   double, ResBuf::kAngle, L"ItemSpacing")
KW_QUANTITY(getAssocArrayFillAngle,        double, ResBuf::kAngle, L"FillAngle")
KW_QUANTITY(getAssocArrayRadius,           double, ResBuf::kReal,  L"Radius")
KW_QUANTITY(getAssocArrayStartPointOffset, double, ResBuf::kReal,  L"StartOffset")
KW_QUANTITY(getAssocArrayRowsSpace,        double, ResBuf::kReal,  L"RowSpacing")
KW_QUANTITY(getAssocArrayRowEleDelta,      double, ResBuf::kReal,  L"RowElevation")
KW_QUANTITY(getAssocArrayInterlayerSpace,  double, ResBuf::kReal,  L"LevelSpacing")
KW_QUANTITY(getAssocArrayShaftangle,       double, ResBuf::kAngle, L"AxesAngle")
#undef KW_QUANTITY
// clang-format on
