#include "support.h"

namespace blocks_test {

using namespace provider_test;

namespace {

constexpr std::size_t kGeneralKeys = 8;

} // namespace

void expectListed(KdDbEntityPE& provider, const KdDbEntity* entity,
                  const std::vector<Listed>& expected)
{
    const Listing listing = list(provider, entity);
    EXPECT_EQ(listing.status, 0);
    ASSERT_EQ(listing.keys.size(), listing.flags.size());
    ASSERT_GE(listing.keys.size(), kGeneralKeys);
    EXPECT_EQ(listing.keys[0], L"\tGeneral:Color");
    EXPECT_EQ(listing.keys[kGeneralKeys - 1], L"\tGeneral:Hyperlink");
    std::vector<std::wstring> keys;
    std::vector<bool> flags;
    for (const Listed& each : expected) {
        keys.emplace_back(each.key);
        flags.push_back(each.readOnly);
    }
    EXPECT_EQ(std::vector(listing.keys.begin() + kGeneralKeys, listing.keys.end()), keys);
    EXPECT_EQ(std::vector(listing.flags.begin() + kGeneralKeys, listing.flags.end()), flags);
}

void expectAnswers(KdDbEntityPE& provider, const KdDbEntity* entity,
                   const std::vector<Answered>& expected)
{
    for (const Answered& each : expected) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(each.key)));
        std::vector<std::string> plain{each.head};
        plain.insert(plain.end(), each.always.begin(), each.always.end());
        std::vector<std::string> withChoices = plain;
        withChoices.insert(withChoices.end(), each.choices.begin(), each.choices.end());
        for (const bool asDisplayText : {false, true}) {
            const Answer alone = ask(provider, entity, each.key, asDisplayText, false);
            EXPECT_EQ(alone.status, 1);
            EXPECT_EQ(alone.chain, plain);
            const Answer accompanied = ask(provider, entity, each.key, asDisplayText, true);
            EXPECT_EQ(accompanied.status, 1);
            EXPECT_EQ(accompanied.chain, withChoices);
        }
    }
}

void expectRefusals(KdDbEntityPE& provider, const KdDbEntity* entity)
{
    const KdDbLine line;
    const Answer answers[] = {
        ask(provider, nullptr, L"\tGeneral:Layer"), ask(provider, &line, L"\tGeneral:Layer"),
        ask(provider, entity, L"No such key"), ask(provider, entity, L"Geometry:No such key")};
    for (const Answer& answer : answers) {
        EXPECT_EQ(answer.status, 0);
        EXPECT_THAT(answer.chain, testing::ElementsAre("5000 nothing"));
    }
}

KdDbBlockTableRecord* BlocksTest::addBlock(const wchar_t* name)
{
    return drawing.addRecord<KdDbBlockTable>(name);
}

KdDbBlockReference* BlocksTest::addReference(const KdDbBlockTableRecord* block)
{
    auto* reference = add<KdDbBlockReference>();
    change(reference, [&](auto& members) { members.block = block->objectId(); });
    return reference;
}

KdDbDictionary* BlocksTest::extensionOf(KdDbObject* object)
{
    KdDbDictionary* dictionary = nullptr;
    if (kddbOpenObject(dictionary, object->extensionDictionary()) == eOk) {
        dictionary->close();
        return dictionary;
    }
    dictionary = new KdDbDictionary;
    EXPECT_EQ(drawing.addObject(dictionary, object->objectId()), eOk);
    const auto setExtension = [&](ObjectMembers& members) {
        members.links.edit().extensionDictionary = dictionary->objectId();
    };
    if (object->isKindOf(KdDbBlockTableRecord::desc()))
        change(static_cast<KdDbBlockTableRecord*>(object), setExtension);
    else
        change(static_cast<KdDbEntity*>(object), setExtension);
    return dictionary;
}

void BlocksTest::enter(KdDbDictionary* dictionary, const wchar_t* key, const KdDbObject* object)
{
    KdDbDictionary* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, dictionary->objectId(), KdDb::kForWrite), eOk);
    EXPECT_EQ(opened->setAt(key, object->objectId()), eOk);
    opened->close();
}

KdDbDictionary* BlocksTest::subDictionary(KdDbDictionary* dictionary, const wchar_t* key)
{
    KdDbDictionary* found = nullptr;
    const KdDbObjectId id = kddbDictionaryEntry(dictionary->objectId(), key);
    if (kddbOpenObject(found, id) == eOk) {
        found->close();
        return found;
    }
    found = new KdDbDictionary;
    EXPECT_EQ(drawing.addObject(found, dictionary->objectId()), eOk);
    enter(dictionary, key, found);
    return found;
}

KdDbEvalGraph* BlocksTest::makeDynamic(KdDbBlockTableRecord* block)
{
    KdDbDictionary* extension = extensionOf(block);
    auto* graph = addObject<KdDbEvalGraph>(extension->objectId(), [](auto&) {});
    enter(extension, L"ACAD_ENHANCEDBLOCK", graph);
    return graph;
}

KdDbXrecord* BlocksTest::store(KdDbBlockReference* reference, const wchar_t* node,
                               const std::vector<std::pair<short, double>>& numbers,
                               const wchar_t* text)
{
    KdDbDictionary* values = subDictionary(
        subDictionary(subDictionary(extensionOf(reference), L"AcDbBlockRepresentation"),
                      L"AppDataCache"),
        L"ACAD_ENHANCEDBLOCKDATA");
    auto* record = addObject<KdDbXrecord>(values->objectId(), [&](XrecordMembers& members) {
        resbuf* head = kdutNewRb(70);
        head->resval.rint = 25;
        head->rbnext = kdutNewRb(70);
        resbuf* tail = head->rbnext;
        tail->resval.rint = 104;
        for (const auto& [code, number] : numbers) {
            tail = tail->rbnext = kdutNewRb(code);
            if (code == 10)
                tail->resval.rpoint[0] = number;
            else
                tail->resval.rint = static_cast<short>(number);
        }
        if (text) {
            tail = tail->rbnext = kdutNewRb(1);
            tail->resval.rstring = kdutNewString(text);
        }
        members.groups.reset(head);
    });
    enter(values, node, record);
    return record;
}

KdDbObjectId BlocksTest::dependOn(KdDbAssocAction* action, KdDbObjectId object)
{
    return addObject<KdDbAssocDependency>(action->objectId(),
                                          [&](auto& members) { members.dependentOn = object; })
        ->objectId();
}

} // namespace blocks_test
