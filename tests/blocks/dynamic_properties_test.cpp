#include <numbers>

#include <entities/dyn_block_reference.h>

#include "support.h"

using namespace blocks_test;
using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr double kPi = std::numbers::pi;

/// A dynamic block with a parameter of each kind, and an unchanged reference to it.
class DynamicProperties : public BlocksTest
{
  protected:
    DynamicProperties();

    std::vector<std::string> chain(const wchar_t* key, bool withChoices = false)
    {
        return ask(provider, reference, key, false, withChoices).chain;
    }

    template <class Parameter, class Fill>
    Parameter* addParameter(int node, const wchar_t* name, Fill fill)
    {
        return addElement<Parameter>(graph, [&](auto& members) {
            members.nodeId = node;
            members.label.name = name;
            fill(members);
        });
    }

    KdDbBlockTableRecord* door = addBlock(L"DOOR");
    KdDbEvalGraph* graph = makeDynamic(door);
    KdDbBlockReference* reference = addReference(door);
    KdDbBlockReference_Extension provider;
};

DynamicProperties::DynamicProperties()
{
    const auto span = [](auto& members) {
        members.start = {1, 1, 0};
        members.end = {4, 5, 0};
    };
    addParameter<KdDbBlockLinearParameter>(1, L"Width", span);
    addElement<KdDbBlockPolarParameter>(graph, [&](auto& members) {
        members.nodeId = 2;
        members.distanceLabel.name = L"Reach";
        members.angleLabel.name = L"Direction";
        span(members);
    });
    addElement<KdDbBlockXYParameter>(graph, [&](auto& members) {
        members.nodeId = 3;
        members.horizontalLabel.name = L"Across";
        members.verticalLabel.name = L"Up";
        span(members);
    });
    addParameter<KdDbBlockRotationParameter>(4, L"Swing", [](auto& members) {
        members.end = {0, 5, 0};
        members.baseAnglePoint = {5, 0, 0};
    });
    addParameter<KdDbBlockFlipParameter>(5, L"Side", span);
    addParameter<KdDbBlockVisibilityParameter>(6, L"View", [](auto& members) {
        members.states = {L"Open", L"Closed"};
    });
    addParameter<KdDbBlockLookupParameter>(7, L"Size",
                                           [](auto& members) { members.actionNode = 9; });
    addParameter<KdDbBlockPointParameter>(8, L"Knob", [](auto& members) {
        members.point = {6, 7, 0};
    });
    addElement<KdDbBlockLookupAction>(graph, [](auto& members) {
        members.nodeId = 9;
        members.name = L"Sizes";
        members.columns = {{1, L"Custom"}, {7, L"Other"}};
        members.cells = {L"90", L"Single", L"120", L"Double"};
    });
}

TEST_F(DynamicProperties, OfAnUnchangedReferenceAreThoseOfTheBlock)
{
    expectAnswers(provider, reference,
                  {{L"Custom:Width", "5001 5"},
                   {L"Custom:Reach", "5001 5"},
                   {L"Custom:Direction", "5004 0.927295"},
                   {L"Custom:Across", "5001 3"},
                   {L"Custom:Up", "5001 4"},
                   {L"Custom:Swing", "5004 1.5708"},
                   {L"Custom:Side", "5005 0", {"5005 0", "5005 1"}},
                   {L"Custom:View", "5005 Open", {"5005 Open", "5005 Closed"}},
                   {L"Custom:Size", "5005 ", {"5005 Single", "5005 Double", "5005 Other"}},
                   {L"Custom:Knob X", "5001 6"},
                   {L"Custom:Knob Y", "5001 7"}});
}

TEST_F(DynamicProperties, OfConstraintsAreTheirDistanceOrAngle)
{
    const auto value = [](auto& members) { members.value = 1.25; };
    addParameter<KdDbBlockLinearConstraintParameter>(11, L"Clear", value);
    addParameter<KdDbBlockAngularConstraintParameter>(12, L"Tilt", value);
    expectAnswers(provider, reference,
                  {{L"Custom:Clear", "5001 1.25"}, {L"Custom:Tilt", "5004 1.25"}});
}

TEST_F(DynamicProperties, AreWhatTheReferenceStores)
{
    store(reference, L"1", {{10, 0}, {10, 7.5}});
    store(reference, L"5", {{10, 0}, {70, 1}});
    store(reference, L"6", {{10, 0}}, L"Closed");
    store(reference, L"7", {{10, 0}}, L"Double");
    store(reference, L"8", {{10, 2.5}});
    EXPECT_THAT(chain(L"Custom:Width"), ElementsAre("5001 7.5"));
    EXPECT_EQ(chain(L"Custom:Side").front(), "5005 1");
    EXPECT_EQ(chain(L"Custom:View").front(), "5005 Closed");
    EXPECT_EQ(chain(L"Custom:Size").front(), "5005 Double");
    EXPECT_THAT(chain(L"Custom:Knob X"), ElementsAre("5001 2.5"));
    EXPECT_THAT(chain(L"Custom:Knob Y"), ElementsAre("5001 0"));
}

TEST_F(DynamicProperties, MeasureAnglesFromTheStoredBase)
{
    store(reference, L"4", {{10, 0}, {10, 5}, {10, 0}, {10, -5}});
    EXPECT_THAT(chain(L"Custom:Swing"), ElementsAre("5004 3.14159"));
    store(reference, L"2", {{10, 1}, {10, 3}, {10, 0}, {10, -4}});
    EXPECT_THAT(chain(L"Custom:Reach"), ElementsAre("5001 2"));
    EXPECT_THAT(chain(L"Custom:Direction"), ElementsAre("5004 3.14159"));
}

TEST_F(DynamicProperties, AreNeverListed)
{
    EXPECT_EQ(list(provider, reference).keys.size(), 17u);
}

TEST_F(DynamicProperties, MatchByTheWholeName)
{
    for (const wchar_t* key : {L"Custom:width", L"Custom:", L"Custom:Wid", L"custom:Width",
                               L"Width", L"Attributes:Width"}) {
        EXPECT_EQ(ask(provider, reference, key).status, 0)
            << testing::PrintToString(std::wstring(key));
        EXPECT_THAT(chain(key), ElementsAre("5000 nothing"));
    }
}

TEST_F(DynamicProperties, CalledOriginAreNeverFound)
{
    int node = 20;
    for (const wchar_t* name : {L"Origin", L"ORIGIN", L"origin"}) {
        addParameter<KdDbBlockLinearParameter>(++node, name, [](auto&) {});
        const std::wstring key = std::wstring(L"Custom:") + name;
        EXPECT_EQ(ask(provider, reference, key.c_str()).status, 0);
        EXPECT_THAT(chain(key.c_str()), ElementsAre("5000 nothing"));
    }
}

TEST_F(DynamicProperties, AreThoseOfTheFirstParameterOfAName)
{
    addParameter<KdDbBlockLinearParameter>(21, L"Width", [](auto&) {});
    EXPECT_THAT(chain(L"Custom:Width"), ElementsAre("5001 5"));
}

struct UserRow
{
    BlockUserParameterUnit unit;
    KdDbEvalVariant value;
    int status;
    const char* head;
    const char* name;
};

class UserParameters : public DynamicProperties, public testing::WithParamInterface<UserRow>
{
};

INSTANTIATE_TEST_SUITE_P(
    Units, UserParameters,
    testing::Values(
        UserRow{BlockUserParameterUnit::Angle, KdDbEvalVariant(kPi), 1, "5004 3.14159", "Angle"},
        UserRow{BlockUserParameterUnit::Distance, KdDbEvalVariant(2.5), 1, "5001 2.5", "Distance"},
        UserRow{BlockUserParameterUnit::Area, KdDbEvalVariant(2.5), 0, "5000 nothing", "Area"},
        UserRow{BlockUserParameterUnit::Volume, KdDbEvalVariant(2.5), 1, "5000 nothing", "Volume"},
        UserRow{BlockUserParameterUnit::None, KdDbEvalVariant(KdString(L"oak")), 1, "5005 oak",
                "Text"},
        UserRow{BlockUserParameterUnit::None, KdDbEvalVariant(KdString(L"ash"), 1), 1, "5005 ash",
                "TextByGroupCode"},
        UserRow{BlockUserParameterUnit::None, KdDbEvalVariant(-3, 70), 1, "5005 -3", "Short"},
        UserRow{BlockUserParameterUnit::None, KdDbEvalVariant(2.5), 1, "5000 nothing", "Real"},
        UserRow{BlockUserParameterUnit::None, KdDbEvalVariant(), 1, "5000 nothing", "Nothing"}),
    [](const auto& row) { return row.param.name; });

TEST_P(UserParameters, AreReadByTheirUnit)
{
    addParameter<KdDbBlockUserParameter>(30, L"User", [](auto& members) {
        members.unit = GetParam().unit;
        members.value = GetParam().value;
    });
    const Answer answer = ask(provider, reference, L"Custom:User");
    EXPECT_EQ(answer.status, GetParam().status);
    EXPECT_THAT(answer.chain, ElementsAre(GetParam().head));
}

TEST_F(DynamicProperties, AreThoseOfDynamicBlocksAlone)
{
    auto* plain = addReference(addBlock(L"PLAIN"));
    EXPECT_EQ(ask(provider, plain, L"Custom:Width").status, 0);
    ResBuf* head = ResBuf::newRb(ResBuf::kNone);
    EXPECT_FALSE(provider.fillDinamicBlocInformation(plain, head, L"Width"));
    EXPECT_FALSE(provider.fillDinamicBlocInformation(nullptr, head, L"Width"));
    EXPECT_TRUE(provider.fillSmartBlockInformation(reference, head, L"Width"));
    EXPECT_EQ(head->getDouble(), 5.0);
    ResBuf::relRb(head);
}

TEST_F(DynamicProperties, TellWhetherTheirParameterShowsThem)
{
    addParameter<KdDbBlockLinearParameter>(22, L"Hidden",
                                           [](auto& members) { members.showProperties = false; });
    KdDbDynBlockReferencePropertyArray properties;
    KdDbDynBlockReference(*reference).getBlockProperties(properties);
    ASSERT_EQ(properties.length(), 12);
    EXPECT_TRUE(properties[0].show());
    EXPECT_FALSE(properties[11].show());
    EXPECT_EQ(properties[11].propertyName(), L"Hidden");
}

} // namespace
