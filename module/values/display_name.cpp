#include <values/display_name.h>

#include <memory>
#include <string_view>
#include <unordered_map>

#include <entities/block_reference.h>
#include <platform/object_model.h>
#include <values/resource_string.h>

namespace {

struct DisplayNameRow
{
    std::wstring_view className;
    unsigned int id; ///< of the text in the library of type names
};

// clang-format off
constexpr DisplayNameRow kDisplayNames[] = {
    {L"AcDbFace",                           51060},
    {L"AcDbArc",                            51061},
    {L"AcDbAttributeDefinition",            51062},
    {L"AcDbAttribute",                      51063},
    {L"AcDbCircle",                         51064},
    {L"AcDbDimension",                      51065},
    {L"AcDbEllipse",                        51066},
    {L"AcDbRasterImage",                    51067},
    {L"AcDbLeader",                         51068},
    {L"AcDbLine",                           51069},
    {L"AcDbMLine",                          51070},
    {L"AcDbMText",                          51071},
    {L"AcDbPolyline",                       51072},
    {L"AcDbLWPolyline",                     51073},
    {L"AcDbPoint",                          51115},
    {L"AcDbRay",                            51074},
    {L"AcDbShape",                          51075},
    {L"AcDbSolid",                          51076},
    {L"AcDbSpline",                         51077},
    {L"AcDbText",                           51078},
    {L"AcDbFcf",                            51079},
    {L"AcDbTrace",                          51080},
    {L"AcDbViewport",                       51081},
    {L"AcDbXline",                          51082},
    {L"AcDbHatch",                          51083},
    {L"AcDb3dSolid",                        51084},
    {L"AcDbRegion",                         51085},
    {L"AcDbBody",                           51086},
    {L"AcDbProxyEntity",                    51087},
    {L"KdDbUndeadEntity",                   51087},
    {L"AcDbSubDMesh",                       51087},
    {L"AcDbArcAlignedText",                 51088},
    {L"AcDbRText",                          51089},
    {L"AcDbWipeout",                        51117},
    {L"AcDbOrdinateDimension",              51096},
    {L"AcDbArcDimension",                   51097},
    {L"AcDbOle2Frame",                      51098},
    {L"AcDb2DPolyline",                     51099},
    {L"AcDb3DPolyline",                     51100},
    {L"AcDbPolygonMesh",                    51101},
    {L"AcDbPolyFaceMesh",                   51102},
    {L"AcDbHelix",                          51103},
    {L"AcDbField",                          51104},
    {L"AcDbMLeader",                        51116},
    {L"AcDbTable",                          51105},
    {L"AcDbSurface",                        51106},
    {L"AcDbPlaneSurface",                   51107},
    {L"AcDbExtrudedSurface",                51108},
    {L"AcDbRevolvedSurface",                51109},
    {L"AcDbSweptSurface",                   51110},
    {L"AcDbLoftedSurface",                  51111},
    {L"AcDbLight",                          51112},
    {L"AcDbMInsertBlock",                   51113},
    {L"AcDbBlockAlignmentParameterEntity",  51268},
    {L"AcDbBlockBasepointParameterEntity",  51272},
    {L"AcDbBlockFlipParameterEntity",       51269},
    {L"AcDbBlockLinearParameterEntity",     51264},
    {L"AcDbBlockLookupParameterEntity",     51271},
    {L"AcDbBlockPointParameterEntity",      51263},
    {L"AcDbBlockPolarParameterEntity",      51265},
    {L"AcDbBlockRotationParameterEntity",   51267},
    {L"AcDbBlockXYParameterEntity",         51266},
    {L"AcDbBlockVisibilityParameterEntity", 51270},
    {L"AcDbBlockArrayActionEntity",         51275},
    {L"AcDbBlockFlipActionEntity",          51276},
    {L"AcDbBlockLookupActionEntity",        51273},
    {L"AcDbBlockMoveActionEntity",          51274},
    {L"AcDbBlockPolarStretchActionEntity",  51278},
    {L"AcDbBlockScaleActionEntity",         51277},
    {L"AcDbBlockStretchActionEntity",       51279},
    {L"AcDbBlockRotateActionEntity",        51280},
    {L"AcDbBlockAlignmentGripEntity",       51283},
    {L"AcDbBlockFlipGripEntity",            51284},
    {L"AcDbBlockLinearGripEntity",          51287},
    {L"AcDbBlockLookupGripEntity",          51282},
    {L"AcDbBlockPolarGripEntity",           51285},
    {L"AcDbBlockVisibilityGripEntity",      51286},
    {L"AcDbBlockXYGripEntity",              51281},
    {L"AcDbBlockRotationGripEntity",        51288},
    {L"AcDbPdfReference",                   51151},
    {L"AcDbDwfReference",                   51148},
    {L"AcDbRadialDimensionLarge",           51139},
};
// clang-format on

using DisplayNameIds = std::unordered_map<std::wstring_view, unsigned int, KdNameHash, KdNameEqual>;

DisplayNameIds indexDisplayNames()
{
    DisplayNameIds ids;
    for (const DisplayNameRow& row : kDisplayNames)
        ids.emplace(row.className, row.id); // the first of two equal names stays
    return ids;
}

/// The number of a class's display name, or 0.
unsigned int displayNameId(std::wstring_view className)
{
    static const DisplayNameIds ids = indexDisplayNames();
    const auto row = ids.find(className);
    return row == ids.end() ? 0 : row->second;
}

std::wstring_view classNameOf(const KdRxClass* rxClass)
{
    if (!rxClass)
        return {};
    const std::wstring_view name = rxClass->name();
    return name.empty() ? rxClass->dxfName() : name;
}

struct GiveBack
{
    void operator()(auto* object) const { object->Release(); }
};
/// One reference to an object of the object model.
template <class Interface>
using Held = std::unique_ptr<Interface, GiveBack>;

/// The object under another interface, or null.
template <class Interface>
Held<Interface> query(IUnknown& object, const IID& id)
{
    void* found = nullptr;
    object.QueryInterface(id, &found);
    return Held<Interface>(static_cast<Interface*>(found));
}

class ObjectModelSession
{
  public:
    ObjectModelSession() : m_open(CoInitialize(nullptr) >= 0) {}
    ~ObjectModelSession()
    {
        if (m_open)
            CoUninitialize();
    }
    ObjectModelSession(const ObjectModelSession&) = delete;
    ObjectModelSession& operator=(const ObjectModelSession&) = delete;

    explicit operator bool() const { return m_open; }

  private:
    bool m_open;
};

/// A new object of the entity's class, bound to the entity; null if there is no such class.
Held<IUnknown> createBoundObject(KdDbObjectId id)
{
    CLSID classId{};
    if (!GetCLSID(classId, id))
        return nullptr;
    void* made = nullptr;
    CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &made);
    Held<IUnknown> object(static_cast<IUnknown*>(made));
    if (!object)
        return nullptr;
    if (const auto base = query<IKdadBaseObject>(*object, IID_IKdadBaseObject))
        base->SetObjectId(id, KdDbObjectId::kNull, nullptr);
    return object;
}

Held<IOPMPropertyExtension> propertyExtensionOf(KdDbObjectId id)
{
    IUnknown* given = nullptr;
    KwComUtil::KwAuGetIUnknownOfObject(&given, id);
    Held<IUnknown> object(given);
    if (!object)
        object = createBoundObject(id);
    if (!object)
        return nullptr;
    return query<IOPMPropertyExtension>(*object, IID_IOPMPropertyExtension);
}

} // namespace

CStdStr<wchar_t> GetLocalNameOfKdDbEntityEx(const KdDbEntity* entity)
{
    if (!entity)
        return {};
    if (const unsigned int id = displayNameId(classNameOf(entity->isA())))
        return GetOPMStr(id);
    return GetEntityDisplayName(entity->objectId());
}

const CStdStr<wchar_t>& DisplayNames::of(const KdDbEntity& entity)
{
    const KdRxClass* const rxClass = entity.isA();
    ClassName* const name = rxClass ? &nameOf(*rxClass) : nullptr;
    if (name && name->isOfAll)
        return name->text;
    if (!name || (name->mayVary && !entity.reactors().empty()))
        return m_ofEntity = GetEntityDisplayName(entity.objectId());
    if (name->text.empty()) // an erased entity has no name, which says nothing of the others
        name->text = GetEntityDisplayName(entity.objectId());
    name->isOfAll = !name->mayVary && !name->text.empty();
    return name->text;
}

const CStdStr<wchar_t>* DisplayNames::ofClass(const KdRxClass* rxClass)
{
    if (!rxClass)
        return nullptr;
    const ClassName& name = nameOf(*rxClass);
    return name.isOfAll ? &name.text : nullptr;
}

DisplayNames::ClassName& DisplayNames::nameOf(const KdRxClass& rxClass)
{
    ClassName& name = m_ofClasses.at(&rxClass);
    if (name.isKnown)
        return name;
    name.isKnown = true;
    name.mayVary = rxClass.isDerivedFrom(KdDbBlockReference::desc());
    if (const unsigned int id = displayNameId(classNameOf(&rxClass))) {
        name.isOfAll = true;
        name.text = GetOPMStr(id);
    }
    return name;
}

CStdStr<wchar_t> GetEntityDisplayName(KdDbObjectId id)
{
    const ObjectModelSession session;
    if (!session)
        return {};
    const auto extension = propertyExtensionOf(id);
    if (!extension)
        return {};
    CStdStr<wchar_t> name;
    BSTR text = nullptr;
    if (extension->GetDisplayName(DISPID_OBJECT_TYPE_NAME, &text) == S_OK)
        name = CStdStr<wchar_t>(text);
    SysFreeString(text);
    return name;
}

int GetCLSID(CLSID& classId, KdDbObjectId id)
{
    const OpenForRead<KdDbObject> object(id);
    if (!object)
        return 0;
    if (kddbGetClassID(*object, classId) == eOk)
        return 1;
    if (!object->isKindOf(KdDbEntity::desc()))
        return 0;
    classId = CLSID_KdadEntity;
    return 1;
}
