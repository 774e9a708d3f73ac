#include "environment.h"

#include <platform/object_model.h>
#include <platform/resources.h>

#include <database/database.h>
#include <database/dictionary.h>
#include <entities/all.h>

#include <gmock/gmock.h>

#include <map>
#include <set>
#include <string>

namespace {

/// Entities of classes that the object model has never heard of.
class Gadget : public KdDbEntity
{
    KD_RX_DECLARE(Gadget)
};
class NamelessGadget : public KdDbEntity
{
    KD_RX_DECLARE(NamelessGadget)
};
class BetterBlockReference : public KdDbBlockReference
{
    KD_RX_DECLARE(BetterBlockReference)
};
KD_RX_DEFINE(Gadget, KdDbEntity, L"TestGadget", L"GADGET")
KD_RX_DEFINE(NamelessGadget, KdDbEntity, L"TestNamelessGadget", L"")
KD_RX_DEFINE(BetterBlockReference, KdDbBlockReference, L"TestBlockReference", L"BETTERINSERT")

class ObjectModel : public testing::Test
{
  protected:
    KdDbObjectId add(KdDbEntity* entity)
    {
        EXPECT_EQ(m_database.addObject(entity, m_database.modelSpaceId()), eOk);
        return entity->objectId();
    }

    /// The display name as a program asks for it.
    static std::wstring name(KdDbObjectId id)
    {
        IUnknown* object = nullptr;
        if (KwComUtil::KwAuGetIUnknownOfObject(&object, id) != S_OK)
            return L"no object";
        void* extension = nullptr;
        EXPECT_EQ(object->QueryInterface(IID_IOPMPropertyExtension, &extension), S_OK);
        const std::wstring name = nameOf(*static_cast<IOPMPropertyExtension*>(extension));
        static_cast<IOPMPropertyExtension*>(extension)->Release();
        EXPECT_EQ(object->Release(), 0u);
        return name;
    }

    static std::wstring nameOf(IOPMPropertyExtension& extension)
    {
        BSTR text = nullptr;
        EXPECT_EQ(extension.GetDisplayName(1025, &text), S_OK);
        const std::wstring name = text ? text : L"";
        SysFreeString(text);
        return name;
    }

    EnvironmentVariable m_language{"LC_ALL", "C"};
    KdDbDatabase m_database;
};

TEST_F(ObjectModel, NamesAnEntityByItsClass)
{
    EXPECT_EQ(name(add(new KdDbBlockReference)), L"Block Reference");
    EXPECT_EQ(name(add(new KdDbRotatedDimension)), L"Rotated Dimension");
}

TEST_F(ObjectModel, KnowsClassNamesInOtherSpellings)
{
    EXPECT_EQ(name(add(new KdDb3dPolyline)), L"3D Polyline");
}

TEST_F(ObjectModel, NamesAnUnknownClassByItsNearestKnownAncestor)
{
    EXPECT_EQ(name(add(new BetterBlockReference)), L"Block Reference");
}

TEST_F(ObjectModel, NamesWhatHasNoKnownAncestorByItsNameInDrawings)
{
    EXPECT_EQ(name(add(new Gadget)), L"GADGET");
    EXPECT_EQ(name(add(new NamelessGadget)), L"TestNamelessGadget");
}

TEST_F(ObjectModel, NamesEveryEntityClassApart)
{
    std::map<std::wstring, std::wstring> classesByName;
    for (const KdRxClass* rxClass : kdrxAllClasses()) {
        const std::wstring className = rxClass->name();
        if (!rxClass->isDerivedFrom(KdDbEntity::desc()) || !rxClass->factory().construct ||
            rxClass == KdDbEntity::desc() || className.starts_with(L"Test"))
            continue;
        const std::wstring found = name(add(static_cast<KdDbEntity*>(rxClass->create())));
        EXPECT_NE(found, className);
        EXPECT_NE(found, rxClass->dxfName());
        const auto [other, isNew] = classesByName.emplace(found, className);
        // One name for what can't be shown as more than it is.
        EXPECT_TRUE(isNew || found == L"Proxy or Mesh")
            << testing::PrintToString(className) << testing::PrintToString(other->second);
    }
    EXPECT_GT(classesByName.size(), 60u);
}

TEST_F(ObjectModel, SpeaksTheChosenLanguage)
{
    const KdDbObjectId id = add(new KdDbBlockReference);
    setResourceLanguage("de");
    EXPECT_EQ(name(id), L"Blockreferenz");
    setResourceLanguage("fr"); // English, where there is no library
    EXPECT_EQ(name(id), L"Block Reference");
    setResourceLanguage("");
}

TEST_F(ObjectModel, HasNoObjectForWhatIsNoEntity)
{
    IUnknown* object = nullptr;
    EXPECT_EQ(KwComUtil::KwAuGetIUnknownOfObject(&object, KdDbObjectId::kNull), E_INVALIDARG);
    EXPECT_EQ(KwComUtil::KwAuGetIUnknownOfObject(&object, m_database.modelSpaceId()), E_INVALIDARG);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(KwComUtil::KwAuGetIUnknownOfObject(nullptr, add(new Gadget)), E_POINTER);
}

TEST_F(ObjectModel, HasNoNameForAnErasedEntity)
{
    const KdDbObjectId id = add(new Gadget);
    IUnknown* object = nullptr;
    ASSERT_EQ(KwComUtil::KwAuGetIUnknownOfObject(&object, id), S_OK);
    KdDbObject* opened = nullptr;
    ASSERT_EQ(kddbOpenKdDbObject(opened, id, KdDb::kForWrite, false), eOk);
    opened->erase();
    opened->close();

    void* extension = nullptr;
    ASSERT_EQ(object->QueryInterface(IID_IOPMPropertyExtension, &extension), S_OK);
    BSTR text = nullptr;
    EXPECT_EQ(static_cast<IOPMPropertyExtension*>(extension)->GetDisplayName(1025, &text), E_FAIL);
    EXPECT_EQ(text, nullptr);
    static_cast<IOPMPropertyExtension*>(extension)->Release();
    object->Release();
    EXPECT_EQ(KwComUtil::KwAuGetIUnknownOfObject(&object, id), E_INVALIDARG);
}

/// An object made by its class id, not bound to an entity yet.
class UnboundObject : public ObjectModel
{
  protected:
    UnboundObject()
    {
        CoInitialize(nullptr);
        void* object = nullptr;
        CoCreateInstance(CLSID_KdadEntity, nullptr, 1, IID_IKdadBaseObject, &object);
        m_base = static_cast<IKdadBaseObject*>(object);
        m_base->QueryInterface(IID_IOPMPropertyExtension, &object);
        m_extension = static_cast<IOPMPropertyExtension*>(object);
    }
    ~UnboundObject() override
    {
        m_base->Release();
        EXPECT_EQ(m_extension->Release(), 0u);
        CoUninitialize();
    }

    IKdadBaseObject* m_base = nullptr;
    IOPMPropertyExtension* m_extension = nullptr;
};

TEST_F(UnboundObject, IsNamedOnceItIsBound)
{
    BSTR text = nullptr;
    EXPECT_EQ(m_extension->GetDisplayName(1025, &text), E_FAIL);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(m_base->SetObjectId(add(new Gadget), KdDbObjectId::kNull, nullptr), S_OK);
    EXPECT_EQ(nameOf(*m_extension), L"GADGET");
}

TEST_F(UnboundObject, KeepsItsEntityWhenAnotherIdIsNone)
{
    m_base->SetObjectId(add(new Gadget), KdDbObjectId::kNull, nullptr);
    EXPECT_EQ(m_base->SetObjectId(KdDbObjectId::kNull, KdDbObjectId::kNull, nullptr), E_INVALIDARG);
    EXPECT_EQ(m_base->SetObjectId(m_database.modelSpaceId(), KdDbObjectId::kNull, nullptr),
              E_INVALIDARG);
    EXPECT_EQ(nameOf(*m_extension), L"GADGET");
}

TEST_F(UnboundObject, AnswersNoOtherNumber)
{
    m_base->SetObjectId(add(new Gadget), KdDbObjectId::kNull, nullptr);
    BSTR text = nullptr;
    EXPECT_EQ(m_extension->GetDisplayName(1024, &text), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(m_extension->GetDisplayName(1025, nullptr), E_POINTER);
}

TEST_F(UnboundObject, IsOneObjectUnderAllItsInterfaces)
{
    void* first = nullptr;
    void* second = nullptr;
    ASSERT_EQ(m_base->QueryInterface(IID_IUnknown, &first), S_OK);
    ASSERT_EQ(m_extension->QueryInterface(IID_IUnknown, &second), S_OK);
    EXPECT_EQ(first, second);
    static_cast<IUnknown*>(first)->Release();
    static_cast<IUnknown*>(second)->Release();
    EXPECT_EQ(m_base->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ObjectModel, GivesEntitiesAClassId)
{
    CLSID classId = {};
    EXPECT_EQ(kddbGetClassID(Gadget(), classId), eOk);
    EXPECT_EQ(classId, CLSID_KdadEntity);
    CLSID untouched = {};
    EXPECT_EQ(kddbGetClassID(KdDbDictionary(), untouched), eNotApplicable);
    EXPECT_EQ(untouched, CLSID());
}

} // namespace
