#include <platform/object_model.h>

#include <gtest/gtest.h>

#include <string>

namespace {

/// Object models are in use for the length of a test.
class ObjectCreation : public testing::Test
{
  protected:
    ObjectCreation() { CoInitialize(nullptr); }
    ~ObjectCreation() override { CoUninitialize(); }

    /// What the call returns; an object that came is given back.
    static HRESULT create(const CLSID& classId, IUnknown* outer, unsigned int context,
                          const IID& id)
    {
        int something = 0;
        void* object = &something;
        const HRESULT result = CoCreateInstance(classId, outer, context, id, &object);
        EXPECT_EQ(object == nullptr, result != S_OK);
        if (object && object != &something)
            static_cast<IUnknown*>(object)->Release();
        return result;
    }
};

TEST_F(ObjectCreation, MakesTheWrapperOfEntities)
{
    EXPECT_EQ(create(CLSID_KdadEntity, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown), S_OK);
}

TEST_F(ObjectCreation, RefusesWhatItDoesNotKnow)
{
    constexpr GUID unknown = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    EXPECT_EQ(create(unknown, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown), REGDB_E_CLASSNOTREG);
    EXPECT_EQ(create(CLSID_KdadEntity, nullptr, 4, IID_IUnknown), REGDB_E_CLASSNOTREG);
    EXPECT_EQ(create(CLSID_KdadEntity, nullptr, CLSCTX_INPROC_SERVER, unknown), E_NOINTERFACE);
    EXPECT_EQ(CoCreateInstance(CLSID_KdadEntity, nullptr, 1, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ObjectCreation, MakesNoPartOfAnotherObject)
{
    void* outer = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_KdadEntity, nullptr, 1, IID_IUnknown, &outer), S_OK);
    EXPECT_EQ(create(CLSID_KdadEntity, static_cast<IUnknown*>(outer), 1, IID_IUnknown),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(static_cast<IUnknown*>(outer)->Release(), 0u);
}

TEST_F(ObjectCreation, LastsUntilTheOutermostEnd)
{
    EXPECT_EQ(CoInitialize(nullptr), S_OK);
    CoUninitialize();
    EXPECT_EQ(create(CLSID_KdadEntity, nullptr, 1, IID_IUnknown), S_OK);
}

TEST(ObjectModels, AreNotInUseBeforeTheStart)
{
    void* object = nullptr;
    EXPECT_EQ(CoCreateInstance(CLSID_KdadEntity, nullptr, 1, IID_IUnknown, &object),
              CO_E_NOTINITIALIZED);
    CoUninitialize();
    EXPECT_EQ(CoInitialize(&object), E_INVALIDARG);
    EXPECT_EQ(CoCreateInstance(CLSID_KdadEntity, nullptr, 1, IID_IUnknown, &object),
              CO_E_NOTINITIALIZED);
}

TEST(OwnedTexts, AreCopies)
{
    const std::wstring text = L"Block Reference";
    BSTR copy = SysAllocString(text.c_str());
    EXPECT_NE(copy, text.c_str());
    EXPECT_EQ(copy, text);
    SysFreeString(copy);
}

TEST(OwnedTexts, MayBeNull)
{
    EXPECT_EQ(SysAllocString(nullptr), nullptr);
    SysFreeString(nullptr);
}

TEST(ClassIds, AreWrittenInTheirUsualOrder)
{
    // EF920111-5A25-11E7-B72E-BC5FF42AC839
    EXPECT_EQ(CLSID_KdadEntity.Data1, 0xEF920111u);
    EXPECT_EQ(CLSID_KdadEntity.Data3, 0x11E7);
    EXPECT_EQ(CLSID_KdadEntity.Data4[7], 0x39);
    EXPECT_EQ(sizeof(GUID), 16u);
}

} // namespace
