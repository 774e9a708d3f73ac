/// What the tests of block references and their elements share.
#pragma once

#include <database/xrecord.h>
#include <entities/all.h>

#include <blocks/block_element_providers.h>
#include <blocks/block_reference_providers.h>
#include <providers/support.h>

namespace blocks_test {

/// A key with its flag, as a provider lists it.
struct Listed
{
    const wchar_t* key;
    bool readOnly = false;
};

/// Expects the General keys and then these, in this order.
void expectListed(KdDbEntityPE& provider, const KdDbEntity* entity,
                  const std::vector<Listed>& expected);

/// A key with its answer: the record, what always follows it, and what follows where choices are
/// asked for.
struct Answered
{
    const wchar_t* key;
    std::string head;
    std::vector<std::string> always = {};
    std::vector<std::string> choices = {};
};

/// Expects the answers for all four combinations of the two requests.
void expectAnswers(KdDbEntityPE& provider, const KdDbEntity* entity,
                   const std::vector<Answered>& expected);

/// Expects no answer, with the record as it was, for no entity, a line and an unknown key.
void expectRefusals(KdDbEntityPE& provider, const KdDbEntity* entity);

/// Drawings with blocks, references and the objects around them.
class BlocksTest : public provider_test::ProviderTest
{
  protected:
    KdDbBlockTableRecord* addBlock(const wchar_t* name);
    KdDbBlockReference* addReference(const KdDbBlockTableRecord* block);
    /// A new object of the drawing, with members that `fill` sets.
    template <class Object, class Fill>
    Object* addObject(KdDbObjectId owner, Fill fill)
    {
        auto* object = new Object;
        fill(object->edit());
        EXPECT_EQ(drawing.addObject(object, owner), eOk);
        return object;
    }
    /// The dictionary under a key of another one, made if it is not there.
    KdDbDictionary* subDictionary(KdDbDictionary* dictionary, const wchar_t* key);
    KdDbDictionary* extensionOf(KdDbObject* object);
    void enter(KdDbDictionary* dictionary, const wchar_t* key, const KdDbObject* object);

    /// Makes a block dynamic and gives the graph that its elements go to.
    KdDbEvalGraph* makeDynamic(KdDbBlockTableRecord* block);
    template <class Element, class Fill>
    Element* addElement(KdDbEvalGraph* graph, Fill fill)
    {
        Element* element = addObject<Element>(graph->objectId(), fill);
        change(graph, [&](auto& members) { members.elements.push_back(element->objectId()); });
        return element;
    }
    /// What a reference stores for an element.
    KdDbXrecord* store(KdDbBlockReference* reference, const wchar_t* node,
                       const std::vector<std::pair<short, double>>& numbers,
                       const wchar_t* text = nullptr);

    /// Ties a reference to an action with a body and to what else the action follows.
    template <class Body, class Fill>
    Body* follow(KdDbBlockReference* reference, Fill fill,
                 const std::vector<KdDbObjectId>& sources = {})
    {
        auto* action = addObject<KdDbAssocAction>({}, [](auto&) {});
        Body* body = addObject<Body>(action->objectId(), fill);
        std::vector<KdDbObjectId> dependencies{dependOn(action, reference->objectId())};
        for (const KdDbObjectId source : sources)
            dependencies.push_back(dependOn(action, source));
        change(action, [&](auto& members) {
            members.body = body->objectId();
            members.dependencies = dependencies;
        });
        change(reference,
               [&](auto& members) { members.links.edit().reactors = {dependencies.front()}; });
        return body;
    }

  private:
    KdDbObjectId dependOn(KdDbAssocAction* action, KdDbObjectId object);
};

} // namespace blocks_test
