/// What the tests of the lone kinds share.
#pragma once

#include <entities/all.h>

#include <providers/other_providers.h>

#include "../texts/expected_rows.h"

namespace provider_test {

inline const std::vector<std::string> kShadowChoices =
    texts({"Casts and receive shadows", "Casts shadows", "Receive shadows", "Ignore shadows"});

/// A provider's whole table, all of which is listed, its values, and what it refuses.
template <class Provider>
void expectProvider(const KdDbEntity& entity, const std::vector<ExpectedRow>& rows)
{
    const KdDbLine foreign;
    expectTable<Provider>(entity, rows);
    expectListing<Provider>(&entity, rows);
    expectListing<Provider>(nullptr, rows);
    expectRefusals<Provider>(entity, foreign, rows.front().key);
}

class LoneProviders : public ProviderTest
{
  protected:
    using Shadows = EntityMembers::Shadows;

    /// Adds an object to the drawing, and to a dictionary under the root of its dictionaries.
    template <class Object>
    Object* addObject(const wchar_t* dictionaryName, const wchar_t* name)
    {
        auto* object = new Object;
        drawing.addObject(object, {});
        enter(dictionaryNamed(dictionaryName), name, object->objectId());
        return object;
    }

    void enter(KdDbObjectId dictionary, const wchar_t* name, KdDbObjectId id)
    {
        KdDbDictionary* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, dictionary, KdDb::kForWrite), eOk);
        EXPECT_EQ(opened->setAt(name, id), eOk);
        opened->close();
    }

  private:
    KdDbObjectId dictionaryNamed(const wchar_t* name)
    {
        const KdDbObjectId root = drawing.namedObjectsDictionaryId();
        if (const KdDbObjectId found = kddbDictionaryEntry(root, name); !found.isNull())
            return found;
        auto* made = new KdDbDictionary;
        drawing.addObject(made, root);
        enter(root, name, made->objectId());
        return made->objectId();
    }
};

} // namespace provider_test
