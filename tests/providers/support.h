/// What the tests of providers share.
#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>
#include <platform/resources.h>
#include <plugin/entity_pe.h>

#include <support/messages.h>
#include <values/value_chain.h>

namespace provider_test {

/// A text whose characters are all ASCII.
std::string ascii(std::wstring_view text);

/// A record as its kind and its value in words: "5005 ByLayer", "48 2.5", "280 0".
std::string inWords(const ResBuf& record);
std::vector<std::string> inWords(const ResBuf* chain);

/// What a provider answers to one key.
struct Answer
{
    int status;
    std::vector<std::string> chain;
};
Answer ask(KdDbEntityPE& provider, const KdDbEntity* entity, const wchar_t* key,
           bool asDisplayText = false, bool withChoices = false);

/// What a provider lists.
struct Listing
{
    int status;
    std::vector<std::wstring> keys;
    std::vector<bool> flags;
};
Listing list(KdDbEntityPE& provider, const KdDbEntity* entity);

/// A standard drawing is the working one, the two classes are registered, and English texts are
/// current. Nothing may stay open, no record may be left over, no text may be missing.
class ProviderTest : public testing::Test
{
  protected:
    ProviderTest();
    ~ProviderTest() override;
    void TearDown() override;

    void setHeader(const wchar_t* variable, int value);
    static void setVariable(const wchar_t* variable, short value);

    template <class Entity>
    Entity* add()
    {
        auto* entity = new Entity;
        append(entity);
        return entity;
    }
    /// Changes the members of an entity of the drawing.
    template <class Entity, class Change>
    static void change(Entity* entity, Change apply)
    {
        Entity* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, entity->objectId(), KdDb::kForWrite), eOk);
        apply(opened->edit());
        opened->close();
    }

    KdDbDatabase drawing;
    Messages messages;

  private:
    void append(KdDbEntity* entity);

    long long m_recordsBefore = ResBuf::recordsInUse();
};

} // namespace provider_test
