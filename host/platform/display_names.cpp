#include "display_names.h"

#include <database/class_ids.h>
#include <entities/center_object.h>
#include <platform/resources.h>
#include <runtime/kd_string.h>

#include <string_view>
#include <unordered_map>

namespace {

struct NameRow
{
    const wchar_t* className;
    unsigned int textId;
};

// clang-format off
constexpr NameRow kRows[] = {
    // types that programs also know by these numbers
    {L"AcDbFace", 51060},
    {L"AcDbArc", 51061},
    {L"AcDbAttributeDefinition", 51062},
    {L"AcDbAttribute", 51063},
    {L"AcDbCircle", 51064},
    {L"AcDbDimension", 51065},
    {L"AcDbEllipse", 51066},
    {L"AcDbRasterImage", 51067},
    {L"AcDbLeader", 51068},
    {L"AcDbLine", 51069},
    {L"AcDbMLine", 51070},
    {L"AcDbMText", 51071},
    {L"AcDbPolyline", 51072},
    {L"AcDbLWPolyline", 51073},
    {L"AcDbRay", 51074},
    {L"AcDbShape", 51075},
    {L"AcDbSolid", 51076},
    {L"AcDbSpline", 51077},
    {L"AcDbText", 51078},
    {L"AcDbFcf", 51079},
    {L"AcDbTrace", 51080},
    {L"AcDbViewport", 51081},
    {L"AcDbXline", 51082},
    {L"AcDbHatch", 51083},
    {L"AcDb3dSolid", 51084},
    {L"AcDbRegion", 51085},
    {L"AcDbBody", 51086},
    {L"AcDbProxyEntity", 51087},
    {L"KdDbUndeadEntity", 51087},
    {L"AcDbSubDMesh", 51087},
    {L"AcDbArcAlignedText", 51088},
    {L"AcDbRText", 51089},
    {L"AcDbOrdinateDimension", 51096},
    {L"AcDbArcDimension", 51097},
    {L"AcDbOle2Frame", 51098},
    {L"AcDb2DPolyline", 51099},
    {L"AcDb3DPolyline", 51100},
    {L"AcDbPolygonMesh", 51101},
    {L"AcDbPolyFaceMesh", 51102},
    {L"AcDbHelix", 51103},
    {L"AcDbField", 51104},
    {L"AcDbTable", 51105},
    {L"AcDbSurface", 51106},
    {L"AcDbPlaneSurface", 51107},
    {L"AcDbExtrudedSurface", 51108},
    {L"AcDbRevolvedSurface", 51109},
    {L"AcDbSweptSurface", 51110},
    {L"AcDbLoftedSurface", 51111},
    {L"AcDbLight", 51112},
    {L"AcDbMInsertBlock", 51113},
    {L"AcDbPoint", 51115},
    {L"AcDbMLeader", 51116},
    {L"AcDbWipeout", 51117},
    {L"AcDbRadialDimensionLarge", 51139},
    {L"AcDbDwfReference", 51148},
    {L"AcDbPdfReference", 51151},
    {L"AcDbBlockPointParameterEntity", 51263},
    {L"AcDbBlockLinearParameterEntity", 51264},
    {L"AcDbBlockPolarParameterEntity", 51265},
    {L"AcDbBlockXYParameterEntity", 51266},
    {L"AcDbBlockRotationParameterEntity", 51267},
    {L"AcDbBlockAlignmentParameterEntity", 51268},
    {L"AcDbBlockFlipParameterEntity", 51269},
    {L"AcDbBlockVisibilityParameterEntity", 51270},
    {L"AcDbBlockLookupParameterEntity", 51271},
    {L"AcDbBlockBasepointParameterEntity", 51272},
    {L"AcDbBlockLookupActionEntity", 51273},
    {L"AcDbBlockMoveActionEntity", 51274},
    {L"AcDbBlockArrayActionEntity", 51275},
    {L"AcDbBlockFlipActionEntity", 51276},
    {L"AcDbBlockScaleActionEntity", 51277},
    {L"AcDbBlockPolarStretchActionEntity", 51278},
    {L"AcDbBlockStretchActionEntity", 51279},
    {L"AcDbBlockRotateActionEntity", 51280},
    {L"AcDbBlockXYGripEntity", 51281},
    {L"AcDbBlockLookupGripEntity", 51282},
    {L"AcDbBlockAlignmentGripEntity", 51283},
    {L"AcDbBlockFlipGripEntity", 51284},
    {L"AcDbBlockPolarGripEntity", 51285},
    {L"AcDbBlockVisibilityGripEntity", 51286},
    {L"AcDbBlockLinearGripEntity", 51287},
    {L"AcDbBlockRotationGripEntity", 51288},

    // types that only the object model names
    {L"AcDbBlockReference", 60001},
    {L"AcDbAlignedDimension", 60002},
    {L"AcDbRotatedDimension", 60003},
    {L"AcDbRadialDimension", 60004},
    {L"AcDbDiametricDimension", 60005},
    {L"AcDb2LineAngularDimension", 60006},
    {L"AcDb3PointAngularDimension", 60007},
    {L"AcDbSection", 60008},
    {L"AcDbPointCloud", 60009},
    {L"AcDbPointCloudEx", 60010},
    {L"AcDbGeoPositionMarker", 60011},
    {L"AcDbDgnReference", 60012},
    {L"AcDbUnderlayReference", 60013},
    {L"AcDbMPolygon", 60014},
    {L"AcDbFrame", 60015},
    {L"AcDbOleFrame", 60016},
    {L"AcDbImage", 60017},
    {L"AcDbNurbSurface", 60018},
    {L"AcDbCamera", 60019},
    {L"AcDbVertex", 60020},
    {L"AcDb2dVertex", 60021},
    {L"AcDb3dPolylineVertex", 60022},
    {L"AcDbPolygonMeshVertex", 60023},
    {L"AcDbPolyFaceMeshVertex", 60024},
    {L"AcDbFaceRecord", 60025},
    {L"AcDbSequenceEnd", 60026},
    {L"AcDbBlockBegin", 60027},
    {L"AcDbBlockEnd", 60028},
    {L"AcDbBlockElementEntity", 60029},
    {L"AcDbBlockParameterEntity", 60030},
    {L"AcDbBlock1PtParameterEntity", 60031},
    {L"AcDbBlock2PtParameterEntity", 60032},
    {L"AcDbBlockActionEntity", 60033},
    {L"AcDbBlockActionEntityWithBasePt", 60034},
    {L"AcDbBlockGripEntity", 60035},
    {L"AcDbBlockLinearConstraintTagEntity", 60036},
    {L"AcDbBlockAngularConstraintTagEntity", 60037},
    {L"AcDbBlockRadialConstraintTagEntity", 60038},
    {L"AcDbBlockDiametricConstraintTagEntity", 60039},
    {L"AcDbBlockLinearConstraintParameterEntity", 60040},
    {L"AcDbBlockAngularConstraintParameterEntity", 60041},
    {L"AcDbBlockRadialConstraintParameterEntity", 60042},
    {L"AcDbBlockDiametricConstraintParameterEntity", 60043},
};
// clang-format on

/// The row of that class name, compared without case, or 0.
unsigned int ownTextId(const KdRxClass& rxClass)
{
    using Rows = std::unordered_map<std::wstring_view, unsigned int, KdNameHash, KdNameEqual>;
    static const Rows rows = [] {
        Rows result;
        for (const NameRow& row : kRows)
            result.emplace(row.className, row.textId);
        return result;
    }();
    const auto row = rows.find(std::wstring_view(rxClass.name()));
    return row == rows.end() ? 0 : row->second;
}

unsigned int findTextId(const KdRxClass* rxClass)
{
    unsigned int id = 0;
    for (; rxClass && id == 0; rxClass = rxClass->myParent())
        id = ownTextId(*rxClass);
    return id;
}

/// The number of a class's name, or 0. Asked for every entity, so answers are kept; classes stay in
/// memory until the process ends.
unsigned int textId(const KdRxClass& rxClass)
{
    static std::unordered_map<const KdRxClass*, unsigned int> known;
    const auto [entry, isNew] = known.try_emplace(&rxClass);
    if (isNew)
        entry->second = findTextId(&rxClass);
    return entry->second;
}

constexpr unsigned int kRectangularArray = 60044;
constexpr unsigned int kPolarArray = 60045;
constexpr unsigned int kPathArray = 60046;
constexpr unsigned int kCenterMark = 60047;
constexpr unsigned int kCenterLine = 60048;

/// The number of the name that a reference has apart from its class, or 0.
unsigned int referenceTextId(const KdDbBlockReference& reference)
{
    CLSID classId{};
    reference.getClassID(&classId);
    if (classId == CLSID_KdadAssocArrayRect)
        return kRectangularArray;
    if (classId == CLSID_KdadAssocArrayPolar)
        return kPolarArray;
    if (classId == CLSID_KdadAssocArrayPath)
        return kPathArray;
    switch (KdDbSmartCenterObjectWrapper::getCenterType(reference.objectId())) {
    case KdDbSmartCenterObjectWrapper::kCenterMark:
        return kCenterMark;
    case KdDbSmartCenterObjectWrapper::kCenterLine:
        return kCenterLine;
    default:
        return 0;
    }
}

unsigned int referenceTextId(KdDbObjectId id)
{
    if (id.objectClass() != KdDbBlockReference::desc())
        return 0;
    const OpenForRead<KdDbBlockReference> reference(id);
    // Whatever follows something else knows of it by a reactor; most references follow nothing.
    return reference && !reference->reactors().empty() ? referenceTextId(*reference) : 0;
}

BSTR textOf(unsigned int id, const wchar_t* otherwise)
{
    constexpr int kLongestName = 256;
    wchar_t text[kLongestName];
    const HINSTANCE library = LoadResourceDll(L"KrxOPMRes.dll");
    const bool isThere = LoadStringW(library, id, text, kLongestName) > 0;
    return SysAllocString(isThere ? text : otherwise);
}

} // namespace

BSTR typeDisplayName(const KdRxClass& rxClass)
{
    return textOf(textId(rxClass), *rxClass.dxfName() ? rxClass.dxfName() : rxClass.name());
}

BSTR typeDisplayName(KdDbObjectId id)
{
    const KdRxClass& rxClass = *id.objectClass();
    const unsigned int ownText = referenceTextId(id);
    return ownText != 0 ? textOf(ownText, rxClass.dxfName()) : typeDisplayName(rxClass);
}
