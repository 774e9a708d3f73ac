#include <dialog/filter_record.h>

#include "support.h"

using namespace command_test;

namespace {

class FilterRecord : public CommandTest
{
};

TEST_F(FilterRecord, StartsWithTheEntireDrawingIncludeNoAppendAndAllTypes)
{
    const DialogParameters record;
    EXPECT_EQ(record.filter, nullptr);
    EXPECT_TRUE(record.include);
    EXPECT_FALSE(record.append);
    EXPECT_TRUE(record.entireDrawing);
    EXPECT_EQ(record.objectTypeName, L"Multiple");
    EXPECT_EQ(record.selectionSource, -1);
    EXPECT_TRUE(record.objectClassName.empty());
}

TEST_F(FilterRecord, StartsWithNoPropertyAndNoOperator)
{
    const DialogParameters record;
    EXPECT_TRUE(record.propertyParameters.propertyKey.isEmpty());
    EXPECT_TRUE(record.propertyParameters.operatorText.isEmpty());
    EXPECT_EQ(record.propertyParameters.axis, 0);
}

} // namespace
