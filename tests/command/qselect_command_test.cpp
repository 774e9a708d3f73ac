#include <command/qselect_command.h>

#include <type_traits>

#include "support.h"

using namespace command_test;

namespace {

void someFunction() {}

class QselectCommand : public CommandTest
{
  protected:
    DDQSelectCommand m_made;
    KdEdCommand& command = m_made;
};

TEST_F(QselectCommand, HasNoDataOfItsOwn)
{
    EXPECT_EQ(sizeof(DDQSelectCommand), sizeof(KdEdCommand));
}

TEST_F(QselectCommand, AnswersWithTheClassOfItsBase)
{
    EXPECT_EQ(command.isA(), KdEdCommand::desc());
}

TEST_F(QselectCommand, AnswersEmptyToAllThatCommandsAreAsked)
{
    EXPECT_EQ(command.commandFlags(), 0);
    EXPECT_EQ(command.functionAddr(), nullptr);
    EXPECT_EQ(command.commandApp(), nullptr);
    EXPECT_EQ(command.UIContext(), nullptr);
    EXPECT_EQ(command.functionCode(), 0);
    EXPECT_EQ(command.globalName(), nullptr);
    EXPECT_EQ(command.localName(), nullptr);
    EXPECT_EQ(command.resourceHandle(), nullptr);
    EXPECT_TRUE(command.resourceInstance().isEmpty());
}

TEST_F(QselectCommand, TakesNothingThatItIsTold)
{
    command.commandUndef(true);
    command.functionAddr(someFunction);
    command.functionCode(7);
    EXPECT_EQ(command.functionAddr(), nullptr);
    EXPECT_EQ(command.functionCode(), 0);
}

TEST_F(QselectCommand, InheritsWhatObjectsAnswer)
{
    DDQSelectCommand other;
    EXPECT_EQ(command.clone(), nullptr);
    EXPECT_EQ(command.copyFrom(&other), eNotApplicable);
    EXPECT_TRUE(command.isEqualTo(&command));
    EXPECT_FALSE(command.isEqualTo(&other));
    EXPECT_EQ(command.comparedTo(&other), KdRx::kNotOrderable);
    EXPECT_EQ(command.subQueryX(KdEdCommand::desc()), nullptr);
}

} // namespace
