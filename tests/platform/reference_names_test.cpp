#include <platform/resources.h>

#include <array>

#include <gtest/gtest.h>

#include <database/database.h>
#include <entities/all.h>

#include "display_names.h"

namespace {

/// References that are something else in the eyes of a person.
class ReferenceNames : public testing::Test
{
  protected:
    ReferenceNames() { setResourceLanguage("en"); }
    ~ReferenceNames() override { setResourceLanguage(""); }

    /// A reference that follows an action, if there is a body.
    KdDbObjectId add(KdDbAssocActionBody* body)
    {
        auto* reference = new KdDbBlockReference;
        drawing.addObject(reference, drawing.modelSpaceId());
        if (!body)
            return reference->objectId();
        auto* action = new KdDbAssocAction;
        drawing.addObject(body, {});
        action->edit().body = body->objectId();
        drawing.addObject(action, {});
        auto* dependency = new KdDbAssocDependency;
        drawing.addObject(dependency, action->objectId());
        KdDbBlockReference* opened = nullptr;
        EXPECT_EQ(kddbOpenObject(opened, reference->objectId(), KdDb::kForWrite), eOk);
        opened->edit().links.edit().reactors = {dependency->objectId()};
        opened->close();
        return reference->objectId();
    }

    static std::wstring name(KdDbObjectId id)
    {
        BSTR text = typeDisplayName(id);
        const std::wstring copy = text;
        SysFreeString(text);
        return copy;
    }

    template <class Parameters>
    KdDbObjectId addArray()
    {
        auto* body = new KdDbAssocArrayActionBody;
        body->edit().array = std::make_unique<Parameters>();
        return add(body);
    }

    KdDbDatabase drawing;
};

TEST_F(ReferenceNames, AreThatOfTheClassForMostReferences)
{
    EXPECT_EQ(name(add(nullptr)), L"Block Reference");
    EXPECT_EQ(name(add(new KdDbAssocArrayActionBody)), L"Block Reference");
}

TEST_F(ReferenceNames, TellTheKindsOfArraysApart)
{
    EXPECT_EQ(name(addArray<KdDbAssocArrayRectangularParameters>()), L"Rectangular Array");
    EXPECT_EQ(name(addArray<KdDbAssocArrayPolarParameters>()), L"Polar Array");
    EXPECT_EQ(name(addArray<KdDbAssocArrayPathParameters>()), L"Path Array");
}

TEST_F(ReferenceNames, TellCentreObjectsApart)
{
    EXPECT_EQ(name(add(new KdDbCenterMarkActionBody)), L"Center Mark");
    EXPECT_EQ(name(add(new KdDbCenterLineActionBody)), L"Centerline");
}

} // namespace
