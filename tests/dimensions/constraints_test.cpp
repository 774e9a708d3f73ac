// The properties of dimensional constraints.
#include "support.h"

using namespace dimension_test;
using testing::ElementsAre;

namespace {

class Constraint : public DimensionTest
{
  protected:
    KdDbAssocVariable* variable = constrain(dimension(DimensionKind::Aligned), false);

    void expectInEveryCall(const wchar_t* key, const char* value)
    {
        for (const int choice : {0, 1, 2, 3}) {
            const Answer given = answerOfAll(key, (choice & 1) != 0, (choice & 2) != 0);
            EXPECT_EQ(given.status, 1);
            EXPECT_THAT(given.chain, ElementsAre(value));
        }
    }
};

TEST_F(Constraint, TellsItsForm)
{
    const wchar_t* key = L"Constrain:Constraint form";
    EXPECT_THAT(answerOfAll(key).chain, ElementsAre("5005 Annotational"));
    constrain(dimension(DimensionKind::Aligned), true);
    EXPECT_THAT(answerOfAll(key).chain, ElementsAre("5005 Dynamic"));
    EXPECT_THAT(answerOfAll(key, false, true).chain,
                ElementsAre("5005 Dynamic", "5005 Dynamic", "5005 Annotational"));
}

TEST_F(Constraint, TellsWhatItsVariableIs)
{
    expectInEveryCall(L"Constrain:Name", "5005 d1");
    expectInEveryCall(L"Constrain:Expression", "5005 2*d2");
    expectInEveryCall(L"Constrain:Description", "5005 Width of the plate");
    expectInEveryCall(L"Constrain:Value", "5005 45.0000");
    expectInEveryCall(L"Constrain:Reference", "290 false");
}

TEST_F(Constraint, HasKeysThatAreComparedWithoutCase)
{
    expectInEveryCall(L"CONSTRAIN:name", "5005 d1");
    expectInEveryCall(L"constrain:REFERENCE", "290 false");
    EXPECT_EQ(answerOfAll(L"misc:Dim style").status, 0);
}

TEST_F(Constraint, TellsALengthInTheUnitsOfTheDrawing)
{
    constexpr int kArchitectural = 4;
    setHeader(L"LUNITS", kArchitectural);
    expectInEveryCall(L"Constrain:Value", "5005 3'-9\"");
}

TEST_F(Constraint, TellsAnAngleFromDegrees)
{
    setHeader(L"AUPREC", 1);
    for (const DimensionKind kind : {DimensionKind::TwoLine, DimensionKind::ThreePoint}) {
        constrain(dimension(kind), false);
        EXPECT_THAT(answer(kind, L"Constrain:Value").chain, ElementsAre("5005 45.0"));
    }
}

TEST_F(Constraint, TellsThatItOnlyRefers)
{
    KdDbAssocDependency* dependency = nullptr;
    ASSERT_EQ(kddbOpenObject(dependency, dimension(DimensionKind::Aligned).reactors()[0]), eOk);
    dependency->close();
    KdDbAssocDimDependencyBody* body = nullptr;
    ASSERT_EQ(kddbOpenObject(body, dependency->dependencyBody(), KdDb::kForWrite), eOk);
    body->edit().reference = true;
    body->close();
    expectInEveryCall(L"Constrain:Reference", "290 true");
}

TEST_F(Constraint, AnswersNothingOfAVariableThatIsNotThere)
{
    for (const wchar_t* key : {L"Constrain:Name", L"Constrain:Expression", L"Constrain:Value",
                               L"Constrain:Description"}) {
        const Answer given = answer(DimensionKind::Radial, key); // no constraint
        EXPECT_EQ(given.status, 0);
        EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
    }
}

TEST_F(Constraint, GivesItsVariable)
{
    KdDbDimension_Extension provider;
    EXPECT_EQ(provider.getVariableFromDimConstraint(&dimension(DimensionKind::Aligned)), variable);
    EXPECT_EQ(provider.getVariableFromDimConstraint(&dimension(DimensionKind::Radial)), nullptr);
    EXPECT_EQ(provider.getVariableFromDimConstraint(nullptr), nullptr);
    EXPECT_FALSE(variable->isReadEnabled());
}

TEST_F(Constraint, LooksForItsVariableBehindEachDependency)
{
    auto& two = dimension(DimensionKind::Rotated);
    auto* empty = new KdDbAssocDependency;
    drawing.addObject(empty, {});
    change(empty, [](AssocDependencyMembers& members) { members.writes = true; });
    const auto* found = constrain(two, false);
    change(&two, [&](DimensionMembers& members) {
        auto& reactors = members.links.edit().reactors;
        reactors.insert(reactors.begin(), empty->objectId());
    });
    KdDbDimension_Extension provider;
    EXPECT_EQ(provider.getVariableFromDimConstraint(&two), found);
}

TEST_F(Constraint, HasNoVariableOnceThatIsErased)
{
    KdDbAssocVariable* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, variable->objectId(), KdDb::kForWrite), eOk);
    opened->erase();
    opened->close();
    KdDbDimension_Extension provider;
    EXPECT_EQ(provider.getVariableFromDimConstraint(&dimension(DimensionKind::Aligned)), nullptr);
}

} // namespace
